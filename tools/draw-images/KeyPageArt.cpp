#include "KeyPageArt.h"

#include "Art.h"

#include <QPainterPath>
#include <QTransform>
#include <array>
#include <functional>

namespace KeyPageArt {

namespace {

// Everything is drawn on a 24-unit grid and scaled.
using Draw = std::function<void(QPainter&, QColor)>;

constexpr int kArrowSize = 36; // shown at 18
constexpr int kTileSize = 128; // shown at 64
constexpr qreal kTileGlyph = 60;
constexpr int kMouseSize = 64; // shown at 32
constexpr qreal kStroke = 1.8;

void stroke(QPainter& p, QColor c, qreal width = kStroke)
{
    p.setPen(Art::linePen(c, width));
    p.setBrush(Qt::NoBrush);
}

void solid(QPainter& p, QColor c)
{
    p.setPen(Qt::NoPen);
    p.setBrush(c);
}

QPainterPath triangle(QPointF a, QPointF b, QPointF c)
{
    QPainterPath path;
    path.moveTo(a);
    path.lineTo(b);
    path.lineTo(c);
    path.closeSubpath();
    return path;
}

// ---- the arrow keys

QImage arrow(qreal angle)
{
    QImage image = Art::canvas(kArrowSize, kArrowSize);
    QPainter p(&image);
    Art::prepare(p);
    p.translate(kArrowSize / 2.0, kArrowSize / 2.0);
    p.rotate(angle);
    p.scale(kArrowSize / 24.0, kArrowSize / 24.0);
    stroke(p, Art::colour(Art::Colour::ink), 2.4);
    p.drawLine(QPointF(0, 7), QPointF(0, -7));
    p.drawLine(QPointF(-5.5, -1.5), QPointF(0, -7));
    p.drawLine(QPointF(5.5, -1.5), QPointF(0, -7));
    return image;
}

// ---- glyphs of the system functions

void speaker(QPainter& p, QColor c)
{
    QPainterPath body;
    body.moveTo(3.5, 9.5);
    body.lineTo(7, 9.5);
    body.lineTo(11.5, 5.5);
    body.lineTo(11.5, 18.5);
    body.lineTo(7, 14.5);
    body.lineTo(3.5, 14.5);
    body.closeSubpath();
    stroke(p, c);
    p.drawPath(body);
}

void magnifier(QPainter& p, QColor c)
{
    stroke(p, c);
    p.drawEllipse(QPointF(10.5, 10.5), 6.5, 6.5);
    p.drawLine(QPointF(15.3, 15.3), QPointF(20.5, 20.5));
}

void sun(QPainter& p, QColor c, qreal rays)
{
    stroke(p, c);
    p.drawEllipse(QPointF(12, 12), 4, 4);
    for (int i = 0; i < 8; ++i) {
        const QTransform turn = QTransform().translate(12, 12).rotate(45.0 * i);
        p.drawLine(turn.map(QPointF(0, -6.8)), turn.map(QPointF(0, -6.8 - rays)));
    }
}

void plusAt(QPainter& p, QPointF centre, qreal half)
{
    p.drawLine(centre - QPointF(half, 0), centre + QPointF(half, 0));
    p.drawLine(centre - QPointF(0, half), centre + QPointF(0, half));
}

struct SystemGlyph
{
    const char* file;
    Draw draw;
};

const std::array<SystemGlyph, 19>& systemGlyphs()
{
    static const std::array<SystemGlyph, 19> glyphs{{
        {"fn.png", // previous track
         [](QPainter& p, QColor c) {
             solid(p, c);
             p.drawPath(triangle({12, 6}, {12, 18}, {4.5, 12}));
             p.drawPath(triangle({19.5, 6}, {19.5, 18}, {12, 12}));
             p.drawRoundedRect(QRectF(2.5, 6, 2, 12), 0.8, 0.8);
         }},
        {"houtui.png", // next track
         [](QPainter& p, QColor c) {
             solid(p, c);
             p.drawPath(triangle({4.5, 6}, {4.5, 18}, {12, 12}));
             p.drawPath(triangle({12, 6}, {12, 18}, {19.5, 12}));
             p.drawRoundedRect(QRectF(19.5, 6, 2, 12), 0.8, 0.8);
         }},
        {"kuaijin.png", // play and pause
         [](QPainter& p, QColor c) {
             solid(p, c);
             p.drawPath(triangle({3.5, 6}, {3.5, 18}, {12, 12}));
             p.drawRoundedRect(QRectF(14, 6, 2.6, 12), 0.8, 0.8);
             p.drawRoundedRect(QRectF(18.6, 6, 2.6, 12), 0.8, 0.8);
         }},
        {"zanting.png", // stop
         [](QPainter& p, QColor c) {
             solid(p, c);
             p.drawRoundedRect(QRectF(6, 6, 12, 12), 2, 2);
         }},
        {"guanbiyinliang.png", // mute
         [](QPainter& p, QColor c) {
             speaker(p, c);
             p.drawLine(QPointF(15, 9.5), QPointF(20, 14.5));
             p.drawLine(QPointF(20, 9.5), QPointF(15, 14.5));
         }},
        {"yinliangjia.png", // volume up
         [](QPainter& p, QColor c) {
             speaker(p, c);
             plusAt(p, {17.5, 12}, 3.2);
         }},
        {"yinliangjian.png", // volume down
         [](QPainter& p, QColor c) {
             speaker(p, c);
             p.drawLine(QPointF(14.3, 12), QPointF(20.7, 12));
         }},
        {"yinyue.png", // music player
         [](QPainter& p, QColor c) {
             stroke(p, c);
             p.drawLine(QPointF(9, 17), QPointF(9, 5));
             p.drawLine(QPointF(9, 5), QPointF(19, 3.5));
             p.drawLine(QPointF(19, 3.5), QPointF(19, 15.5));
             solid(p, c);
             p.drawEllipse(QPointF(6.5, 17.5), 3, 2.4);
             p.drawEllipse(QPointF(16.5, 16), 3, 2.4);
         }},
        {"jisuanqi.png", // calculator
         [](QPainter& p, QColor c) {
             stroke(p, c);
             p.drawRoundedRect(QRectF(5, 2.5, 14, 19), 2.4, 2.4);
             p.drawRect(QRectF(8, 5.5, 8, 4));
             p.setPen(Art::linePen(c, 2.3));
             for (qreal y : {13.0, 17.0})
                 for (qreal x : {8.5, 12.0, 15.5})
                     p.drawPoint(QPointF(x, y));
         }},
        {"youjian.png", // mail
         [](QPainter& p, QColor c) {
             stroke(p, c);
             p.drawRoundedRect(QRectF(3, 5.5, 18, 13), 2, 2);
             QPainterPath flap;
             flap.moveTo(3.8, 6.5);
             flap.lineTo(12, 13);
             flap.lineTo(20.2, 6.5);
             p.drawPath(flap);
         }},
        {"frame.png", // my computer
         [](QPainter& p, QColor c) {
             stroke(p, c);
             p.drawRoundedRect(QRectF(3, 4, 18, 12.5), 1.8, 1.8);
             p.drawLine(QPointF(12, 16.5), QPointF(12, 20));
             p.drawLine(QPointF(8, 20.2), QPointF(16, 20.2));
         }},
        {"sousuo.png", [](QPainter& p, QColor c) { magnifier(p, c); }},
        {"shouye.png", // home
         [](QPainter& p, QColor c) {
             stroke(p, c);
             QPainterPath house;
             house.moveTo(3, 11.5);
             house.lineTo(12, 3.8);
             house.lineTo(21, 11.5);
             house.moveTo(5.5, 9.6);
             house.lineTo(5.5, 20.3);
             house.lineTo(18.5, 20.3);
             house.lineTo(18.5, 9.6);
             p.drawPath(house);
             p.drawRect(QRectF(10, 14.5, 4, 5.8));
         }},
        {"shuaxin.png", // refresh
         [](QPainter& p, QColor c) {
             stroke(p, c);
             p.drawArc(QRectF(4.5, 4.5, 15, 15), 60 * 16, 270 * 16);
             solid(p, c);
             p.drawPath(triangle({15.2, 2.4}, {20.2, 6.4}, {14.0, 8.8}));
         }},
        {"jianpanliangdujia.png", // keyboard light up
         [](QPainter& p, QColor c) {
             p.save();
             p.translate(-2, 0);
             sun(p, c, 1.8);
             p.restore();
             stroke(p, c);
             plusAt(p, {19.5, 18.5}, 2.6);
         }},
        {"jianpanliangdu.png", [](QPainter& p, QColor c) { sun(p, c, 2.4); }},
        {"fangda.png", // zoom in
         [](QPainter& p, QColor c) {
             magnifier(p, c);
             plusAt(p, {10.5, 10.5}, 3);
         }},
        {"suoxiao.png", // zoom out
         [](QPainter& p, QColor c) {
             magnifier(p, c);
             p.drawLine(QPointF(7.5, 10.5), QPointF(13.5, 10.5));
         }},
        {"yuyin.png", // voice
         [](QPainter& p, QColor c) {
             stroke(p, c);
             p.drawRoundedRect(QRectF(9, 3, 6, 11), 3, 3);
             p.drawArc(QRectF(5.5, 6, 13, 11), 180 * 16, 180 * 16);
             p.drawLine(QPointF(12, 17), QPointF(12, 21));
             p.drawLine(QPointF(8.5, 21), QPointF(15.5, 21));
         }},
    }};
    return glyphs;
}

// A function tile: pale with a purple glyph, or purple with a white one when chosen.
QImage tile(const Draw& draw, bool chosen)
{
    QImage image = Art::canvas(kTileSize, kTileSize);
    QPainter p(&image);
    Art::prepare(p);
    const QColor face = Art::colour(chosen ? Art::Colour::accent : Art::Colour::accentPale);
    const QColor ink = Art::colour(chosen ? Art::Colour::white : Art::Colour::accentDark);
    solid(p, face);
    p.drawRoundedRect(QRectF(2, 2, kTileSize - 4, kTileSize - 4), 28, 28);
    p.translate((kTileSize - kTileGlyph) / 2, (kTileSize - kTileGlyph) / 2);
    p.scale(kTileGlyph / 24.0, kTileGlyph / 24.0);
    draw(p, ink);
    return image;
}

// ---- the mouse functions: a mouse with the part that acts marked, and arrows beside it

enum class Part { Left, Right, Middle, None };

void mouseBody(QPainter& p, QColor c, Part marked)
{
    const QRectF body(6, 3, 12, 18);
    if (marked == Part::Left || marked == Part::Right) {
        QPainterPath half;
        const qreal x = marked == Part::Left ? 6 : 12;
        half.addRect(QRectF(x, 3, 6, 7.5));
        QPainterPath shell;
        shell.addRoundedRect(body, 6, 6);
        solid(p, Art::colour(Art::Colour::accent));
        p.drawPath(half.intersected(shell));
    }
    stroke(p, c, 1.6);
    p.drawRoundedRect(body, 6, 6);
    p.drawLine(QPointF(6, 10.5), QPointF(18, 10.5));
    p.drawLine(QPointF(12, 3), QPointF(12, 10.5));
    if (marked == Part::Middle) {
        solid(p, Art::colour(Art::Colour::accent));
        p.drawRoundedRect(QRectF(10.6, 4.8, 2.8, 4.6), 1.4, 1.4);
    }
}

void smallArrow(QPainter& p, QPointF tip, qreal angle)
{
    p.save();
    p.translate(tip);
    p.rotate(angle);
    solid(p, Art::colour(Art::Colour::accent));
    p.drawPath(triangle({0, 0}, {-2.6, 3.4}, {2.6, 3.4}));
    p.restore();
}

struct MouseGlyph
{
    const char* file;
    Part part;
    // Arrows: tip and direction (0 up, 90 right, 180 down, 270 left); a second tip doubles it.
    std::array<qreal, 3> arrow; // x, y, angle; angle < 0 means none
    bool doubled;
};

constexpr std::array<MouseGlyph, 11> kMouseGlyphs{{
    {"left.png", Part::Left, {0, 0, -1}, false},
    {"right.png", Part::Right, {0, 0, -1}, false},
    {"middle.png", Part::Middle, {0, 0, -1}, false},
    {"forward.png", Part::None, {23.5, 12, 90}, false},
    {"back.png", Part::None, {0.5, 12, 270}, false},
    {"wheel-left.png", Part::Middle, {0.5, 7, 270}, false},
    {"wheel-right.png", Part::Middle, {23.5, 7, 90}, false},
    {"wheel-up.png", Part::Middle, {21.5, 2, 0}, false},
    {"wheel-down.png", Part::Middle, {21.5, 12, 180}, false},
    {"page-up.png", Part::Middle, {21.5, 2, 0}, true},
    {"page-down.png", Part::Middle, {21.5, 12, 180}, true},
}};

QImage mouse(const MouseGlyph& glyph)
{
    QImage image = Art::canvas(kMouseSize, kMouseSize);
    QPainter p(&image);
    Art::prepare(p);
    p.scale(kMouseSize / 24.0, kMouseSize / 24.0);
    mouseBody(p, Art::colour(Art::Colour::icon), glyph.part);
    if (glyph.arrow[2] >= 0) {
        const QPointF tip(glyph.arrow[0], glyph.arrow[1]);
        smallArrow(p, tip, glyph.arrow[2]);
        if (glyph.doubled) {
            const qreal step = glyph.arrow[2] == 0 ? 4 : -4;
            smallArrow(p, tip + QPointF(0, step), glyph.arrow[2]);
        }
    }
    return image;
}

} // namespace

void saveAll(const QString& res)
{
    Art::save(arrow(0), res + "k/key-up.png");
    Art::save(arrow(180), res + "k/key-dpwn.png");
    Art::save(arrow(270), res + "k/key-left.png");
    Art::save(arrow(90), res + "k/key-right.png");
    for (const SystemGlyph& glyph : systemGlyphs()) {
        Art::save(tile(glyph.draw, false), res + "macro/fn0/" + glyph.file);
        Art::save(tile(glyph.draw, true), res + "macro/fn1/" + glyph.file);
    }
    for (const MouseGlyph& glyph : kMouseGlyphs)
        Art::save(mouse(glyph), res + "macro/mouse/" + glyph.file);
}

} // namespace KeyPageArt
