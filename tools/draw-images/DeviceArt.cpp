#include "DeviceArt.h"

#include "Art.h"
#include "BrandArt.h"
#include "KeyboardArt.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>
#include <array>

namespace DeviceArt {

namespace {

void drawBody(QPainter& p, const QPainterPath& body, double lift)
{
    Art::shadow(p, body, QPointF(0, lift), int(lift * 1.6), QColor(36, 16, 72, 70));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xE2, 0xE2, 0xE9));
    p.drawPath(body.translated(0, lift * 0.45));
    const QRectF box = body.boundingRect();
    QLinearGradient face(box.topLeft(), box.bottomLeft());
    face.setColorAt(0, QColor(0xFF, 0xFF, 0xFF));
    face.setColorAt(1, QColor(0xF7, 0xF7, 0xFA));
    p.setPen(QPen(Art::colour(Art::Colour::border), 2));
    p.setBrush(face);
    p.drawPath(body);
}

// An arcade button seen from above.
void drawButton(QPainter& p, QPointF c, double r, bool accent)
{
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xDA, 0xDA, 0xE2));
    p.drawEllipse(c, r, r);
    QRadialGradient face(c - QPointF(r, r) * 0.35, r * 1.1);
    if (accent) {
        face.setColorAt(0, Art::colour(Art::Colour::accentLight));
        face.setColorAt(1, Art::colour(Art::Colour::accent));
    } else {
        face.setColorAt(0, QColor(0xFF, 0xFF, 0xFF));
        face.setColorAt(1, QColor(0xEE, 0xEE, 0xF3));
    }
    p.setPen(QPen(accent ? QColor(0x52, 0x20, 0x9C) : QColor(0xD6, 0xD6, 0xDE), 2));
    p.setBrush(face);
    p.drawEllipse(c, r * 0.8, r * 0.8);
}

struct Button
{
    double x, y;
    bool accent;
};

// The hit box's buttons, in pixels of the 900 by 460 picture: the three direction buttons
// of the left hand, the up button under the thumb, and eight action buttons in two arcs.
constexpr std::array<Button, 12> kHitBoxButtons{{
    {.x = 170, .y = 226, .accent = false},
    {.x = 254, .y = 206, .accent = false},
    {.x = 336, .y = 224, .accent = false},
    {.x = 452, .y = 350, .accent = true},
    {.x = 532, .y = 196, .accent = true},
    {.x = 614, .y = 178, .accent = true},
    {.x = 698, .y = 180, .accent = true},
    {.x = 780, .y = 196, .accent = true},
    {.x = 520, .y = 280, .accent = false},
    {.x = 602, .y = 262, .accent = false},
    {.x = 686, .y = 264, .accent = false},
    {.x = 768, .y = 280, .accent = false},
}};

} // namespace

QImage mouse(bool branded)
{
    constexpr int w = 340;
    constexpr int h = 540;
    QImage image = Art::canvas(w, h);
    QPainter p(&image);
    Art::prepare(p);
    QPainterPath body;
    // Narrow at the buttons, a slight waist for the grip, full at the palm.
    body.moveTo(170, 28);
    body.cubicTo(250, 28, 286, 96, 290, 200);
    body.cubicTo(293, 262, 278, 300, 284, 352);
    body.cubicTo(292, 452, 246, 500, 170, 500);
    body.cubicTo(94, 500, 48, 452, 56, 352);
    body.cubicTo(62, 300, 47, 262, 50, 200);
    body.cubicTo(54, 96, 90, 28, 170, 28);
    body.closeSubpath();
    drawBody(p, body, 12);

    // The buttons' seams, the wheel and two side buttons.
    p.setPen(QPen(QColor(0xDD, 0xDD, 0xE4), 3));
    p.setBrush(Qt::NoBrush);
    p.drawLine(QPointF(170, 34), QPointF(170, 188));
    QPainterPath seam;
    seam.moveTo(52, 206);
    seam.quadTo(170, 236, 288, 206);
    p.drawPath(seam);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xD6, 0xD6, 0xDE));
    p.drawRoundedRect(QRectF(152, 78, 36, 82), 18, 18);
    p.setBrush(branded ? Art::colour(Art::Colour::accent) : QColor(0xBE, 0xBE, 0xC8));
    p.drawRoundedRect(QRectF(158, 86, 24, 66), 12, 12);
    p.setPen(QPen(QColor(255, 255, 255, 90), 2));
    for (int y = 96; y <= 142; y += 9)
        p.drawLine(QPointF(162, y), QPointF(178, y));
    p.setPen(QPen(QColor(0xD6, 0xD6, 0xDE), 2));
    p.setBrush(QColor(0xEC, 0xEC, 0xF1));
    p.drawRoundedRect(QRectF(44, 232, 14, 46), 6, 6);
    p.drawRoundedRect(QRectF(45, 286, 14, 46), 6, 6);
    if (branded)
        BrandArt::drawOrbit(p, QPointF(170, 410), 22, Art::colour(Art::Colour::accent),
                            Art::colour(Art::Colour::accentLight));
    return image;
}

QImage hitBox(bool withScreen)
{
    constexpr int w = 900;
    constexpr int h = 460;
    QImage image = Art::canvas(w, h);
    QPainter p(&image);
    Art::prepare(p);
    QPainterPath body;
    body.addRoundedRect(QRectF(40, 30, 820, 380), 44, 44);
    drawBody(p, body, 14);

    // The function strip and the brand at the top.
    p.setPen(QPen(QColor(0xD6, 0xD6, 0xDE), 2));
    p.setBrush(QColor(0xEE, 0xEE, 0xF2));
    for (int i = 0; i < 4; ++i)
        p.drawEllipse(QPointF(110 + 40 * i, 88), 11, 11);
    if (withScreen) {
        const QRectF screen(340, 62, 220, 96);
        p.setPen(QPen(QColor(0xD0, 0xD0, 0xD8), 3));
        p.setBrush(QColor(0x24, 0x22, 0x2C));
        p.drawRoundedRect(screen, 14, 14);
        QLinearGradient glow(screen.topLeft(), screen.bottomRight());
        glow.setColorAt(0, QColor(0x8A, 0x5A, 0xD6, 200));
        glow.setColorAt(1, QColor(0x3E, 0x1A, 0x7E, 200));
        p.setPen(Qt::NoPen);
        p.setBrush(glow);
        p.drawRoundedRect(screen.adjusted(10, 10, -10, -10), 8, 8);
        BrandArt::drawOrbit(p, screen.center(), 24, Art::colour(Art::Colour::white),
                            Art::colour(Art::Colour::white));
    } else {
        BrandArt::drawOrbit(p, QPointF(450, 100), 24, Art::colour(Art::Colour::accent),
                            Art::colour(Art::Colour::accentLight));
    }
    for (const Button& b : kHitBoxButtons)
        drawButton(p, QPointF(b.x, b.y), 36, b.accent);
    return image;
}

QImage genericDevice()
{
    constexpr int w = 560;
    constexpr int h = 300;
    QImage image = Art::canvas(w, h);
    QPainter p(&image);
    Art::prepare(p);
    // A receiver: the plug at the left, a rounded body with a purple light band.
    p.setPen(QPen(QColor(0xC8, 0xC8, 0xD2), 2));
    QLinearGradient metal(0, 110, 0, 190);
    metal.setColorAt(0, QColor(0xF2, 0xF2, 0xF6));
    metal.setColorAt(1, QColor(0xCF, 0xCF, 0xD8));
    p.setBrush(metal);
    p.drawRoundedRect(QRectF(46, 112, 150, 76), 6, 6);
    p.setBrush(QColor(0xB4, 0xB4, 0xC0));
    p.setPen(Qt::NoPen);
    p.drawRect(QRectF(76, 134, 22, 12));
    p.drawRect(QRectF(130, 134, 22, 12));
    QPainterPath body;
    body.addRoundedRect(QRectF(180, 80, 320, 140), 40, 40);
    drawBody(p, body, 10);
    // Its status light.
    p.setPen(Qt::NoPen);
    p.setBrush(Art::colour(Art::Colour::accentPale));
    p.drawRoundedRect(QRectF(296, 140, 88, 20), 10, 10);
    p.setBrush(Art::colour(Art::Colour::accent));
    p.drawRoundedRect(QRectF(306, 146, 68, 8), 4, 4);
    return image;
}

QImage showcase()
{
    return KeyboardArt::keyboard(KeyboardArt::Layout::Compact75, 44,
                                 {.accents = true, .underglow = true});
}

} // namespace DeviceArt
