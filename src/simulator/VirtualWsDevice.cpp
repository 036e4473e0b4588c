#include "VirtualWsDevice.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr quint16 kUsagePage = 0xFF1C;
constexpr quint16 kUsage = 0x0092;
constexpr int kRequestLength = 8;
constexpr int kReplyLength = 16;
constexpr quint8 kReportId = 0x04;
constexpr int kCommandOffset = 3;
constexpr quint8 kIdentify = 0x30;
constexpr quint8 kBattery = 0x1A;
constexpr quint8 kSubcommand = 0x06;
constexpr int kIdOffset = 11;
constexpr int kBatteryOffset = 8;
constexpr size_t kMaxQueued = 32;

} // namespace

VirtualWsDevice::VirtualWsDevice(std::mutex& backendLock, Clock* deviceClock,
                                 const Identity& deviceIdentity, const QByteArray& base)
    : VirtualDevice(backendLock, deviceClock), identity(deviceIdentity), pathBase(base)
{
}

void VirtualWsDevice::setBattery(quint8 percent)
{
    std::lock_guard guard(lock);
    battery = percent;
}

int VirtualWsDevice::writeCount() const
{
    std::lock_guard guard(lock);
    return writes;
}

QList<HidDeviceInfo> VirtualWsDevice::interfaces() const
{
    return {entry({.vendorId = identity.vendorId,
                   .productId = identity.productId,
                   .usagePage = kUsagePage,
                   .usage = kUsage,
                   .interfaceNumber = 2,
                   .path = path(),
                   .manufacturer = "WS",
                   .product = "WS Virtual Keyboard"})};
}

int VirtualWsDevice::write(int, const quint8* data, size_t length)
{
    if (length < kRequestLength || data[0] != kReportId) return -1;
    ++writes;
    const quint8 command = data[kCommandOffset];
    if (data[kCommandOffset + 1] != kSubcommand || (command != kIdentify && command != kBattery))
        return int(length);
    QByteArray reply(kReplyLength, '\0');
    std::memcpy(reply.data(), data, kRequestLength);
    if (command == kIdentify)
        reply[kIdOffset] = char(identity.probeId);
    else
        reply[kBatteryOffset] = char(battery);
    replies.push_back(reply);
    if (replies.size() > kMaxQueued) replies.pop_front();
    return int(length);
}

int VirtualWsDevice::read(int, quint8* data, size_t length)
{
    if (replies.empty()) return 0;
    const QByteArray reply = replies.front();
    replies.pop_front();
    const size_t n = std::min<size_t>(length, size_t(reply.size()));
    std::memcpy(data, reply.constData(), n);
    return int(n);
}
