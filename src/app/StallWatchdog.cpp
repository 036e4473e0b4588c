#include "StallWatchdog.h"

#include "AppLog.h"
#include "AppStartup.h"

#include <QtGlobal>
#include <algorithm>
#ifdef Q_OS_UNIX
#include <ctime>
#endif

namespace {

// The calling thread's processor time in nanoseconds; 0 where the system doesn't tell.
qint64 threadCpuNs()
{
#ifdef Q_OS_UNIX
    timespec now{};
    if (clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now) == 0)
        return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
#endif
    return 0;
}

} // namespace

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
                                << " ms without events, busy at most " << longestBusy
                                << " ms of it (" << tickCount << " ticks)";
}

void StallWatchdog::restart()
{
    longest = 0;
    longestBusy = 0;
    longestAt = 0;
    tickCount = 0;
    clock.start();
    lastTickNs = clock.nsecsElapsed();
    lastCpuNs = threadCpuNs();
    timer.start();
}

void StallWatchdog::stop()
{
    timer.stop();
}

void StallWatchdog::tick()
{
    const qint64 now = clock.nsecsElapsed();
    const qint64 cpu = threadCpuNs();
    const double late = double(now - lastTickNs) / 1e6 - kTickMs;
    longestBusy = std::max(longestBusy, double(cpu - lastCpuNs) / 1e6);
    lastTickNs = now;
    lastCpuNs = cpu;
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
