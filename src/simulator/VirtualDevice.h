#pragma once

#include "HidBackend.h"

#include <QList>
#include <cstddef>
#include <functional>
#include <mutex>

class Clock;

// One device that the virtual backend shows. Its interfaces are the entries enumerate() lists;
// a handle opens one of them by index. The I/O part is called by the backend with the
// backend's lock held; the public fault calls take that lock themselves, so tests may call them
// while another thread uses the backend.
class VirtualDevice
{
public:
    virtual ~VirtualDevice();
    VirtualDevice(const VirtualDevice&) = delete;
    VirtualDevice& operator=(const VirtualDevice&) = delete;

    // Gone from enumerate, opens fail, and handles opened before stay dead even after replug().
    // Both tell the backend's plug listener, outside the lock.
    void unplug();
    void replug();
    bool isPlugged() const;
    // One interface, by its path: left out of the enumeration (as a keyboard in another mode
    // lists only some of its interfaces), or listed but refusing to open, as without the
    // permission.
    void hideInterface(const QByteArray& path);
    void refuseOpen(const QByteArray& path);

protected:
    VirtualDevice(std::mutex& backendLock, Clock* clock);

    // ---- Called by the backend, its lock held.
    virtual QList<HidDeviceInfo> interfaces() const = 0;
    virtual int sendFeatureReport(int interfaceIndex, const quint8* data, size_t length);
    virtual int getFeatureReport(int interfaceIndex, quint8* data, size_t length);
    virtual int write(int interfaceIndex, const quint8* data, size_t length);
    // What a read finds now: the byte count, or 0 when nothing is there. The backend waits out
    // a read's timeout itself, without its lock.
    virtual int read(int interfaceIndex, quint8* data, size_t length);
    // How long the next blocking read on the interface takes before it looks, as a radio link
    // does; 0 for a cable. The backend waits it out without its lock.
    virtual int readDelayMs(int interfaceIndex);
    // Transfers that were in the air are lost with the cable.
    virtual void onUnplugged() {}

    // One enumeration entry, as a device with a single interface lists it.
    struct Entry
    {
        quint16 vendorId;
        quint16 productId;
        quint16 usagePage;
        quint16 usage;
        int interfaceNumber;
        QByteArray path;
        const char* manufacturer;
        const char* product;
    };
    static HidDeviceInfo entry(const Entry& e);

    std::mutex& lock;
    Clock* clock;

private:
    friend class VirtualHidBackend;
    void notifyPlug(bool nowPlugged);

    bool plugged = true;
    QList<QByteArray> hiddenPaths;
    QList<QByteArray> refusedPaths;
    quint64 generation = 0; // bumped by unplug(); a handle is live while its generation matches
    const std::function<void(bool)>* plugListener = nullptr; // the backend's
};
