#pragma once

// The Win32 calls of the hub, behind plain C++ types so that this layer compiles without Qt
// (tools/check-windows-syntax.sh checks it with a Windows cross compiler on any machine).
// WindowsPlatform turns Qt types into these.

#include <cstdint>
#include <string>

namespace win32 {

using Handle = std::uintptr_t;

// The values of HWND_TOP, HWND_BOTTOM, HWND_TOPMOST and HWND_NOTOPMOST.
enum class InsertAfter : std::intptr_t { Top = 0, Bottom = 1, TopMost = -1, NoTopMost = -2 };

struct Rect
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

void setConsoleOutputUtf8();

bool isSessionLocked();
std::int64_t millisecondsSinceInput();
short keyState(int virtualKey);

// WinExec with SW_HIDE; the command line is in the ANSI code page, as WinExec wants.
bool startHidden(const std::string& commandLine);
bool isProcessRunning(const std::wstring& exeName);
bool endProcess(const std::wstring& exeName);

Handle findWindow(const std::wstring& title, const std::wstring& className);
void setParent(Handle window, Handle parent);
void setStyle(Handle window, std::uint32_t style, std::uint32_t exStyle);
void show(Handle window, bool visible);
void setWindowPos(Handle window, InsertAfter order, const Rect& geometry, std::uint32_t flags);
void moveWindow(Handle window, const Rect& geometry, bool repaint);
bool windowRect(Handle window, Rect& rect);
void bringToTop(Handle window);
void setForeground(Handle window);
void redraw(Handle window, std::uint32_t flags);
void setBottomRoundedRegion(Handle window, int width, int height, int corner);
void postClose(Handle window);

} // namespace win32
