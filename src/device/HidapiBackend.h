#pragma once

#include "HidBackend.h"

class USBNotifier;

// The production backend: hidapi's hidraw flavour on Linux, the native one elsewhere.
class HidapiBackend : public HidBackend
{
public:
    HidapiBackend();
    ~HidapiBackend() override;

    // Listens to the system's device notices and passes them on as devicePluggined. False when
    // nothing could be watched; new devices then show at the next periodic scan. Call it on a
    // thread with an event loop.
    bool startWatching();

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
    USBNotifier* notifier = nullptr;
};
