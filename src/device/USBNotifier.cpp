#include "USBNotifier.h"

#include "DeviceLog.h"

#include <QCoreApplication>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include "HidrawMonitor.h"
#endif

USBNotifier::USBNotifier(QObject* parent) : QObject(parent) {}

USBNotifier::~USBNotifier()
{
    if (filterInstalled && QCoreApplication::instance())
        QCoreApplication::instance()->removeNativeEventFilter(this);
}

bool USBNotifier::nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result)
{
    Q_UNUSED(eventType);
    Q_UNUSED(result);
#ifdef Q_OS_WIN
    const MSG* msg = static_cast<const MSG*>(message);
    if (msg && msg->message == WM_DEVICECHANGE) {
        qCDebug(lcDevice) << "USBNotifier::nativeEventFilter: " << quint64(msg->wParam)
                          << qint64(msg->lParam);
        emit devicePluggined(true);
        return true;
    }
#else
    Q_UNUSED(message);
#endif
    return false;
}

bool USBNotifier::startWatching()
{
#ifdef Q_OS_WIN
    if (!filterInstalled && QCoreApplication::instance()) {
        QCoreApplication::instance()->installNativeEventFilter(this);
        filterInstalled = true;
    }
    return filterInstalled;
#else
    if (monitor) return true;
    auto* hidraw = new HidrawMonitor(this);
    if (!hidraw->start()) {
        delete hidraw;
        return false;
    }
    monitor = hidraw;
    connect(monitor, &HidrawMonitor::changed, this,
            [this](const QString& action, const QString& node) {
                qCDebug(lcDevice) << "hidraw" << action << node;
                emit devicePluggined(true);
            });
    return true;
#endif
}
