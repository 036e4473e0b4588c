#include "WindowsPlatform.h"

#include "PlatformLog.h"
#include "Win32Calls.h"

#include <QDir>
#include <QMutexLocker>
#include <QSettings>

namespace {

const QString runKeyUser =
    QStringLiteral("HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run");
const QString runKeyMachine =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run");
const QString runValue = QStringLiteral("OrbeHub");

std::wstring wide(const QString& text)
{
    return text.toStdWString();
}

win32::Rect rectOf(const QRect& r)
{
    return {r.left(), r.top(), r.left() + r.width(), r.top() + r.height()};
}

win32::InsertAfter insertAfter(Platform::ZOrder order)
{
    switch (order) {
    case Platform::ZOrder::Top:
        return win32::InsertAfter::Top;
    case Platform::ZOrder::Bottom:
        return win32::InsertAfter::Bottom;
    case Platform::ZOrder::TopMost:
        return win32::InsertAfter::TopMost;
    case Platform::ZOrder::NoTopMost:
        return win32::InsertAfter::NoTopMost;
    }
    return win32::InsertAfter::Top;
}

} // namespace

WindowsPlatform::WindowsPlatform(const QString& organisation)
    : userKey(QStringLiteral("HKEY_CURRENT_USER\\Software\\") + organisation)
{
}

void WindowsPlatform::setConsoleOutputUtf8()
{
    win32::setConsoleOutputUtf8();
}

bool WindowsPlatform::isSessionLocked()
{
    return win32::isSessionLocked();
}

qint64 WindowsPlatform::millisecondsSinceInput()
{
    return win32::millisecondsSinceInput();
}

qint16 WindowsPlatform::keyState(int virtualKey)
{
    return win32::keyState(virtualKey);
}

QString WindowsPlatform::autostartProgram()
{
    QSettings run(runKeyUser, QSettings::NativeFormat);
    QString command = run.value(runValue).toString().trimmed();
    if (command.size() >= 2 && command.startsWith(u'"') && command.endsWith(u'"'))
        command = command.mid(1, command.size() - 2);
    return QDir::fromNativeSeparators(command);
}

bool WindowsPlatform::setAutostart(const QString& programPath)
{
    QSettings run(runKeyUser, QSettings::NativeFormat);
    run.remove(runValue);
    run.setValue(runValue, QStringLiteral("\"%1\"").arg(QDir::toNativeSeparators(programPath)));
    run.sync();
    if (run.status() != QSettings::NoError) {
        qCWarning(lcPlatform) << "could not write the Run value" << runValue;
        return false;
    }
    return true;
}

bool WindowsPlatform::clearAutostart()
{
    QSettings run(runKeyUser, QSettings::NativeFormat);
    run.remove(runValue);
    run.sync();
    return run.status() == QSettings::NoError;
}

void WindowsPlatform::clearMachineAutostart()
{
    QSettings run(runKeyMachine, QSettings::NativeFormat);
    run.remove(runValue);
    run.sync();
    if (run.status() != QSettings::NoError)
        qCDebug(lcPlatform) << "the machine-wide Run value stays; no right to remove it";
}

QSettings& WindowsPlatform::userStore()
{
    // Opened once; the registry is read live, so a sibling driver's writes are seen at once.
    if (!store) store = std::make_unique<QSettings>(userKey, QSettings::NativeFormat);
    return *store;
}

QVariant WindowsPlatform::userValue(const QString& key)
{
    QMutexLocker lock(&storeMutex);
    return userStore().value(key);
}

void WindowsPlatform::setUserValue(const QString& key, const QVariant& value)
{
    QMutexLocker lock(&storeMutex);
    userStore().setValue(key, value);
}

void WindowsPlatform::removeUserValue(const QString& key)
{
    QMutexLocker lock(&storeMutex);
    userStore().remove(key);
}

bool WindowsPlatform::startProcess(const QString& programPath)
{
    const QString command = QStringLiteral("\"%1\"").arg(QDir::toNativeSeparators(programPath));
    const bool started = win32::startHidden(command.toLocal8Bit().toStdString());
    if (!started) qCDebug(lcPlatform) << "WinExec failed for" << programPath;
    return started;
}

bool WindowsPlatform::isProcessRunning(const QString& name)
{
    return win32::isProcessRunning(wide(name));
}

bool WindowsPlatform::endProcess(const QString& name)
{
    return win32::endProcess(wide(name));
}

Platform::WindowId WindowsPlatform::findWindow(const QString& title, const QString& className)
{
    return win32::findWindow(wide(title), wide(className));
}

void WindowsPlatform::setWindowParent(WindowId window, WindowId parent)
{
    win32::setParent(window, parent);
}

void WindowsPlatform::setWindowStyle(WindowId window, quint32 style, quint32 exStyle)
{
    win32::setStyle(window, style, exStyle);
}

void WindowsPlatform::showWindow(WindowId window)
{
    win32::show(window, true);
}

void WindowsPlatform::hideWindow(WindowId window)
{
    win32::show(window, false);
}

void WindowsPlatform::setWindowPos(WindowId window, ZOrder order, const QRect& geometry,
                                   quint32 flags)
{
    win32::setWindowPos(window, insertAfter(order), rectOf(geometry), flags);
}

void WindowsPlatform::moveWindow(WindowId window, const QRect& geometry, bool repaint)
{
    win32::moveWindow(window, rectOf(geometry), repaint);
}

QRect WindowsPlatform::windowRect(WindowId window)
{
    win32::Rect r;
    if (!win32::windowRect(window, r)) return {};
    return QRect(QPoint(r.left, r.top), QSize(r.right - r.left, r.bottom - r.top));
}

void WindowsPlatform::bringWindowToTop(WindowId window)
{
    win32::bringToTop(window);
}

void WindowsPlatform::setForegroundWindow(WindowId window)
{
    win32::setForeground(window);
}

void WindowsPlatform::redrawWindow(WindowId window, quint32 flags)
{
    win32::redraw(window, flags);
}

void WindowsPlatform::setBottomRoundedRegion(WindowId window, const QSize& size, int corner)
{
    win32::setBottomRoundedRegion(window, size.width(), size.height(), corner);
}

void WindowsPlatform::postCloseMessage(WindowId window)
{
    win32::postClose(window);
}

std::unique_ptr<Platform> Platform::create()
{
    return std::make_unique<WindowsPlatform>();
}
