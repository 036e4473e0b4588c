#include "ColorSquare.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace {

constexpr int kRingRadius = 8;
constexpr int kRingWidth = 3;

double clamp01(double v)
{
    return std::clamp(v, 0.0, 1.0);
}

} // namespace

ColorSquare::ColorSquare(QWidget* parent) : QFrame(parent)
{
    setCursor(Qt::CrossCursor);
}

double ColorSquare::saturation() const
{
    return width() > 0 ? clamp01(m_x / width()) : 0.0;
}

double ColorSquare::value() const
{
    return height() > 0 ? clamp01((height() - m_y) / height()) : 0.0;
}

QColor ColorSquare::colorAt(double x, double y) const
{
    const double s = width() > 0 ? clamp01(x / width()) : 0.0;
    const double v = height() > 0 ? clamp01((height() - y) / height()) : 0.0;
    return QColor::fromHsvF(float(m_hue), float(s), float(v), 1.0f);
}

QColor ColorSquare::currentColor() const
{
    return colorAt(m_x, m_y);
}

void ColorSquare::setColor(const QColor& color)
{
    const QColor hsv = color.toHsv();
    m_hue = std::max(0.0f, hsv.hsvHueF());
    m_x = hsv.hsvSaturationF() * width();
    m_y = (1.0 - hsv.valueF()) * height();
    update();
}

void ColorSquare::setHue(double hue)
{
    m_hue = clamp01(hue);
    m_reportPending = true;
    update();
}

void ColorSquare::setSaturation(double saturation)
{
    m_x = clamp01(saturation) * width();
    update();
}

void ColorSquare::setValue(double value)
{
    m_y = (1.0 - clamp01(value)) * height();
    update();
}

void ColorSquare::setCheckedColor(char checked)
{
    m_mode = checked;
    m_imageHue = -1;
    update();
}

void ColorSquare::render()
{
    const QSize size(width() + 1, height() + 1);
    if (m_image.size() == size && m_imageHue == m_hue) return;
    m_image = QImage(size, QImage::Format_RGB32);
    m_imageHue = m_hue;
    const double w = std::max(1, width());
    const double h = std::max(1, height());
    for (int y = 0; y < size.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(m_image.scanLine(y));
        const float v = float(clamp01((h - y) / h));
        for (int x = 0; x < size.width(); ++x)
            line[x] = QColor::fromHsvF(float(m_hue), float(clamp01(x / w)), v).rgb();
    }
}

void ColorSquare::paintEvent(QPaintEvent*)
{
    render();
    QPainter painter(this);
    painter.drawImage(0, 0, m_image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(value() <= 0.5 ? Qt::white : Qt::black, kRingWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(m_x, m_y), kRingRadius, kRingRadius);
    if (m_reportPending) {
        m_reportPending = false;
        emit colorSelected(shownColor());
    }
}

void ColorSquare::resizeEvent(QResizeEvent* event)
{
    // Keep the colour under the pointer when the square changes size.
    const QSize old = event->oldSize();
    if (old.width() > 0 && old.height() > 0) {
        m_x = m_x * width() / old.width();
        m_y = m_y * height() / old.height();
    }
    QFrame::resizeEvent(event);
}

void ColorSquare::pickAt(const QPointF& position)
{
    m_x = std::clamp(position.x(), 0.0, double(width()));
    m_y = std::clamp(position.y(), 0.0, double(height()));
    update();
    emit colorSelected(shownColor());
}

QColor ColorSquare::shownColor() const
{
    // The image of the last paint decides, as the user saw it; before any paint, the same
    // colour computed.
    const QPoint pixel{int(m_x), int(m_y)};
    return m_image.valid(pixel) ? m_image.pixelColor(pixel) : currentColor();
}

void ColorSquare::mousePressEvent(QMouseEvent* event)
{
    pickAt(event->position());
}

void ColorSquare::mouseMoveEvent(QMouseEvent* event)
{
    pickAt(event->position());
}
