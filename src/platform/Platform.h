#pragma once

#include <QRect>
#include <QSize>
#include <QString>
#include <QVariant>
#include <QtGlobal>
#include <memory>

class QObject;

// What the hub asks of the operating system, behind one interface: the Windows implementation
// makes the Win32 calls, the Linux one does the same work with Qt (and X11 through Qt's native
// interfaces where that reaches). Tests replace it with a recording fake.
//
// Windows are plain native ids (HWND on Windows, the X11 window id on Linux), processes are
// named by their executable's file name. Nothing here knows a widget.
class Platform
{
public:
    using WindowId = quintptr;

    // Where SetWindowPos puts a window in the z-order.
    enum class ZOrder {
        Top,       // HWND_TOP
        Bottom,    // HWND_BOTTOM
        TopMost,   // HWND_TOPMOST
        NoTopMost, // HWND_NOTOPMOST
    };

    // SetWindowPos flags, with the Win32 values, so that the hub's flag words (0x81, 0x82)
    // read the same on every system.
    enum PositionFlag : quint32 {
        NoSize = 0x0001,
        NoMove = 0x0002,
        NoZOrder = 0x0004,
        NoActivate = 0x0010,
        ShowWindowFlag = 0x0040,
        HideWindowFlag = 0x0080,
    };

    // RedrawWindow flags used by the hub, with the Win32 values.
    enum RedrawFlag : quint32 {
        RedrawInvalidate = 0x0001,
        RedrawAllChildren = 0x0080,
        RedrawUpdateNow = 0x0100,
        RedrawEraseNow = 0x0200,
    };

    // Virtual-key codes the hub asks about (Win32 values).
    enum VirtualKey : int {
        KeyControl = 0x11,
        KeyEscape = 0x1B,
        KeyD = 0x44,
    };

    virtual ~Platform() = default;

    // ---- console

    // Console output in UTF-8, so that the debug stream shows the Chinese texts unharmed.
    virtual void setConsoleOutputUtf8() = 0;

    // ---- lock and idle watch, keys

    // True while the user's session is locked; false when unlocked or when the system can't tell.
    virtual bool isSessionLocked() = 0;
    // Milliseconds since the user's last input anywhere on the machine, or -1 when unknown.
    virtual qint64 millisecondsSinceInput() = 0;
    // The GetKeyState word of a virtual key: negative while the key is down, bit 0 toggled by
    // each press.
    virtual qint16 keyState(int virtualKey) = 0;

    // ---- autostart at log-in ("OrbeHub")

    // The program that starts at log-in, empty when none is set.
    virtual QString autostartProgram() = 0;
    // Start this program at log-in; replaces an earlier one. False if it couldn't be written.
    virtual bool setAutostart(const QString& programPath) = 0;
    virtual bool clearAutostart() = 0;
    // Remove the machine-wide entry as well; a system that refuses keeps it, silently.
    virtual void clearMachineAutostart() = 0;

    // ---- per-user values under the product's key

    // An invalid QVariant when the value is absent.
    virtual QVariant userValue(const QString& key) = 0;
    virtual void setUserValue(const QString& key, const QVariant& value) = 0;
    virtual void removeUserValue(const QString& key) = 0;

    // ---- processes, by executable file name (compared case-insensitively)

    // Starts the program hidden, not waiting for it. False when it couldn't start.
    virtual bool startProcess(const QString& programPath) = 0;
    virtual bool isProcessRunning(const QString& name) = 0;
    // Ends the first process with this name. False when none was found or it couldn't be ended.
    virtual bool endProcess(const QString& name) = 0;

    // ---- windows of this and other programs

    // The top-level window with this title (and class, when not empty); 0 when there is none.
    virtual WindowId findWindow(const QString& title, const QString& className) = 0;
    virtual void setWindowParent(WindowId window, WindowId parent) = 0;
    // Whether setWindowParent can put another program's window into one of ours here.
    virtual bool canEmbedWindows() = 0;
    // Replaces the style and extended style words (GWL_STYLE, GWL_EXSTYLE).
    virtual void setWindowStyle(WindowId window, quint32 style, quint32 exStyle) = 0;
    virtual void showWindow(WindowId window) = 0;
    virtual void hideWindow(WindowId window) = 0;
    // SetWindowPos: geometry in native pixels, ignored as NoMove/NoSize say.
    virtual void setWindowPos(WindowId window, ZOrder order, const QRect& geometry,
                              quint32 flags) = 0;
    virtual void moveWindow(WindowId window, const QRect& geometry, bool repaint) = 0;
    // Outer frame in native screen pixels; an invalid rectangle when the window is unknown.
    virtual QRect windowRect(WindowId window) = 0;
    virtual void bringWindowToTop(WindowId window) = 0;
    virtual void setForegroundWindow(WindowId window) = 0;
    virtual void redrawWindow(WindowId window, quint32 flags) = 0;
    // Clips the window to a size-sized rectangle whose bottom corners are rounded with the
    // given ellipse size; the top corners stay square so that it joins the hub's frame.
    virtual void setBottomRoundedRegion(WindowId window, const QSize& size, int corner) = 0;
    // Asks the window to close (WM_CLOSE) and returns at once.
    virtual void postCloseMessage(WindowId window) = 0;

    // Puts the window above all others after fromMs and lets it go after untilMs: the hub comes
    // forward without staying in front of everything. The timers die with context.
    void keepOnTopForAWhile(QObject* context, WindowId window, int fromMs, int untilMs);

    // The implementation for the system the program was built for. main() makes one and
    // passes it to the window; tests pass a recording fake.
    static std::unique_ptr<Platform> create();
};
