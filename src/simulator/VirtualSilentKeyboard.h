#pragma once

#include "VirtualDevice.h"

// A keyboard on the wired route whose firmware never gets past its start: it takes every
// feature report and answers with zeros, so the identity request (8F) never comes back. The
// discovery pass keeps asking it for as long as it is plugged in.
class VirtualSilentKeyboard : public VirtualDevice
{
public:
    VirtualSilentKeyboard(std::mutex& backendLock, Clock* clock, quint16 vendorId,
                          quint16 productId, const QByteArray& pathBase);

    QByteArray commandPath() const { return pathBase + ":2"; }
    // Feature reports received so far. Locked.
    int requestCount() const;

protected:
    QList<HidDeviceInfo> interfaces() const override;
    int sendFeatureReport(int interfaceIndex, const quint8* data, size_t length) override;
    int getFeatureReport(int interfaceIndex, quint8* data, size_t length) override;

private:
    quint16 vid;
    quint16 pid;
    QByteArray pathBase;
    int requests = 0;
};
