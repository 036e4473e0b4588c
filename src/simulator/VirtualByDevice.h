#pragma once

#include "VirtualDevice.h"

#include <QByteArray>
#include <deque>

// A keyboard of the BY family: an interface on usage page FF60 taking 64-byte output reports.
// The serial request (09 82 01 00 01 00 06 ...) is answered with the request's first seven
// bytes followed by the six serial bytes, which the host reads as 12 hex digits.
class VirtualByDevice : public VirtualDevice
{
public:
    struct Identity
    {
        QByteArray serial = "202401150042"; // 12 hex digits; decimal ones give a non-zero id
        quint16 vendorId = 0x38EE;
        quint16 productId = 0x0016;
    };

    VirtualByDevice(std::mutex& backendLock, Clock* clock, const Identity& identity,
                    const QByteArray& pathBase);

    QByteArray path() const { return pathBase + ":FF60"; }
    QByteArray serial() const { return identity.serial; }

protected:
    QList<HidDeviceInfo> interfaces() const override;
    int write(int interfaceIndex, const quint8* data, size_t length) override;
    int read(int interfaceIndex, quint8* data, size_t length) override;
    void onUnplugged() override { replies.clear(); }

private:
    Identity identity;
    QByteArray pathBase;
    std::deque<QByteArray> replies;
};
