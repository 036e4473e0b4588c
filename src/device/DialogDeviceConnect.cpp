#include "DialogDeviceConnect.h"

#include "Clock.h"
#include "CommandCatalogue.h"
#include "DefaultKeyMaps.h"
#include "DeviceBytes.h"
#include "DeviceLog.h"
#include "Frame.h"
#include "HidBackend.h"
#include "InstallLayout.h"
#include "MagnetTables.h"

#include <QSettings>

namespace {

DialogDeviceConnect* g_instance = nullptr;

constexpr quint16 kVendorUsagePage = 0xFFFF;
constexpr quint16 kInputUsage = 1;
constexpr quint16 kCommandUsage = 2;
constexpr int kReplyDispatchLow = 131;  // 0x83
constexpr int kReplyDispatchHigh = 229; // 0xE5
constexpr int kReadAllFrameLength = 8;
constexpr int kProfileFrameLength = 12;


using DeviceBytes::command;

quint8 byteAt(const QByteArray& data, int index)
{
    return DeviceBytes::at(data, index);
}

} // namespace

DialogDeviceConnect::DialogDeviceConnect(HidBackend* hidBackend, Clock* clk,
                                         const QString& settingsPath, QObject* parent)
    : QObject(parent), hid(hidBackend), clock(clk)
{
    if (!g_instance) g_instance = this;

    const QString path = settingsPath.isEmpty()
                             ? InstallLayout().settingsFile(QStringLiteral("device.ini"))
                             : settingsPath;
    settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    lineVid = settings->value("lastVID", "3151").toString();
    linePid = settings->value("lastPID", "502F").toString();
    lineCommand = QStringLiteral("8F 00 00 00 00 00 00 70");

    keyMatrix[0] = DefaultKeyMaps::DefaultKeyMap();
    fnMatrix[0] = DefaultKeyMaps::DefaultFnMap();
    consoleRows.changed = [this](int row) { emit consoleRowChanged(row); };

    inputPollTimer = clock->createTimer([this] { pollInput(); }, true);
    sendTimer = clock->createTimer([this] { pumpStep(); }, true);
    hotplugTimer = clock->createTimer([this] { refreshStep(); }, true);
    inputPollTimer->start(kPollIntervalMs);
}

DialogDeviceConnect::~DialogDeviceConnect()
{
    closeHandles();
    if (g_instance == this) g_instance = nullptr;
}

DialogDeviceConnect* DialogDeviceConnect::instance()
{
    return g_instance;
}

bool DialogDeviceConnect::isIdle() const
{
    return sendQueue.isEmpty() && armedSteps == 0 && !sendTimer->isActive() && !readingAll &&
           !readAllPending;
}

int DialogDeviceConnect::magnetTableIndex(quint8 table)
{
    if (table <= 0x0A) return table;
    switch (table) {
    case 0xFF:
        return 11;
    case 0xFE:
        return 12;
    case 0xFC:
        return 13;
    case 0xFB:
        return 14;
    default:
        return -1;
    }
}

QString DialogDeviceConnect::logText(const QByteArray& bytes)
{
    QString text = Frame::hexText(bytes);
    for (int i = text.size() - 12; i > 0; i -= 12)
        text.insert(i, QLatin1Char(' '));
    return text;
}

// ---------------------------------------------------------------- connection

void DialogDeviceConnect::DoConnectDevice(quint16 vid, quint16 pid, bool wireless,
                                          const QString& idText, const QString& path)
{
    if (idText == deviceIdText && path == devicePath) return;
    isWireless = wireless;
    deviceIdText = idText;
    devicePath = path;
    const QString vidHex = QString::asprintf("%04X", vid);
    const QString pidHex = QString::asprintf("%04X", pid);
    qCDebug(lcDevice) << "DoConnectDevice:" << path << pidHex;
    lineVid = vidHex;
    linePid = pidHex;
    connectStep();
}

void DialogDeviceConnect::closeHandles()
{
    for (HidHandle** h : {&inputHandle, &commandHandle, &musicHandle}) {
        if (*h) hid->close(*h);
        *h = nullptr;
    }
    ++connectionGeneration;
}

void DialogDeviceConnect::resetVersion()
{
    versionAtLeast300 = false;
    versionAtLeast400 = false;
    deviceId = 0;
    firmwareVersion = 0;
    travelScale = 10;
}

void DialogDeviceConnect::setLamps(bool inputOk, bool commandOk)
{
    lampInput = inputOk;
    lampCommand = commandOk;
    emit lampsChanged(inputOk, commandOk);
}

void DialogDeviceConnect::connectStep()
{
    closeHandles();
    setLamps(false, false);

    if (isWireless) {
        // One handle through the receiver; reads block up to their own limit.
        commandHandle = hid->openPath(devicePath.toUtf8());
        if (commandHandle) hid->setNonblocking(commandHandle, false);
        emit onConnect();
        resetVersion();
        enqueue(command(CommandCatalogue::CMD_GET_INFOR, 1), Kick::Deferred);
        return;
    }

    bool okVid = false;
    bool okPid = false;
    const quint16 vid = lineVid.trimmed().toUShort(&okVid, 16);
    const quint16 pid = linePid.trimmed().toUShort(&okPid, 16);
    QList<HidDeviceInfo> entries;
    if (okVid && okPid) entries = hid->enumerate(vid, pid);
    for (const HidDeviceInfo& e : entries) {
        if (inputHandle && commandHandle && musicHandle) break;
        if (e.usagePage != kVendorUsagePage) continue;
        if (e.usage == kInputUsage && !inputHandle) {
            inputHandle = hid->openPath(e.path);
            if (inputHandle) {
                hid->setNonblocking(inputHandle, true);
                setLamps(true, lampCommand);
            }
        } else if (e.usage == kCommandUsage && !commandHandle) {
            commandHandle = hid->openPath(e.path);
            musicHandle = hid->openPath(e.path);
            if (commandHandle) setLamps(lampInput, true);
        }
    }

    if (inputHandle && commandHandle && musicHandle) {
        emit onConnect();
        enqueue(QByteArray::fromHex("1B 01"), Kick::Immediate);
        resetVersion();
        enqueue(command(CommandCatalogue::CMD_GET_INFOR, 1), Kick::Deferred);
        settings->setValue("lastVID", lineVid.trimmed());
        settings->setValue("lastPID", linePid.trimmed());
        settings->sync();
        if (settings->status() != QSettings::NoError)
            qCWarning(lcDevice) << "could not write" << settings->fileName();
    }
    if (!inputHandle || !commandHandle) emit onDisconnect();
}

void DialogDeviceConnect::refreshStep()
{
    hotplugTimer->stop();
    bool ok = false;
    const quint16 vid = lineVid.trimmed().toUShort(&ok, 16);
    QStringList pids;
    if (ok) {
        for (const HidDeviceInfo& e : hid->enumerate(vid, 0))
            if (e.usagePage == kVendorUsagePage && e.usage == kInputUsage)
                pids.append(QString::asprintf("%04X", e.productId));
    }
    comboPids = pids;
    // The list is filled with its signals blocked: the selection doesn't touch the PID text.
    const int match = pids.indexOf(linePid.trimmed().toUpper());
    comboIndex = match >= 0 ? match : (pids.isEmpty() ? -1 : 0);
    emit pidListChanged();
    connectStep();
}

void DialogDeviceConnect::selectPid(const QString& pidText)
{
    comboIndex = comboPids.indexOf(pidText);
    linePid = pidText;
    connectStep();
}

void DialogDeviceConnect::onDevicePluggined()
{
    hotplugTimer->stop();
    hotplugTimer->start(kHotplugQuietMs);
}

// ---------------------------------------------------------------- queue and pump

void DialogDeviceConnect::DoSendCommand(quint8 byte0, int length, bool immediate)
{
    enqueue(command(byte0, qMax(1, length)), immediate ? Kick::Immediate : Kick::Deferred);
}

void DialogDeviceConnect::DoSendHex(const QString& text, bool immediate)
{
    enqueue(QByteArray::fromHex(text.toLatin1()), immediate ? Kick::Immediate : Kick::Deferred);
}

void DialogDeviceConnect::enqueue(const QByteArray& cmd, Kick kick)
{
    if (!commandHandle || cmd.isEmpty()) return;
    sendQueue.append(cmd);
    if (kick == Kick::Deferred) {
        sendTimer->stop();
        sendTimer->start(kDeferredKickMs);
    } else {
        pumpStep();
    }
}

void DialogDeviceConnect::armStep(int milliseconds, void (DialogDeviceConnect::*step)())
{
    ++armedSteps;
    const quint64 generation = connectionGeneration;
    clock->singleShot(milliseconds, this, [this, step, generation] {
        --armedSteps;
        if (generation == connectionGeneration && commandHandle) (this->*step)();
    });
}

void DialogDeviceConnect::pumpStep()
{
    if (sendQueue.isEmpty()) {
        if (readingAll) finishReadAll();
        return;
    }
    if (!commandHandle) return;
    const QByteArray frame = Frame::close(sendQueue.takeFirst());
    lastCommand = frame;
    if (isWireless) {
        armStep(kWirelessReadDelayMs, &DialogDeviceConnect::readStep);
        Frame::sendWireless(*hid, commandHandle, frame);
    } else {
        Frame::sendWired(*hid, commandHandle, frame);
        armStep(kWiredReadDelayMs, &DialogDeviceConnect::readStep);
    }
}

void DialogDeviceConnect::readStep()
{
    if (!commandHandle) return;
    QByteArray data;
    const bool got = isWireless ? Frame::takeReplyWireless(*hid, commandHandle, &data)
                                : Frame::takeReplyWired(*hid, commandHandle, &data);
    if (!got) {
        qCDebug(lcDevice) << "no reply to" << logText(lastCommand.left(8));
        return; // the pump stops here; the queue waits for the next kick
    }

    const quint8 first = byteAt(data, 0);
    if (first & 0x80) {
        const int row = consoleRows.rowOf(first);
        if (row >= 0)
            for (int i = 1; i <= 7; ++i)
                consoleRows.setCell(row, i, byteAt(data, i));
    }

    dispatch(data);
    emit onReadBack(data);
    log(lastCommand.left(8), false);
    log(data, true);
    armStep(kPumpAfterReplyMs, &DialogDeviceConnect::pumpStep);
}

void DialogDeviceConnect::dispatch(const QByteArray& data)
{
    // What a reply means follows from the command sent last, not from the reply's own bytes.
    const int sent = byteAt(lastCommand, 0);
    if (sent < kReplyDispatchLow || sent > kReplyDispatchHigh) return;
    switch (sent) {
    case CommandCatalogue::CMD_GET_REPORT:
        reportRate = byteAt(data, 2);
        break;
    case CommandCatalogue::CMD_GET_PROFILE:
        emit onUpdataLayer(static_cast<qint8>(byteAt(data, 1)));
        break;
    case CommandCatalogue::CMD_GET_DEBOUNCE:
        debounce = byteAt(data, 1);
        break;
    case CommandCatalogue::CMD_GET_LEDPARAM:
    case CommandCatalogue::CMD_GET_SLEDPARAM: {
        const bool side = sent == CommandCatalogue::CMD_GET_SLEDPARAM;
        const int effect = static_cast<qint8>(byteAt(data, 1));
        if (side && effect >= 0 && effect < kSideLedSlots)
            sideLedParams[effect] = data;
        else if (!side && effect >= 0 && effect < kLedSlots)
            ledParams[effect] = data;
        const int row = consoleRows.rowOf(side ? CommandCatalogue::CMD_SET_SLEDPARAM
                                               : CommandCatalogue::CMD_SET_LEDPARAM);
        consoleRows.setCell(row, 1, byteAt(data, 1));
        consoleRows.setCell(row, 2, 4 - byteAt(data, 2));
        consoleRows.setCell(row, 3, byteAt(data, 3));
        break;
    }
    case CommandCatalogue::CMD_GET_KBOPTION:
        kbOptions = data;
        qCDebug(lcDevice).noquote() << "get_:" << QString::fromLatin1(data.toHex().toUpper());
        enqueue(command(CommandCatalogue::CMD_GET_PROFILE, 1), Kick::Deferred);
        break;
    case CommandCatalogue::CMD_GET_KEYMATRIX: {
        const int slot = byteAt(lastCommand, 4);
        if (slot < kKeySlots) keyPages[slot].append(data);
        break;
    }
    case CommandCatalogue::CMD_GET_USERPIC:
        userPicture.append(data);
        if (byteAt(lastCommand, 3) == 5) emit onGetPictrue(userPicture);
        break;
    case CommandCatalogue::CMD_GET_INFOR:
        storeIdentity(data);
        enqueue(command(CommandCatalogue::CMD_GET_KBOPTION, 1), Kick::Deferred);
        break;
    case CommandCatalogue::CMD_GET_FN: {
        const int slot = byteAt(lastCommand, 2);
        if (slot < kKeySlots) fnPages[slot].append(data);
        break;
    }
    case CommandCatalogue::CMD_GET_SLEEPTIME:
        for (int i = 0; i < 4; ++i)
            sleepTimes[i] = DeviceBytes::u16(data, 8 + 2 * i);
        break;
    case CommandCatalogue::CMD_READ_MAGNETISM: {
        const quint8 table = byteAt(lastCommand, 1);
        if (calibrating && table == 0xFE) {
            calibrationBuffer.append(data);
            if (byteAt(lastCommand, 3) == 3) {
                static QByteArray scan;
                scan = calibrationBuffer;
                calibrationBuffer.clear();
                emit onCalibration(scan);
            }
        } else if (const int index = magnetTableIndex(table); index >= 0) {
            magnetTables[index].append(data);
        }
        break;
    }
    default:
        break;
    }
}

void DialogDeviceConnect::storeIdentity(const QByteArray& data)
{
    deviceInfo = data;
    deviceId = DeviceBytes::u32(data, 1);
    firmwareVersion = DeviceBytes::u16(data, 7);
    labelVersion =
        QString::asprintf("Ver:0x%03X Id:%d[%03X]", firmwareVersion, int(deviceId), deviceId);
    emit versionTextChanged(labelVersion);
    versionAtLeast300 = firmwareVersion >= 0x300;
    versionAtLeast400 = firmwareVersion >= 0x400;
    travelScale = firmwareVersion >= 0x500 ? 200 : (firmwareVersion >= 0x300 ? 100 : 10);
}

// ---------------------------------------------------------------- read sequence

void DialogDeviceConnect::DoSetProfile(quint8 layer)
{
    currentProfile = layer;
    QByteArray c = command(CommandCatalogue::CMD_SET_PROFILE, kProfileFrameLength);
    c[1] = static_cast<char>(layer);
    enqueue(c, Kick::Immediate);
    readAllPending = true;
    ++armedSteps;
    clock->singleShot(kProfileReadDelayMs, this, [this] {
        --armedSteps;
        readAllPending = false;
        DoReadAll();
    });
}

void DialogDeviceConnect::DoReadAll()
{
    emit onReadAll();
    readingAll = true;
    musicOn = false;
    sendQueue.clear();
    travelScale = 10;
    firmwareVersion = 0;
    for (int i = 0; i < kKeySlots; ++i) {
        keyPages[i].clear();
        fnPages[i].clear();
    }
    for (QByteArray& t : magnetTables)
        t.clear();

    for (quint8 c : {CommandCatalogue::CMD_GET_REPORT, CommandCatalogue::CMD_GET_LEDPARAM,
                     CommandCatalogue::CMD_GET_SLEDPARAM, CommandCatalogue::CMD_GET_DEBOUNCE,
                     CommandCatalogue::CMD_GET_SLEEPTIME})
        enqueue(command(c, kReadAllFrameLength), Kick::Deferred);

    for (int layer = 0; layer < 4; ++layer) {
        for (int page = 0; page < 8; ++page) {
            QByteArray c = command(CommandCatalogue::CMD_GET_KEYMATRIX, kReadAllFrameLength);
            c[1] = static_cast<char>(currentProfile);
            c[2] = char(0xFF);
            c[3] = static_cast<char>(page);
            c[4] = static_cast<char>(layer);
            enqueue(c, Kick::Deferred);
        }
    }
    for (int page = 0; page < 10; ++page) {
        QByteArray c = command(CommandCatalogue::CMD_GET_FN, kReadAllFrameLength);
        c[3] = char(0xFF);
        c[4] = static_cast<char>(page);
        enqueue(c, Kick::Deferred);
    }

    if (!versionAtLeast300) return;
    for (const MagnetTables::Table& t : MagnetTables::kTables)
        for (int page = 0; page < t.pages; ++page)
            DoSendHex(QString::asprintf("E5 %02X 01 %02X", t.number, page), false);
}

void DialogDeviceConnect::finishReadAll()
{
    readingAll = false;
    for (int i = 0; i < kKeySlots; ++i) {
        keyMatrix[i] = keyPages[i];
        fnMatrix[i] = fnPages[i];
    }
    ++armedSteps;
    clock->singleShot(kReadDoneDelayMs, this, [this] {
        --armedSteps;
        emit onReadDone();
    });
}

void DialogDeviceConnect::DoFactoryReset()
{
    keyMatrix[0] = DefaultKeyMaps::DefaultKeyMap();
    fnMatrix[0] = DefaultKeyMaps::DefaultFnMap();
    BuildRowCommand(consoleRows.rowOf(CommandCatalogue::CMD_SET_RESET), true);
    DoReadAll();
}

void DialogDeviceConnect::GetKeyEntry(quint8 out[4], quint8 keyIndex, quint8 layer) const
{
    const bool fn = (layer & 0xF0) == 0xF0;
    const int slot = fn ? (layer & 0x0F) : layer;
    const QByteArray empty;
    const QByteArray& matrix = slot < kKeySlots ? (fn ? fnMatrix[slot] : keyMatrix[slot]) : empty;
    for (int i = 0; i < 4; ++i)
        out[i] = byteAt(matrix, keyIndex * 4 + i);
}

// ---------------------------------------------------------------- console

void DialogDeviceConnect::BuildRowCommand(int row, bool write)
{
    if (readingAll || row < 0 || row >= consoleRows.count()) return;
    lineCommand = Frame::hexText(consoleRows.bytes(row));
    emit commandLineChanged(lineCommand);
    if (write) writeCommandLine();
}

void DialogDeviceConnect::writeCommandLine()
{
    if (!commandHandle || readingAll) return;
    enqueue(QByteArray::fromHex(lineCommand.trimmed().toLatin1()), Kick::Immediate);
}

void DialogDeviceConnect::log(const QByteArray& bytes, bool lineEnd)
{
    const QString text = logText(bytes);
    qCDebug(lcDevice).noquote() << text;
    emit logLine(text, lineEnd);
}

// ---------------------------------------------------------------- input stream

void DialogDeviceConnect::pollInput()
{
    inputPollTimer->stop();
    if (inputHandle && !readingAll) {
        quint8 buffer[Frame::kReplyBufferSize] = {};
        const int n = hid->read(inputHandle, buffer, 64);
        if (n > 0) {
            const QByteArray report(reinterpret_cast<const char*>(buffer), n);
            log(report, true);
            if (buffer[0] == 0x05 || buffer[1] == 0x1B) takeKeyTestSample(report);
        }
    }
    inputPollTimer->start(kPollIntervalMs);
}

void DialogDeviceConnect::takeKeyTestSample(const QByteArray& report)
{
    keyTravel = static_cast<float>(DeviceBytes::u16(report, 2) / 720.0);
    emit onKeyTest();
}
