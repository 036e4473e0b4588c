#include "AppIconArt.h"

#include "Art.h"
#include "BrandArt.h"

#include <QLinearGradient>
#include <QPainterPath>

namespace AppIconArt {

namespace {

constexpr int kFirstCapSize = 32;

// The tile: the same purple as the tray icon, with the margin the theme's icons keep.
QRectF drawTile(QPainter& p, int size)
{
    const double margin = size >= kFirstCapSize ? size / 16.0 : size / 32.0;
    const QRectF tile(margin, margin, size - 2 * margin, size - 2 * margin);
    QLinearGradient fill(tile.topLeft(), tile.bottomRight());
    fill.setColorAt(0, Art::colour(Art::Colour::accentLight));
    fill.setColorAt(1, Art::colour(Art::Colour::accentDark));
    p.setPen(Qt::NoPen);
    p.setBrush(fill);
    const double radius = tile.width() * 0.23;
    p.drawRoundedRect(tile, radius, radius);
    return tile;
}

// A key cap seen from the front and a little above: a pale skirt, and a white top face set
// back from its lower edge.
QRectF drawCap(QPainter& p, const QRectF& tile)
{
    const double w = tile.width() * 0.64;
    const QRectF skirt(tile.center().x() - w / 2, tile.center().y() - w / 2 + tile.height() * 0.03,
                       w, w);
    QPainterPath skirtPath;
    skirtPath.addRoundedRect(skirt, w * 0.16, w * 0.16);
    Art::shadow(p, skirtPath, QPointF(0, w * 0.05), qMax(1, int(w * 0.06)),
                Art::colour(0xFF1A0838, 110));
    p.setPen(Qt::NoPen);
    p.setBrush(Art::colour(0xFFD9CCF2));
    p.drawPath(skirtPath);

    const double side = w * 0.09;
    const QRectF top = skirt.adjusted(side, side * 0.6, -side, -side * 2.1);
    QLinearGradient face(top.topLeft(), top.bottomLeft());
    face.setColorAt(0, Art::colour(Art::Colour::white));
    face.setColorAt(1, Art::colour(0xFFF3EEFC));
    p.setBrush(face);
    p.drawRoundedRect(top, w * 0.12, w * 0.12);
    return top;
}

} // namespace

QImage appIcon(int size)
{
    QImage image = Art::canvas(size, size);
    QPainter p(&image);
    Art::prepare(p);
    const QRectF tile = drawTile(p, size);
    if (size < kFirstCapSize) {
        BrandArt::drawOrbit(p, tile.center(), tile.width() * 0.33, Art::colour(Art::Colour::white),
                            Art::colour(Art::Colour::white));
        return image;
    }
    const QRectF top = drawCap(p, tile);
    BrandArt::drawOrbit(p, top.center(), top.width() * 0.34, Art::colour(Art::Colour::accent),
                        Art::colour(Art::Colour::accentLight));
    return image;
}

} // namespace AppIconArt
