#include "TimedHidBackend.h"

#include <QElapsedTimer>
#include <QMutexLocker>
#include <QThread>

TimedHidBackend::TimedHidBackend(std::unique_ptr<HidBackend> inner) : wrapped(std::move(inner))
{
    connect(wrapped.get(), &HidBackend::devicePluggined, this, &HidBackend::devicePluggined);
}

TimedHidBackend::~TimedHidBackend() = default;

template <class Call> auto TimedHidBackend::timed(const char* name, Call call)
{
    QElapsedTimer timer;
    timer.start();
    auto result = call();
    const Longest measured{double(timer.nsecsElapsed()) / 1e6, QLatin1String(name)};
    const QString thread = QThread::currentThread()->objectName();
    QMutexLocker lock(&mutex);
    ++calls;
    if (measured.ms > overall.ms) overall = measured;
    if (Longest& mine = byThread[thread.isEmpty() ? QStringLiteral("main") : thread];
        measured.ms > mine.ms)
        mine = measured;
    return result;
}

TimedHidBackend::Longest TimedHidBackend::longest() const
{
    QMutexLocker lock(&mutex);
    return overall;
}

QHash<QString, TimedHidBackend::Longest> TimedHidBackend::longestByThread() const
{
    QMutexLocker lock(&mutex);
    return byThread;
}

int TimedHidBackend::callCount() const
{
    QMutexLocker lock(&mutex);
    return calls;
}

QList<HidDeviceInfo> TimedHidBackend::enumerate(quint16 vendorId, quint16 productId)
{
    return timed("enumerate", [&] { return wrapped->enumerate(vendorId, productId); });
}

HidHandle* TimedHidBackend::openPath(const QByteArray& path)
{
    return timed("openPath", [&] { return wrapped->openPath(path); });
}

void TimedHidBackend::close(HidHandle* handle)
{
    timed("close", [&] {
        wrapped->close(handle);
        return 0;
    });
}

int TimedHidBackend::setNonblocking(HidHandle* handle, bool nonblocking)
{
    return timed("setNonblocking", [&] { return wrapped->setNonblocking(handle, nonblocking); });
}

int TimedHidBackend::sendFeatureReport(HidHandle* handle, const quint8* data, size_t length)
{
    return timed("sendFeatureReport",
                 [&] { return wrapped->sendFeatureReport(handle, data, length); });
}

int TimedHidBackend::getFeatureReport(HidHandle* handle, quint8* data, size_t length)
{
    return timed("getFeatureReport",
                 [&] { return wrapped->getFeatureReport(handle, data, length); });
}

int TimedHidBackend::write(HidHandle* handle, const quint8* data, size_t length)
{
    return timed("write", [&] { return wrapped->write(handle, data, length); });
}

int TimedHidBackend::read(HidHandle* handle, quint8* data, size_t length)
{
    return timed("read", [&] { return wrapped->read(handle, data, length); });
}

int TimedHidBackend::readTimeout(HidHandle* handle, quint8* data, size_t length, int milliseconds)
{
    return timed("readTimeout",
                 [&] { return wrapped->readTimeout(handle, data, length, milliseconds); });
}
