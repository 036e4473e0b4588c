#include "HidBackend.h"

void HidBackend::reportDeviceChange()
{
    // Direct on the backend's thread, queued from any other.
    QMetaObject::invokeMethod(
        this, [this] { emit devicePluggined(true); }, Qt::AutoConnection);
}

QString HidBackend::openFailure(const QByteArray& path) const
{
    QMutexLocker locker(&failuresLock);
    return failures.value(path);
}

void HidBackend::noteOpen(const QByteArray& path, const QString& failure)
{
    QMutexLocker locker(&failuresLock);
    if (failure.isEmpty())
        failures.remove(path);
    else
        failures.insert(path, failure);
}
