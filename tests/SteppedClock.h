#pragma once

// A manual clock that moves in step with one worker thread: the worker's sleeps wait for the
// test, and runUntil() advances virtual time exactly to each sleep's end, one sleep at a time.
// So a discovery pass on its own thread runs in virtual time as deterministically as on the
// test's thread. Real time only bounds how long the test waits for the worker to reach its
// next sleep.

#include "ManualClock.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

class SteppedClock : public ManualClock
{
public:
    void sleepMs(int milliseconds) override
    {
        if (std::this_thread::get_id() == driverThread) {
            ManualClock::sleepMs(milliseconds);
            return;
        }
        std::unique_lock lock(mutex);
        // The driver only advances to a registered deadline, so the time can't move here.
        const qint64 target = elapsedMs() + std::max(0, milliseconds);
        pending = target;
        ++sleeps;
        changed.notify_all();
        changed.wait(lock, [&] { return elapsedMs() >= target; });
        pending.reset();
        ++wakes;
        changed.notify_all();
    }

    // Advances through the worker's sleeps until done() holds (true) or limitMs of virtual time
    // have passed, or the worker stops sleeping without done() (false).
    bool runUntil(const std::function<bool()>& done, qint64 limitMs)
    {
        const qint64 end = elapsedMs() + limitMs;
        for (;;) {
            std::unique_lock lock(mutex);
            if (!waitFor(lock, [&] { return pending.has_value() || done(); })) return done();
            if (done()) return true;
            const qint64 target = *pending;
            if (target > end) {
                lock.unlock();
                advance(end - elapsedMs());
                return false;
            }
            const quint64 wakesBefore = wakes;
            lock.unlock();
            advance(target - elapsedMs());
            lock.lock();
            changed.notify_all();
            waitFor(lock, [&] { return wakes > wakesBefore; });
        }
    }

    quint64 sleepCount() const
    {
        std::lock_guard lock(mutex);
        return sleeps;
    }

private:
    // Polls, so that done() conditions nobody signals are seen too. False after ten seconds of
    // real time without the condition.
    template <class Predicate> bool waitFor(std::unique_lock<std::mutex>& lock, Predicate ready)
    {
        const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!ready()) {
            if (std::chrono::steady_clock::now() > limit) return false;
            changed.wait_for(lock, std::chrono::milliseconds(1));
        }
        return true;
    }

    const std::thread::id driverThread = std::this_thread::get_id();
    mutable std::mutex mutex;
    std::condition_variable changed;
    std::optional<qint64> pending;
    quint64 sleeps = 0;
    quint64 wakes = 0;
};
