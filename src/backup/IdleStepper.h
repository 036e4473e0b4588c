#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <memory>

class Clock;
class ClockTimer;
class DialogDeviceConnect;

// Runs work on the connection one step at a time: a step's action queues its operations, and
// the next step begins once the connection is idle again (every frame answered, any read
// sequence the step started finished). A step that doesn't come to rest in time, or a keyboard
// that goes away, ends the run with a reason.
class IdleStepper
{
public:
    using Action = std::function<void()>;
    static constexpr int kPollMs = 5;
    static constexpr int kStepLimitMs = 30000; // a wireless read sequence takes about 11 s

    IdleStepper(DialogDeviceConnect& device, Clock& clock);
    ~IdleStepper();

    // what names the step in a failure message; whenIdle runs once the step has come to rest.
    void add(const QString& what, Action action, Action whenIdle = {});
    // Runs the steps added so far, and any that their actions add; then done, or failed.
    void run(Action done, std::function<void(const QString&)> failed);
    void stop();

private:
    struct Step
    {
        QString what;
        Action action;
        Action whenIdle;
    };
    void next();
    void poll();

    DialogDeviceConnect& device;
    Clock& clock;
    QList<Step> steps;
    Step current;
    std::unique_ptr<ClockTimer> timer;
    qint64 startedMs = 0;
    Action onDone;
    std::function<void(const QString&)> onFailed;
};
