#pragma once

// A recording platform for the window tests: every call is written to `operations` in order, as
// text like `setWindowPos(0x10, Bottom, 0,0 0x0, 0x81)`, and answers come from the public
// fields, which the test sets. Values, autostart and processes keep state as the system would.

#include "Platform.h"

#include <QHash>
#include <QRect>
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
    bool embeds = true;                      // what canEmbedWindows answers

    // The one fake of a test program, which the windows under test are given.
    static FakePlatform& shared();
    // Forgets the record and every answer and state given so far.
    void reset() { *this = FakePlatform(); }

    // ---- the record
    QStringList operations;
    // The recorded calls with one of these names, in order.
    QStringList operationsNamed(std::initializer_list<const char*> names) const;
    // The names alone, in order.
    QStringList operationNames() const;

    void setConsoleOutputUtf8() override { record("setConsoleOutputUtf8"); }

    bool isSessionLocked() override { return record("isSessionLocked"), locked; }
    qint64 millisecondsSinceInput() override
    {
        return record("millisecondsSinceInput"), idleMilliseconds;
    }
    qint16 keyState(int virtualKey) override
    {
        return record("keyState", {hex(quint64(virtualKey))}), keyStates.value(virtualKey);
    }

    QString autostartProgram() override { return record("autostartProgram"), autostart; }
    bool setAutostart(const QString& programPath) override;
    bool clearAutostart() override;
    void clearMachineAutostart() override { record("clearMachineAutostart"); }

    QVariant userValue(const QString& key) override
    {
        return record("userValue", {text(key)}), values.value(key);
    }
    void setUserValue(const QString& key, const QVariant& value) override;
    void removeUserValue(const QString& key) override;

    bool startProcess(const QString& programPath) override;
    bool isProcessRunning(const QString& name) override;
    bool endProcess(const QString& name) override;

    WindowId findWindow(const QString& title, const QString& className) override
    {
        return record("findWindow", {text(title), text(className)}), windowsByTitle.value(title);
    }
    void setWindowParent(WindowId window, WindowId parent) override
    {
        record("setWindowParent", {hex(window), hex(parent)});
    }
    bool canEmbedWindows() override { return embeds; }
    void setWindowStyle(WindowId window, quint32 style, quint32 exStyle) override
    {
        record("setWindowStyle", {hex(window), hex(style), hex(exStyle)});
    }
    void showWindow(WindowId window) override { record("showWindow", {hex(window)}); }
    void hideWindow(WindowId window) override { record("hideWindow", {hex(window)}); }
    void setWindowPos(WindowId window, ZOrder order, const QRect& geometry, quint32 flags) override;
    void moveWindow(WindowId window, const QRect& geometry, bool repaint) override
    {
        record("moveWindow", {hex(window), rect(geometry), repaint ? "true" : "false"});
    }
    QRect windowRect(WindowId window) override
    {
        return record("windowRect", {hex(window)}), windowRects.value(window);
    }
    void bringWindowToTop(WindowId window) override { record("bringWindowToTop", {hex(window)}); }
    void setForegroundWindow(WindowId window) override
    {
        record("setForegroundWindow", {hex(window)});
    }
    void redrawWindow(WindowId window, quint32 flags) override
    {
        record("redrawWindow", {hex(window), hex(flags)});
    }
    void setBottomRoundedRegion(WindowId window, const QSize& size, int corner) override;
    void postCloseMessage(WindowId window) override { record("postCloseMessage", {hex(window)}); }

private:
    void record(const char* name, const QStringList& arguments = {});
    static QString text(const QString& s) { return u'"' + s + u'"'; }
    static QString hex(quint64 v) { return QStringLiteral("0x") + QString::number(v, 16); }
    static QString rect(const QRect& r)
    {
        return QStringLiteral("%1,%2 %3x%4").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
    }
};
