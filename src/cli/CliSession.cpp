#include "CliSession.h"

#include "BackupCommand.h"
#include "BackupFile.h"
#include "CacheJson.h"
#include "Clock.h"
#include "ConsoleModel.h"
#include "DeviceListCommand.h"
#include "DialogDeviceConnect.h"
#include "HidapiBackend.h"
#include "InstallLayout.h"
#include "TracingHidBackend.h"
#include "VirtualHidBackend.h"
#include "VirtualKeyboard.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QTextStream>

namespace {

// The interfaces a native keyboard offers on each transport.
constexpr quint16 kWiredUsagePage = 0xFFFF;
constexpr quint16 kWiredInputUsage = 1;
constexpr quint16 kWiredCommandUsage = 2;
constexpr quint16 kWirelessUsagePage = 0xFF55;
constexpr quint16 kWirelessUsage = 0x0202;

bool isWiredInterface(const HidDeviceInfo& e)
{
    return e.usagePage == kWiredUsagePage &&
           (e.usage == kWiredInputUsage || e.usage == kWiredCommandUsage);
}

bool isWirelessInterface(const HidDeviceInfo& e)
{
    return e.usagePage == kWirelessUsagePage && e.usage == kWirelessUsage;
}

} // namespace

CliSession::CliSession(const CliOptions& o, QTextStream& outStream, QTextStream& errStream,
                       const CliHarness* h)
    : options(o), harness(h), out(outStream), err(errStream),
      clock(h ? h->clock : QtClock::shared())
{
}

CliSession::~CliSession()
{
    // The connection closes its handles through the backend, so it goes first.
    backupCommand.reset();
    device.reset();
    tracer.reset();
    backend.reset();
}

void CliSession::start()
{
    if (options.command == CliOptions::Command::List) {
        if (openBackend()) finish(DeviceListCommand::run(*hid, *clock, out, err));
        return;
    }
    if (options.command == CliOptions::Command::Restore) {
        // A damaged file is refused before anything is connected.
        QString why;
        restoreFrom = BackupFile::read(options.backupFile, &why);
        if (!restoreFrom) {
            finish(Refused, QStringLiteral("backup refused: %1; nothing was sent").arg(why));
            return;
        }
    }
    if (!openBackend() || !connectKeyboard()) return;
    armDeadline(options.command == CliOptions::Command::Info
                    ? QStringLiteral("the keyboard did not answer within 30 s")
                    : QStringLiteral("the read sequence did not end within 30 s"));
}

bool CliSession::openBackend()
{
    if (options.simulate && harness) {
        simulated = harness->keyboard;
        vid = options.vid.value_or(simulated->vendorId());
        pid = options.pid.value_or(simulated->productId());
    } else if (options.simulate) {
        SimulatorOptions sim;
        sim.deviceId = options.simDeviceId;
        sim.firmwareVersion = options.simFirmwareVersion;
        sim.silentKeyboard = options.simSilent;
        sim.wirelessLatencyMinMs = options.simLatencyMinMs;
        sim.wirelessLatencyMaxMs = options.simLatencyMaxMs;
        auto virtualSet = VirtualHidBackend::createDefaultSet(clock, sim);
        VirtualKeyboard* wired = virtualSet->wiredKeyboard();
        auto pathOfUsage = [wired](int usage) {
            return usage == kWiredInputUsage ? wired->inputPath() : wired->commandPath();
        };
        if (options.simMissingUsage) wired->hideInterface(pathOfUsage(options.simMissingUsage));
        if (options.simDeniedUsage) wired->refuseOpen(pathOfUsage(options.simDeniedUsage));
        VirtualKeyboard* keyboard =
            options.wireless ? virtualSet->wirelessKeyboard() : virtualSet->wiredKeyboard();
        simulated = keyboard;
        vid = options.vid.value_or(keyboard->vendorId());
        pid = options.pid.value_or(keyboard->productId());
        backend = std::move(virtualSet);
    } else {
        backend = std::make_unique<HidapiBackend>();
    }
    hid = harness ? harness->hid : backend.get();

    if (!options.traceFile.isEmpty()) {
        traceFile = std::make_unique<QFile>(options.traceFile);
        if (!traceFile->open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
            finish(Failed, QStringLiteral("cannot write the trace file %1: %2")
                               .arg(options.traceFile, traceFile->errorString()));
            return false;
        }
        tracer = std::make_unique<TracingHidBackend>(hid, traceFile.get(), clock);
        hid = tracer.get();
    }

    device = std::make_unique<DialogDeviceConnect>(
        hid, clock, keys, InstallLayout().settingsFile(QStringLiteral("device.ini")),
        harness ? std::make_unique<InlineHidExecutor>() : nullptr);
    if (!options.simulate) {
        // What the connection loaded from device.ini, unless given.
        // (the console model has named and replaced any that isn't an id)
        vid = options.vid.value_or(ConsoleModel::parseId(device->console().vidText()).value_or(0));
        pid = options.pid.value_or(ConsoleModel::parseId(device->console().pidText()).value_or(0));
    }

    connect(device.get(), &DialogDeviceConnect::onConnect, this, [this] { opened = true; });
    connect(device.get(), &DialogDeviceConnect::onUpdataLayer, this, &CliSession::onLayer);
    connect(device.get(), &DialogDeviceConnect::onReadAll, this, &CliSession::onReadStarted);
    connect(device.get(), &DialogDeviceConnect::onReadDone, this, &CliSession::onReadFinished);
    return true;
}

bool CliSession::connectKeyboard()
{
    const QString ids = QString::asprintf("%04X:%04X", vid, pid);
    QByteArray wirelessPath;
    QList<QByteArray> inputPaths;   // wired, usage 1
    QList<QByteArray> commandPaths; // wired, usage 2
    for (const HidDeviceInfo& e : hid->enumerate(vid, pid)) {
        if (isWirelessInterface(e) && wirelessPath.isEmpty()) wirelessPath = e.path;
        if (!isWiredInterface(e)) continue;
        (e.usage == kWiredInputUsage ? inputPaths : commandPaths).append(e.path);
    }
    const QList<QByteArray> paths =
        options.wireless ? QList<QByteArray>{wirelessPath} : inputPaths + commandPaths;
    if (options.wireless ? wirelessPath.isEmpty() : paths.isEmpty()) {
        finish(NotFound, options.wireless
                             ? QStringLiteral("no wireless keyboard %1 found (no interface "
                                              "with usage page FF55, usage 0202)")
                                   .arg(ids)
                             : QStringLiteral("no keyboard %1 found").arg(ids));
        return false;
    }
    if (!options.wireless && (inputPaths.isEmpty() || commandPaths.isEmpty())) {
        // Nothing to open would help: the keyboard (or its mode) doesn't offer the interface.
        const bool noInput = inputPaths.isEmpty();
        finish(NotFound,
               QStringLiteral("keyboard %1 lists its %2 interface (%3) but no %4 interface "
                              "(usage page FFFF, usage %5), which the tool needs; plug it in "
                              "again, or check that it is in its wired mode")
                   .arg(ids, noInput ? QStringLiteral("command") : QStringLiteral("input"),
                        QString::fromUtf8(paths.first()),
                        noInput ? QStringLiteral("input") : QStringLiteral("command"))
                   .arg(noInput ? kWiredInputUsage : kWiredCommandUsage));
        return false;
    }

    // The handles open on the connection's I/O thread: whether they did is known when the
    // connect step is done.
    connect(device.get(), &DialogDeviceConnect::connectStepDone, this, [this, ids, paths] {
        if (options.wireless) opened = device->isConnected();
        if (opened) return;
        QStringList failed;
        for (const QByteArray& path : paths)
            if (const QString why = hid->openFailure(path); !why.isEmpty())
                failed.append(QStringLiteral("%1 (%2)").arg(QString::fromUtf8(path), why));
        if (failed.isEmpty()) {
            finish(Failed, QStringLiteral("keyboard %1 opened, but the connection did not "
                                          "come up")
                               .arg(ids));
            return;
        }
        failed.removeDuplicates();
        finish(NotOpened, QStringLiteral("keyboard %1 is present but cannot be opened: %2; on "
                                         "Linux install packaging/linux/70-orbehub.rules (see "
                                         "README, Troubleshooting)")
                              .arg(ids, failed.join(QStringLiteral(", "))));
    });
    if (options.wireless) {
        device->DoConnectDevice(vid, pid, true, ids, QString::fromUtf8(wirelessPath));
    } else {
        device->console().setVidText(QString::asprintf("%04X", vid));
        device->console().setPidText(QString::asprintf("%04X", pid));
        opened = false;
        device->connectStep();
    }
    return true;
}

void CliSession::onLayer(int layer)
{
    if (finished) return;
    if (options.command == CliOptions::Command::Info) {
        printInfo(layer);
        finish(Done);
        return;
    }
    QString why;
    if (restoreFrom && !BackupCommand::accepts(*restoreFrom, *device, &why)) {
        finish(Refused, QStringLiteral("backup refused: %1").arg(why));
        return;
    }
    // As the hub's layer buttons do: select the profile, which reads it whole.
    device->DoSetProfile(static_cast<quint8>(layer));
}

void CliSession::onReadStarted()
{
    readStartedMs = clock->elapsedMs();
}

void CliSession::onReadFinished()
{
    if (finished) return;
    if (options.timing && readStartedMs >= 0)
        err << QStringLiteral("read sequence: %1 ms\n").arg(clock->elapsedMs() - readStartedMs)
            << Qt::flush;
    if (readDone) return; // a later sequence, started by an operation; the idle wait covers it
    readDone = true;
    if (options.command == CliOptions::Command::Dump) {
        printCache();
        finish(Done);
        return;
    }
    if (options.command == CliOptions::Command::Backup ||
        options.command == CliOptions::Command::Restore) {
        startBackupCommand();
        return;
    }
    runNextCall();
}

void CliSession::runNextCall()
{
    if (nextCall >= options.calls.size()) {
        printCache();
        finish(Done);
        return;
    }
    const PlannedCall& call = options.calls.at(nextCall++);
    armDeadline(QStringLiteral("%1 did not finish within 30 s").arg(call.operation->name));
    call.operation->invoke(*device, call.args);
    if (!idlePoll) idlePoll = clock->createTimer([this] { checkIdle(); }, false);
    idlePoll->start(kIdlePollMs);
}

void CliSession::startBackupCommand()
{
    // Every step of the command has a time limit of its own.
    deadline->stop();
    backupCommand = std::make_unique<BackupCommand>(options, *device, *clock, out, err);
    connect(backupCommand.get(), &BackupCommand::finished, this,
            [this](int status, const QString& message) { finish(status, message); });
    if (restoreFrom)
        backupCommand->restore(*restoreFrom, device->GetCurrentProfile());
    else
        backupCommand->backup(device->GetCurrentProfile());
}

void CliSession::checkIdle()
{
    if (finished || !device->isIdle()) return;
    idlePoll->stop();
    runNextCall();
}

void CliSession::printInfo(int layer)
{
    out << QStringLiteral("device id: %1 (0x%2)\n")
               .arg(device->GetDeviceId())
               .arg(QString::number(device->GetDeviceId(), 16).toUpper());
    out << QString::asprintf("firmware version: 0x%03X\n", device->GetFirmwareVersion());
    out << QStringLiteral("version text: %1\n").arg(device->console().versionText());
    out << QStringLiteral("profile: %1\n").arg(layer);
    out << QStringLiteral("transport: %1\n")
               .arg(device->isWirelessConnection() ? QStringLiteral("wireless")
                                                   : QStringLiteral("wired"));
    out.flush();
}

void CliSession::printCache()
{
    QJsonObject cache = CacheJson::fromConnection(*device);
    if (simulated)
        cache.insert(QStringLiteral("virtualKeyboard"),
                     CacheJson::fromKeyboard(simulated->model()));
    out << QString::fromUtf8(QJsonDocument(cache).toJson());
    out.flush();
}

void CliSession::armDeadline(const QString& what)
{
    deadline = clock->createTimer([this, what] { finish(TimedOut, what); }, true);
    deadline->start(kDeadlineMs);
}

void CliSession::finish(int status, const QString& message)
{
    if (finished) return;
    finished = true;
    if (idlePoll) idlePoll->stop();
    if (deadline) deadline->stop();
    if (!message.isEmpty()) err << QStringLiteral("orbehub-cli: ") << message << Qt::endl;
    emit ended(status);
}
