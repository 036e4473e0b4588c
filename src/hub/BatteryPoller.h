#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QThread>
#include <functional>

class Clock;
class HidBackend;

// Runs the cards' battery queries on a thread of its own, one after the other, so that a
// wireless device that answers slowly never holds up the window. Results come back on the
// thread that owns the poller.
class BatteryPoller : public QObject
{
    Q_OBJECT

public:
    // hid and clock must outlive the poller.
    BatteryPoller(HidBackend* hid, Clock* clock, QObject* parent = nullptr);
    // Waits for the query under way, if any.
    ~BatteryPoller() override;

    // Queues a query. done gets the charge in percent on this object's thread, unless the
    // device could not be opened or receiver is gone by then.
    void read(quint8 family, const QString& devicePath, QObject* receiver,
              std::function<void(int percent)> done);
    // Queries asked for and not answered yet.
    int pendingCount() const { return int(pending.size()); }

signals:
    // Internal: a query finished on the worker thread (charge -1: not opened).
    void finished(quint64 request, int percent);

private:
    struct Pending
    {
        QPointer<QObject> receiver;
        std::function<void(int)> done;
    };

    void deliver(quint64 request, int percent);

    HidBackend* hid;
    Clock* clock;
    QThread thread;
    QObject* worker;
    quint64 nextRequest = 1;
    QHash<quint64, Pending> pending;
};
