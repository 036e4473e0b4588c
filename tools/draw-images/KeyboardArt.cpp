#include "KeyboardArt.h"

#include "Art.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>
#include <QString>
#include <QStringList>
#include <QVector>
#include <array>
#include <cmath>
#include <numbers>
#include <span>

namespace KeyboardArt {

namespace {

// A row of keys in a short notation: kind letter and width in units, "*n" repeats.
// a alpha, m modifier, x accent, t tall modifier, y tall accent, k knob, _ gap.
struct RowSpec
{
    double gapAbove;
    const char* keys;
};

constexpr std::array<RowSpec, 5> kCompact65{{
    {0, "x1 a1*12 m2 m1"},
    {0, "m1.5 a1*12 m1.5 m1"},
    {0, "m1.75 a1*11 x2.25 m1"},
    {0, "m2.25 a1*10 m1.75 m1 m1"},
    {0, "m1.25*3 a6.25 m1*6"},
}};

constexpr std::array<RowSpec, 6> kCompact75{{
    {0, "x1 _.25 m1*4 _.25 m1*4 _.25 m1*4 _.25 m1 k1"},
    {0.25, "m1 a1*12 m2 m1"},
    {0, "m1.5 a1*12 m1.5 m1"},
    {0, "m1.75 a1*11 x2.25 m1"},
    {0, "m2.25 a1*10 m1.75 m1 m1"},
    {0, "m1.25*3 a6.25 m1*6"},
}};

constexpr std::array<RowSpec, 6> kTenkeyless{{
    {0, "x1 _1 m1*4 _.5 m1*4 _.5 m1*4 _.25 m1*3"},
    {0.25, "m1 a1*12 m2 _.25 m1*3"},
    {0, "m1.5 a1*12 m1.5 _.25 m1*3"},
    {0, "m1.75 a1*11 x2.25"},
    {0, "m2.25 a1*10 m2.75 _1.25 m1"},
    {0, "m1.25*3 a6.25 m1.25*4 _.25 m1*3"},
}};

constexpr std::array<RowSpec, 6> kCompact98{{
    {0, "x1 _.25 m1*4 _.25 m1*4 _.25 m1*4 _.25 m1 _.25 m1*4"},
    {0.25, "m1 a1*12 m2 _.25 m1*4"},
    {0, "m1.5 a1*12 m1.5 _.25 a1*3 t1"},
    {0, "m1.75 a1*11 x2.25 _.25 a1*3"},
    {0, "m2.25 a1*10 m1.75 m1 _.25 a1*3 y1"},
    {0, "m1.25*3 a6.25 m1*5 _.25 a1*3"},
}};

enum class Cap { Alpha, Modifier, Accent, Knob };

struct Key
{
    QRectF rect; // in key units
    Cap cap;
};

std::span<const RowSpec> rowsOf(Layout layout)
{
    switch (layout) {
    case Layout::Compact65:
        return kCompact65;
    case Layout::Compact75:
        return kCompact75;
    case Layout::Tenkeyless:
        return kTenkeyless;
    case Layout::Compact98:
        return kCompact98;
    }
    return kCompact65;
}

QVector<Key> keysOf(Layout layout, const Style& style)
{
    QVector<Key> keys;
    double y = 0;
    for (const RowSpec& row : rowsOf(layout)) {
        y += row.gapAbove;
        double x = 0;
        for (const QString& token : QString::fromLatin1(row.keys).split(u' ', Qt::SkipEmptyParts)) {
            const QChar kind = token.at(0);
            const QStringList parts = token.mid(1).split(u'*');
            const double width = parts.at(0).toDouble();
            const int count = parts.size() > 1 ? parts.at(1).toInt() : 1;
            for (int i = 0; i < count; ++i) {
                if (kind != u'_') {
                    const bool tall = kind == u't' || kind == u'y';
                    Cap cap = Cap::Alpha;
                    if (kind == u'm' || kind == u't') cap = Cap::Modifier;
                    if (kind == u'x' || kind == u'y')
                        cap = style.accents ? Cap::Accent : Cap::Modifier;
                    if (kind == u'k') cap = Cap::Knob;
                    keys.append({QRectF(x, y, width, tall ? 2 : 1), cap});
                }
                x += width;
            }
        }
        y += 1;
    }
    return keys;
}

QRectF extentOf(const QVector<Key>& keys)
{
    QRectF extent;
    for (const Key& key : keys)
        extent = extent.united(key.rect);
    return extent;
}

// Margins around the keys, in units: the case border, then room for the shadow.
constexpr double kCasePadding = 0.42;
constexpr double kSideRoom = 0.55;
constexpr double kTopRoom = 0.4;
constexpr double kBottomRoom = 0.85;

QPainterPath rounded(const QRectF& rect, double radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

void drawKey(QPainter& p, const Key& key, double u)
{
    const QRectF r(key.rect.x() * u, key.rect.y() * u, key.rect.width() * u, key.rect.height() * u);
    const double gap = 0.06 * u;
    const QRectF skirt = r.adjusted(gap, gap, -gap, -gap);

    if (key.cap == Cap::Knob) {
        const QPointF c = skirt.center();
        const double radius = skirt.width() / 2;
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0xD4, 0xD4, 0xDC));
        p.drawEllipse(c, radius, radius);
        // Knurled rim, then the cap with its purple marker.
        p.setPen(QPen(QColor(0xBE, 0xBE, 0xC8), qMax(1.0, 0.025 * u)));
        for (int i = 0; i < 36; ++i) {
            const double a = i * std::numbers::pi / 18;
            p.drawLine(c + QPointF(std::cos(a), std::sin(a)) * radius * 0.82,
                       c + QPointF(std::cos(a), std::sin(a)) * radius * 0.98);
        }
        QRadialGradient face(c - QPointF(radius, radius) * 0.3, radius);
        face.setColorAt(0, QColor(0xFF, 0xFF, 0xFF));
        face.setColorAt(1, QColor(0xEC, 0xEC, 0xF1));
        p.setPen(QPen(QColor(0xE2, 0xE2, 0xE8), qMax(1.0, 0.02 * u)));
        p.setBrush(face);
        p.drawEllipse(c, radius * 0.76, radius * 0.76);
        p.setPen(Art::linePen(Art::colour(Art::Colour::accent), 0.07 * u));
        p.drawLine(c - QPointF(0, radius * 0.6), c - QPointF(0, radius * 0.35));
        return;
    }

    QColor side, top, topLow, edge;
    switch (key.cap) {
    case Cap::Alpha:
        side = QColor(0xE1, 0xE1, 0xE8);
        top = QColor(0xFF, 0xFF, 0xFF);
        topLow = QColor(0xF8, 0xF8, 0xFA);
        edge = QColor(0xEA, 0xEA, 0xEF);
        break;
    case Cap::Modifier:
        side = QColor(0xD0, 0xD0, 0xD9);
        top = QColor(0xEF, 0xEF, 0xF3);
        topLow = QColor(0xE8, 0xE8, 0xEE);
        edge = QColor(0xDD, 0xDD, 0xE4);
        break;
    case Cap::Accent:
        side = Art::colour(Art::Colour::accentDark);
        top = Art::colour(Art::Colour::accentLight);
        topLow = Art::colour(Art::Colour::accent);
        edge = QColor(0x57, 0x22, 0xA4);
        break;
    case Cap::Knob:
        break;
    }
    p.setPen(Qt::NoPen);
    p.setBrush(side);
    p.drawPath(rounded(skirt, 0.14 * u));
    const QRectF face = skirt.adjusted(0.1 * u, 0.05 * u, -0.1 * u, -0.16 * u);
    QLinearGradient shade(face.topLeft(), face.bottomLeft());
    shade.setColorAt(0, top);
    shade.setColorAt(1, topLow);
    p.setPen(QPen(edge, qMax(0.8, 0.015 * u)));
    p.setBrush(shade);
    p.drawPath(rounded(face, 0.1 * u));
}

void paint(QPainter& p, QPointF origin, double u, const QVector<Key>& keys, const Style& style)
{
    const QRectF extent = extentOf(keys);
    p.save();
    p.translate(origin);
    const QRectF caseRect(-kCasePadding * u, -kCasePadding * u,
                          (extent.width() + 2 * kCasePadding) * u,
                          (extent.height() + 2 * kCasePadding) * u);
    const QPainterPath casePath = rounded(caseRect, 0.5 * u);

    if (style.underglow) {
        QPainterPath glow = rounded(caseRect.adjusted(0.2 * u, 0.5 * u, -0.2 * u, 0.3 * u), u);
        Art::shadow(p, glow, QPointF(0, 0), int(0.9 * u), QColor(0x8A, 0x5A, 0xD6, 150));
    }
    Art::shadow(p, casePath, QPointF(0, 0.22 * u), int(0.4 * u), QColor(36, 16, 72, 70));

    // The case's front edge, then its face.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xE2, 0xE2, 0xE9));
    p.drawPath(casePath.translated(0, 0.1 * u));
    QLinearGradient face(caseRect.topLeft(), caseRect.bottomLeft());
    face.setColorAt(0, QColor(0xFF, 0xFF, 0xFF));
    face.setColorAt(1, QColor(0xFA, 0xFA, 0xFC));
    p.setPen(QPen(Art::colour(Art::Colour::border), qMax(1.0, 0.025 * u)));
    p.setBrush(face);
    p.drawPath(casePath);

    // The plate the keys sit in.
    const QRectF plate(-0.1 * u, -0.1 * u, (extent.width() + 0.2) * u, (extent.height() + 0.2) * u);
    p.setPen(QPen(QColor(0xE4, 0xE4, 0xEA), qMax(1.0, 0.02 * u)));
    p.setBrush(Art::colour(Art::Colour::plate));
    p.drawPath(rounded(plate, 0.22 * u));

    for (const Key& key : keys)
        drawKey(p, key, u);
    p.restore();
}

QSizeF sizeInUnits(const QRectF& extent)
{
    return QSizeF(extent.width() + 2 * (kCasePadding + kSideRoom),
                  extent.height() + 2 * kCasePadding + kTopRoom + kBottomRoom);
}

QPointF keyOrigin()
{
    return QPointF(kCasePadding + kSideRoom, kCasePadding + kTopRoom);
}

} // namespace

QImage keyboard(Layout layout, double unit, Style style)
{
    const QVector<Key> keys = keysOf(layout, style);
    const QSizeF size = sizeInUnits(extentOf(keys)) * unit;
    QImage image = Art::canvas(int(std::ceil(size.width())), int(std::ceil(size.height())));
    QPainter p(&image);
    Art::prepare(p);
    paint(p, keyOrigin() * unit, unit, keys, style);
    return image;
}

void drawInto(QPainter& painter, const QRectF& target, Layout layout, Style style)
{
    const QVector<Key> keys = keysOf(layout, style);
    const QSizeF units = sizeInUnits(extentOf(keys));
    const double unit = qMin(target.width() / units.width(), target.height() / units.height());
    const QPointF corner = target.center() - QPointF(units.width(), units.height()) * unit / 2;
    paint(painter, corner + keyOrigin() * unit, unit, keys, style);
}

} // namespace KeyboardArt
