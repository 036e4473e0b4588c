#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

// Measures how long the window's thread went without processing events: a precise timer ticks
// every millisecond, and a tick that comes late tells how long the thread was held. Beside that
// wall time it keeps the thread's own processor time over the same gap: a gap with little of it
// was a wait (a blocking call, or a machine too busy to run the thread), one with much of it was
// work on the thread. Off unless the hub is started with --watchdog or ORBE_STALL_WATCHDOG=1
// (and in the stall benchmark).
class StallWatchdog : public QObject
{
    Q_OBJECT

public:
    static constexpr int kTickMs = 1;
    static constexpr const char* kFlag = "--watchdog";
    static constexpr const char* kEnvironment = "ORBE_STALL_WATCHDOG";

    explicit StallWatchdog(QObject* parent = nullptr);
    // Prints the longest stall to the log when on.
    ~StallWatchdog() override;

    // Watches from now on; forgets what was measured before.
    void restart();
    void stop();
    // The longest time between two event deliveries past the tick, in milliseconds, and when it
    // ended (milliseconds since restart).
    double longestStallMs() const { return longest; }
    qint64 longestStallAtMs() const { return longestAt; }
    // The most processor time the thread spent between two ticks, in milliseconds.
    double longestBusyMs() const { return longestBusy; }
    int ticks() const { return tickCount; }

    // Whether the flag or the environment asks for the watch; takes the flag out of argv.
    static bool isRequested(int& argc, char** argv);

private:
    void tick();

    QTimer timer;
    QElapsedTimer clock;
    qint64 lastTickNs = 0;
    qint64 lastCpuNs = 0;
    double longest = 0;
    double longestBusy = 0;
    qint64 longestAt = 0;
    int tickCount = 0;
};
