#pragma once

#include "HidBackend.h"

#include <QMutex>
#include <QTextStream>

class Clock;
class QIODevice;

// Wraps a backend and writes one line per transfer as it crosses the wire:
//   <ms since start> <'>' host to device | '<' device to host> <feature|write|read> <hex bytes>
// Report ids and prefixes are included; trailing zero bytes are left out.
class TracingHidBackend : public HidBackend
{
public:
    TracingHidBackend(HidBackend* inner, QIODevice* out, Clock* clock);

    QList<HidDeviceInfo> enumerate(quint16 vendorId, quint16 productId) override;
    HidHandle* openPath(const QByteArray& path) override;
    void close(HidHandle* handle) override;
    int setNonblocking(HidHandle* handle, bool nonblocking) override;
    int sendFeatureReport(HidHandle* handle, const quint8* data, size_t length) override;
    int getFeatureReport(HidHandle* handle, quint8* data, size_t length) override;
    int write(HidHandle* handle, const quint8* data, size_t length) override;
    int read(HidHandle* handle, quint8* data, size_t length) override;
    int readTimeout(HidHandle* handle, quint8* data, size_t length, int milliseconds) override;
    QString openFailure(const QByteArray& path) const override;

    // The trace line for one transfer, without the time.
    static QString line(bool toDevice, const char* kind, const quint8* data, size_t length);

private:
    void trace(bool toDevice, const char* kind, const quint8* data, int length);

    HidBackend* inner;
    Clock* clock;
    qint64 start;
    QMutex mutex;
    QTextStream stream;
};
