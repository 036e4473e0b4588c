#pragma once

#include "VirtualDevice.h"

// A keyboard of the JM family. The hub only lists its interfaces (usage page FF02, usage 2 is
// the one it looks for, beside a plain keyboard interface) and never opens them.
class VirtualJmDevice : public VirtualDevice
{
public:
    VirtualJmDevice(std::mutex& backendLock, Clock* clock, quint16 vendorId, quint16 productId,
                    const QByteArray& pathBase);

    QByteArray path() const { return pathBase + ":FF02"; }

protected:
    QList<HidDeviceInfo> interfaces() const override;

private:
    quint16 vid;
    quint16 pid;
    QByteArray pathBase;
};
