#include "MacroPageArt.h"

#include "Art.h"

#include <QPainterPath>

namespace MacroPageArt {

namespace {

constexpr int kSize = 36;
constexpr qreal kUnit = kSize / 24.0;
constexpr qreal kStroke = 2.0; // in design units

void drawTool(QPainter& p, Tool tool, QColor colour)
{
    p.setPen(Art::linePen(colour, kStroke));
    p.setBrush(Qt::NoBrush);
    QPainterPath path;
    switch (tool) {
    case Tool::Add:
        p.drawLine(QPointF(12, 5), QPointF(12, 19));
        p.drawLine(QPointF(5, 12), QPointF(19, 12));
        break;
    case Tool::Rename:
        // A pencil over a line.
        path.moveTo(5, 19);
        path.lineTo(5.8, 15.2);
        path.lineTo(15.6, 5.4);
        path.quadTo(17, 4, 18.4, 5.4);
        path.lineTo(18.6, 5.6);
        path.quadTo(20, 7, 18.6, 8.4);
        path.lineTo(8.8, 18.2);
        path.closeSubpath();
        p.drawPath(path);
        p.drawLine(QPointF(13.8, 7.2), QPointF(16.8, 10.2));
        break;
    case Tool::Delete:
        // A bin: lid, handle, body with two ribs.
        p.drawLine(QPointF(4.5, 7), QPointF(19.5, 7));
        path.moveTo(9.5, 7);
        path.lineTo(9.5, 5);
        path.quadTo(9.5, 4, 10.5, 4);
        path.lineTo(13.5, 4);
        path.quadTo(14.5, 4, 14.5, 5);
        path.lineTo(14.5, 7);
        path.moveTo(6.5, 7);
        path.lineTo(7.5, 19);
        path.quadTo(7.6, 20.2, 8.8, 20.2);
        path.lineTo(15.2, 20.2);
        path.quadTo(16.4, 20.2, 16.5, 19);
        path.lineTo(17.5, 7);
        p.drawPath(path);
        p.drawLine(QPointF(10.5, 10.5), QPointF(10.8, 16.5));
        p.drawLine(QPointF(13.5, 10.5), QPointF(13.2, 16.5));
        break;
    case Tool::Record:
        p.drawEllipse(QPointF(12, 12), 8, 8);
        p.setPen(Qt::NoPen);
        p.setBrush(colour);
        p.drawEllipse(QPointF(12, 12), 4.4, 4.4);
        break;
    case Tool::Stop:
        p.drawEllipse(QPointF(12, 12), 8, 8);
        p.setPen(Qt::NoPen);
        p.setBrush(colour);
        p.drawRoundedRect(QRectF(8.6, 8.6, 6.8, 6.8), 1.4, 1.4);
        break;
    case Tool::Insert:
        // A square with an arrow going in.
        path.addRoundedRect(QRectF(9, 4, 11, 16), 2.4, 2.4);
        p.drawPath(path);
        p.drawLine(QPointF(3.5, 12), QPointF(13.5, 12));
        p.drawLine(QPointF(10.5, 9), QPointF(13.5, 12));
        p.drawLine(QPointF(10.5, 15), QPointF(13.5, 12));
        break;
    case Tool::Clear:
        // An eraser on its side, over the line it wipes.
        path.moveTo(10, 19);
        path.lineTo(5.2, 14.2);
        path.quadTo(4, 13, 5.2, 11.8);
        path.lineTo(12.8, 4.2);
        path.quadTo(14, 3, 15.2, 4.2);
        path.lineTo(19.8, 8.8);
        path.quadTo(21, 10, 19.8, 11.2);
        path.lineTo(12, 19);
        path.closeSubpath();
        p.drawPath(path);
        p.drawLine(QPointF(8.6, 8.4), QPointF(15.6, 15.4));
        p.drawLine(QPointF(12, 20.5), QPointF(20, 20.5));
        break;
    case Tool::Save:
        // A floppy disc.
        path.moveTo(5, 6);
        path.quadTo(5, 4.5, 6.5, 4.5);
        path.lineTo(16, 4.5);
        path.lineTo(19.5, 8);
        path.lineTo(19.5, 18);
        path.quadTo(19.5, 19.5, 18, 19.5);
        path.lineTo(6.5, 19.5);
        path.quadTo(5, 19.5, 5, 18);
        path.closeSubpath();
        p.drawPath(path);
        p.drawRect(QRectF(8.5, 4.5, 6.5, 4.2));
        p.drawRect(QRectF(8, 13, 8.5, 6.5));
        break;
    }
}

QImage disc(QRgb fill, bool plus)
{
    QImage image = Art::canvas(kSize, kSize);
    QPainter p(&image);
    Art::prepare(p);
    p.setPen(QPen(Art::colour(Art::Colour::white), 2.5));
    p.setBrush(Art::colour(fill));
    p.drawEllipse(QRectF(1.5, 1.5, kSize - 3, kSize - 3));
    p.setPen(Art::linePen(Art::colour(Art::Colour::white), 3.2));
    const qreal c = kSize / 2.0;
    const qreal arm = plus ? 8.0 : 6.2;
    if (plus) {
        p.drawLine(QPointF(c - arm, c), QPointF(c + arm, c));
        p.drawLine(QPointF(c, c - arm), QPointF(c, c + arm));
    } else {
        p.drawLine(QPointF(c - arm, c - arm), QPointF(c + arm, c + arm));
        p.drawLine(QPointF(c - arm, c + arm), QPointF(c + arm, c - arm));
    }
    return image;
}

} // namespace

QImage checkedBox()
{
    QImage image = Art::canvas(kSize, kSize);
    QPainter p(&image);
    Art::prepare(p);
    p.setPen(Qt::NoPen);
    p.setBrush(Art::colour(Art::Colour::accent));
    p.drawRoundedRect(QRectF(1, 1, kSize - 2, kSize - 2), 8, 8);
    p.setPen(Art::linePen(Art::colour(Art::Colour::white), 3.6));
    QPainterPath tick;
    tick.moveTo(9.5, 18.5);
    tick.lineTo(15.5, 24.5);
    tick.lineTo(26.5, 12);
    p.setBrush(Qt::NoBrush);
    p.drawPath(tick);
    return image;
}

QImage tool(Tool which, bool light)
{
    QImage image = Art::canvas(kSize, kSize);
    QPainter p(&image);
    Art::prepare(p);
    p.scale(kUnit, kUnit);
    const QRgb colour = light                   ? Art::Colour::white
                        : which == Tool::Record ? Art::Colour::bad
                                                : Art::Colour::icon;
    drawTool(p, which, Art::colour(colour));
    return image;
}

QImage squareInsert()
{
    return disc(Art::Colour::accent, true);
}

QImage squareDelete()
{
    return disc(Art::Colour::bad, false);
}

void saveAll(const QString& folder)
{
    struct Named
    {
        Tool tool;
        const char* name;
    };
    constexpr Named kTools[] = {
        {Tool::Add, "add"},       {Tool::Rename, "rename"}, {Tool::Delete, "delete"},
        {Tool::Record, "record"}, {Tool::Insert, "insert"}, {Tool::Clear, "clear"},
        {Tool::Save, "save"},
    };
    for (const Named& entry : kTools)
        Art::save(tool(entry.tool), folder + QLatin1String(entry.name) + QStringLiteral(".png"));
    Art::save(tool(Tool::Rename, true), folder + QStringLiteral("rename-light.png"));
    Art::save(tool(Tool::Stop, true), folder + QStringLiteral("stop-light.png"));
    Art::save(tool(Tool::Save, true), folder + QStringLiteral("save-light.png"));
    Art::save(tool(Tool::Delete, true), folder + QStringLiteral("delete-light.png"));
    Art::save(checkedBox(), folder + QStringLiteral("checked.png"));
    Art::save(squareInsert(), folder + QStringLiteral("square-insert.png"));
    Art::save(squareDelete(), folder + QStringLiteral("square-delete.png"));
}

} // namespace MacroPageArt
