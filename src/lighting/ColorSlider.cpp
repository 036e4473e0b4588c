#include "ColorSlider.h"

#include <QLinearGradient>
#include <QPainter>
#include <array>

namespace {

constexpr std::array<QRgb, 7> kGradient{0xE9381D, 0xF4C33C, 0x71FB55, 0x6FEAFC,
                                        0x3000F6, 0xEB35D3, 0xE93738};
constexpr int kBarHeight = 16;

} // namespace

ColorSlider::ColorSlider(QWidget* parent) : CustumSlider(Qt::Horizontal, parent)
{
    for (QRgb rgb : kGradient)
        colors.append(QColor(rgb));
    setMinimumHeight(kBarHeight + 6);
    setCursor(Qt::PointingHandCursor);
}

void ColorSlider::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal top = (height() - kBarHeight) / 2.0;
    const QRectF bar(0, top, width(), kBarHeight);

    QLinearGradient gradient(bar.topLeft(), bar.topRight());
    for (int i = 0; i < colors.size(); ++i)
        gradient.setColorAt(colors.size() > 1 ? qreal(i) / (colors.size() - 1) : 0, colors.at(i));
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRoundedRect(bar, kBarHeight / 2.0, kBarHeight / 2.0);

    // The handle stays inside the bar at both ends.
    const qreal radius = kBarHeight / 2.0 + 2;
    const qreal span =
        maximum() > minimum() ? qreal(value() - minimum()) / (maximum() - minimum()) : 0.0;
    const QPointF centre(radius + span * (width() - 2 * radius), height() / 2.0);
    painter.setPen(QPen(QColor(0, 0, 0, 40), 1));
    painter.setBrush(Qt::white);
    painter.drawEllipse(centre, radius, radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromHsvF(float(span), 1.0f, 1.0f));
    painter.drawEllipse(centre, radius - 4, radius - 4);
}
