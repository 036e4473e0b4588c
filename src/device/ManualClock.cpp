#include "ManualClock.h"

class ManualTimer : public ClockTimer
{
public:
    ManualTimer(ManualClock* c, std::function<void()> f, bool single)
        : clock(c), fn(std::move(f)), singleShot(single), id(c->nextTimerId++)
    {
    }
    ~ManualTimer() override { stop(); }

    void start(int milliseconds) override
    {
        stop();
        interval = milliseconds < 0 ? 0 : milliseconds;
        arm(clock->elapsedMs() + interval);
    }
    void stop() override
    {
        if (active) clock->cancelTimer(id);
        active = false;
    }
    bool isActive() const override { return active; }

private:
    void arm(qint64 due)
    {
        active = true;
        ManualClock::Event event;
        event.timerId = id;
        event.fn = [this, due] {
            active = false;
            if (!singleShot) arm(due + (interval > 0 ? interval : 1));
            fn();
        };
        clock->schedule(due, std::move(event));
    }

    ManualClock* clock;
    std::function<void()> fn;
    bool singleShot;
    quint64 id;
    int interval = 0;
    bool active = false;
};

ManualClock::ManualClock() : driver(std::this_thread::get_id()) {}

ManualClock::~ManualClock() = default;

qint64 ManualClock::elapsedMs() const
{
    std::lock_guard lock(mutex);
    return now;
}

std::unique_ptr<ClockTimer> ManualClock::createTimer(std::function<void()> onTimeout,
                                                     bool singleShot)
{
    std::lock_guard lock(mutex);
    return std::make_unique<ManualTimer>(this, std::move(onTimeout), singleShot);
}

void ManualClock::singleShot(int milliseconds, QObject* context, std::function<void()> fn)
{
    Event event;
    event.fn = std::move(fn);
    event.hasContext = context != nullptr;
    event.context = context;
    schedule(elapsedMs() + (milliseconds < 0 ? 0 : milliseconds), std::move(event));
}

void ManualClock::sleepMs(int milliseconds)
{
    std::unique_lock lock(mutex);
    const qint64 target = now + (milliseconds < 0 ? 0 : milliseconds);
    if (std::this_thread::get_id() == driver) {
        now = target;
        timeMoved.notify_all();
        return;
    }
    timeMoved.wait(lock, [&] { return now >= target; });
}

quint64 ManualClock::schedule(qint64 due, Event event)
{
    std::lock_guard lock(mutex);
    const quint64 seq = sequence++;
    events.emplace(Key{due, seq}, std::move(event));
    return seq;
}

void ManualClock::cancelTimer(quint64 timerId)
{
    std::lock_guard lock(mutex);
    for (auto it = events.begin(); it != events.end();) {
        if (it->second.timerId == timerId)
            it = events.erase(it);
        else
            ++it;
    }
}

void ManualClock::advance(qint64 milliseconds)
{
    std::unique_lock lock(mutex);
    const qint64 target = now + (milliseconds < 0 ? 0 : milliseconds);
    for (;;) {
        auto it = events.begin();
        if (it == events.end() || it->first.first > target) break;
        // A blocking call inside an earlier event may have moved the time past this deadline.
        now = std::max(now, it->first.first);
        Event event = std::move(it->second);
        events.erase(it);
        timeMoved.notify_all();
        lock.unlock();
        if (!event.hasContext || event.context) event.fn();
        lock.lock();
    }
    now = std::max(now, target);
    timeMoved.notify_all();
}

bool ManualClock::advanceUntil(const std::function<bool()>& done, qint64 limitMs, qint64 stepMs)
{
    for (qint64 spent = 0; spent < limitMs; spent += stepMs) {
        if (done()) return true;
        advance(stepMs);
    }
    return done();
}

int ManualClock::pendingCount() const
{
    std::lock_guard lock(mutex);
    return static_cast<int>(events.size());
}
