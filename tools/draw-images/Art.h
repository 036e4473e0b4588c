#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QString>

// Shared drawing kit of the picture generator: the palette, canvases and soft shadows.
namespace Art {

// The one palette of every picture: white faces, light grey frames, purple accents.
namespace Colour {
inline constexpr QRgb white = 0xFFFFFFFF;
inline constexpr QRgb frame = 0xFFF6F6F6;
inline constexpr QRgb border = 0xFFE6E6EA;
inline constexpr QRgb plate = 0xFFEEEEF2;
inline constexpr QRgb accent = 0xFF6329B6;
inline constexpr QRgb accentLight = 0xFF8A5AD6;
inline constexpr QRgb accentDark = 0xFF4A1D8C;
inline constexpr QRgb accentPale = 0xFFEFE7FB;
inline constexpr QRgb ink = 0xFF26262C;
inline constexpr QRgb icon = 0xFF5C5C66;
inline constexpr QRgb muted = 0xFF9A9AA4;
inline constexpr QRgb ok = 0xFF2FB36B;
inline constexpr QRgb warn = 0xFFF2A122;
inline constexpr QRgb bad = 0xFFE5484D;
} // namespace Colour

inline QColor colour(QRgb rgb, int alpha = 255)
{
    QColor c = QColor::fromRgba(rgb);
    if (alpha != 255) c.setAlpha(alpha);
    return c;
}

// A transparent canvas.
QImage canvas(int width, int height);

// A painter with antialiasing and smooth pixmap scaling on.
void prepare(QPainter& painter);

// A round-capped pen, the stroke of every line glyph.
QPen linePen(QColor colour, qreal width);

// Blurs the image in place with three box passes (close to a Gaussian of the radius).
void blur(QImage& image, int radius);

// Paints a soft shadow of the path under what is drawn next.
void shadow(QPainter& painter, const QPainterPath& path, QPointF offset, int radius, QColor colour);

// Writes the picture as PNG, creating folders; exits the program on failure.
void save(const QImage& image, const QString& path);

} // namespace Art
