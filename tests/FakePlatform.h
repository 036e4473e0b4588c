#pragma once

// A recording platform for the window tests: every call is written to `operations` in order, as
// text like `setWindowPos(0x10, Bottom, 0,0 0x0, 0x81)`, and answers come from the public
// fields, which the test sets. Values, autostart and processes keep state as the system would.

#include "Platform.h"

#include <QHash>
#include <QStringList>
#include <QVariantMap>
#include <initializer_list>

class FakePlatform : public Platform
{
public:
    // ---- answers and state
    bool locked = false;
    qint64 idleMilliseconds = 0;
    QHash<int, qint16> keyStates;            // by virtual key; absent reads 0
    QString autostart;                       // the program set to start at log-in
    QVariantMap values;                      // per-user values
    QStringList runningProcesses;            // names; startProcess adds, endProcess removes
    bool processesStart = true;              // what startProcess answers
    QHash<QString, WindowId> windowsByTitle; // what findWindow answers
    QHash<WindowId, QRect> windowRects;      // what windowRect answers

    // Puts a new fake in the platform's place for the rest of the program.
    static FakePlatform* install();
    // Forgets the record and every answer and state given so far.
    void reset() { *this = FakePlatform(); }

    // ---- the record
    QStringList operations;
    // The recorded calls with one of these names, in order.
    QStringList operationsNamed(std::initializer_list<const char*> names) const;
    // The names alone, in order.
    QStringList operationNames() const;

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
    void record(const char* name, const QStringList& arguments = {});
};
