#pragma once

#include <QtGlobal>
#include <array>

// The on-screen keyboard's one board: every key button by its key code, placed by absolute
// geometry on the keyboard frame. Codes the board doesn't have (the number block, F13 and up)
// find no button.
namespace KeyboardLayout {

struct Key
{
    quint8 code; // the number in the button's name, pushButton_Hid%03d
    short x;
    short y;
    short width;
    const char* legend; // "&&" stands for one "&"; the arrow keys paint an arrow instead
};

inline constexpr int kKeyHeight = 48;
inline constexpr int kMinimumWidth = 960;
inline constexpr int kMinimumHeight = 400;

// The two halves of the knob; their outer sides are round.
inline constexpr quint8 kKnobLeft = 234;
inline constexpr quint8 kKnobRight = 233;
inline constexpr quint8 kFnKey = 250;

// Rows from the top; within a row, left to right.
inline constexpr std::array<Key, 84> kKeys{{
    {.code = 41, .x = 41, .y = 10, .width = 48, .legend = "Esc"},
    {.code = 58, .x = 114, .y = 10, .width = 48, .legend = "F1"},
    {.code = 59, .x = 168, .y = 10, .width = 48, .legend = "F2"},
    {.code = 60, .x = 222, .y = 10, .width = 48, .legend = "F3"},
    {.code = 61, .x = 276, .y = 10, .width = 48, .legend = "F4"},
    {.code = 62, .x = 346, .y = 10, .width = 48, .legend = "F5"},
    {.code = 63, .x = 400, .y = 10, .width = 48, .legend = "F6"},
    {.code = 64, .x = 454, .y = 10, .width = 48, .legend = "F7"},
    {.code = 65, .x = 508, .y = 10, .width = 48, .legend = "F8"},
    {.code = 66, .x = 582, .y = 10, .width = 48, .legend = "F9"},
    {.code = 67, .x = 636, .y = 10, .width = 48, .legend = "F10"},
    {.code = 68, .x = 690, .y = 10, .width = 48, .legend = "F11"},
    {.code = 69, .x = 744, .y = 10, .width = 48, .legend = "F12"},
    {.code = 76, .x = 815, .y = 10, .width = 48, .legend = "DEL"},
    {.code = 234, .x = 872, .y = 10, .width = 20, .legend = "+"},
    {.code = 233, .x = 892, .y = 10, .width = 20, .legend = "-"},

    {.code = 53, .x = 41, .y = 74, .width = 48, .legend = "` ~"},
    {.code = 30, .x = 95, .y = 74, .width = 48, .legend = "1 !"},
    {.code = 31, .x = 149, .y = 74, .width = 48, .legend = "2 @"},
    {.code = 32, .x = 203, .y = 74, .width = 48, .legend = "3 #"},
    {.code = 33, .x = 257, .y = 74, .width = 48, .legend = "4 $"},
    {.code = 34, .x = 311, .y = 74, .width = 48, .legend = "5 %"},
    {.code = 35, .x = 365, .y = 74, .width = 48, .legend = "6 ^"},
    {.code = 36, .x = 419, .y = 74, .width = 48, .legend = "7 &&"},
    {.code = 37, .x = 473, .y = 74, .width = 48, .legend = "8 *"},
    {.code = 38, .x = 528, .y = 74, .width = 48, .legend = "9 ("},
    {.code = 39, .x = 582, .y = 74, .width = 48, .legend = "0 )"},
    {.code = 45, .x = 636, .y = 74, .width = 48, .legend = "- _"},
    {.code = 46, .x = 690, .y = 74, .width = 48, .legend = "= +"},
    {.code = 42, .x = 744, .y = 74, .width = 120, .legend = "Backspace"},
    {.code = 74, .x = 871, .y = 74, .width = 48, .legend = "HOME"},

    {.code = 43, .x = 41, .y = 128, .width = 70, .legend = "Tab"},
    {.code = 20, .x = 119, .y = 128, .width = 48, .legend = "Q"},
    {.code = 26, .x = 173, .y = 128, .width = 48, .legend = "W"},
    {.code = 8, .x = 227, .y = 128, .width = 48, .legend = "E"},
    {.code = 21, .x = 281, .y = 128, .width = 48, .legend = "R"},
    {.code = 23, .x = 335, .y = 128, .width = 48, .legend = "T"},
    {.code = 28, .x = 389, .y = 128, .width = 48, .legend = "Y"},
    {.code = 24, .x = 443, .y = 128, .width = 48, .legend = "U"},
    {.code = 12, .x = 498, .y = 128, .width = 48, .legend = "I"},
    {.code = 18, .x = 552, .y = 128, .width = 48, .legend = "O"},
    {.code = 19, .x = 606, .y = 128, .width = 48, .legend = "P"},
    {.code = 47, .x = 660, .y = 128, .width = 48, .legend = "[ {"},
    {.code = 48, .x = 714, .y = 128, .width = 48, .legend = "] }"},
    {.code = 49, .x = 768, .y = 128, .width = 96, .legend = "\\ |"},
    {.code = 75, .x = 871, .y = 128, .width = 48, .legend = "PGUP"},

    {.code = 57, .x = 41, .y = 182, .width = 90, .legend = "CAPS"},
    {.code = 4, .x = 137, .y = 182, .width = 48, .legend = "A"},
    {.code = 22, .x = 191, .y = 182, .width = 48, .legend = "S"},
    {.code = 7, .x = 245, .y = 182, .width = 48, .legend = "D"},
    {.code = 9, .x = 299, .y = 182, .width = 48, .legend = "F"},
    {.code = 10, .x = 353, .y = 182, .width = 48, .legend = "G"},
    {.code = 11, .x = 407, .y = 182, .width = 48, .legend = "H"},
    {.code = 13, .x = 461, .y = 182, .width = 48, .legend = "J"},
    {.code = 14, .x = 516, .y = 182, .width = 48, .legend = "K"},
    {.code = 15, .x = 570, .y = 182, .width = 48, .legend = "L"},
    {.code = 51, .x = 624, .y = 182, .width = 48, .legend = "; :"},
    {.code = 52, .x = 678, .y = 182, .width = 48, .legend = "' \""},
    {.code = 40, .x = 732, .y = 182, .width = 132, .legend = "Enter"},
    {.code = 78, .x = 871, .y = 182, .width = 48, .legend = "PGDN"},

    {.code = 225, .x = 41, .y = 236, .width = 116, .legend = "SHIFT"},
    {.code = 29, .x = 163, .y = 236, .width = 48, .legend = "Z"},
    {.code = 27, .x = 217, .y = 236, .width = 48, .legend = "X"},
    {.code = 6, .x = 271, .y = 236, .width = 48, .legend = "C"},
    {.code = 25, .x = 325, .y = 236, .width = 48, .legend = "V"},
    {.code = 5, .x = 379, .y = 236, .width = 48, .legend = "B"},
    {.code = 17, .x = 433, .y = 236, .width = 48, .legend = "N"},
    {.code = 16, .x = 487, .y = 236, .width = 48, .legend = "M"},
    {.code = 54, .x = 541, .y = 236, .width = 48, .legend = ", <"},
    {.code = 55, .x = 595, .y = 236, .width = 48, .legend = ". >"},
    {.code = 56, .x = 649, .y = 236, .width = 48, .legend = "/ ?"},
    {.code = 229, .x = 703, .y = 236, .width = 108, .legend = "SHIFT"},
    {.code = 82, .x = 816, .y = 236, .width = 48, .legend = ""},
    {.code = 77, .x = 871, .y = 236, .width = 48, .legend = "END"},

    {.code = 224, .x = 41, .y = 290, .width = 56, .legend = "CTRL"},
    {.code = 227, .x = 103, .y = 290, .width = 56, .legend = "WIN"},
    {.code = 226, .x = 165, .y = 290, .width = 56, .legend = "ALT"},
    {.code = 44, .x = 226, .y = 290, .width = 346, .legend = "SPACE"},
    {.code = 230, .x = 577, .y = 290, .width = 56, .legend = "ALT"},
    {.code = 250, .x = 639, .y = 290, .width = 56, .legend = "FN"},
    {.code = 228, .x = 701, .y = 290, .width = 56, .legend = "CTRL"},
    {.code = 80, .x = 762, .y = 290, .width = 48, .legend = ""},
    {.code = 81, .x = 816, .y = 290, .width = 48, .legend = ""},
    {.code = 79, .x = 871, .y = 290, .width = 48, .legend = ""},
}};

// The arrow keys: their picture, and the arrow they paint in place of a text.
struct ArrowKey
{
    quint8 code;
    const char* picture;
    const char* arrow;
};
inline constexpr std::array<ArrowKey, 4> kArrowKeys{{
    {82, ":/images/k/key-up.png", "↑"},
    {81, ":/images/k/key-dpwn.png", "↓"},
    {80, ":/images/k/key-left.png", "←"},
    {79, ":/images/k/key-right.png", "→"},
}};

// The arrow a key paints, or null.
constexpr const char* arrowOf(quint8 code)
{
    for (const ArrowKey& key : kArrowKeys)
        if (key.code == code) return key.arrow;
    return nullptr;
}

} // namespace KeyboardLayout
