#include "Clock.h"

#include <QElapsedTimer>
#include <QThread>
#include <QTimer>

namespace {

class QtClockTimer : public ClockTimer
{
public:
    QtClockTimer(std::function<void()> onTimeout, bool singleShot)
    {
        timer.setTimerType(Qt::PreciseTimer);
        timer.setSingleShot(singleShot);
        QObject::connect(&timer, &QTimer::timeout, std::move(onTimeout));
    }
    void start(int milliseconds) override { timer.start(milliseconds); }
    void stop() override { timer.stop(); }
    bool isActive() const override { return timer.isActive(); }

private:
    QTimer timer;
};

} // namespace

struct QtClock::Private
{
    QElapsedTimer elapsed;
};

QtClock::QtClock() : d(std::make_unique<Private>())
{
    d->elapsed.start();
}

QtClock::~QtClock() = default;

qint64 QtClock::elapsedMs() const
{
    return d->elapsed.elapsed();
}

std::unique_ptr<ClockTimer> QtClock::createTimer(std::function<void()> onTimeout, bool singleShot)
{
    return std::make_unique<QtClockTimer>(std::move(onTimeout), singleShot);
}

void QtClock::singleShot(int milliseconds, QObject* context, std::function<void()> fn)
{
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, context, std::move(fn));
}

void QtClock::sleepMs(int milliseconds)
{
    if (milliseconds > 0) QThread::msleep(static_cast<unsigned long>(milliseconds));
}

QtClock* QtClock::shared()
{
    static QtClock clock;
    return &clock;
}
