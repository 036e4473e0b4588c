#include "DksArt.h"

#include "Art.h"

#include <QPainterPath>
#include <algorithm>
#include <array>
#include <functional>

namespace DksArt {

namespace {

// Drawn at twice the size they are shown at.
constexpr int kPhaseSize = 64;  // shown at 32
constexpr int kSwitchSize = 42; // shown at 21, the switch cells of a row

enum class Motion { Down, Up };

struct Phase
{
    const char* file;
    qreal capTop;   // the key cap's top on the 24-unit grid: 3 at rest, 13 bottomed out
    Motion motion;  // which way the arrow beside it points
    bool actuation; // the actuation line, which the press and the return cross
};
// Press: on its way down past the actuation line. Bottom: down on the plate. Lift: leaving the
// plate. Peak: back up past the line.
constexpr std::array<Phase, 4> kPhases{{
    {"k/ic_press.png", 7.5, Motion::Down, true},
    {"k/ic_bottom.png", 12.5, Motion::Down, false},
    {"k/ic_lift.png", 12.5, Motion::Up, false},
    {"k/ic_peak.png", 4, Motion::Up, true},
}};

void arrow(QPainter& p, qreal x, qreal from, qreal to)
{
    const QColor accent = Art::colour(Art::Colour::accent);
    p.setPen(Art::linePen(accent, 1.8));
    p.setBrush(Qt::NoBrush);
    p.drawLine(QPointF(x, from), QPointF(x, to));
    const qreal head = to > from ? -2.6 : 2.6;
    QPainterPath tip;
    tip.moveTo(x - 2.4, to + head);
    tip.lineTo(x, to);
    tip.lineTo(x + 2.4, to + head);
    p.drawPath(tip);
}

QImage phase(const Phase& phase)
{
    QImage image = Art::canvas(kPhaseSize, kPhaseSize);
    QPainter p(&image);
    Art::prepare(p);
    p.scale(kPhaseSize / 24.0, kPhaseSize / 24.0);

    const QColor frame = Art::colour(Art::Colour::icon);
    // The plate and the housing the stem runs in.
    p.setPen(Art::linePen(frame, 1.6));
    p.setBrush(Qt::NoBrush);
    p.drawLine(QPointF(2, 20.5), QPointF(17, 20.5));
    p.setPen(Qt::NoPen);
    p.setBrush(Art::colour(Art::Colour::border));
    p.drawRoundedRect(QRectF(4.5, 16.5, 10, 4), 1, 1);
    if (phase.actuation) {
        QPen dashed(Art::colour(Art::Colour::accentLight), 1.0, Qt::DashLine);
        dashed.setDashPattern({2.0, 1.6});
        p.setPen(dashed);
        p.drawLine(QPointF(1.5, 10), QPointF(17.5, 10));
    }
    // The stem and the cap, where the phase has them.
    const qreal top = phase.capTop;
    p.setPen(Qt::NoPen);
    p.setBrush(frame);
    p.drawRect(QRectF(8.6, top + 4.5, 1.8, std::max(0.0, 16.5 - top - 4.5)));
    p.setBrush(Art::colour(Art::Colour::accentPale));
    p.setPen(Art::linePen(Art::colour(Art::Colour::accent), 1.5));
    QPainterPath cap;
    cap.moveTo(3.5, top + 4.5);
    cap.lineTo(5.2, top);
    cap.lineTo(13.8, top);
    cap.lineTo(15.5, top + 4.5);
    cap.closeSubpath();
    p.drawPath(cap);
    if (phase.motion == Motion::Down)
        arrow(p, 20.5, 4, 13);
    else
        arrow(p, 20.5, 17, 6);
    if (top > 12) {
        // Bottomed out: the two short marks of the cap meeting the plate.
        p.setPen(Art::linePen(Art::colour(Art::Colour::accentLight), 1.2));
        p.drawLine(QPointF(1.5, 15.5), QPointF(2.8, 14));
        p.drawLine(QPointF(17.5, 15.5), QPointF(16.2, 14));
    }
    return image;
}

// A switch, on the 24-unit grid.
QImage switchPicture(const std::function<void(QPainter&)>& draw)
{
    QImage image = Art::canvas(kSwitchSize, kSwitchSize);
    QPainter p(&image);
    Art::prepare(p);
    p.scale(kSwitchSize / 24.0, kSwitchSize / 24.0);
    draw(p);
    return image;
}

// On: a purple disc with a white tick.
void switchOn(QPainter& p)
{
    p.setPen(Qt::NoPen);
    p.setBrush(Art::colour(Art::Colour::accent));
    p.drawEllipse(QRectF(1, 1, 22, 22));
    p.setPen(Art::linePen(Art::colour(Art::Colour::white), 2.4));
    p.setBrush(Qt::NoBrush);
    QPainterPath tick;
    tick.moveTo(7, 12.5);
    tick.lineTo(10.5, 16);
    tick.lineTo(17, 8.5);
    p.drawPath(tick);
}

// An empty place: a white disc, a grey rim and a plus.
void switchOff(QPainter& p)
{
    p.setPen(Art::linePen(Art::colour(Art::Colour::muted), 1.4));
    p.setBrush(Art::colour(Art::Colour::white));
    p.drawEllipse(QRectF(1.5, 1.5, 21, 21));
    p.setPen(Art::linePen(Art::colour(Art::Colour::icon), 1.8));
    p.drawLine(QPointF(12, 7.5), QPointF(12, 16.5));
    p.drawLine(QPointF(7.5, 12), QPointF(16.5, 12));
}

} // namespace

void saveAll(const QString& res)
{
    for (const Phase& p : kPhases)
        Art::save(phase(p), res + QLatin1String(p.file));
    Art::save(switchPicture(switchOn), res + "k/ic_selected.png");
    Art::save(switchPicture(switchOff), res + "k/ic_add.png");
}

} // namespace DksArt
