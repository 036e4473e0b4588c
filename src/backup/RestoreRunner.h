#pragma once

#include "IdleStepper.h"
#include "KeyboardReader.h"
#include "RestorePlan.h"

#include <QObject>

class Clock;
class DialogDeviceConnect;

// Restores a backup onto the connected keyboard: reads every profile, works out what differs,
// writes only that through the ordinary Do operations (key layers with their profile selected,
// the rest on the backup's active profile), then reads everything again and compares.
class RestoreRunner : public QObject
{
    Q_OBJECT

public:
    RestoreRunner(DialogDeviceConnect& device, Clock& clock, QObject* parent = nullptr);

    // The keyboard is on current and the connection has just read it whole. A dry run writes
    // nothing and ends on current again.
    void start(const KeyboardSnapshot& backup, quint8 current, bool dryRun);

    // What differed before anything was written; valid from planned() on.
    const RestorePlan& plan() const { return before; }
    // What still differs after the writes (a dry run: the same as plan()); valid at done().
    const RestorePlan& remaining() const { return after; }

signals:
    void planned();
    void done();
    void failed(const QString& why);

private:
    void write();

    DialogDeviceConnect& device;
    KeyboardSnapshot backup;
    bool dryRun = false;
    KeyboardReader reader;
    KeyboardReader checker;
    IdleStepper steps;
    RestorePlan before;
    RestorePlan after;
};
