#pragma once

#include <QtGlobal>
#include <array>

// The keys the pickers offer, usages 4 to 101 and the eight modifiers, in two blocks: the basic
// characters as they lie on a keyboard, and the extended keys (F keys, navigation, number
// block, modifiers). Within a row the keys stand left to right in table order.
namespace KeyPickerLayout {

enum class Block : quint8 { Basic, Extended };

struct PickerKey
{
    Block block;
    quint8 row;
    quint8 code;
    const char* legend; // short enough for a 42-pixel key
};

inline constexpr std::array<PickerKey, 106> kKeys{{
    {.block = Block::Basic, .row = 0, .code = 41, .legend = "Esc"},
    {.block = Block::Basic, .row = 0, .code = 53, .legend = "`"},
    {.block = Block::Basic, .row = 0, .code = 30, .legend = "1"},
    {.block = Block::Basic, .row = 0, .code = 31, .legend = "2"},
    {.block = Block::Basic, .row = 0, .code = 32, .legend = "3"},
    {.block = Block::Basic, .row = 0, .code = 33, .legend = "4"},
    {.block = Block::Basic, .row = 0, .code = 34, .legend = "5"},
    {.block = Block::Basic, .row = 0, .code = 35, .legend = "6"},
    {.block = Block::Basic, .row = 0, .code = 36, .legend = "7"},
    {.block = Block::Basic, .row = 0, .code = 37, .legend = "8"},
    {.block = Block::Basic, .row = 0, .code = 38, .legend = "9"},
    {.block = Block::Basic, .row = 0, .code = 39, .legend = "0"},
    {.block = Block::Basic, .row = 0, .code = 45, .legend = "-"},
    {.block = Block::Basic, .row = 0, .code = 46, .legend = "="},
    {.block = Block::Basic, .row = 0, .code = 42, .legend = "Bksp"},

    {.block = Block::Basic, .row = 1, .code = 43, .legend = "Tab"},
    {.block = Block::Basic, .row = 1, .code = 20, .legend = "Q"},
    {.block = Block::Basic, .row = 1, .code = 26, .legend = "W"},
    {.block = Block::Basic, .row = 1, .code = 8, .legend = "E"},
    {.block = Block::Basic, .row = 1, .code = 21, .legend = "R"},
    {.block = Block::Basic, .row = 1, .code = 23, .legend = "T"},
    {.block = Block::Basic, .row = 1, .code = 28, .legend = "Y"},
    {.block = Block::Basic, .row = 1, .code = 24, .legend = "U"},
    {.block = Block::Basic, .row = 1, .code = 12, .legend = "I"},
    {.block = Block::Basic, .row = 1, .code = 18, .legend = "O"},
    {.block = Block::Basic, .row = 1, .code = 19, .legend = "P"},
    {.block = Block::Basic, .row = 1, .code = 47, .legend = "["},
    {.block = Block::Basic, .row = 1, .code = 48, .legend = "]"},
    {.block = Block::Basic, .row = 1, .code = 49, .legend = "\\"},

    {.block = Block::Basic, .row = 2, .code = 4, .legend = "A"},
    {.block = Block::Basic, .row = 2, .code = 22, .legend = "S"},
    {.block = Block::Basic, .row = 2, .code = 7, .legend = "D"},
    {.block = Block::Basic, .row = 2, .code = 9, .legend = "F"},
    {.block = Block::Basic, .row = 2, .code = 10, .legend = "G"},
    {.block = Block::Basic, .row = 2, .code = 11, .legend = "H"},
    {.block = Block::Basic, .row = 2, .code = 13, .legend = "J"},
    {.block = Block::Basic, .row = 2, .code = 14, .legend = "K"},
    {.block = Block::Basic, .row = 2, .code = 15, .legend = "L"},
    {.block = Block::Basic, .row = 2, .code = 51, .legend = ";"},
    {.block = Block::Basic, .row = 2, .code = 52, .legend = "'"},
    {.block = Block::Basic, .row = 2, .code = 50, .legend = "#"},
    {.block = Block::Basic, .row = 2, .code = 40, .legend = "Enter"},

    {.block = Block::Basic, .row = 3, .code = 29, .legend = "Z"},
    {.block = Block::Basic, .row = 3, .code = 27, .legend = "X"},
    {.block = Block::Basic, .row = 3, .code = 6, .legend = "C"},
    {.block = Block::Basic, .row = 3, .code = 25, .legend = "V"},
    {.block = Block::Basic, .row = 3, .code = 5, .legend = "B"},
    {.block = Block::Basic, .row = 3, .code = 17, .legend = "N"},
    {.block = Block::Basic, .row = 3, .code = 16, .legend = "M"},
    {.block = Block::Basic, .row = 3, .code = 54, .legend = ","},
    {.block = Block::Basic, .row = 3, .code = 55, .legend = "."},
    {.block = Block::Basic, .row = 3, .code = 56, .legend = "/"},
    {.block = Block::Basic, .row = 3, .code = 44, .legend = "Space"},

    {.block = Block::Extended, .row = 0, .code = 58, .legend = "F1"},
    {.block = Block::Extended, .row = 0, .code = 59, .legend = "F2"},
    {.block = Block::Extended, .row = 0, .code = 60, .legend = "F3"},
    {.block = Block::Extended, .row = 0, .code = 61, .legend = "F4"},
    {.block = Block::Extended, .row = 0, .code = 62, .legend = "F5"},
    {.block = Block::Extended, .row = 0, .code = 63, .legend = "F6"},
    {.block = Block::Extended, .row = 0, .code = 64, .legend = "F7"},
    {.block = Block::Extended, .row = 0, .code = 65, .legend = "F8"},
    {.block = Block::Extended, .row = 0, .code = 66, .legend = "F9"},
    {.block = Block::Extended, .row = 0, .code = 67, .legend = "F10"},
    {.block = Block::Extended, .row = 0, .code = 68, .legend = "F11"},
    {.block = Block::Extended, .row = 0, .code = 69, .legend = "F12"},
    {.block = Block::Extended, .row = 0, .code = 70, .legend = "PrtSc"},
    {.block = Block::Extended, .row = 0, .code = 71, .legend = "ScrLk"},
    {.block = Block::Extended, .row = 0, .code = 72, .legend = "Pause"},

    {.block = Block::Extended, .row = 1, .code = 73, .legend = "Ins"},
    {.block = Block::Extended, .row = 1, .code = 74, .legend = "Home"},
    {.block = Block::Extended, .row = 1, .code = 75, .legend = "PgUp"},
    {.block = Block::Extended, .row = 1, .code = 76, .legend = "Del"},
    {.block = Block::Extended, .row = 1, .code = 77, .legend = "End"},
    {.block = Block::Extended, .row = 1, .code = 78, .legend = "PgDn"},
    {.block = Block::Extended, .row = 1, .code = 82, .legend = "↑"},
    {.block = Block::Extended, .row = 1, .code = 80, .legend = "←"},
    {.block = Block::Extended, .row = 1, .code = 81, .legend = "↓"},
    {.block = Block::Extended, .row = 1, .code = 79, .legend = "→"},
    {.block = Block::Extended, .row = 1, .code = 57, .legend = "Caps"},
    {.block = Block::Extended, .row = 1, .code = 101, .legend = "Menu"},
    {.block = Block::Extended, .row = 1, .code = 100, .legend = "\\ |"},

    {.block = Block::Extended, .row = 2, .code = 83, .legend = "Num"},
    {.block = Block::Extended, .row = 2, .code = 84, .legend = "N /"},
    {.block = Block::Extended, .row = 2, .code = 85, .legend = "N *"},
    {.block = Block::Extended, .row = 2, .code = 86, .legend = "N -"},
    {.block = Block::Extended, .row = 2, .code = 87, .legend = "N +"},
    {.block = Block::Extended, .row = 2, .code = 88, .legend = "N Ent"},
    {.block = Block::Extended, .row = 2, .code = 99, .legend = "N ."},
    {.block = Block::Extended, .row = 2, .code = 98, .legend = "N 0"},

    {.block = Block::Extended, .row = 3, .code = 89, .legend = "N 1"},
    {.block = Block::Extended, .row = 3, .code = 90, .legend = "N 2"},
    {.block = Block::Extended, .row = 3, .code = 91, .legend = "N 3"},
    {.block = Block::Extended, .row = 3, .code = 92, .legend = "N 4"},
    {.block = Block::Extended, .row = 3, .code = 93, .legend = "N 5"},
    {.block = Block::Extended, .row = 3, .code = 94, .legend = "N 6"},
    {.block = Block::Extended, .row = 3, .code = 95, .legend = "N 7"},
    {.block = Block::Extended, .row = 3, .code = 96, .legend = "N 8"},
    {.block = Block::Extended, .row = 3, .code = 97, .legend = "N 9"},

    {.block = Block::Extended, .row = 4, .code = 224, .legend = "LCtrl"},
    {.block = Block::Extended, .row = 4, .code = 225, .legend = "LShift"},
    {.block = Block::Extended, .row = 4, .code = 226, .legend = "LAlt"},
    {.block = Block::Extended, .row = 4, .code = 227, .legend = "LWin"},
    {.block = Block::Extended, .row = 4, .code = 228, .legend = "RCtrl"},
    {.block = Block::Extended, .row = 4, .code = 229, .legend = "RShift"},
    {.block = Block::Extended, .row = 4, .code = 230, .legend = "RAlt"},
    {.block = Block::Extended, .row = 4, .code = 231, .legend = "RWin"},
}};

} // namespace KeyPickerLayout
