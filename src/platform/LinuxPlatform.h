#pragma once

#include "Platform.h"

#include <QHash>
#include <QMutex>
#include <QPointer>
#include <QSet>
#include <QSettings>
#include <memory>

class KeyStateTracker;
class QWindow;

// The same operations on Linux: Qt where it serves, X11 through Qt's native interface for other
// programs' windows, XDG autostart, an INI file for the per-user values, /proc for processes
// and logind for the lock state. What has no Linux counterpart is a no-op that says so once.
class LinuxPlatform : public Platform
{
public:
    // Per-user values go to "<config>/<organisation>.conf" (QSettings' native format here).
    explicit LinuxPlatform(const QString& organisation = QStringLiteral("Orbe"));
    ~LinuxPlatform() override;

    // Terminals speak UTF-8 already; there is no code page to set.
    void setConsoleOutputUtf8() override {}

    bool isSessionLocked() override;
    qint64 millisecondsSinceInput() override;
    qint16 keyState(int virtualKey) override;

    QString autostartProgram() override;
    bool setAutostart(const QString& programPath) override;
    bool clearAutostart() override;
    void clearMachineAutostart() override;

    QVariant userValue(const QString& key) override;
    void setUserValue(const QString& key, const QVariant& value) override;
    void removeUserValue(const QString& key) override;

    bool startProcess(const QString& programPath) override;
    bool isProcessRunning(const QString& name) override;
    bool endProcess(const QString& name) override;

    WindowId findWindow(const QString& title, const QString& className) override;
    void setWindowParent(WindowId window, WindowId parent) override;
    bool canEmbedWindows() override;
    void setWindowStyle(WindowId window, quint32 style, quint32 exStyle) override;
    void showWindow(WindowId window) override;
    void hideWindow(WindowId window) override;
    void setWindowPos(WindowId window, ZOrder order, const QRect& geometry, quint32 flags) override;
    void moveWindow(WindowId window, const QRect& geometry, bool repaint) override;
    QRect windowRect(WindowId window) override;
    void bringWindowToTop(WindowId window) override;
    void setForegroundWindow(WindowId window) override;
    void redrawWindow(WindowId window, quint32 flags) override;
    void setBottomRoundedRegion(WindowId window, const QSize& size, int corner) override;
    void postCloseMessage(WindowId window) override;

private:
    // This program's window with that id, or a wrapper of another program's window where the
    // windowing system allows one; null otherwise.
    QWindow* windowOf(WindowId window);
    QSettings& userStore(); // with storeMutex held
    void tellOnce(const char* what);

    QString organisation;
    QPointer<KeyStateTracker> keys;
    // Owned; a window we put into one of ours goes when ours goes, hence the guard.
    QHash<WindowId, QPointer<QWindow>> foreignWindows;
    QSet<QByteArray> told;
    QMutex storeMutex;
    std::unique_ptr<QSettings> store;
};
