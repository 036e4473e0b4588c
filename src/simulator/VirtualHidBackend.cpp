#include "VirtualHidBackend.h"

#include "Clock.h"
#include "SimulatorLog.h"
#include "VirtualDiscoverySet.h"

#include <algorithm>

namespace {

// hid_read in blocking mode waits for ever; a virtual device gives up after this long.
constexpr int kBlockingReadWaitMs = 1000;

} // namespace

class VirtualHandle : public HidHandle
{
public:
    VirtualHandle(VirtualDevice* d, int index, quint64 gen)
        : device(d), interfaceIndex(index), generation(gen)
    {
    }

    VirtualDevice* device;
    int interfaceIndex;
    quint64 generation;
    bool nonblocking = false;
};

VirtualHidBackend::VirtualHidBackend(Clock* backendClock) : clock(backendClock) {}

VirtualHidBackend::~VirtualHidBackend() = default;

std::unique_ptr<VirtualHidBackend>
VirtualHidBackend::createDefaultSet(Clock* clock, const SimulatorOptions& options)
{
    auto backend = std::make_unique<VirtualHidBackend>(clock);
    backend->addWiredKeyboard(options.deviceId, options.firmwareVersion);
    backend->addWirelessKeyboard(options.deviceId, options.firmwareVersion)
        ->setLinkLatency(options.wirelessLatencyMinMs, options.wirelessLatencyMaxMs);
    VirtualDiscoverySet::addTo(*backend, options);
    return backend;
}

void VirtualHidBackend::adopt(std::unique_ptr<VirtualDevice> device)
{
    device->plugListener = &plugListener;
    devices.push_back(std::move(device));
}

VirtualKeyboard* VirtualHidBackend::addWiredKeyboard(quint32 id, quint16 version, quint16 vid,
                                                     quint16 pid)
{
    return addKeyboard(
        false, {.deviceId = id, .firmwareVersion = version, .vendorId = vid, .productId = pid});
}

VirtualKeyboard* VirtualHidBackend::addWirelessKeyboard(quint32 id, quint16 version, quint16 vid,
                                                        quint16 pid)
{
    return addKeyboard(
        true, {.deviceId = id, .firmwareVersion = version, .vendorId = vid, .productId = pid});
}

VirtualKeyboard* VirtualHidBackend::addKeyboard(bool wireless,
                                                const VirtualKeyboard::Identity& identity)
{
    std::lock_guard guard(lock);
    // Paths stay distinct when two keyboards share their USB ids.
    const int twins = int(std::count_if(keyboards.begin(), keyboards.end(), [&](auto* k) {
        return k->vendorId() == identity.vendorId && k->productId() == identity.productId;
    }));
    QByteArray base =
        QString::asprintf("sim:%04X:%04X", identity.vendorId, identity.productId).toLatin1();
    if (twins > 0) base += '.' + QByteArray::number(twins + 1);
    auto keyboard = std::make_unique<VirtualKeyboard>(lock, clock, wireless, identity, base);
    VirtualKeyboard* raw = keyboard.get();
    adopt(std::move(keyboard));
    keyboards.push_back(raw);
    qCDebug(lcSimulator) << "added" << (wireless ? "wireless" : "wired") << "keyboard"
                         << raw->commandPath();
    return raw;
}

VirtualKeyboard* VirtualHidBackend::wiredKeyboard() const
{
    std::lock_guard guard(lock);
    const auto it =
        std::find_if(keyboards.begin(), keyboards.end(), [](auto* k) { return !k->isWireless(); });
    return it == keyboards.end() ? nullptr : *it;
}

VirtualKeyboard* VirtualHidBackend::wirelessKeyboard() const
{
    std::lock_guard guard(lock);
    const auto it =
        std::find_if(keyboards.begin(), keyboards.end(), [](auto* k) { return k->isWireless(); });
    return it == keyboards.end() ? nullptr : *it;
}

int VirtualHidBackend::openHandleCount() const
{
    std::lock_guard guard(lock);
    return int(handles.size());
}

VirtualHandle* VirtualHidBackend::liveHandle(HidHandle* handle) const
{
    const auto it = std::find_if(handles.begin(), handles.end(),
                                 [handle](const auto& h) { return h.get() == handle; });
    if (it == handles.end()) return nullptr;
    VirtualHandle* h = it->get();
    return h->device->plugged && h->device->generation == h->generation ? h : nullptr;
}

QList<HidDeviceInfo> VirtualHidBackend::enumerate(quint16 vendorId, quint16 productId)
{
    std::lock_guard guard(lock);
    QList<HidDeviceInfo> found;
    for (const auto& device : devices) {
        if (!device->plugged) continue;
        for (const HidDeviceInfo& info : device->interfaces())
            if (!device->hiddenPaths.contains(info.path) &&
                (vendorId == 0 || info.vendorId == vendorId) &&
                (productId == 0 || info.productId == productId))
                found.append(info);
    }
    return found;
}

HidHandle* VirtualHidBackend::openPath(const QByteArray& path)
{
    std::lock_guard guard(lock);
    for (const auto& device : devices) {
        if (!device->plugged) continue;
        const QList<HidDeviceInfo> entries = device->interfaces();
        for (int i = 0; i < entries.size(); ++i) {
            if (entries[i].path == path) {
                if (device->refusedPaths.contains(path)) {
                    noteOpen(path, QStringLiteral("Permission denied"));
                    return nullptr;
                }
                noteOpen(path);
                handles.push_back(
                    std::make_unique<VirtualHandle>(device.get(), i, device->generation));
                return handles.back().get();
            }
        }
    }
    qCDebug(lcSimulator) << "no device at" << path;
    noteOpen(path, QStringLiteral("No such device"));
    return nullptr;
}

void VirtualHidBackend::close(HidHandle* handle)
{
    std::lock_guard guard(lock);
    std::erase_if(handles, [handle](const auto& h) { return h.get() == handle; });
}

int VirtualHidBackend::setNonblocking(HidHandle* handle, bool nonblocking)
{
    std::lock_guard guard(lock);
    VirtualHandle* h = liveHandle(handle);
    if (!h) return -1;
    h->nonblocking = nonblocking;
    return 0;
}

int VirtualHidBackend::sendFeatureReport(HidHandle* handle, const quint8* data, size_t length)
{
    std::lock_guard guard(lock);
    VirtualHandle* h = liveHandle(handle);
    return h ? h->device->sendFeatureReport(h->interfaceIndex, data, length) : -1;
}

int VirtualHidBackend::getFeatureReport(HidHandle* handle, quint8* data, size_t length)
{
    std::lock_guard guard(lock);
    VirtualHandle* h = liveHandle(handle);
    return h ? h->device->getFeatureReport(h->interfaceIndex, data, length) : -1;
}

int VirtualHidBackend::write(HidHandle* handle, const quint8* data, size_t length)
{
    std::lock_guard guard(lock);
    VirtualHandle* h = liveHandle(handle);
    return h ? h->device->write(h->interfaceIndex, data, length) : -1;
}

int VirtualHidBackend::read(HidHandle* handle, quint8* data, size_t length)
{
    bool nonblocking = false;
    {
        std::lock_guard guard(lock);
        VirtualHandle* h = liveHandle(handle);
        if (!h) return -1;
        nonblocking = h->nonblocking;
    }
    return readTimeout(handle, data, length, nonblocking ? 0 : -1);
}

int VirtualHidBackend::readTimeout(HidHandle* handle, quint8* data, size_t length, int milliseconds)
{
    std::unique_lock guard(lock);
    VirtualHandle* h = liveHandle(handle);
    if (!h) return -1;
    int waitMs = milliseconds < 0 ? kBlockingReadWaitMs : milliseconds;
    // A radio link takes its time before there is anything to look at.
    if (const int delay =
            waitMs > 0 ? std::min(h->device->readDelayMs(h->interfaceIndex), waitMs) : 0;
        delay > 0) {
        guard.unlock();
        clock->sleepMs(delay);
        waitMs -= delay;
        guard.lock();
        h = liveHandle(handle);
        if (!h) return -1;
    }
    const int result = h->device->read(h->interfaceIndex, data, length);
    if (result != 0 || waitMs <= 0) return result;
    guard.unlock();
    clock->sleepMs(waitMs);
    return 0;
}
