#include "VirtualDevice.h"

VirtualDevice::VirtualDevice(std::mutex& backendLock, Clock* deviceClock)
    : lock(backendLock), clock(deviceClock)
{
}

VirtualDevice::~VirtualDevice() = default;

void VirtualDevice::unplug()
{
    {
        std::lock_guard guard(lock);
        if (!plugged) return;
        plugged = false;
        ++generation;
        onUnplugged();
    }
    notifyPlug(false);
}

void VirtualDevice::replug()
{
    {
        std::lock_guard guard(lock);
        if (plugged) return;
        plugged = true;
    }
    notifyPlug(true);
}

void VirtualDevice::notifyPlug(bool nowPlugged)
{
    std::function<void(bool)> listener;
    {
        std::lock_guard guard(lock);
        if (plugListener) listener = *plugListener;
    }
    if (listener) listener(nowPlugged);
}

bool VirtualDevice::isPlugged() const
{
    std::lock_guard guard(lock);
    return plugged;
}

void VirtualDevice::hideInterface(const QByteArray& path)
{
    std::lock_guard guard(lock);
    hiddenPaths.append(path);
}

void VirtualDevice::refuseOpen(const QByteArray& path)
{
    std::lock_guard guard(lock);
    refusedPaths.append(path);
}

int VirtualDevice::readDelayMs(int)
{
    return 0;
}

int VirtualDevice::sendFeatureReport(int, const quint8*, size_t)
{
    return -1;
}

int VirtualDevice::getFeatureReport(int, quint8*, size_t)
{
    return -1;
}

int VirtualDevice::write(int, const quint8*, size_t)
{
    return -1;
}

int VirtualDevice::read(int, quint8*, size_t)
{
    return 0;
}

HidDeviceInfo VirtualDevice::entry(const Entry& e)
{
    HidDeviceInfo info;
    info.vendorId = e.vendorId;
    info.productId = e.productId;
    info.usagePage = e.usagePage;
    info.usage = e.usage;
    info.interfaceNumber = e.interfaceNumber;
    info.path = e.path;
    info.manufacturer = QString::fromUtf8(e.manufacturer);
    info.product = QString::fromUtf8(e.product);
    return info;
}
