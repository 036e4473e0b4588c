#include "LinuxPlatform.h"

#include "KeyStateTracker.h"
#include "PlatformLog.h"
#include "ProcessTable.h"
#include "X11Windows.h"
#include "XdgAutostart.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QMutexLocker>
#include <QPainterPath>
#include <QProcess>
#include <QRegion>
#include <QSettings>
#include <QWindow>
#include <QtMath>

#ifdef ORBE_HAVE_DBUS
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#endif

namespace {

// Whether the application has windows at all. Not qGuiApp, which casts a command-line tool's
// QCoreApplication to a QGuiApplication as well.
bool windowsExist()
{
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace

LinuxPlatform::LinuxPlatform(const QString& organisation) : organisation(organisation) {}

LinuxPlatform::~LinuxPlatform()
{
    // The process-wide platform can outlive the application object; a window must not.
    if (windowsExist()) qDeleteAll(foreignWindows);
}

void LinuxPlatform::tellOnce(const char* what)
{
    if (told.contains(what)) return;
    told.insert(what);
    qCInfo(lcPlatform) << what;
}

// ---- lock and idle watch, keys

bool LinuxPlatform::isSessionLocked()
{
#ifdef ORBE_HAVE_DBUS
    QDBusConnection bus = QDBusConnection::systemBus();
    if (bus.isConnected()) {
        QDBusMessage call = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.login1"),
            QStringLiteral("/org/freedesktop/login1/session/auto"),
            QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
        call << QStringLiteral("org.freedesktop.login1.Session") << QStringLiteral("LockedHint");
        const QDBusMessage reply = bus.call(call, QDBus::Block, 250);
        if (reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty())
            return reply.arguments().constFirst().value<QDBusVariant>().variant().toBool();
        tellOnce("logind gives no lock state for this session; taken as unlocked");
        return false;
    }
#endif
    tellOnce("no system bus to ask logind; the session is taken as unlocked");
    return false;
}

qint64 LinuxPlatform::millisecondsSinceInput()
{
    tellOnce("the time since the last input is not known here (it needs an X11 extension)");
    return -1;
}

qint16 LinuxPlatform::keyState(int virtualKey)
{
    if (!keys) {
        if (!QCoreApplication::instance()) return 0;
        keys = new KeyStateTracker(QCoreApplication::instance());
    }
    return keys->keyState(virtualKey);
}

// ---- autostart

QString LinuxPlatform::autostartProgram()
{
    return XdgAutostart::program();
}

bool LinuxPlatform::setAutostart(const QString& programPath)
{
    return XdgAutostart::write(programPath);
}

bool LinuxPlatform::clearAutostart()
{
    return XdgAutostart::remove();
}

void LinuxPlatform::clearMachineAutostart()
{
    tellOnce("the machine-wide autostart entries under /etc/xdg are left to the administrator");
}

// ---- per-user values

QSettings& LinuxPlatform::userStore()
{
    // Opened once: the return watch asks ten times a second while it runs. sync() before each
    // read takes in what a sibling driver wrote; when nothing changed it costs one stat.
    if (!store)
        store = std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                            organisation);
    return *store;
}

QVariant LinuxPlatform::userValue(const QString& key)
{
    QMutexLocker lock(&storeMutex);
    QSettings& settings = userStore();
    settings.sync();
    return settings.value(key);
}

void LinuxPlatform::setUserValue(const QString& key, const QVariant& value)
{
    QMutexLocker lock(&storeMutex);
    QSettings& settings = userStore();
    settings.setValue(key, value);
    settings.sync();
    if (settings.status() != QSettings::NoError)
        qCWarning(lcPlatform) << "cannot save" << key << "to" << settings.fileName();
}

void LinuxPlatform::removeUserValue(const QString& key)
{
    QMutexLocker lock(&storeMutex);
    QSettings& settings = userStore();
    settings.remove(key);
    settings.sync();
}

// ---- processes

bool LinuxPlatform::startProcess(const QString& programPath)
{
    const bool started =
        QProcess::startDetached(programPath, {}, QFileInfo(programPath).absolutePath());
    if (!started) qCDebug(lcPlatform) << "cannot start" << programPath;
    return started;
}

bool LinuxPlatform::isProcessRunning(const QString& name)
{
    return !ProcessTable::idsNamed(name).isEmpty();
}

bool LinuxPlatform::endProcess(const QString& name)
{
    return ProcessTable::endFirstNamed(name);
}

// ---- windows

QWindow* LinuxPlatform::windowOf(WindowId window)
{
    if (!windowsExist() || window == 0) return nullptr;
    // Only windows that have a native window already: winId() would create the others.
    const QWindowList own = QGuiApplication::allWindows();
    for (QWindow* w : own) {
        if (w->handle() && w->winId() == window) return w;
    }
    if (QWindow* known = foreignWindows.value(window)) return known;
    QWindow* foreign = QWindow::fromWinId(window);
    if (!foreign) {
        tellOnce("this windowing system lends no other program's window; such calls do nothing");
        return nullptr;
    }
    foreignWindows.insert(window, foreign);
    return foreign;
}

Platform::WindowId LinuxPlatform::findWindow(const QString& title, const QString& className)
{
    if (windowsExist()) {
        const QWindowList own = QGuiApplication::topLevelWindows();
        for (QWindow* w : own) {
            if (w->handle() && w->title() == title && className.isEmpty()) return w->winId();
        }
    }
    if (!X11Windows::available()) {
        tellOnce("only this program's windows can be found by title outside X11");
        return 0;
    }
    return X11Windows::find(title, className);
}

void LinuxPlatform::setWindowParent(WindowId window, WindowId parent)
{
    QWindow* child = windowOf(window);
    if (!child) return;
    child->setParent(parent ? windowOf(parent) : nullptr);
}

bool LinuxPlatform::canEmbedWindows()
{
    // Qt lends another program's window (QWindow::fromWinId) on X11 alone.
    return X11Windows::available();
}

void LinuxPlatform::setWindowStyle(WindowId, quint32, quint32)
{
    tellOnce("window style words have no X11 counterpart; left as they are");
}

void LinuxPlatform::showWindow(WindowId window)
{
    if (QWindow* w = windowOf(window)) w->show();
}

void LinuxPlatform::hideWindow(WindowId window)
{
    if (QWindow* w = windowOf(window)) w->hide();
}

void LinuxPlatform::setWindowPos(WindowId window, ZOrder order, const QRect& geometry,
                                 quint32 flags)
{
    QWindow* w = windowOf(window);
    if (!w) return;
    // Native pixels in, device-independent pixels for Qt.
    const qreal ratio = w->devicePixelRatio();
    if (!(flags & NoMove)) w->setPosition((QPointF(geometry.topLeft()) / ratio).toPoint());
    if (!(flags & NoSize)) w->resize((QSizeF(geometry.size()) / ratio).toSize());
    if (!(flags & NoZOrder)) {
        switch (order) {
        case ZOrder::TopMost:
            w->setFlag(Qt::WindowStaysOnTopHint, true);
            w->raise();
            break;
        case ZOrder::NoTopMost:
            w->setFlag(Qt::WindowStaysOnTopHint, false);
            break;
        case ZOrder::Top:
            w->raise();
            break;
        case ZOrder::Bottom:
            w->lower();
            break;
        }
    }
    if (flags & ShowWindowFlag) w->show();
    if (flags & HideWindowFlag) w->hide();
}

void LinuxPlatform::moveWindow(WindowId window, const QRect& geometry, bool repaint)
{
    QWindow* w = windowOf(window);
    if (!w) return;
    const qreal ratio = w->devicePixelRatio();
    w->setGeometry(
        QRectF(QPointF(geometry.topLeft()) / ratio, QSizeF(geometry.size()) / ratio).toRect());
    if (repaint) w->requestUpdate();
}

QRect LinuxPlatform::windowRect(WindowId window)
{
    QWindow* w = windowOf(window);
    if (!w) return {};
    const QRect frame = w->frameGeometry();
    const qreal ratio = w->devicePixelRatio();
    return QRectF(QPointF(frame.topLeft()) * ratio, QSizeF(frame.size()) * ratio).toRect();
}

void LinuxPlatform::bringWindowToTop(WindowId window)
{
    if (QWindow* w = windowOf(window)) w->raise();
}

void LinuxPlatform::setForegroundWindow(WindowId window)
{
    if (QWindow* w = windowOf(window)) w->requestActivate();
}

void LinuxPlatform::redrawWindow(WindowId window, quint32)
{
    // Another program repaints on the server's expose events; only our own needs asking.
    if (QWindow* w = windowOf(window); w && !foreignWindows.contains(window)) w->requestUpdate();
}

void LinuxPlatform::setBottomRoundedRegion(WindowId window, const QSize& size, int corner)
{
    QWindow* w = windowOf(window);
    if (!w) return;
    const qreal ratio = w->devicePixelRatio();
    const QSizeF logical = QSizeF(size) / ratio;
    const qreal radius = corner / ratio / 2;
    QPainterPath rounded;
    rounded.addRoundedRect(QRectF(QPointF(0, 0), logical), radius, radius);
    QRegion region(rounded.toFillPolygon().toPolygon());
    region += QRegion(0, 0, qCeil(logical.width()), qCeil(corner / ratio));
    w->setMask(region);
}

void LinuxPlatform::postCloseMessage(WindowId window)
{
    if (windowsExist()) {
        const QWindowList own = QGuiApplication::allWindows();
        for (QWindow* w : own) {
            if (w->handle() && w->winId() == window) {
                QMetaObject::invokeMethod(w, &QWindow::close, Qt::QueuedConnection);
                return;
            }
        }
    }
    if (!X11Windows::requestClose(window))
        tellOnce("no close request can be sent to another program's window here");
}

std::unique_ptr<Platform> Platform::create()
{
    return std::make_unique<LinuxPlatform>();
}
