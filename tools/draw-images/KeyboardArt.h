#pragma once

#include <QImage>
#include <QPainter>
#include <QRectF>

// Keyboards seen from above: white case, white alpha keys, light grey modifiers, purple
// accents, on a transparent ground with a soft shadow.
namespace KeyboardArt {

enum class Layout {
    Compact65, // 68 keys
    Compact75, // 75% with a knob
    Tenkeyless,
    Compact98,
};

struct Style
{
    bool accents = true; // purple Esc and Enter
    bool underglow = false;
};

// The keyboard alone, u pixels per key unit, with room for its shadow.
QImage keyboard(Layout layout, double unit, Style style = {});

// Draws the keyboard into target (keeping its proportions, centred) on an existing painter.
void drawInto(QPainter& painter, const QRectF& target, Layout layout, Style style = {});

} // namespace KeyboardArt
