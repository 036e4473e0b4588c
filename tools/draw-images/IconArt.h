#pragma once

#include <QImage>

// Line glyphs on a 24-unit design grid: navigation entries, card badges, lamps and the
// floating arrows.
namespace IconArt {

enum class Glyph {
    Home,
    Keys,
    Magnet,
    Macro,
    Light,
    About,
    User,
    Return,
    Close,
    Settings,
    Language,
    Minimise,
    Check,
};

// A navigation entry: grey glyph when normal, white when selected (on the purple pill).
// Also the window's and dialogs' small buttons.
QImage navigation(Glyph glyph, bool selected);

// The battery badge of a card, filled to level (0 to 1).
QImage battery(double level);

enum class Link { Usb, Receiver, Bluetooth };
QImage connection(Link link);

// A round status lamp.
QImage lamp(bool ok);

// The round floating arrow of the card row; left points back.
QImage floatArrow(bool left);

} // namespace IconArt
