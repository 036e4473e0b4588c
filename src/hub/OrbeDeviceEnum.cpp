#include "OrbeDeviceEnum.h"

#include "DeviceRegistry.h"
#include "HubLog.h"

OrbeDeviceEnum::OrbeDeviceEnum(QObject* parent) : QThread(parent)
{
    setObjectName(QStringLiteral("OrbeDeviceEnum"));
    start();
}

OrbeDeviceEnum::~OrbeDeviceEnum()
{
    stop();
    wait();
}

void OrbeDeviceEnum::requestScan()
{
    {
        std::lock_guard lock(mutex);
        scanRequested = true;
    }
    wake.notify_one();
}

void OrbeDeviceEnum::stop()
{
    {
        std::lock_guard lock(mutex);
        stopRequested = true;
    }
    wake.notify_one();
    quit();
}

void OrbeDeviceEnum::run()
{
    std::unique_lock lock(mutex);
    while (!stopRequested) {
        if (scanRequested.exchange(false)) {
            lock.unlock();
            if (DeviceRegistry* registry = owner)
                registry->enumerateDevices([this] { return stopRequested.load(); });
            lock.lock();
            continue;
        }
        wake.wait(lock, [this] { return stopRequested || scanRequested; });
    }
    qCDebug(lcHub) << "discovery thread ends";
}
