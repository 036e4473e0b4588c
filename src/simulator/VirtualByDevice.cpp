#include "VirtualByDevice.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr quint16 kUsagePage = 0xFF60;
constexpr quint16 kUsage = 0x0061;
constexpr int kReportLength = 64;
constexpr int kHeaderLength = 7;
constexpr quint8 kSerialCommand[] = {0x09, 0x82};
constexpr int kSerialLength = 6;
constexpr size_t kMaxQueued = 32;

} // namespace

VirtualByDevice::VirtualByDevice(std::mutex& backendLock, Clock* deviceClock,
                                 const Identity& deviceIdentity, const QByteArray& base)
    : VirtualDevice(backendLock, deviceClock), identity(deviceIdentity), pathBase(base)
{
}

QList<HidDeviceInfo> VirtualByDevice::interfaces() const
{
    return {entry({.vendorId = identity.vendorId,
                   .productId = identity.productId,
                   .usagePage = kUsagePage,
                   .usage = kUsage,
                   .interfaceNumber = 1,
                   .path = path(),
                   .manufacturer = "BY",
                   .product = "BY Virtual Keyboard"})};
}

int VirtualByDevice::write(int, const quint8* data, size_t length)
{
    if (length < kHeaderLength) return -1;
    if (data[0] != kSerialCommand[0] || data[1] != kSerialCommand[1]) return int(length);
    QByteArray reply(kReportLength, '\0');
    std::memcpy(reply.data(), data, kHeaderLength);
    const QByteArray serialBytes = QByteArray::fromHex(identity.serial).left(kSerialLength);
    reply.replace(kHeaderLength, serialBytes.size(), serialBytes);
    quint8 sum = 0;
    for (int i = 0; i < kReportLength - 1; ++i)
        sum = quint8(sum + quint8(reply.at(i)));
    reply[kReportLength - 1] = char(~sum);
    replies.push_back(reply);
    if (replies.size() > kMaxQueued) replies.pop_front();
    return int(length);
}

int VirtualByDevice::read(int, quint8* data, size_t length)
{
    if (replies.empty()) return 0;
    const QByteArray reply = replies.front();
    replies.pop_front();
    const size_t n = std::min<size_t>(length, size_t(reply.size()));
    std::memcpy(data, reply.constData(), n);
    return int(n);
}
