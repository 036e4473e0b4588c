#include "Win32Calls.h"

#ifndef _WIN32_WINNT
#define _WIN32_WINNT 0x0A00
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <tlhelp32.h>
#include <wtsapi32.h>

namespace win32 {

namespace {

// WTSSessionInfoEx and its answer, as the Windows SDK declares them (not every SDK's
// wtsapi32.h has them).
constexpr int sessionInfoExClass = 25;
constexpr LONG sessionStateLock = 0;

struct SessionInfoExLevel1
{
    ULONG sessionId;
    WTS_CONNECTSTATE_CLASS sessionState;
    LONG sessionFlags;
    WCHAR winStationName[33];
    WCHAR userName[21];
    WCHAR domainName[18];
    LARGE_INTEGER logonTime;
    LARGE_INTEGER connectTime;
    LARGE_INTEGER disconnectTime;
    LARGE_INTEGER lastInputTime;
    LARGE_INTEGER currentTime;
    DWORD incomingBytes;
    DWORD outgoingBytes;
    DWORD incomingFrames;
    DWORD outgoingFrames;
    DWORD incomingCompressedBytes;
    DWORD outgoingCompressedBytes;
};

struct SessionInfoEx
{
    DWORD level;
    union {
        SessionInfoExLevel1 level1;
    } data;
};

HWND hwnd(Handle window)
{
    return reinterpret_cast<HWND>(window);
}

// Walks the process list and calls visit with each entry whose executable name matches,
// case-insensitively, until visit returns true.
template <typename Visit> bool forEachProcessNamed(const std::wstring& exeName, Visit visit)
{
    HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    if (snapshot == INVALID_HANDLE_VALUE) return false;
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof(entry);
    bool done = false;
    for (BOOL more = Process32FirstW(snapshot, &entry); more && !done;
         more = Process32NextW(snapshot, &entry)) {
        if (_wcsicmp(entry.szExeFile, exeName.c_str()) == 0) done = visit(entry);
    }
    CloseHandle(snapshot);
    return done;
}

} // namespace

void setConsoleOutputUtf8()
{
    SetConsoleOutputCP(CP_UTF8); // 65001
}

bool isSessionLocked()
{
    LPWSTR buffer = nullptr;
    DWORD bytes = 0;
    if (!WTSQuerySessionInformationW(WTS_CURRENT_SERVER_HANDLE, WTS_CURRENT_SESSION,
                                     static_cast<WTS_INFO_CLASS>(sessionInfoExClass), &buffer,
                                     &bytes) ||
        !buffer)
        return false;
    bool locked = false;
    if (bytes >= sizeof(SessionInfoEx)) {
        const auto* info = reinterpret_cast<const SessionInfoEx*>(buffer);
        locked = info->level == 1 && info->data.level1.sessionFlags == sessionStateLock;
    }
    WTSFreeMemory(buffer);
    return locked;
}

std::int64_t millisecondsSinceInput()
{
    LASTINPUTINFO last{};
    last.cbSize = sizeof(last);
    if (!GetLastInputInfo(&last)) return -1;
    // Unsigned 32-bit difference: right across the tick counter's 49-day wrap.
    return static_cast<DWORD>(GetTickCount() - last.dwTime);
}

short keyState(int virtualKey)
{
    return GetKeyState(virtualKey);
}

bool startHidden(const std::string& commandLine)
{
    return WinExec(commandLine.c_str(), SW_HIDE) > 31;
}

bool isProcessRunning(const std::wstring& exeName)
{
    return forEachProcessNamed(exeName, [](const PROCESSENTRY32W&) { return true; });
}

bool endProcess(const std::wstring& exeName)
{
    bool ended = false;
    forEachProcessNamed(exeName, [&ended](const PROCESSENTRY32W& entry) {
        HANDLE process = OpenProcess(PROCESS_TERMINATE, FALSE, entry.th32ProcessID);
        if (process) {
            ended = TerminateProcess(process, 0) != 0;
            CloseHandle(process);
        }
        return true; // the first match only, ended or not
    });
    return ended;
}

Handle findWindow(const std::wstring& title, const std::wstring& className)
{
    HWND found = FindWindowW(className.empty() ? nullptr : className.c_str(),
                             title.empty() ? nullptr : title.c_str());
    return reinterpret_cast<Handle>(found);
}

void setParent(Handle window, Handle parent)
{
    SetParent(hwnd(window), hwnd(parent));
}

void setStyle(Handle window, std::uint32_t style, std::uint32_t exStyle)
{
    SetWindowLongPtrW(hwnd(window), GWL_STYLE, static_cast<LONG_PTR>(style));
    SetWindowLongPtrW(hwnd(window), GWL_EXSTYLE, static_cast<LONG_PTR>(exStyle));
}

void show(Handle window, bool visible)
{
    ShowWindow(hwnd(window), visible ? SW_SHOW : SW_HIDE);
}

void setWindowPos(Handle window, InsertAfter order, const Rect& geometry, std::uint32_t flags)
{
    HWND after = reinterpret_cast<HWND>(static_cast<std::intptr_t>(order));
    SetWindowPos(hwnd(window), after, geometry.left, geometry.top, geometry.right - geometry.left,
                 geometry.bottom - geometry.top, flags);
}

void moveWindow(Handle window, const Rect& geometry, bool repaint)
{
    MoveWindow(hwnd(window), geometry.left, geometry.top, geometry.right - geometry.left,
               geometry.bottom - geometry.top, repaint ? TRUE : FALSE);
}

bool windowRect(Handle window, Rect& rect)
{
    RECT r{};
    if (!GetWindowRect(hwnd(window), &r)) return false;
    rect = {r.left, r.top, r.right, r.bottom};
    return true;
}

void bringToTop(Handle window)
{
    BringWindowToTop(hwnd(window));
}

void setForeground(Handle window)
{
    SetForegroundWindow(hwnd(window));
}

void redraw(Handle window, std::uint32_t flags)
{
    RedrawWindow(hwnd(window), nullptr, nullptr, flags);
}

void setBottomRoundedRegion(Handle window, int width, int height, int corner)
{
    HRGN rounded = CreateRoundRectRgn(0, 0, width, height, corner, corner);
    HRGN whole = CreateRectRgn(0, 0, width, height);
    HRGN top = CreateRectRgn(0, 0, width, corner);
    HRGN region = CreateRectRgn(0, 0, 0, 0);
    CombineRgn(region, rounded, whole, RGN_AND);
    CombineRgn(region, region, top, RGN_OR);
    // The window owns the region from here on; only the sources are ours to delete.
    SetWindowRgn(hwnd(window), region, TRUE);
    DeleteObject(rounded);
    DeleteObject(whole);
    DeleteObject(top);
}

void postClose(Handle window)
{
    PostMessageW(hwnd(window), WM_CLOSE, 0, 0);
}

} // namespace win32
