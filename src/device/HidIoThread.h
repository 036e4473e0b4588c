#pragma once

#include "HidExecutor.h"

#include <QThread>
#include <memory>

class QObject;

// The connection's I/O thread: each job's work runs there, in the order submitted, and its
// continuation comes back queued to the thread that made the executor. A blocking read (a
// wireless reply waits up to 400 ms, twice) then holds this thread and not the window's.
class HidIoThread final : public HidExecutor
{
public:
    HidIoThread();
    // Runs every job already submitted, then stops the thread; continuations not delivered by
    // then are dropped.
    ~HidIoThread() override;

    void submit(std::function<void()> work, std::function<void()> done) override;

private:
    QThread thread;
    QObject* worker;               // lives on the thread
    std::unique_ptr<QObject> home; // lives on the making thread: continuations are posted here
};
