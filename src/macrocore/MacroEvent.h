#pragma once

#include <QString>

// One step of a macro. The editor keeps them in pairs: an action, then a delay.
struct MacroEvent
{
    enum Type : quint8 {
        Key = 0,
        MouseButton = 1,
        MousePosition = 2, // value = 256 * X + Y
        Delay = 3,         // value in milliseconds
    };

    // Mouse button codes as an action's value.
    static constexpr quint16 kMouseLeft = 0xF0;
    static constexpr quint16 kMouseRight = 0xF1;
    static constexpr quint16 kMouseMiddle = 0xF2;

    quint8 type = Key;
    bool down = false; // press or release, for keys and mouse buttons
    quint16 value = 0;
    QString text; // the editor's label
};
