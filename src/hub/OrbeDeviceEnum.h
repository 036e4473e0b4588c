#pragma once

#include <QThread>
#include <atomic>
#include <condition_variable>
#include <mutex>

class DeviceRegistry;

// The discovery thread. It starts in the constructor and runs one pass of its owner's for each
// request; requests that come in during a pass give one more pass after it. Waiting for a
// request is a wait on a condition, so a pass starts at once.
class OrbeDeviceEnum final : public QThread
{
    Q_OBJECT

public:
    explicit OrbeDeviceEnum(QObject* parent = nullptr);
    // Stops and waits: a pass notices the stop within one probe round.
    ~OrbeDeviceEnum() override;

    // Requests before the owner is set are dropped.
    void setOwner(DeviceRegistry* registry) { owner = registry; }

    // Any thread.
    void requestScan();
    // Ends the loop, and a pass under way at its next round; doesn't wait.
    void stop();
    bool isStopRequested() const { return stopRequested; }

protected:
    void run() override;

private:
    std::atomic<DeviceRegistry*> owner{nullptr};
    std::atomic<bool> stopRequested{false};
    std::atomic<bool> scanRequested{false};
    std::mutex mutex;
    std::condition_variable wake;
};
