#include "BatteryPoller.h"

#include "BatteryReader.h"

BatteryPoller::BatteryPoller(HidBackend* backend, Clock* pollerClock, QObject* parent)
    : QObject(parent), hid(backend), clock(pollerClock), worker(new QObject)
{
    thread.setObjectName(QStringLiteral("BatteryPoller"));
    worker->moveToThread(&thread);
    connect(&thread, &QThread::finished, worker, &QObject::deleteLater);
    connect(this, &BatteryPoller::finished, this, &BatteryPoller::deliver, Qt::QueuedConnection);
    thread.start();
}

BatteryPoller::~BatteryPoller()
{
    thread.quit();
    thread.wait();
}

void BatteryPoller::read(quint8 family, const QString& devicePath, QObject* receiver,
                         std::function<void(int)> done)
{
    const quint64 request = nextRequest++;
    pending.insert(request, Pending{receiver, std::move(done)});
    QMetaObject::invokeMethod(
        worker,
        [this, request, family, devicePath] {
            const std::optional<int> percent =
                BatteryReader::read(*hid, *clock, family, devicePath);
            emit finished(request, percent.value_or(-1));
        },
        Qt::QueuedConnection);
}

void BatteryPoller::deliver(quint64 request, int percent)
{
    const Pending entry = pending.take(request);
    if (percent < 0 || !entry.receiver || !entry.done) return;
    entry.done(percent);
}
