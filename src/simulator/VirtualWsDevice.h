#pragma once

#include "VirtualDevice.h"

#include <QByteArray>
#include <deque>

// A keyboard of the WS family: one interface on usage page FF1C, usage 0092, spoken to with
// 8-byte output reports (report id 04) whose answers come back as 16-byte input reports.
// "04 00 00 30 06" asks for its id (reply byte 11), "04 00 00 1A 06" for its battery (reply
// byte 8).
class VirtualWsDevice : public VirtualDevice
{
public:
    struct Identity
    {
        quint8 probeId = 0x21;
        quint16 vendorId = 0x38EE;
        quint16 productId = 0x0030; // WS product ids lie in the range the cloud pass skips
    };

    VirtualWsDevice(std::mutex& backendLock, Clock* clock, const Identity& identity,
                    const QByteArray& pathBase);

    QByteArray path() const { return pathBase + ":FF1C"; }
    quint16 vendorId() const { return identity.vendorId; }
    quint16 productId() const { return identity.productId; }
    void setBattery(quint8 percent);
    // Output reports received so far. Locked.
    int writeCount() const;

protected:
    QList<HidDeviceInfo> interfaces() const override;
    int write(int interfaceIndex, const quint8* data, size_t length) override;
    int read(int interfaceIndex, quint8* data, size_t length) override;
    void onUnplugged() override { replies.clear(); }

private:
    Identity identity;
    QByteArray pathBase;
    quint8 battery = 55;
    int writes = 0;
    std::deque<QByteArray> replies;
};
