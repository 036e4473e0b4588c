#pragma once

#include <QObject>
#include <QString>

class QSocketNotifier;
struct udev;
struct udev_monitor;

// Linux: a udev monitor on the hidraw subsystem behind a socket notifier. Each event (add,
// remove, change) becomes changed() on this object's thread.
class HidrawMonitor : public QObject
{
    Q_OBJECT

public:
    explicit HidrawMonitor(QObject* parent = nullptr);
    ~HidrawMonitor() override;

    // False when udev can't be reached (no netlink in a container, for instance).
    bool start();

signals:
    void changed(const QString& action, const QString& devnode);

private:
    void onReadable();

    udev* context = nullptr;
    udev_monitor* monitor = nullptr;
    QSocketNotifier* notifier = nullptr;
};
