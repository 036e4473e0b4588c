#include "KeyEventCodes.h"

#include "KeyNameTable.h"

#include <QKeyEvent>
#include <iterator>

namespace KeyEventCodes {

namespace {

// One physical key: its Linux evdev code, the set-1 scan code Windows reports for it, and the
// Qt keys it gives (unshifted and shifted, or without and with Num Lock for the number block).
// Windows reports Num Lock as an extended 45 and Pause as a plain 45, the reverse of the
// hardware's own codes; the vocabulary follows Windows, and so does this table.
// Rows whose key has no row in the vocabulary (Print Screen, E0 37) still stand here, so that
// the key adds nothing, as it does for a Windows user.
struct KeyRow
{
    quint8 evdev;
    quint16 scan;
    int key;
    int otherKey;
    bool keypad = false;
};

// clang-format off
constexpr KeyRow kKeys[] = {
    {1, 0x01, Qt::Key_Escape, 0},
    {2, 0x02, Qt::Key_1, Qt::Key_Exclam},
    {3, 0x03, Qt::Key_2, Qt::Key_At},
    {4, 0x04, Qt::Key_3, Qt::Key_NumberSign},
    {5, 0x05, Qt::Key_4, Qt::Key_Dollar},
    {6, 0x06, Qt::Key_5, Qt::Key_Percent},
    {7, 0x07, Qt::Key_6, Qt::Key_AsciiCircum},
    {8, 0x08, Qt::Key_7, Qt::Key_Ampersand},
    {9, 0x09, Qt::Key_8, Qt::Key_Asterisk},
    {10, 0x0A, Qt::Key_9, Qt::Key_ParenLeft},
    {11, 0x0B, Qt::Key_0, Qt::Key_ParenRight},
    {12, 0x0C, Qt::Key_Minus, Qt::Key_Underscore},
    {13, 0x0D, Qt::Key_Equal, Qt::Key_Plus},
    {14, 0x0E, Qt::Key_Backspace, 0},
    {15, 0x0F, Qt::Key_Tab, Qt::Key_Backtab},
    {16, 0x10, Qt::Key_Q, 0},
    {17, 0x11, Qt::Key_W, 0},
    {18, 0x12, Qt::Key_E, 0},
    {19, 0x13, Qt::Key_R, 0},
    {20, 0x14, Qt::Key_T, 0},
    {21, 0x15, Qt::Key_Y, 0},
    {22, 0x16, Qt::Key_U, 0},
    {23, 0x17, Qt::Key_I, 0},
    {24, 0x18, Qt::Key_O, 0},
    {25, 0x19, Qt::Key_P, 0},
    {26, 0x1A, Qt::Key_BracketLeft, Qt::Key_BraceLeft},
    {27, 0x1B, Qt::Key_BracketRight, Qt::Key_BraceRight},
    {28, 0x1C, Qt::Key_Return, 0},
    {29, 0x1D, Qt::Key_Control, 0},
    {30, 0x1E, Qt::Key_A, 0},
    {31, 0x1F, Qt::Key_S, 0},
    {32, 0x20, Qt::Key_D, 0},
    {33, 0x21, Qt::Key_F, 0},
    {34, 0x22, Qt::Key_G, 0},
    {35, 0x23, Qt::Key_H, 0},
    {36, 0x24, Qt::Key_J, 0},
    {37, 0x25, Qt::Key_K, 0},
    {38, 0x26, Qt::Key_L, 0},
    {39, 0x27, Qt::Key_Semicolon, Qt::Key_Colon},
    {40, 0x28, Qt::Key_Apostrophe, Qt::Key_QuoteDbl},
    {41, 0x29, Qt::Key_QuoteLeft, Qt::Key_AsciiTilde},
    {42, 0x2A, Qt::Key_Shift, 0},
    {43, 0x2B, Qt::Key_Backslash, Qt::Key_Bar},
    {44, 0x2C, Qt::Key_Z, 0},
    {45, 0x2D, Qt::Key_X, 0},
    {46, 0x2E, Qt::Key_C, 0},
    {47, 0x2F, Qt::Key_V, 0},
    {48, 0x30, Qt::Key_B, 0},
    {49, 0x31, Qt::Key_N, 0},
    {50, 0x32, Qt::Key_M, 0},
    {51, 0x33, Qt::Key_Comma, Qt::Key_Less},
    {52, 0x34, Qt::Key_Period, Qt::Key_Greater},
    {53, 0x35, Qt::Key_Slash, Qt::Key_Question},
    {54, 0x36, Qt::Key_Shift, 0},          // right; Qt's key can't tell, the left row wins
    {55, 0x37, Qt::Key_Asterisk, 0, true},
    {56, 0x38, Qt::Key_Alt, 0},
    {57, 0x39, Qt::Key_Space, 0},
    {58, 0x3A, Qt::Key_CapsLock, 0},
    {59, 0x3B, Qt::Key_F1, 0},
    {60, 0x3C, Qt::Key_F2, 0},
    {61, 0x3D, Qt::Key_F3, 0},
    {62, 0x3E, Qt::Key_F4, 0},
    {63, 0x3F, Qt::Key_F5, 0},
    {64, 0x40, Qt::Key_F6, 0},
    {65, 0x41, Qt::Key_F7, 0},
    {66, 0x42, Qt::Key_F8, 0},
    {67, 0x43, Qt::Key_F9, 0},
    {68, 0x44, Qt::Key_F10, 0},
    {69, 0xE045, Qt::Key_NumLock, 0},
    {70, 0x46, Qt::Key_ScrollLock, 0},
    {71, 0x47, Qt::Key_7, Qt::Key_Home, true},
    {72, 0x48, Qt::Key_8, Qt::Key_Up, true},
    {73, 0x49, Qt::Key_9, Qt::Key_PageUp, true},
    {74, 0x4A, Qt::Key_Minus, 0, true},
    {75, 0x4B, Qt::Key_4, Qt::Key_Left, true},
    {76, 0x4C, Qt::Key_5, Qt::Key_Clear, true},
    {77, 0x4D, Qt::Key_6, Qt::Key_Right, true},
    {78, 0x4E, Qt::Key_Plus, 0, true},
    {79, 0x4F, Qt::Key_1, Qt::Key_End, true},
    {80, 0x50, Qt::Key_2, Qt::Key_Down, true},
    {81, 0x51, Qt::Key_3, Qt::Key_PageDown, true},
    {82, 0x52, Qt::Key_0, Qt::Key_Insert, true},
    {83, 0x53, Qt::Key_Period, Qt::Key_Delete, true},
    {87, 0x57, Qt::Key_F11, 0},
    {88, 0x58, Qt::Key_F12, 0},
    {96, 0xE01C, Qt::Key_Enter, 0, true},
    {97, 0xE01D, Qt::Key_Control, 0},        // right
    {98, 0xE035, Qt::Key_Slash, 0, true},
    {99, 0xE037, Qt::Key_Print, Qt::Key_SysReq},
    {100, 0xE038, Qt::Key_AltGr, 0},
    {102, 0xE047, Qt::Key_Home, 0},
    {103, 0xE048, Qt::Key_Up, 0},
    {104, 0xE049, Qt::Key_PageUp, 0},
    {105, 0xE04B, Qt::Key_Left, 0},
    {106, 0xE04D, Qt::Key_Right, 0},
    {107, 0xE04F, Qt::Key_End, 0},
    {108, 0xE050, Qt::Key_Down, 0},
    {109, 0xE051, Qt::Key_PageDown, 0},
    {110, 0xE052, Qt::Key_Insert, 0},
    {111, 0xE053, Qt::Key_Delete, 0},
    {119, 0x45, Qt::Key_Pause, 0},
    {125, 0xE05B, Qt::Key_Super_L, Qt::Key_Meta},
    {126, 0xE05C, Qt::Key_Super_R, 0},
    {127, 0xE05D, Qt::Key_Menu, 0},
};
// clang-format on

// X11 and Wayland key codes are evdev codes plus 8.
constexpr quint32 kXkbOffset = 8;
// Qt on Windows gives the scan code with the extended flag in bit 8.
constexpr quint32 kWindowsExtended = 0x100;

// By Qt's key, for events that carry no native code (synthetic ones, the offscreen platform):
// the row whose number-block flag matches the event's first, then any row with the key.
quint16 scanOfQtKey(int key, bool keypad)
{
    for (bool exact : {true, false}) {
        for (const KeyRow& row : kKeys) {
            if (key != row.key && (row.otherKey == 0 || key != row.otherKey)) continue;
            if (!exact || row.keypad == keypad) return row.scan;
        }
    }
    return 0;
}

} // namespace

quint16 scanOfEvdev(quint32 evdev)
{
    for (const KeyRow& row : kKeys)
        if (row.evdev == evdev) return row.scan;
    return 0;
}

quint16 scanCode(const QKeyEvent& event)
{
    const quint32 native = event.nativeScanCode();
    if (native != 0) {
#ifdef Q_OS_WIN
        return quint16(((native & kWindowsExtended) ? 0xE000 : 0) | (native & 0xFF));
#else
        return native > kXkbOffset ? scanOfEvdev(native - kXkbOffset) : 0;
#endif
    }
    return scanOfQtKey(event.key(), event.modifiers().testFlag(Qt::KeypadModifier));
}

RecordedKey recordedKey(const QKeyEvent& event)
{
    // Scan code 0 stands on rows of keys that have none ("_¥", "VOL+"): it names no key.
    const quint16 scan = scanCode(event);
    const quint16 code = scan ? CodeByScan(scan) : 0;
    if (code == 0) return {};
    return {.code = code, .name = KeyNameByScan(scan)};
}

} // namespace KeyEventCodes
