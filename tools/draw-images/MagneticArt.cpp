#include "MagneticArt.h"

#include "Art.h"

#include <QLinearGradient>
#include <QRadialGradient>
#include <array>

namespace MagneticArt {

namespace {

constexpr int kPressSize = 264; // shown at 132
constexpr int kPressFrames = 10;
constexpr qreal kTravel = 34;    // pixels from rest to the bottom
constexpr int kIconSize = 128;   // shown at 64
constexpr qreal kIconGrid = 112; // the icon is drawn on this grid and scaled

// ---- the pictured key, side view: cap, stem and magnet over the housing, the board with its
// Hall sensor below; the field glows as the magnet comes near.

void drawBoard(QPainter& p)
{
    const QRectF board(22, 214, 220, 18);
    Art::shadow(
        p,
        [&] {
            QPainterPath path;
            path.addRoundedRect(board, 6, 6);
            return path;
        }(),
        QPointF(0, 4), 6, Art::colour(Art::Colour::ink, 50));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x2E, 0x2E, 0x36));
    p.drawRoundedRect(board, 6, 6);
    // The sensor under the switch.
    p.setBrush(Art::colour(Art::Colour::accent));
    p.drawRoundedRect(QRectF(118, 206, 28, 10), 3, 3);
}

void drawField(QPainter& p, qreal strength)
{
    if (strength <= 0) return;
    const QPointF centre(132, 206);
    for (int ring = 0; ring < 3; ++ring) {
        const qreal radius = 18 + ring * 12;
        QColor c(0xB8, 0x92, 0xF2);
        c.setAlphaF(std::min(1.0, strength * (0.95 - ring * 0.25)));
        p.setPen(Art::linePen(c, 3));
        p.setBrush(Qt::NoBrush);
        p.drawArc(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius), 20 * 16,
                  140 * 16);
    }
}

void drawHousing(QPainter& p)
{
    const QRectF lower(78, 150, 108, 56);
    const QRectF upper(70, 120, 124, 34);
    QLinearGradient body(0, 120, 0, 206);
    body.setColorAt(0, QColor(0x5C, 0x5C, 0x66));
    body.setColorAt(1, QColor(0x3A, 0x3A, 0x44));
    p.setPen(Qt::NoPen);
    p.setBrush(body);
    p.drawRoundedRect(lower, 8, 8);
    p.setBrush(QColor(0x6E, 0x6E, 0x7A));
    p.drawRoundedRect(upper, 8, 8);
    // The slot the stem runs in.
    p.setBrush(QColor(0x2A, 0x2A, 0x32));
    p.drawRoundedRect(QRectF(116, 120, 32, 80), 5, 5);
}

void drawMovingPart(QPainter& p, qreal down)
{
    p.save();
    p.translate(0, down);
    // Stem and magnet.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xF2, 0xF2, 0xF5));
    p.drawRoundedRect(QRectF(121, 88, 22, 72), 4, 4);
    p.setBrush(QColor(0xFF, 0xA7, 0x3C));
    p.drawRoundedRect(QRectF(119, 150, 26, 10), 3, 3);
    p.setBrush(QColor(0x39, 0xE1, 0xDC));
    p.drawRoundedRect(QRectF(119, 158, 26, 10), 3, 3);

    // The cap: a white trapezoid with a soft face.
    QPainterPath cap;
    cap.moveTo(46, 108);
    cap.lineTo(218, 108);
    cap.lineTo(202, 36);
    cap.quadTo(200, 28, 190, 28);
    cap.lineTo(74, 28);
    cap.quadTo(64, 28, 62, 36);
    cap.closeSubpath();
    Art::shadow(p, cap, QPointF(0, 6), 8, Art::colour(Art::Colour::ink, 60));
    QLinearGradient face(0, 28, 0, 108);
    face.setColorAt(0, QColor(0xFF, 0xFF, 0xFF));
    face.setColorAt(1, QColor(0xE4, 0xE4, 0xEA));
    p.setBrush(face);
    p.setPen(QPen(Art::colour(Art::Colour::border), 2));
    p.drawPath(cap);
    p.setPen(Qt::NoPen);
    p.setBrush(Art::colour(Art::Colour::accentPale));
    p.drawRoundedRect(QRectF(78, 34, 108, 12), 6, 6);
    p.restore();
}

QImage pressFrame(int index)
{
    // Frame 9 at rest, frame 0 at the bottom.
    const qreal depth = qreal(kPressFrames - 1 - index) / (kPressFrames - 1);
    QImage image = Art::canvas(kPressSize, kPressSize);
    QPainter p(&image);
    Art::prepare(p);
    drawBoard(p);
    drawHousing(p);
    drawField(p, depth);
    drawMovingPart(p, depth * kTravel);
    return image;
}

// ---- switch type icons, top view: the housing in the type's colour, clips at the corners,
// the cross stem in the middle.

struct TypeIcon
{
    int row;
    QRgb colour;
};
// The rows the page's buttons show, with the colours the switch type table gives those rows.
constexpr std::array<TypeIcon, 8> kIcons{{
    {1, 0xFF7969F3},
    {2, 0xFFF369A7},
    {3, 0xFFC7D827},
    {5, 0xFFFF6BF3},
    {6, 0xFF6B9CFF},
    {9, 0xFF2FC1FF},
    {10, 0xFF870339},
    {14, 0xFF2258A9},
}};

// The on-screen keyboard shows a type's colour with red and blue exchanged (a kept habit of the
// key widget): the icon is drawn in the colour that keys of its row show, so that the button a
// user picks and the keys it paints look alike.
QColor asKeysShowIt(QRgb rgb)
{
    return QColor(qBlue(rgb), qGreen(rgb), qRed(rgb));
}

QImage typeIcon(QColor colour)
{
    QImage image = Art::canvas(kIconSize, kIconSize);
    QPainter p(&image);
    Art::prepare(p);
    p.scale(kIconSize / kIconGrid, kIconSize / kIconGrid);
    const QRectF housing(14, 14, 84, 84);
    QPainterPath outline;
    outline.addRoundedRect(housing, 18, 18);
    Art::shadow(p, outline, QPointF(0, 4), 6, Art::colour(Art::Colour::ink, 50));
    QLinearGradient body(0, 14, 0, 98);
    body.setColorAt(0, colour.lighter(118));
    body.setColorAt(1, colour.darker(112));
    p.setPen(Qt::NoPen);
    p.setBrush(body);
    p.drawPath(outline);
    // The clear top around the stem.
    p.setBrush(QColor(255, 255, 255, 70));
    p.drawEllipse(QPointF(56, 56), 28, 28);
    // Corner clips.
    p.setBrush(QColor(255, 255, 255, 150));
    for (QPointF at : {QPointF(24, 24), QPointF(88, 24), QPointF(24, 88), QPointF(88, 88)})
        p.drawEllipse(at, 4.5, 4.5);
    // The cross stem.
    p.setBrush(QColor(0xFF, 0xFF, 0xFF));
    p.drawRoundedRect(QRectF(50, 36, 12, 40), 3, 3);
    p.drawRoundedRect(QRectF(36, 50, 40, 12), 3, 3);
    return image;
}

} // namespace

void saveAll(const QString& folder)
{
    for (int i = 0; i < kPressFrames; ++i)
        Art::save(pressFrame(i),
                  folder + QStringLiteral("press/press%1.png").arg(i, 2, 10, QLatin1Char('0')));
    for (const TypeIcon& icon : kIcons)
        Art::save(typeIcon(asKeysShowIt(icon.colour)),
                  folder + QStringLiteral("rt/mtico%1.png").arg(icon.row, 2, 10, QLatin1Char('0')));
}

} // namespace MagneticArt
