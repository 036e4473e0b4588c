#include "TracingHidBackend.h"

#include "Clock.h"

#include <QIODevice>
#include <QMutexLocker>

TracingHidBackend::TracingHidBackend(HidBackend* in, QIODevice* out, Clock* clk)
    : inner(in), clock(clk), start(clk->elapsedMs()), stream(out)
{
    connect(inner, &HidBackend::devicePluggined, this, &HidBackend::devicePluggined);
}

QString TracingHidBackend::line(bool toDevice, const char* kind, const quint8* data, size_t length)
{
    size_t used = length;
    while (used > 0 && data[used - 1] == 0)
        --used;
    QString text = QString::fromLatin1(toDevice ? "> " : "< ") + QString::fromLatin1(kind);
    if (used > 0)
        text +=
            QLatin1Char(' ') +
            QString::fromLatin1(
                QByteArray(reinterpret_cast<const char*>(data), int(used)).toHex(' ').toUpper());
    return text;
}

void TracingHidBackend::trace(bool toDevice, const char* kind, const quint8* data, int length)
{
    if (length <= 0) return;
    QMutexLocker lock(&mutex);
    stream << (clock->elapsedMs() - start) << ' ' << line(toDevice, kind, data, size_t(length))
           << '\n';
    stream.flush();
}

QList<HidDeviceInfo> TracingHidBackend::enumerate(quint16 vendorId, quint16 productId)
{
    return inner->enumerate(vendorId, productId);
}

HidHandle* TracingHidBackend::openPath(const QByteArray& path)
{
    return inner->openPath(path);
}

QString TracingHidBackend::openFailure(const QByteArray& path) const
{
    return inner->openFailure(path);
}

void TracingHidBackend::close(HidHandle* handle)
{
    inner->close(handle);
}

int TracingHidBackend::setNonblocking(HidHandle* handle, bool nonblocking)
{
    return inner->setNonblocking(handle, nonblocking);
}

int TracingHidBackend::sendFeatureReport(HidHandle* handle, const quint8* data, size_t length)
{
    trace(true, "feature", data, int(length));
    return inner->sendFeatureReport(handle, data, length);
}

int TracingHidBackend::getFeatureReport(HidHandle* handle, quint8* data, size_t length)
{
    const int n = inner->getFeatureReport(handle, data, length);
    trace(false, "feature", data, n);
    return n;
}

int TracingHidBackend::write(HidHandle* handle, const quint8* data, size_t length)
{
    trace(true, "write", data, int(length));
    return inner->write(handle, data, length);
}

int TracingHidBackend::read(HidHandle* handle, quint8* data, size_t length)
{
    const int n = inner->read(handle, data, length);
    trace(false, "read", data, n);
    return n;
}

int TracingHidBackend::readTimeout(HidHandle* handle, quint8* data, size_t length, int milliseconds)
{
    const int n = inner->readTimeout(handle, data, length, milliseconds);
    trace(false, "read", data, n);
    return n;
}
