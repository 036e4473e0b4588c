#include "SiblingHost.h"

#include "Clock.h"
#include "DeviceEnumInfo.h"
#include "HubLog.h"

#include <QDir>
#include <QFileInfo>

namespace {

// Styles and z-order flags an embedded sibling is given before it is put into the hub's frame
// (Win32 words; other systems ignore what has no counterpart).
constexpr quint32 kEmbeddedStyle = 0xD60A0000;
constexpr quint32 kEmbeddedExStyle = 0x00080000;
constexpr quint32 kAdoptFlags = Platform::NoSize | Platform::HideWindowFlag; // 0x81
constexpr quint32 kHideFlags = Platform::NoMove | Platform::HideWindowFlag;  // 0x82

// Ended at start-up, in this order: what an earlier run may have left.
constexpr std::array<const char*, 4> kStaleProcesses{"Orbe-WS.exe", "Orbe-BY.exe",
                                                     "Orbe-Gaming-Bub.exe", "OrbeCloudDriver.exe"};
// Ended when the hub closes; only this list has "OrbeBox.exe".
constexpr std::array<const char*, 5> kProcessesAtClose{
    "Orbe-WS.exe", "Orbe-BY.exe", "OrbeBox.exe", "Orbe-Gaming-Bub.exe", "OrbeCloudDriver.exe"};
// Started at start-up in this order.
constexpr std::array<int, 4> kStartOrder{SiblingHost::WS, SiblingHost::RY, SiblingHost::JM,
                                         SiblingHost::BY};

const char* const kOldWsProgram = "/WsExe/Orbe.exe";

} // namespace

SiblingHost::SiblingHost(Platform& system, Clock* clk, const QString& siblingRoot, bool tarnwick,
                         std::function<WindowId()> frame, QObject* parent)
    : QObject(parent), platform(system), clock(clk), root(siblingRoot), tarnwickBuild(tarnwick),
      embedFrame(std::move(frame))
{
    watchTimer =
        clock->createTimer([this] { watchSiblings(hubVisible ? hubVisible() : true); }, false);
}

SiblingHost::~SiblingHost() = default;

QString SiblingHost::nativeName(const QString& windowsName)
{
#ifdef Q_OS_WIN
    return windowsName;
#else
    return windowsName.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive) ? windowsName.chopped(4)
                                                                            : windowsName;
#endif
}

const SiblingHost::Sibling& SiblingHost::sibling(int slot) const
{
    if (slot == RY && tarnwickBuild) return kTarnwickRy;
    return kSiblings.at(std::size_t(qBound(0, slot, int(kSiblings.size()) - 1)));
}

QString SiblingHost::programPath(int slot) const
{
    return QDir::cleanPath(root + nativeName(QLatin1String(sibling(slot).program)));
}

bool SiblingHost::isInstalled(int slot) const
{
    return slot >= 0 && slot < int(installed.size()) && installed[std::size_t(slot)];
}

bool SiblingHost::showsEmbedded(int slot) const
{
    return slot >= 0 && slot < int(kSiblings.size()) && sibling(slot).embedded &&
           platform.canEmbedWindows();
}

SiblingHost::WindowId SiblingHost::window(int slot) const
{
    return slot >= 0 && slot < kSlotCount ? windows[std::size_t(slot)] : 0;
}

bool SiblingHost::isWatching() const
{
    return watchTimer->isActive();
}

void SiblingHost::writeValue(const char* key, const QVariant& value)
{
    platform.setUserValue(QLatin1String(key), value);
}

void SiblingHost::start()
{
    for (const char* name : kStaleProcesses)
        platform.endProcess(nativeName(QLatin1String(name)));

    const QString oldWs = QDir::cleanPath(root + nativeName(QLatin1String(kOldWsProgram)));
    if (QFileInfo::exists(oldWs) && !QFile::rename(oldWs, programPath(WS)))
        qCWarning(lcHub) << "could not rename" << oldWs << "to" << programPath(WS);

    for (int slot : kStartOrder) {
        const QString program = programPath(slot);
        installed[std::size_t(slot)] = QFileInfo(program).isFile();
        if (!installed[std::size_t(slot)]) {
            qCWarning(lcHub) << "no" << sibling(slot).name << "driver at" << program
                             << "- its keyboards can't be opened";
            continue;
        }
        platform.startProcess(program);
    }
    if (hasWorkToWatch()) watchTimer->start(kWatchMs);
}

bool SiblingHost::hasWorkToWatch() const
{
    for (int slot = 0; slot < int(kSiblings.size()); ++slot) {
        if (!isInstalled(slot)) continue;
        // The top-level ones are hidden behind a visible hub and started again when they die.
        if (!sibling(slot).embedded || windows[std::size_t(slot)] == 0) return true;
    }
    return false;
}

void SiblingHost::restartIfGone(int slot)
{
    if (!isInstalled(slot)) return;
    const QString process = QFileInfo(programPath(slot)).fileName();
    if (platform.isProcessRunning(process)) return;
    if (slot == WS) writeValue("OrbeWnd", 0u);
    windows[std::size_t(slot)] = 0;
    platform.startProcess(programPath(slot));
}

void SiblingHost::adopt(int slot, WindowId window)
{
    windows[std::size_t(slot)] = window;
    qCDebug(lcHub).noquote()
        << QStringLiteral("Found %1 ---------------").arg(QLatin1String(sibling(slot).name));
    const bool embed = showsEmbedded(slot);
    if (embed) {
        platform.setWindowStyle(window, kEmbeddedStyle, kEmbeddedExStyle);
        platform.setWindowPos(window, Platform::ZOrder::Bottom, {}, kAdoptFlags);
    }
    if (slot != RY || !embed) platform.hideWindow(window);
    if (embed) platform.setWindowParent(window, embedFrame ? embedFrame() : 0);
    if (slot == RY) writeValue("ParentHwnd", int(quint32(window)));
    emit windowFound(slot);
}

void SiblingHost::watchSiblings(bool hubVisible)
{
    if (hubVisible) {
        for (int slot : {int(WS), int(JM)})
            if (windows[std::size_t(slot)]) platform.hideWindow(windows[std::size_t(slot)]);
    }
    restartIfGone(WS);
    restartIfGone(JM);

    for (int slot : {int(RY), int(WS), int(BY), int(JM)}) {
        if (!isInstalled(slot) || windows[std::size_t(slot)]) continue;
        WindowId found = 0;
        // The WS driver tells its window itself; a handle there is taken as it stands.
        if (slot == WS)
            found = WindowId(platform.userValue(QStringLiteral("OrbeWnd")).toULongLong());
        if (!found) found = platform.findWindow(QLatin1String(sibling(slot).title), QString());
        if (found) adopt(slot, found);
    }
    if (!hasWorkToWatch()) watchTimer->stop();
}

void SiblingHost::hideAll()
{
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const WindowId w = windows[std::size_t(slot)];
        if (!w) continue;
        platform.hideWindow(w);
        if (slot != WS && slot != JM)
            platform.setWindowPos(w, Platform::ZOrder::Bottom, {}, kHideFlags);
    }
}

void SiblingHost::hideForReturnButton()
{
    for (int slot : {int(RY), int(BY), int(JM)})
        if (windows[std::size_t(slot)]) platform.hideWindow(windows[std::size_t(slot)]);
}

void SiblingHost::handOver(const DeviceEnumInfo& device, const QString& localeTag)
{
    switch (device.family) {
    case WS:
        writeValue("OrbeDeviceIndex", int(device.deviceId));
        break;
    case BY:
        if (!localeTag.isEmpty()) writeValue("ByLocale", localeTag);
        writeValue("ByDeviceUuid", QStringLiteral("0x") + device.vendorPath);
        break;
    case JM:
        if (!localeTag.isEmpty()) writeValue("JmLocale", localeTag);
        writeValue("JmDevicePath", device.devicePath);
        break;
    default:
        break;
    }
}

bool SiblingHost::handOverToRy(const DeviceEnumInfo& device)
{
    // The RY driver watches these values itself; the same device again changes nothing.
    if (platform.userValue(QStringLiteral("DevicePath")).toString() == device.devicePath)
        return false;
    writeValue("DeviceId", 0);
    writeValue("DevicePath", QString());
    writeValue("PageLoaded", QStringLiteral("false"));
    writeValue("VendorDevicePath", QString());
    const int id = int(device.deviceId);
    const QString vendorPath = device.vendorPath;
    const QString path = device.devicePath;
    clock->singleShot(kRyValuesDelayMs, this, [this, id, vendorPath, path] {
        writeValue("DeviceId", id);
        writeValue("VendorDevicePath", vendorPath);
        writeValue("DevicePath", path);
    });
    return true;
}

void SiblingHost::endAll()
{
    watchTimer->stop();
    for (const char* name : kProcessesAtClose)
        platform.endProcess(nativeName(QLatin1String(name)));
}

void SiblingHost::postCloseToAll()
{
    for (WindowId w : windows)
        if (w) platform.postCloseMessage(w);
}

void SiblingHost::releaseEmbedded()
{
    for (int slot = 0; slot < int(kSiblings.size()); ++slot)
        if (windows[std::size_t(slot)] && showsEmbedded(slot))
            platform.setWindowParent(windows[std::size_t(slot)], 0);
}
