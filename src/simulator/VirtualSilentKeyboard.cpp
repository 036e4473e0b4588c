#include "VirtualSilentKeyboard.h"

#include "Frame.h"

#include <cstring>

namespace {

constexpr quint16 kUsagePage = 0xFFFF;
constexpr quint16 kCommandUsage = 2;

} // namespace

VirtualSilentKeyboard::VirtualSilentKeyboard(std::mutex& backendLock, Clock* deviceClock,
                                             quint16 vendorId, quint16 productId,
                                             const QByteArray& base)
    : VirtualDevice(backendLock, deviceClock), vid(vendorId), pid(productId), pathBase(base)
{
}

int VirtualSilentKeyboard::requestCount() const
{
    std::lock_guard guard(lock);
    return requests;
}

QList<HidDeviceInfo> VirtualSilentKeyboard::interfaces() const
{
    return {entry({.vendorId = vid,
                   .productId = pid,
                   .usagePage = kUsagePage,
                   .usage = kCommandUsage,
                   .interfaceNumber = 1,
                   .path = commandPath(),
                   .manufacturer = "Orbe",
                   .product = "Orbe HE Keyboard (boot)"})};
}

int VirtualSilentKeyboard::sendFeatureReport(int, const quint8* data, size_t length)
{
    if (length < 2 || data[0] != Frame::kWiredReportId) return -1;
    ++requests;
    return int(length);
}

int VirtualSilentKeyboard::getFeatureReport(int, quint8* data, size_t length)
{
    if (length < 1 || data[0] != Frame::kWiredReportId) return -1;
    const size_t n = std::min<size_t>(length, Frame::kWiredLength);
    std::memset(data, 0, n);
    return int(n);
}
