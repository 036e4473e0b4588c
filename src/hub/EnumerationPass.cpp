#include "EnumerationPass.h"

#include "ConfigWarnings.h"
#include "DeviceEnumInfo.h"
#include "DeviceProbes.h"
#include "DeviceRegistry.h"
#include "DiscoveryTables.h"
#include "HubLog.h"
#include "KeptHandles.h"
#include "OrbeDeviceBase.h"

#include <QSettings>

using namespace Discovery;

namespace {

// The vendor ids of one key. An item that isn't a number is skipped and named: taken as 0 it
// would make the pass walk every HID device on the machine.
QList<quint16> parseVidList(const QVariant& value, const QString& path, const char* key,
                            int& problems)
{
    // An unquoted value with commas comes back from the INI reader as a list.
    const QString text = value.typeId() == QMetaType::QStringList
                             ? value.toStringList().join(QLatin1Char(','))
                             : value.toString();
    QList<quint16> vendors;
    for (const QString& item : text.split(QLatin1Char(','))) {
        const std::optional<quint64> vendor = OrbeDeviceBase::tryParseNumber(item);
        if (!vendor) {
            ConfigWarnings::warn(path, QByteArray(key) + '=' + text.toUtf8(),
                                 QStringLiteral("%1 item \"%2\" is not a vendor id; skipped")
                                     .arg(QLatin1String(key), item.trimmed()));
            ++problems;
            continue;
        }
        vendors.append(quint16(*vendor & 0xFFFF));
    }
    return vendors;
}

bool isInterface(const HidDeviceInfo& e, const Interface& i)
{
    return e.usagePage == i.usagePage && e.usage == i.usage;
}

QString pathText(const QByteArray& path)
{
    return QString::fromUtf8(path);
}

} // namespace

EnumerationPass::VidSets EnumerationPass::readVidSets(const QString& appDir)
{
    const QString path = OrbeDeviceBase::rootDir(appDir) + QLatin1String(kEnumSettingsFile);
    QSettings ini(path, QSettings::IniFormat);
    if (ini.status() != QSettings::NoError)
        ConfigWarnings::warn(path, {},
                             QStringLiteral("cannot be read; the default vendor ids "
                                            "are walked"));
    VidSets sets;
    int problems = 0;
    sets.set0 = parseVidList(ini.value(QLatin1String(kVidSet0Key), QLatin1String(kVidSet0Default)),
                             path, kVidSet0Key, problems);
    sets.set1 = parseVidList(ini.value(QLatin1String(kVidSet1Key), QLatin1String(kVidSet1Default)),
                             path, kVidSet1Key, problems);
    if (problems == 0 && ini.status() == QSettings::NoError) ConfigWarnings::clear(path);
    return sets;
}

EnumerationPass::EnumerationPass(DeviceRegistry& owner, Setup passSetup)
    : registry(owner), setup(std::move(passSetup)), hid(*setup.hid)
{
}

std::optional<QStringList> EnumerationPass::run()
{
    const VidSets vendors = readVidSets(setup.appDir);
    // VIDset1 is read but deliberately not used: pass 2 always walks its built-in vendors.
    qCDebug(lcHub) << "pass: VIDset0" << Qt::hex << vendors.set0 << "VIDset1 (unused)"
                   << vendors.set1;
    if (!passCloudFamily(vendors.set0)) return std::nullopt;
    if (stopped()) return std::nullopt;
    passWsFamily();
    if (stopped()) return std::nullopt;
    passByFamily();
    passJmFamily();
    if (stopped()) return std::nullopt;
    return seen;
}

bool EnumerationPass::passCloudFamily(const QList<quint16>& vendors)
{
    for (quint16 vendor : vendors) {
        for (const HidDeviceInfo& entry : hid.enumerate(vendor, 0)) {
            if (stopped()) return false;
            if (isExcludedProduct(entry.productId)) continue;
            if (isInterface(entry, kBluetoothInterface)) {
                probeBluetooth(entry);
                continue;
            }
            if (entry.usagePage == kBluetoothUsagePage) {
                // Only the pending check below.
            } else if (isInterface(entry, kWiredInterface)) {
                pendingVendorPath = pendingDevicePath = pathText(entry.path);
            } else if (isInterface(entry, kHitScreenInterface) &&
                       entry.vendorId == kHitScreenVendor && entry.productId == kHitScreenProduct) {
                pendingVendorPath = QLatin1String(kHitScreenVendorPath);
                pendingDevicePath = pathText(entry.path);
            } else {
                continue;
            }
            if (!checkPending(entry)) return false;
        }
    }
    return true;
}

void EnumerationPass::probeBluetooth(const HidDeviceInfo& entry)
{
    // The pending device path is set but stays harmless: the vendor path is still empty.
    pendingDevicePath = pathText(entry.path);
    seen.append(pendingDevicePath);
    HidHandle* handle = setup.kept->reopen(entry.path);
    if (!handle) {
        qCDebug(lcHub) << "cannot open" << entry.path;
        return;
    }
    // Deliberately left open after the probe (KeptHandles closes it at the next one).
    const quint32 id = DeviceProbes::bluetooth(hid, *setup.clock, handle);
    qCDebug(lcHub, "Bluetooth probe %s: id %X", entry.path.constData(), id);
    if (id != 0)
        registry.addDevice(entry.vendorId, entry.productId, id, QLatin1String(kNoVendorPath),
                           pathText(entry.path), DeviceEnumInfo::Bluetooth,
                           DeviceEnumInfo::CloudFamily);
}

bool EnumerationPass::checkPending(const HidDeviceInfo& entry)
{
    if (pendingVendorPath.isEmpty() || pendingDevicePath.isEmpty()) return true;
    seen.append(pendingDevicePath);
    HidHandle* handle = hid.openPath(pendingDevicePath.toUtf8());
    if (!handle) {
        // The strings stay: the next entry of these kinds tries again.
        qCDebug(lcHub) << "cannot open" << pendingDevicePath;
        return true;
    }
    const DeviceProbes::WiredAnswer answer =
        DeviceProbes::wired(hid, *setup.clock, handle, setup.stop);
    if (answer.stopped) {
        if (answer.neverAnswered) unanswered = pendingDevicePath;
        hid.close(handle);
        return false;
    }
    qCDebug(lcHub) << "wired probe" << pendingDevicePath << "id" << Qt::hex << answer.id
                   << "connection" << answer.connection;
    registry.addDevice(entry.vendorId, entry.productId, answer.id, pendingVendorPath,
                       pendingDevicePath, answer.connection, DeviceEnumInfo::CloudFamily);
    pendingVendorPath.clear();
    pendingDevicePath.clear();
    hid.close(handle);
    return true;
}

void EnumerationPass::passWsFamily()
{
    for (quint16 vendor : kWsVendors) {
        for (const HidDeviceInfo& entry : hid.enumerate(vendor, 0)) {
            if (setup.tarnwickBuild) break;
            if (!isExcludedProduct(entry.productId) || !isInterface(entry, kWsInterface)) continue;
            HidHandle* handle = setup.kept->reopen(entry.path);
            if (!handle) continue;
            // Deliberately left open after the probe, as on the Bluetooth route.
            const std::optional<quint8> id = DeviceProbes::ws(hid, *setup.clock, handle);
            qCDebug(lcHub) << "WS probe" << entry.path << "id" << (id ? int(*id) : -1);
            if (!id) continue;
            registry.addDevice(entry.vendorId, entry.productId, *id, QLatin1String(kNoVendorPath),
                               pathText(entry.path), DeviceEnumInfo::Usb, DeviceEnumInfo::WsFamily);
            seen.append(pathText(entry.path));
        }
    }
}

void EnumerationPass::passByFamily()
{
    for (const HidDeviceInfo& entry : hid.enumerate(kByVendor, kByProduct)) {
        if (entry.usagePage != kByUsagePage) continue;
        HidHandle* handle = hid.openPath(entry.path);
        if (!handle) continue;
        const QString serial = DeviceProbes::by(hid, handle);
        qCDebug(lcHub) << "BY probe" << entry.path << "serial" << serial;
        bool ok = false;
        const quint64 id = serial.toULongLong(&ok, 10); // 0 as soon as a digit is a letter
        registry.addDevice(entry.vendorId, entry.productId, ok ? id : 0, serial, serial,
                           DeviceEnumInfo::Usb, DeviceEnumInfo::ByFamily);
        seen.append(serial);
        hid.close(handle);
    }
}

void EnumerationPass::passJmFamily()
{
    for (const HidDeviceInfo& entry : hid.enumerate(kJmVendor, 0)) {
        if (setup.tarnwickBuild) break;
        if (!isInterface(entry, kJmInterface)) continue;
        registry.addDevice(entry.vendorId, entry.productId, kJmDeviceId,
                           QLatin1String(kNoVendorPath), pathText(entry.path), DeviceEnumInfo::Usb,
                           DeviceEnumInfo::JmFamily);
        seen.append(pathText(entry.path));
    }
}
