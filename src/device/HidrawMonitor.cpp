#include "HidrawMonitor.h"

#include "DeviceLog.h"

#include <QSocketNotifier>
#include <libudev.h>

HidrawMonitor::HidrawMonitor(QObject* parent) : QObject(parent) {}

HidrawMonitor::~HidrawMonitor()
{
    delete notifier;
    if (monitor) udev_monitor_unref(monitor);
    if (context) udev_unref(context);
}

bool HidrawMonitor::start()
{
    if (notifier) return true;
    context = udev_new();
    if (!context) {
        qCWarning(lcDevice) << "udev is not available: hot-plug is not watched";
        return false;
    }
    monitor = udev_monitor_new_from_netlink(context, "udev");
    if (!monitor ||
        udev_monitor_filter_add_match_subsystem_devtype(monitor, "hidraw", nullptr) < 0 ||
        udev_monitor_enable_receiving(monitor) < 0) {
        qCWarning(lcDevice) << "cannot listen to udev: hot-plug is not watched";
        return false;
    }
    notifier = new QSocketNotifier(udev_monitor_get_fd(monitor), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &HidrawMonitor::onReadable);
    return true;
}

void HidrawMonitor::onReadable()
{
    udev_device* device = udev_monitor_receive_device(monitor);
    if (!device) return;
    const QString action = QString::fromLatin1(udev_device_get_action(device));
    const QString node = QString::fromLocal8Bit(udev_device_get_devnode(device));
    udev_device_unref(device);
    emit changed(action, node);
}
