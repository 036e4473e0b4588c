#pragma once

#include <QObject>
#include <functional>
#include <memory>

class Clock;
class ClockTimer;

// Turns a burst of device-change signals into one scan request: each signal pushes the
// request back, and it goes out after 300 ms of quiet.
class ScanDebounce : public QObject
{
    Q_OBJECT

public:
    static constexpr int kQuietMs = 300;

    // request is called on this object's thread, e.g. OrbeDeviceEnum::requestScan.
    ScanDebounce(Clock* clock, std::function<void()> request, QObject* parent = nullptr);
    ~ScanDebounce() override;

    // Connect the HID backend's devicePluggined here.
    void onDevicePluggined(bool plugged);
    bool isPending() const;

private:
    void fire();

    std::function<void()> request;
    std::unique_ptr<ClockTimer> timer;
};
