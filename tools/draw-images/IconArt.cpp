#include "IconArt.h"

#include "Art.h"

#include <QPainterPath>
#include <QRadialGradient>
#include <QTransform>

namespace IconArt {

namespace {

constexpr int kNavigationSize = 48;
constexpr qreal kNavigationGlyph = 26.0; // glyph box inside the entry, in pixels
constexpr int kBadgeSize = 50;           // cards show badges at 25 by 25: twice that for sharpness
constexpr qreal kStroke = 1.9;           // in design units

QPainterPath roundedRect(qreal x, qreal y, qreal w, qreal h, qreal r)
{
    QPainterPath path;
    path.addRoundedRect(QRectF(x, y, w, h), r, r);
    return path;
}

// Draws a glyph in the 24-unit box at the painter's current transform.
void drawGlyph(QPainter& p, Glyph glyph, QColor colour)
{
    p.setPen(Art::linePen(colour, kStroke));
    p.setBrush(Qt::NoBrush);
    QPainterPath path;
    switch (glyph) {
    case Glyph::Home:
        path.moveTo(3, 11);
        path.lineTo(12, 3.6);
        path.lineTo(21, 11);
        path.moveTo(5.5, 9.4);
        path.lineTo(5.5, 19.2);
        path.quadTo(5.5, 20.5, 6.8, 20.5);
        path.lineTo(17.2, 20.5);
        path.quadTo(18.5, 20.5, 18.5, 19.2);
        path.lineTo(18.5, 9.4);
        path.moveTo(10, 20.5);
        path.lineTo(10, 15.2);
        path.lineTo(14, 15.2);
        path.lineTo(14, 20.5);
        p.drawPath(path);
        break;
    case Glyph::Keys: {
        p.drawPath(roundedRect(2.5, 5.5, 19, 13, 2.6));
        p.setPen(Art::linePen(colour, 2.2));
        for (qreal x : {7.0, 12.0, 17.0})
            p.drawPoint(QPointF(x, 9.6));
        for (qreal x : {9.5, 14.5})
            p.drawPoint(QPointF(x, 12.3));
        p.setPen(Art::linePen(colour, kStroke));
        p.drawLine(QPointF(8.5, 15.3), QPointF(15.5, 15.3));
        break;
    }
    case Glyph::Magnet:
        // A horseshoe magnet: outer and inner outline, the poles marked off.
        path.moveTo(4, 4);
        path.lineTo(4, 12);
        path.arcTo(QRectF(4, 4, 16, 16), 180, 180);
        path.lineTo(20, 4);
        path.lineTo(15, 4);
        path.lineTo(15, 12);
        path.arcTo(QRectF(9, 9, 6, 6), 0, -180);
        path.lineTo(9, 4);
        path.closeSubpath();
        p.drawPath(path);
        p.drawLine(QPointF(4, 8.3), QPointF(9, 8.3));
        p.drawLine(QPointF(15, 8.3), QPointF(20, 8.3));
        break;
    case Glyph::Macro:
        p.drawPath(roundedRect(3, 3, 18, 18, 4.5));
        path.moveTo(7.6, 16);
        path.lineTo(7.6, 8.4);
        path.lineTo(12, 13);
        path.lineTo(16.4, 8.4);
        path.lineTo(16.4, 16);
        p.drawPath(path);
        break;
    case Glyph::Light:
        // A small sun: the light effects.
        p.drawEllipse(QPointF(12, 12), 4.2, 4.2);
        for (int i = 0; i < 8; ++i) {
            const QTransform turn = QTransform().translate(12, 12).rotate(45.0 * i);
            p.drawLine(turn.map(QPointF(0, -7.4)), turn.map(QPointF(0, -9.6)));
        }
        break;
    case Glyph::About:
        p.drawEllipse(QPointF(12, 12), 9, 9);
        p.drawLine(QPointF(12, 11), QPointF(12, 16.4));
        p.setPen(Art::linePen(colour, 2.4));
        p.drawPoint(QPointF(12, 7.8));
        break;
    case Glyph::User:
        p.drawEllipse(QPointF(12, 8.2), 4, 4);
        path.moveTo(4.5, 20);
        path.cubicTo(4.5, 15.8, 7.8, 13.6, 12, 13.6);
        path.cubicTo(16.2, 13.6, 19.5, 15.8, 19.5, 20);
        p.drawPath(path);
        break;
    case Glyph::Return:
        path.moveTo(8.8, 4.6);
        path.lineTo(4.4, 9);
        path.lineTo(8.8, 13.4);
        path.moveTo(4.6, 9);
        path.lineTo(14.5, 9);
        path.arcTo(QRectF(9.5, 9, 10, 10), 90, -180);
        path.lineTo(9.5, 19);
        p.drawPath(path);
        break;
    case Glyph::Close:
        p.drawLine(QPointF(6.5, 6.5), QPointF(17.5, 17.5));
        p.drawLine(QPointF(17.5, 6.5), QPointF(6.5, 17.5));
        break;
    case Glyph::Settings: {
        // A gear of six rounded teeth around a hole.
        QPainterPath gear;
        gear.addEllipse(QPointF(12, 12), 6.4, 6.4);
        for (int t = 0; t < 6; ++t) {
            QPainterPath tooth;
            tooth.addRoundedRect(QRectF(-1.9, -9.2, 3.8, 4), 1, 1);
            gear = gear.united(QTransform().translate(12, 12).rotate(60.0 * t).map(tooth));
        }
        p.drawPath(gear.simplified());
        p.drawEllipse(QPointF(12, 12), 2.6, 2.6);
        break;
    }
    case Glyph::Language:
        // A globe: the outline, two meridians and the equator.
        p.drawEllipse(QPointF(12, 12), 9, 9);
        p.drawEllipse(QRectF(8, 3, 8, 18));
        p.drawLine(QPointF(3.2, 12), QPointF(20.8, 12));
        break;
    case Glyph::Minimise:
        p.drawLine(QPointF(6, 12), QPointF(18, 12));
        break;
    case Glyph::Check:
        path.moveTo(5.5, 12.5);
        path.lineTo(10, 17);
        path.lineTo(18.5, 7.5);
        p.setPen(Art::linePen(colour, 2.8));
        p.drawPath(path);
        break;
    }
}

QImage glyphImage(Glyph glyph, QColor colour, int size, qreal glyphPixels)
{
    QImage image = Art::canvas(size, size);
    QPainter p(&image);
    Art::prepare(p);
    const qreal scale = glyphPixels / 24.0;
    p.translate((size - glyphPixels) / 2.0, (size - glyphPixels) / 2.0);
    p.scale(scale, scale);
    drawGlyph(p, glyph, colour);
    return image;
}

QRgb batteryColour(double level)
{
    if (level <= 0.2) return Art::Colour::bad;
    if (level <= 0.4) return Art::Colour::warn;
    return Art::Colour::accent;
}

} // namespace

QImage navigation(Glyph glyph, bool selected)
{
    return glyphImage(glyph, Art::colour(selected ? Art::Colour::white : Art::Colour::icon),
                      kNavigationSize, kNavigationGlyph);
}

QImage battery(double level)
{
    QImage image = Art::canvas(kBadgeSize, kBadgeSize);
    QPainter p(&image);
    Art::prepare(p);
    p.scale(kBadgeSize / 24.0, kBadgeSize / 24.0);
    p.setPen(Art::linePen(Art::colour(Art::Colour::icon), 1.7));
    p.drawPath(roundedRect(2, 7, 17.6, 10, 2.6));
    p.setPen(Qt::NoPen);
    p.setBrush(Art::colour(Art::Colour::icon));
    p.drawPath(roundedRect(20.4, 10, 1.9, 4, 0.9));
    // The charge, never quite empty so that a low battery still shows red.
    const qreal full = 13.6;
    const qreal width = qMax(1.6, full * qBound(0.0, level, 1.0));
    p.setBrush(Art::colour(batteryColour(level)));
    p.drawPath(roundedRect(4, 9, width, 6, 1.2));
    return image;
}

QImage connection(Link link)
{
    QImage image = Art::canvas(kBadgeSize, kBadgeSize);
    QPainter p(&image);
    Art::prepare(p);
    p.scale(kBadgeSize / 24.0, kBadgeSize / 24.0);
    const QColor ink = Art::colour(Art::Colour::icon);
    p.setPen(Art::linePen(ink, 1.7));
    QPainterPath path;
    switch (link) {
    case Link::Usb: {
        // The trident: a stem, a round and a square branch.
        p.drawLine(QPointF(12, 4.5), QPointF(12, 19));
        path.moveTo(12, 15.5);
        path.lineTo(7.2, 12.2);
        path.lineTo(7.2, 9.6);
        path.moveTo(12, 13.4);
        path.lineTo(16.8, 10.4);
        path.lineTo(16.8, 8.4);
        p.drawPath(path);
        p.setPen(Qt::NoPen);
        p.setBrush(ink);
        QPainterPath head;
        head.moveTo(12, 1.8);
        head.lineTo(14.4, 5.4);
        head.lineTo(9.6, 5.4);
        head.closeSubpath();
        p.drawPath(head);
        p.drawEllipse(QPointF(7.2, 8.6), 1.7, 1.7);
        p.drawRect(QRectF(15.3, 5.6, 3, 3));
        p.drawEllipse(QPointF(12, 20), 2.2, 2.2);
        break;
    }
    case Link::Receiver:
        // A signal fanning out of a point.
        for (qreal r : {5.0, 9.5, 14.0})
            p.drawArc(QRectF(12 - r, 19 - r, 2 * r, 2 * r), 48 * 16, 84 * 16);
        p.setPen(Qt::NoPen);
        p.setBrush(ink);
        p.drawEllipse(QPointF(12, 19), 1.9, 1.9);
        break;
    case Link::Bluetooth:
        path.moveTo(6.8, 7.6);
        path.lineTo(16.8, 16.4);
        path.lineTo(12, 20.8);
        path.lineTo(12, 3.2);
        path.lineTo(16.8, 7.6);
        path.lineTo(6.8, 16.4);
        p.drawPath(path);
        break;
    }
    return image;
}

QImage lamp(bool ok)
{
    constexpr int size = 48;
    QImage image = Art::canvas(size, size);
    QPainter p(&image);
    Art::prepare(p);
    const QColor base = Art::colour(ok ? Art::Colour::ok : Art::Colour::bad);
    QPainterPath disc;
    disc.addEllipse(QPointF(24, 23), 15, 15);
    Art::shadow(p, disc, QPointF(0, 2), 6, Art::colour(base.rgb(), 110));
    p.setPen(QPen(Art::colour(Art::Colour::white), 3));
    QRadialGradient face(QPointF(19, 17), 20);
    face.setColorAt(0, base.lighter(135));
    face.setColorAt(1, base);
    p.setBrush(face);
    p.drawPath(disc);
    p.setPen(Qt::NoPen);
    p.setBrush(Art::colour(Art::Colour::white, 120));
    p.drawEllipse(QRectF(15.5, 13, 10, 6));
    return image;
}

QImage floatArrow(bool left)
{
    constexpr int size = 96;
    QImage image = Art::canvas(size, size);
    QPainter p(&image);
    Art::prepare(p);
    QPainterPath disc;
    disc.addEllipse(QPointF(48, 45), 38, 38);
    Art::shadow(p, disc, QPointF(0, 3), 10, QColor(40, 20, 80, 70));
    p.setPen(QPen(Art::colour(Art::Colour::border), 1.5));
    p.setBrush(Art::colour(Art::Colour::white));
    p.drawPath(disc);
    p.setPen(Art::linePen(Art::colour(Art::Colour::accent), 6.5));
    const qreal tip = left ? 39 : 57;
    const qreal back = left ? 55 : 41;
    QPainterPath chevron;
    chevron.moveTo(back, 29);
    chevron.lineTo(tip, 45);
    chevron.lineTo(back, 61);
    p.setBrush(Qt::NoBrush);
    p.drawPath(chevron);
    return image;
}

} // namespace IconArt
