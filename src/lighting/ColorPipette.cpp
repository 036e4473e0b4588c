#include "ColorPipette.h"

#include <QPainter>
#include <QPainterPath>

ColorPipette::ColorPipette(QWidget* parent) : QDialog(parent, Qt::Tool | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("DialogPipette"));
    setFixedSize(kSize, kSize);
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowOpacity(0);
}

void ColorPipette::setSample(const QImage& sample)
{
    m_sample = sample;
    update();
}

void ColorPipette::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF circle(0.5, 0.5, height() - 1.0, height() - 1.0);
    QPainterPath clip;
    clip.addEllipse(circle);
    painter.setClipPath(clip);
    if (m_sample.isNull())
        painter.fillRect(circle, Qt::red);
    else
        painter.drawImage(circle, m_sample);
    painter.setClipping(false);
    painter.setPen(QPen(Qt::white, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(circle.adjusted(1, 1, -1, -1), circle.width() / 2, circle.height() / 2);
}
