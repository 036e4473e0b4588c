#include "VirtualJmDevice.h"

namespace {

constexpr quint16 kVendorUsagePage = 0xFF02;
constexpr quint16 kVendorUsage = 2;
constexpr quint16 kGenericDesktop = 0x0001;
constexpr quint16 kKeyboardUsage = 0x0006;

} // namespace

VirtualJmDevice::VirtualJmDevice(std::mutex& backendLock, Clock* deviceClock, quint16 vendorId,
                                 quint16 productId, const QByteArray& base)
    : VirtualDevice(backendLock, deviceClock), vid(vendorId), pid(productId), pathBase(base)
{
}

QList<HidDeviceInfo> VirtualJmDevice::interfaces() const
{
    HidDeviceInfo info;
    info.vendorId = vid;
    info.productId = pid;
    info.manufacturer = QStringLiteral("JM");
    info.product = QStringLiteral("JM Virtual Keyboard");
    HidDeviceInfo keys = info;
    keys.usagePage = kGenericDesktop;
    keys.usage = kKeyboardUsage;
    keys.interfaceNumber = 0;
    keys.path = pathBase + ":1";
    HidDeviceInfo vendor = info;
    vendor.usagePage = kVendorUsagePage;
    vendor.usage = kVendorUsage;
    vendor.interfaceNumber = 1;
    vendor.path = path();
    return {keys, vendor};
}
