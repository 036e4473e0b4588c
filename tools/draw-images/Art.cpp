#include "Art.h"

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QTextStream>
#include <cstdlib>
#include <vector>

namespace Art {

QImage canvas(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void prepare(QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
}

QPen linePen(QColor colour, qreal width)
{
    QPen pen(colour, width);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    return pen;
}

namespace {

// One box pass along rows (or columns when vertical) over premultiplied ARGB.
void boxPass(QImage& image, int radius, bool vertical)
{
    const int w = image.width();
    const int h = image.height();
    const int lines = vertical ? w : h;
    const int length = vertical ? h : w;
    const int window = 2 * radius + 1;
    std::vector<quint32> line(length);
    for (int l = 0; l < lines; ++l) {
        auto at = [&](int i) -> QRgb& {
            return vertical ? reinterpret_cast<QRgb*>(image.scanLine(i))[l]
                            : reinterpret_cast<QRgb*>(image.scanLine(l))[i];
        };
        for (int i = 0; i < length; ++i)
            line[i] = at(i);
        int sum[4] = {0, 0, 0, 0};
        auto add = [&](int i, int sign) {
            if (i < 0 || i >= length) return;
            const quint32 p = line[i];
            sum[0] += sign * int(qAlpha(p));
            sum[1] += sign * int(qRed(p));
            sum[2] += sign * int(qGreen(p));
            sum[3] += sign * int(qBlue(p));
        };
        for (int i = -radius; i <= radius; ++i)
            add(i, 1);
        for (int i = 0; i < length; ++i) {
            at(i) = qRgba(sum[1] / window, sum[2] / window, sum[3] / window, sum[0] / window);
            add(i - radius, -1);
            add(i + radius + 1, 1);
        }
    }
}

} // namespace

void blur(QImage& image, int radius)
{
    if (radius < 1) return;
    if (image.format() != QImage::Format_ARGB32_Premultiplied)
        image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const int box = qMax(1, radius / 2);
    for (int pass = 0; pass < 3; ++pass) {
        boxPass(image, box, false);
        boxPass(image, box, true);
    }
}

void shadow(QPainter& painter, const QPainterPath& path, QPointF offset, int radius, QColor colour)
{
    QPaintDevice* device = painter.device();
    QImage layer = canvas(device->width(), device->height());
    {
        QPainter p(&layer);
        prepare(p);
        p.setTransform(painter.transform());
        p.translate(offset);
        p.setPen(Qt::NoPen);
        p.setBrush(colour);
        p.drawPath(path);
    }
    blur(layer, radius);
    painter.save();
    painter.resetTransform();
    painter.drawImage(0, 0, layer);
    painter.restore();
}

void save(const QImage& image, const QString& path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QImageWriter writer(path, "png");
    writer.setQuality(0); // for PNG: the strongest compression
    // Straight alpha in the file, and no time stamp: the same drawing gives the same bytes.
    if (!writer.write(image.convertToFormat(QImage::Format_ARGB32))) {
        QTextStream(stderr) << "cannot write " << path << ": " << writer.errorString() << '\n';
        std::exit(1);
    }
}

} // namespace Art
