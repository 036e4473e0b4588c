#include "StallWatchdog.h"

#include "AppLog.h"
#include "AppStartup.h"

StallWatchdog::StallWatchdog(QObject* parent) : QObject(parent)
{
    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(kTickMs);
    connect(&timer, &QTimer::timeout, this, &StallWatchdog::tick);
}

StallWatchdog::~StallWatchdog()
{
    if (tickCount > 0)
        qCInfo(lcApp).nospace() << "the window's thread went at most " << longest
                                << " ms without events (" << tickCount << " ticks)";
}

void StallWatchdog::restart()
{
    longest = 0;
    longestAt = 0;
    tickCount = 0;
    clock.start();
    lastTickNs = clock.nsecsElapsed();
    timer.start();
}

void StallWatchdog::stop()
{
    timer.stop();
}

void StallWatchdog::tick()
{
    const qint64 now = clock.nsecsElapsed();
    const double late = double(now - lastTickNs) / 1e6 - kTickMs;
    lastTickNs = now;
    ++tickCount;
    if (late > longest) {
        longest = late;
        longestAt = now / 1000000;
    }
}

bool StallWatchdog::isRequested(int& argc, char** argv)
{
    const bool flag = AppStartup::takeFlag(argc, argv, kFlag);
    return flag || qEnvironmentVariableIntValue(kEnvironment) != 0;
}
