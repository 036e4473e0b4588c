#include "BrandArt.h"

#include "Art.h"
#include "KeyboardArt.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>
#include <QTransform>
#include <cmath>
#include <numbers>

namespace BrandArt {

namespace {

// Word marks are drawn at twice the size they are shown at.
constexpr int kMarkScale = 2;

// Centre lines of the capitals of a geometric sans, cap height h, drawn with a round pen of
// width s. Returns the advance.
double letter(QPainterPath& path, QChar c, double x, double h, double s)
{
    const double i = s / 2; // the pen's half width keeps the outer edges on the box
    const double y0 = i;
    const double y1 = h - i;
    auto box = [&](double widthFactor) { return std::pair{x + i, x + widthFactor * h - i}; };
    switch (c.unicode()) {
    case 'A': {
        auto [x0, x1] = box(0.8);
        const double xc = (x0 + x1) / 2;
        path.moveTo(x0, y1);
        path.lineTo(xc, y0);
        path.lineTo(x1, y1);
        const double yb = h * 0.66;
        const double t = (yb - y0) / (y1 - y0);
        path.moveTo(xc - t * (xc - x0), yb);
        path.lineTo(xc + t * (x1 - xc), yb);
        return 0.8 * h;
    }
    case 'B': {
        auto [x0, x1] = box(0.66);
        const double ym = h * 0.47;
        const double r1 = (ym - y0) / 2;
        const double r2 = (y1 - ym) / 2;
        path.moveTo(x0, y1);
        path.lineTo(x0, y0);
        path.lineTo(x1 - 0.06 * h - r1, y0);
        path.arcTo(QRectF(x1 - 0.06 * h - 2 * r1, y0, 2 * r1, 2 * r1), 90, -180);
        path.lineTo(x0, ym);
        path.moveTo(x1 - 0.06 * h - r1, ym);
        path.lineTo(x1 - r2, ym);
        path.arcTo(QRectF(x1 - 2 * r2, ym, 2 * r2, 2 * r2), 90, -180);
        path.lineTo(x0, y1);
        return 0.66 * h;
    }
    case 'C': {
        const double w = 0.8 * h;
        path.arcMoveTo(QRectF(x + i, y0, w - s, y1 - y0), 42);
        path.arcTo(QRectF(x + i, y0, w - s, y1 - y0), 42, 276);
        return w;
    }
    case 'E': {
        auto [x0, x1] = box(0.56);
        path.moveTo(x1, y0);
        path.lineTo(x0, y0);
        path.lineTo(x0, y1);
        path.lineTo(x1, y1);
        path.moveTo(x0, h / 2);
        path.lineTo(x1 - 0.06 * h, h / 2);
        return 0.56 * h;
    }
    case 'I':
        path.moveTo(x + i, y0);
        path.lineTo(x + i, y1);
        return s;
    case 'K': {
        auto [x0, x1] = box(0.64);
        path.moveTo(x0, y0);
        path.lineTo(x0, y1);
        path.moveTo(x1, y0);
        path.lineTo(x0, h * 0.62);
        path.moveTo(x0 + 0.22 * h, h * 0.45);
        path.lineTo(x1, y1);
        return 0.64 * h;
    }
    case 'N': {
        auto [x0, x1] = box(0.7);
        path.moveTo(x0, y1);
        path.lineTo(x0, y0);
        path.lineTo(x1, y1);
        path.lineTo(x1, y0);
        return 0.7 * h;
    }
    case 'R': {
        auto [x0, x1] = box(0.66);
        const double ym = h * 0.54;
        const double r = (ym - y0) / 2;
        path.moveTo(x0, y1);
        path.lineTo(x0, y0);
        path.lineTo(x1 - r, y0);
        path.arcTo(QRectF(x1 - 2 * r, y0, 2 * r, 2 * r), 90, -180);
        path.lineTo(x0, ym);
        path.moveTo(x0 + 0.3 * h, ym);
        path.lineTo(x1, y1);
        return 0.66 * h;
    }
    case 'T': {
        auto [x0, x1] = box(0.66);
        path.moveTo(x0, y0);
        path.lineTo(x1, y0);
        path.moveTo((x0 + x1) / 2, y0);
        path.lineTo((x0 + x1) / 2, y1);
        return 0.66 * h;
    }
    case 'W': {
        auto [x0, x1] = box(1.04);
        const double w = x1 - x0;
        path.moveTo(x0, y0);
        path.lineTo(x0 + 0.24 * w, y1);
        path.lineTo(x0 + 0.5 * w, y0 + 0.12 * h);
        path.lineTo(x0 + 0.76 * w, y1);
        path.lineTo(x1, y0);
        return 1.04 * h;
    }
    default:
        return 0.5 * h;
    }
}

// Draws text in capitals from (x, top); returns where it ended.
double drawWord(QPainter& p, const QString& word, double x, double top, double h, QColor ink)
{
    const double stroke = 0.17 * h;
    const double tracking = 0.24 * h;
    QPainterPath path;
    for (QChar c : word)
        x += letter(path, c, x, h, stroke) + tracking;
    p.save();
    p.translate(0, top);
    p.setPen(Art::linePen(ink, stroke));
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
    p.restore();
    return x - tracking;
}

QImage wordMark(int width, int height, bool orbe)
{
    QImage image = Art::canvas(width * kMarkScale, height * kMarkScale);
    QPainter p(&image);
    Art::prepare(p);
    p.scale(kMarkScale, kMarkScale);
    const double h = 0.6 * height; // cap height
    const double top = (height - h) / 2;
    const QColor ink = Art::colour(Art::Colour::ink);
    if (orbe) {
        // The mark stands for the O.
        const double r = 0.38 * height;
        drawOrbit(p, QPointF(2 + r, height / 2.0), r, Art::colour(Art::Colour::accent),
                  Art::colour(Art::Colour::accentLight));
        drawWord(p, QStringLiteral("RBE"), 2 + 2 * r + 0.3 * h, top, h, ink);
    } else {
        const double r = 0.42 * height;
        drawGear(p, QPointF(2 + r, height / 2.0), r, Art::colour(Art::Colour::accent));
        drawWord(p, QStringLiteral("TARNWICK"), 2 + 2 * r + 0.45 * h, top, h, ink);
    }
    return image;
}

void drawRings(QPainter& p, QPointF centre, QColor colour, std::initializer_list<double> radii)
{
    p.setBrush(Qt::NoBrush);
    int n = 0;
    for (double r : radii) {
        p.setPen(QPen(colour, 2));
        p.drawEllipse(centre, r, r);
        // A small moon on every ring, at its own angle.
        const double a = (-35 - 47 * n) * std::numbers::pi / 180;
        p.setPen(Qt::NoPen);
        p.setBrush(colour);
        p.drawEllipse(centre + QPointF(std::cos(a), std::sin(a)) * r, 5, 5);
        p.setBrush(Qt::NoBrush);
        ++n;
    }
}

} // namespace

void drawOrbit(QPainter& p, QPointF centre, double radius, QColor ring, QColor moon)
{
    // A thick ring open at the upper right, the moon sitting in the opening.
    const double stroke = 0.36 * radius;
    const double r = radius - stroke / 2;
    const QRectF circle(centre.x() - r, centre.y() - r, 2 * r, 2 * r);
    p.save();
    QPen pen = Art::linePen(ring, stroke);
    p.setPen(pen);
    p.setBrush(Qt::NoBrush);
    QPainterPath arc;
    arc.arcMoveTo(circle, 88);
    arc.arcTo(circle, 88, 274);
    p.drawPath(arc);
    const double a = 45 * std::numbers::pi / 180;
    p.setPen(Qt::NoPen);
    p.setBrush(moon);
    p.drawEllipse(centre + QPointF(std::cos(a), -std::sin(a)) * r, stroke * 0.58, stroke * 0.58);
    p.restore();
}

void drawGear(QPainter& p, QPointF centre, double radius, QColor colour)
{
    QPainterPath gear;
    const double body = radius * 0.78;
    gear.addEllipse(centre, body, body);
    for (int t = 0; t < 8; ++t) {
        QPainterPath tooth;
        tooth.addRoundedRect(QRectF(-radius * 0.17, -radius, radius * 0.34, radius * 0.5),
                             radius * 0.08, radius * 0.08);
        gear =
            gear.united(QTransform().translate(centre.x(), centre.y()).rotate(45 * t).map(tooth));
    }
    QPainterPath hole;
    hole.addEllipse(centre, radius * 0.36, radius * 0.36);
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawPath(gear.subtracted(hole));
    p.restore();
}

QImage orbeWordMark()
{
    return wordMark(136, 40, true);
}

QImage tarnwickWordMark()
{
    return wordMark(315, 40, false);
}

QImage trayIcon()
{
    constexpr int size = 256;
    QImage image = Art::canvas(size, size);
    QPainter p(&image);
    Art::prepare(p);
    QLinearGradient fill(0, 0, size, size);
    fill.setColorAt(0, Art::colour(Art::Colour::accentLight));
    fill.setColorAt(1, Art::colour(Art::Colour::accentDark));
    p.setPen(Qt::NoPen);
    p.setBrush(fill);
    p.drawRoundedRect(QRectF(8, 8, size - 16, size - 16), 58, 58);
    drawOrbit(p, QPointF(size / 2.0, size / 2.0), 78, Art::colour(Art::Colour::white),
              Art::colour(Art::Colour::white));
    return image;
}

QImage orbeSplash()
{
    constexpr int w = 1280;
    constexpr int h = 900;
    QImage image = Art::canvas(w, h);
    QPainter p(&image);
    Art::prepare(p);
    QLinearGradient ground(0, 0, w, h);
    ground.setColorAt(0, QColor(0x7C, 0x48, 0xD6));
    ground.setColorAt(0.55, Art::colour(Art::Colour::accent));
    ground.setColorAt(1, QColor(0x34, 0x14, 0x6E));
    p.fillRect(image.rect(), ground);

    const QPointF centre(w / 2.0, 300);
    drawRings(p, centre, QColor(255, 255, 255, 22), {150, 250, 370, 510, 670});
    QRadialGradient halo(centre, 260);
    halo.setColorAt(0, QColor(255, 255, 255, 60));
    halo.setColorAt(1, QColor(255, 255, 255, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(halo);
    p.drawEllipse(centre, 260, 260);
    drawOrbit(p, centre, 92, Art::colour(Art::Colour::white), Art::colour(Art::Colour::white));

    KeyboardArt::drawInto(p, QRectF(250, 470, 780, 300), KeyboardArt::Layout::Compact75,
                          {.accents = true, .underglow = true});

    // A darker foot under the window's "searching" line.
    QLinearGradient foot(0, h - 160, 0, h);
    foot.setColorAt(0, QColor(20, 6, 48, 0));
    foot.setColorAt(1, QColor(20, 6, 48, 90));
    p.fillRect(QRectF(0, h - 160, w, 160), foot);
    return image;
}

QImage tarnwickSplash()
{
    constexpr int w = 1280;
    constexpr int h = 900;
    QImage image = Art::canvas(w, h);
    QPainter p(&image);
    Art::prepare(p);
    QLinearGradient ground(0, 0, 0, h);
    ground.setColorAt(0, Art::colour(Art::Colour::white));
    ground.setColorAt(1, Art::colour(Art::Colour::frame));
    p.fillRect(image.rect(), ground);

    drawGear(p, QPointF(1040, 250), 300, Art::colour(Art::Colour::accentPale));
    KeyboardArt::drawInto(p, QRectF(200, 250, 880, 420), KeyboardArt::Layout::Compact98,
                          {.accents = true, .underglow = false});

    // The window writes its white "searching" line on this purple foot.
    QLinearGradient foot(0, h - 150, 0, h);
    foot.setColorAt(0, Art::colour(Art::Colour::accentLight));
    foot.setColorAt(1, Art::colour(Art::Colour::accentDark));
    p.fillRect(QRectF(0, h - 130, w, 130), foot);
    return image;
}

} // namespace BrandArt
