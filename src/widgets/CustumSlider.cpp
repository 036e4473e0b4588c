#include "CustumSlider.h"

#include <QMouseEvent>

CustumSlider::CustumSlider(QWidget* parent) : QSlider(parent) {}

CustumSlider::CustumSlider(Qt::Orientation orientation, QWidget* parent)
    : QSlider(orientation, parent)
{
}

int CustumSlider::valueAt(const QPoint& pos) const
{
    const qint64 range = qint64(maximum()) - minimum();
    if (orientation() == Qt::Horizontal)
        return width() > 0 ? int(minimum() + range * pos.x() / width()) : minimum();
    return height() > 0 ? int(minimum() + range * (height() - pos.y()) / height()) : minimum();
}

void CustumSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QSlider::mousePressEvent(event);
        return;
    }
    setValue(valueAt(event->position().toPoint()));
    dragging = true;
    event->accept();
}

void CustumSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (!dragging) {
        QSlider::mouseMoveEvent(event);
        return;
    }
    setValue(valueAt(event->position().toPoint()));
    event->accept();
}

void CustumSlider::mouseReleaseEvent(QMouseEvent* event)
{
    if (dragging && event->button() == Qt::LeftButton) {
        dragging = false;
        event->accept();
        return;
    }
    QSlider::mouseReleaseEvent(event);
}
