#include "LightArt.h"

#include "Art.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>

namespace LightArt {

namespace {

constexpr int kPipetteSize = 64;
constexpr int kHighlightSize = 88;
constexpr QSize kBandSize{840, 240};

} // namespace

QImage pipette()
{
    QImage image = Art::canvas(kPipetteSize, kPipetteSize);
    QPainter p(&image);
    Art::prepare(p);
    // Drawn along the diagonal: the bulb at the top right, the tip at the bottom left.
    p.translate(kPipetteSize / 2.0, kPipetteSize / 2.0);
    p.rotate(45);
    const QColor ink = Art::colour(Art::Colour::ink);
    const QColor accent = Art::colour(Art::Colour::accent);

    QPainterPath bulb;
    bulb.addRoundedRect(QRectF(-7, -29, 14, 16), 7, 7);
    p.setPen(Qt::NoPen);
    p.setBrush(accent);
    p.drawPath(bulb);
    p.setBrush(ink);
    p.drawRoundedRect(QRectF(-10, -14, 20, 6), 3, 3); // the collar

    QPainterPath tube;
    tube.moveTo(-4.5, -8);
    tube.lineTo(4.5, -8);
    tube.lineTo(4.5, 14);
    tube.lineTo(0, 24);
    tube.lineTo(-4.5, 14);
    tube.closeSubpath();
    p.setBrush(Art::colour(Art::Colour::white));
    p.setPen(Art::linePen(ink, 2.6));
    p.drawPath(tube);
    // The drop of colour in the tube.
    p.setPen(Qt::NoPen);
    p.setBrush(Art::colour(Art::Colour::accentLight));
    QPainterPath drop;
    drop.moveTo(-3, 6);
    drop.lineTo(3, 6);
    drop.lineTo(3, 14);
    drop.lineTo(0, 20.5);
    drop.lineTo(-3, 14);
    drop.closeSubpath();
    p.drawPath(drop);
    return image;
}

QImage colourHighlight()
{
    QImage image = Art::canvas(kHighlightSize, kHighlightSize);
    QPainter p(&image);
    Art::prepare(p);
    const QRectF disc(10, 8, kHighlightSize - 20, kHighlightSize - 20);
    QPainterPath path;
    path.addEllipse(disc);
    Art::shadow(p, path, QPointF(0, 3), 6, Art::colour(Art::Colour::accentDark, 70));
    p.setPen(Qt::NoPen);
    p.setBrush(Art::colour(Art::Colour::white));
    p.drawPath(path);
    p.setPen(QPen(Art::colour(Art::Colour::accent), 3));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(disc.adjusted(1.5, 1.5, -1.5, -1.5));
    return image;
}

QImage lightBand()
{
    QImage image = Art::canvas(kBandSize.width(), kBandSize.height());
    QPainter p(&image);
    Art::prepare(p);
    const QRectF card(0, 0, kBandSize.width(), kBandSize.height());
    QPainterPath shape;
    shape.addRoundedRect(card, 36, 36);
    p.setClipPath(shape);
    p.fillPath(shape, Art::colour(Art::Colour::white));

    // Seven soft pools of light along the band, in the order of the system colours.
    const QRgb pools[] = {0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0xFF8000, 0x00FFFF};
    const int count = int(std::size(pools));
    for (int i = 0; i < count; ++i) {
        const QPointF centre(card.width() * (i + 0.5) / count, card.height() * 0.62);
        QRadialGradient glow(centre, card.height() * 0.55);
        glow.setColorAt(0.0, Art::colour(0xFF000000 | pools[i], 70));
        glow.setColorAt(1.0, Art::colour(0xFF000000 | pools[i], 0));
        p.fillRect(card, glow);
    }
    // A pale veil on top keeps the dots in front readable.
    QLinearGradient veil(card.topLeft(), card.bottomLeft());
    veil.setColorAt(0.0, Art::colour(Art::Colour::white, 200));
    veil.setColorAt(0.5, Art::colour(Art::Colour::white, 90));
    veil.setColorAt(1.0, Art::colour(Art::Colour::white, 160));
    p.fillRect(card, veil);
    return image;
}

} // namespace LightArt
