#include "DialogDeviceConnect.h"

#include "CommandLayouts.h"
#include "ConnectSteps.h"
#include "ConsoleModel.h"
#include "DeviceLink.h"
#include "HidIoThread.h"
#include "KeyOps.h"
#include "MagnetismOps.h"
#include "MusicTimer.h"
#include "ReadSequence.h"
#include "ReplyDispatch.h"
#include "SettingsOps.h"
#include "TransferOps.h"

using Kick = DeviceLink::Kick;

DialogDeviceConnect::DialogDeviceConnect(HidBackend* hid, Clock* clock,
                                         const ModuleGenKeymapping& keys,
                                         const QString& settingsPath,
                                         std::unique_ptr<HidExecutor> executor, QObject* parent)
    : QObject(parent), io(executor ? std::move(executor) : std::make_unique<HidIoThread>()),
      consoleModel(std::make_unique<ConsoleModel>(clock, settingsPath)),
      link(std::make_unique<DeviceLink>(*hid, *clock, *io))
{
    const DeviceParts parts{*this, *link, data, *consoleModel, *clock, keys};
    dispatch = std::make_unique<ReplyDispatch>(parts);
    connection = std::make_unique<ConnectSteps>(parts);
    readSequence = std::make_unique<ReadSequence>(parts);
    settings = std::make_unique<SettingsOps>(parts);
    keyOps = std::make_unique<KeyOps>(parts);
    magnetism = std::make_unique<MagnetismOps>(parts);
    transfers = std::make_unique<TransferOps>(parts);
    music = std::make_unique<MusicTimer>(parts);

    data.restoreDefaultMatrices();
    // A changed cell puts its row into the command line, whoever changed it: the dispatch
    // showing a read reply, an operation, or a hand in the console.
    connect(consoleModel.get(), &ConsoleModel::rowChanged, this,
            [this](int row) { settings->BuildRowCommand(row, false); });
    link->setHooks({
        .reply = [this](const QByteArray& reply) { dispatch->take(reply); },
        .input = [this](const QByteArray& report) { magnetism->takeInputReport(report); },
        .drained = [this] { readSequence->finish(); },
    });
}

DialogDeviceConnect::~DialogDeviceConnect()
{
    // The closes are queued behind the executor's last jobs; it waits for them as it goes.
    link->closeHandles();
    io.reset();
}

void DialogDeviceConnect::setAudioCapture(const AudioCapture* capture)
{
    music->setCapture(capture);
}

// ---------------------------------------------------------------- connection and queue

void DialogDeviceConnect::DoConnectDevice(quint16 vid, quint16 pid, bool isWireless,
                                          const QString& idText, const QString& path)
{
    connection->DoConnectDevice(vid, pid, isWireless, idText, path);
}

void DialogDeviceConnect::DoSendCommand(quint8 command, int length, bool immediate)
{
    link->enqueue(CommandLayouts::plain(command, length),
                  immediate ? Kick::Immediate : Kick::Deferred);
}

void DialogDeviceConnect::DoSendHex(const QString& text, bool immediate)
{
    link->enqueue(QByteArray::fromHex(text.toLatin1()),
                  immediate ? Kick::Immediate : Kick::Deferred);
}

void DialogDeviceConnect::connectStep()
{
    connection->connectStep();
}

void DialogDeviceConnect::readStep()
{
    link->readStep();
}

void DialogDeviceConnect::writeCommandLine()
{
    settings->writeCommandLine();
}

void DialogDeviceConnect::refreshStep()
{
    connection->refreshStep();
}

void DialogDeviceConnect::selectPid(const QString& pidText)
{
    connection->selectPid(pidText);
}

void DialogDeviceConnect::BuildRowCommand(int row, bool write)
{
    settings->BuildRowCommand(row, write);
}

QStringList DialogDeviceConnect::SaveMatrix()
{
    return keyOps->SaveMatrix();
}

void DialogDeviceConnect::onDevicePluggined()
{
    connection->onDevicePluggined();
}

bool DialogDeviceConnect::isConnected() const
{
    return link->isConnected();
}

bool DialogDeviceConnect::isReadingAll() const
{
    return link->isReadingAll();
}

bool DialogDeviceConnect::isWirelessConnection() const
{
    return link->isWireless();
}

bool DialogDeviceConnect::isIdle() const
{
    return link->isIdle();
}

int DialogDeviceConnect::queuedCount() const
{
    return link->queuedCount();
}

const QList<QByteArray>& DialogDeviceConnect::queue() const
{
    return link->queue();
}

QByteArray DialogDeviceConnect::LastCommand() const
{
    return link->lastCommand();
}

// ---------------------------------------------------------------- read sequence

void DialogDeviceConnect::DoReadAll()
{
    readSequence->DoReadAll();
}

void DialogDeviceConnect::DoFactoryReset()
{
    readSequence->DoFactoryReset();
}

void DialogDeviceConnect::DoSetProfile(quint8 layer)
{
    readSequence->DoSetProfile(layer);
}

void DialogDeviceConnect::GetKeyEntry(quint8 out[4], quint8 keyIndex, quint8 layer) const
{
    data.keyEntry(out, keyIndex, layer);
}

// ---------------------------------------------------------------- settings and lighting

void DialogDeviceConnect::DoSetReportRate(quint8 value)
{
    settings->DoSetReportRate(value);
}

void DialogDeviceConnect::DoSetDebounce(quint8 value)
{
    settings->DoSetDebounce(value);
}

void DialogDeviceConnect::DoSetLedOnOff(bool off)
{
    settings->DoSetLedOnOff(off);
}

void DialogDeviceConnect::DoSetLedEffect(int effect, quint8 option)
{
    settings->DoSetLedEffect(effect, option);
    if (data.musicOn) music->wake();
}

void DialogDeviceConnect::DoSetLedSpeed(quint8 speed)
{
    settings->DoSetLedSpeed(speed);
}

void DialogDeviceConnect::DoSetLedBrightness(int brightness)
{
    settings->DoSetLedBrightness(brightness);
}

void DialogDeviceConnect::DoSetLedColor(quint32 rgb, int option)
{
    settings->DoSetLedColor(rgb, option);
}

void DialogDeviceConnect::DoSetSideLed(const QByteArray& bytes)
{
    settings->DoSetSideLed(bytes);
}

void DialogDeviceConnect::DoSetKbOption(int index, quint8 value)
{
    settings->DoSetKbOption(index, value);
}

quint8 DialogDeviceConnect::GetKbOption(int index) const
{
    return settings->GetKbOption(index);
}

void DialogDeviceConnect::DoSetSleepTime(int minutes, int slot)
{
    settings->DoSetSleepTime(minutes, slot);
}

// ---------------------------------------------------------------- keys

void DialogDeviceConnect::DoSetKey(quint8 keyCode, const quint8 entry[4], quint8 layer, quint8 last)
{
    keyOps->DoSetKey(keyCode, entry, layer, last);
}

void DialogDeviceConnect::DoSetFn(quint8 keyCode, const quint8 entry[4])
{
    keyOps->DoSetFn(keyCode, entry);
}

void DialogDeviceConnect::DoSetKeyCode(quint8 keyCode, bool enabled, quint8 layer)
{
    keyOps->DoSetKeyCode(keyCode, enabled, layer);
}

void DialogDeviceConnect::DoSetFnCode(quint8 keyCode, bool enabled)
{
    keyOps->DoSetFnCode(keyCode, enabled);
}

void DialogDeviceConnect::DoResetKey(quint8 keyCode)
{
    keyOps->DoResetKey(keyCode);
}

void DialogDeviceConnect::GetKeyDisplay(QStringList& out, quint8 keyCode) const
{
    keyOps->GetKeyDisplay(out, keyCode);
}

// ---------------------------------------------------------------- magnetism

void DialogDeviceConnect::DoSetMagnetism(quint8 table, quint8 keyCode, quint32 value, quint8 commit)
{
    magnetism->DoSetMagnetism(table, keyCode, value, commit);
}

quint32 DialogDeviceConnect::GetMagnetism(quint8 table, quint8 position) const
{
    return data.magnetism(table, position);
}

void DialogDeviceConnect::SetMagnetism(quint8 table, quint8 position, quint32 value)
{
    data.setMagnetism(table, position, value);
}

quint32 DialogDeviceConnect::GetKeyMode(quint8 keyCode) const
{
    return magnetism->GetKeyMode(keyCode);
}

quint32 DialogDeviceConnect::GetKeyOption(quint8 position) const
{
    return magnetism->GetKeyOption(position);
}

void DialogDeviceConnect::DoSetKeyFlag(quint8 keyCode, bool on)
{
    magnetism->DoSetKeyFlag(keyCode, on);
}

void DialogDeviceConnect::DoStartKeyTest()
{
    magnetism->DoStartKeyTest();
}

void DialogDeviceConnect::DoStopKeyTest()
{
    magnetism->DoStopKeyTest();
}

void DialogDeviceConnect::DoStartCalibration()
{
    magnetism->DoStartCalibration();
}

void DialogDeviceConnect::DoStopCalibration()
{
    magnetism->DoStopCalibration();
}

// ---------------------------------------------------------------- transfers

void DialogDeviceConnect::DoSetMacro(quint8 keyCode, quint16 repeat, quint8 mode, quint8 macroId,
                                     const QByteArray& stream)
{
    transfers->DoSetMacro(keyCode, repeat, mode, macroId, stream);
}

void DialogDeviceConnect::DoWriteUserPic(quint8 slot, const QByteArray& colourMap)
{
    transfers->DoWriteUserPic(slot, colourMap);
}

void DialogDeviceConnect::DoReadUserPic(quint8 slot)
{
    transfers->DoReadUserPic(slot);
}
