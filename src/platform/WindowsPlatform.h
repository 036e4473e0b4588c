#pragma once

#include "Platform.h"

#include <QMutex>
#include <QSettings>
#include <QString>
#include <memory>

// Windows: the Win32 calls (in Win32Calls.cpp) and the registry through QSettings.
class WindowsPlatform : public Platform
{
public:
    // Per-user values live under "HKEY_CURRENT_USER\Software\<organisation>".
    explicit WindowsPlatform(const QString& organisation = QStringLiteral("Orbe"));

    void setConsoleOutputUtf8() override;

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
    bool canEmbedWindows() override { return true; }
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
    QSettings& userStore(); // with storeMutex held

    QString userKey;
    QMutex storeMutex;
    std::unique_ptr<QSettings> store;
};
