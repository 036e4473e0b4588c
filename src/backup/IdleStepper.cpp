#include "IdleStepper.h"

#include "BackupLog.h"
#include "Clock.h"
#include "DialogDeviceConnect.h"

IdleStepper::IdleStepper(DialogDeviceConnect& d, Clock& c) : device(d), clock(c) {}

IdleStepper::~IdleStepper() = default;

void IdleStepper::add(const QString& what, Action action, Action whenIdle)
{
    steps.append({what, std::move(action), std::move(whenIdle)});
}

void IdleStepper::run(Action done, std::function<void(const QString&)> failed)
{
    onDone = std::move(done);
    onFailed = std::move(failed);
    if (!timer) timer = clock.createTimer([this] { poll(); }, false);
    next();
}

void IdleStepper::stop()
{
    if (timer) timer->stop();
    steps.clear();
}

void IdleStepper::next()
{
    if (steps.isEmpty()) {
        timer->stop();
        if (onDone) onDone();
        return;
    }
    current = steps.takeFirst();
    qCDebug(lcBackup) << "step:" << current.what;
    startedMs = clock.elapsedMs();
    if (current.action) current.action();
    timer->start(kPollMs);
}

void IdleStepper::poll()
{
    auto fail = [this](const QString& why) {
        qCWarning(lcBackup).noquote() << why;
        stop();
        if (onFailed) onFailed(why);
    };
    if (!device.isConnected()) {
        fail(QStringLiteral("the keyboard went away during %1").arg(current.what));
        return;
    }
    if (!device.isIdle()) {
        if (clock.elapsedMs() - startedMs >= kStepLimitMs)
            fail(QStringLiteral("%1: the keyboard did not answer within %2 s")
                     .arg(current.what)
                     .arg(kStepLimitMs / 1000));
        return;
    }
    timer->stop();
    if (current.whenIdle) current.whenIdle();
    next();
}
