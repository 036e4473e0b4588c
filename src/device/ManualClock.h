#pragma once

#include "Clock.h"

#include <QPointer>
#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

// Virtual time for tests and benchmarks. Nothing fires until advance() is called; events due at
// the same moment fire in the order they were armed. sleepMs() on the thread that drives the
// clock moves time on without firing anything (a blocking call can't be interrupted by a timer);
// on any other thread it waits until the driving thread has advanced past the deadline.
class ManualClock : public Clock
{
public:
    ManualClock();
    ~ManualClock() override;

    qint64 elapsedMs() const override;
    std::unique_ptr<ClockTimer> createTimer(std::function<void()> onTimeout,
                                            bool singleShot) override;
    void singleShot(int milliseconds, QObject* context, std::function<void()> fn) override;
    void sleepMs(int milliseconds) override;

    // Runs every event due up to now + milliseconds, then sets the time to that point.
    void advance(qint64 milliseconds);
    // Advances in steps of stepMs until done() holds or limitMs have passed; true if done.
    bool advanceUntil(const std::function<bool()>& done, qint64 limitMs, qint64 stepMs = 1);
    // Number of armed events (timers and single shots).
    int pendingCount() const;

private:
    friend class ManualTimer;
    struct Event
    {
        std::function<void()> fn;
        bool hasContext = false;
        QPointer<QObject> context;
        quint64 timerId = 0; // 0 for single shots
    };
    using Key = std::pair<qint64, quint64>; // due time, arming order

    quint64 schedule(qint64 due, Event event);
    void cancelTimer(quint64 timerId);

    mutable std::mutex mutex;
    std::condition_variable timeMoved;
    std::thread::id driver;
    qint64 now = 0;
    quint64 sequence = 0;
    quint64 nextTimerId = 1;
    std::map<Key, Event> events;
};
