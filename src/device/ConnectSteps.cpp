#include "ConnectSteps.h"

#include "Clock.h"
#include "CommandLayouts.h"
#include "ConsoleModel.h"
#include "DeviceCache.h"
#include "DeviceLink.h"
#include "DeviceLog.h"
#include "DialogDeviceConnect.h"

using namespace CommandLayouts;
using Kick = DeviceLink::Kick;

namespace {

constexpr quint16 kVendorUsagePage = 0xFFFF;
constexpr quint16 kInputUsage = 1;

QString idText(quint16 id)
{
    return QString::asprintf("%04X", id);
}

} // namespace

ConnectSteps::ConnectSteps(const DeviceParts& parts) : p(parts)
{
    hotplugTimer = p.clock.createTimer([this] { refreshStep(); }, true);
}

ConnectSteps::~ConnectSteps() = default;

void ConnectSteps::DoConnectDevice(quint16 vid, quint16 pid, bool wireless, const QString& id,
                                   const QString& path)
{
    // Selecting the device that is already connected does nothing.
    if (id == deviceIdText && path == devicePath) return;
    p.link.setWireless(wireless);
    deviceIdText = id;
    devicePath = path;
    qCDebug(lcDevice) << "DoConnectDevice:" << path << idText(pid);
    p.console.setVidText(idText(vid));
    p.console.setPidText(idText(pid));
    connectStep();
}

void ConnectSteps::connectStep()
{
    p.console.setLamps(false, false);
    if (p.link.isWireless()) {
        p.link.openWireless(devicePath.toUtf8(), [this](bool) {
            // Told whether or not the open worked; the wireless path has no lamps or ini.
            emit p.front.onConnect();
            p.cache.resetVersion();
            p.link.enqueue(plain(CMD_GET_INFOR), Kick::Deferred);
            finish();
        });
        return;
    }

    const std::optional<quint16> vid = ConsoleModel::parseId(p.console.vidText());
    const std::optional<quint16> pid = ConsoleModel::parseId(p.console.pidText());
    if (!vid || !pid) {
        p.link.closeHandles();
        finishWired(false, false, false);
        return;
    }
    p.link.openWired(*vid, *pid, [this](DeviceLink::WiredOpen opened) {
        finishWired(opened.input, opened.command, opened.complete());
    });
}

void ConnectSteps::finishWired(bool input, bool command, bool complete)
{
    p.console.setLamps(input, command);
    if (complete) {
        emit p.front.onConnect();
        p.link.enqueue(bytes(Switch{CMD_KEY_TEST, 1}), Kick::Immediate);
        p.cache.resetVersion();
        p.link.enqueue(plain(CMD_GET_INFOR), Kick::Deferred);
        p.console.rememberIds();
    }
    if (!input || !command) emit p.front.onDisconnect();
    finish();
}

void ConnectSteps::finish()
{
    emit p.front.connectStepDone();
}

void ConnectSteps::refreshStep()
{
    hotplugTimer->stop();
    const std::optional<quint16> vid = ConsoleModel::parseId(p.console.vidText());
    if (!vid) {
        p.console.setPidList({});
        connectStep();
        return;
    }
    p.link.enumerate(*vid, 0, [this](const QList<HidDeviceInfo>& entries) {
        QStringList pids;
        for (const HidDeviceInfo& e : entries)
            if (e.usagePage == kVendorUsagePage && e.usage == kInputUsage)
                pids.append(idText(e.productId));
        p.console.setPidList(pids);
        connectStep();
    });
}

void ConnectSteps::selectPid(const QString& pidText)
{
    p.console.selectPid(pidText);
    connectStep();
}

void ConnectSteps::onDevicePluggined()
{
    hotplugTimer->stop();
    hotplugTimer->start(kHotplugQuietMs);
}
