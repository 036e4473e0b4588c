#pragma once

#include <QObject>
#include <functional>
#include <memory>

// A timer handed out by a Clock. Restarting an active timer moves its deadline, as QTimer does.
class ClockTimer
{
public:
    virtual ~ClockTimer() = default;
    virtual void start(int milliseconds) = 0;
    virtual void stop() = 0;
    virtual bool isActive() const = 0;
};

// Every wait of the protocol and the discovery pass goes through a Clock, so that tests can run
// the pacing in virtual time.
class Clock
{
public:
    virtual ~Clock() = default;

    // Monotonic milliseconds since the clock was made.
    virtual qint64 elapsedMs() const = 0;
    // A timer that calls onTimeout on the creating thread; repeating unless singleShot.
    virtual std::unique_ptr<ClockTimer> createTimer(std::function<void()> onTimeout,
                                                    bool singleShot) = 0;
    // Calls fn once after the delay, unless context was destroyed meanwhile.
    virtual void singleShot(int milliseconds, QObject* context, std::function<void()> fn) = 0;
    // Blocks the calling thread; for worker threads and blocking device calls.
    virtual void sleepMs(int milliseconds) = 0;
};

// Real time: QTimer (precise, the protocol's pacing is part of its contract) and thread sleeps.
class QtClock : public Clock
{
public:
    QtClock();
    ~QtClock() override;
    qint64 elapsedMs() const override;
    std::unique_ptr<ClockTimer> createTimer(std::function<void()> onTimeout,
                                            bool singleShot) override;
    void singleShot(int milliseconds, QObject* context, std::function<void()> fn) override;
    void sleepMs(int milliseconds) override;

    // The clock the product uses when none is given.
    static QtClock* shared();

private:
    struct Private;
    std::unique_ptr<Private> d;
};
