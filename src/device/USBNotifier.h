#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

class HidrawMonitor;

// Turns the system's device-change notices into devicePluggined(true): WM_DEVICECHANGE through
// the native event filter on Windows, a udev monitor on the hidraw subsystem on Linux. Arrival,
// removal and other changes all look alike. The hidapi backend owns one and passes its notices
// on as its own; a ScanDebounce makes one scan of a burst.
class USBNotifier : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit USBNotifier(QObject* parent = nullptr);
    ~USBNotifier() override;

    // Windows: WM_DEVICECHANGE, whatever its wParam, is logged, signalled and stopped here.
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

    // Starts listening to the system: installs the filter on the application (Windows) or opens
    // the udev monitor (Linux). False when nothing could be watched; scans then come only from
    // the periodic timer.
    bool startWatching();

signals:
    void devicePluggined(bool plugged);

private:
    HidrawMonitor* monitor = nullptr;
    bool filterInstalled = false;
};
