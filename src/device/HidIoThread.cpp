#include "HidIoThread.h"

#include <QObject>

HidIoThread::HidIoThread() : worker(new QObject), home(std::make_unique<QObject>())
{
    thread.setObjectName(QStringLiteral("DeviceIo"));
    worker->moveToThread(&thread);
    QObject::connect(&thread, &QThread::finished, worker, &QObject::deleteLater);
    thread.start();
}

HidIoThread::~HidIoThread()
{
    // Behind every job in the queue: nothing is cut off half-way, and nothing posts to home
    // once the thread has ended.
    QMetaObject::invokeMethod(
        worker, [this] { thread.quit(); }, Qt::QueuedConnection);
    thread.wait();
}

void HidIoThread::submit(std::function<void()> work, std::function<void()> done)
{
    QObject* target = home.get();
    QMetaObject::invokeMethod(
        worker,
        [target, work = std::move(work), done = std::move(done)] {
            work();
            if (done) QMetaObject::invokeMethod(target, done, Qt::QueuedConnection);
        },
        Qt::QueuedConnection);
}
