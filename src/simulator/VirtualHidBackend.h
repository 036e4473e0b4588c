#pragma once

#include "HidBackend.h"
#include "VirtualKeyboard.h"

#include <functional>
#include <memory>
#include <mutex>
#include <vector>

class Clock;
class VirtualHandle;

// What --simulate puts in place of the hardware.
struct SimulatorOptions
{
    quint32 deviceId = 0x0AF7;
    quint16 firmwareVersion = 0x0300;
    // Adds a keyboard that never answers the identity request: every discovery pass waits
    // on it for as long as it is plugged in.
    bool silentKeyboard = false;
    // How long the wireless keyboard's link takes to hand over a report, in milliseconds: each
    // read waits a time between these two, as a 2.4 GHz link does.
    int wirelessLatencyMinMs = 4;
    int wirelessLatencyMaxMs = 30;
};

// A HID backend whose devices are virtual. Every call takes one lock, so the discovery thread
// and the GUI thread may share it; a read that has to wait for its timeout waits on the clock
// without the lock.
class VirtualHidBackend : public HidBackend
{
public:
    explicit VirtualHidBackend(Clock* clock);
    ~VirtualHidBackend() override;

    VirtualKeyboard* addWiredKeyboard(quint32 id = 0x0AF7, quint16 version = 0x0300,
                                      quint16 vid = 0x3151, quint16 pid = 0x502F);
    VirtualKeyboard* addWirelessKeyboard(quint32 id = 0x0AF7, quint16 version = 0x0300,
                                         quint16 vid = 0x3151, quint16 pid = 0x5030);

    // Any other virtual device: constructed as Device(lock, clock, args...).
    template <class Device, class... Args> Device* add(Args&&... args)
    {
        std::lock_guard guard(lock);
        auto device = std::make_unique<Device>(lock, clock, std::forward<Args>(args)...);
        Device* raw = device.get();
        adopt(std::move(device));
        return raw;
    }

    // The set --simulate shows: one wired, one wireless keyboard, and the devices of every
    // family and route the discovery pass knows (VirtualDiscoverySet).
    static std::unique_ptr<VirtualHidBackend> createDefaultSet(Clock* clock,
                                                               const SimulatorOptions& options);

    // The first keyboard of its kind that was added, or null.
    VirtualKeyboard* wiredKeyboard() const;
    VirtualKeyboard* wirelessKeyboard() const;
    // Handles opened and not closed yet, dead ones included.
    int openHandleCount() const;

    QList<HidDeviceInfo> enumerate(quint16 vendorId, quint16 productId) override;
    HidHandle* openPath(const QByteArray& path) override;
    void close(HidHandle* handle) override;
    int setNonblocking(HidHandle* handle, bool nonblocking) override;
    int sendFeatureReport(HidHandle* handle, const quint8* data, size_t length) override;
    int getFeatureReport(HidHandle* handle, quint8* data, size_t length) override;
    int write(HidHandle* handle, const quint8* data, size_t length) override;
    int read(HidHandle* handle, quint8* data, size_t length) override;
    int readTimeout(HidHandle* handle, quint8* data, size_t length, int milliseconds) override;

private:
    VirtualKeyboard* addKeyboard(bool wireless, const VirtualKeyboard::Identity& identity);
    // Takes the device into the list; lock held.
    void adopt(std::unique_ptr<VirtualDevice> device);
    // The handle if it is open and its device is still the one it opened; lock held.
    VirtualHandle* liveHandle(HidHandle* handle) const;

    Clock* clock;
    mutable std::mutex lock;
    std::vector<std::unique_ptr<VirtualDevice>> devices;
    std::vector<VirtualKeyboard*> keyboards;
    std::vector<std::unique_ptr<VirtualHandle>> handles;
    // Each device tells of its plugs here (outside the lock); it becomes devicePluggined.
    std::function<void(bool)> plugListener = [this](bool) { reportDeviceChange(); };
};
