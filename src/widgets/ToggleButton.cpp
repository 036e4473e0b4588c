#include "ToggleButton.h"

#include <QMouseEvent>
#include <QPainter>

namespace {
constexpr QSize smallest(52, 24);
}

ToggleButton::ToggleButton(QWidget* parent)
    : QCheckBox(parent), checkedColor(0x63, 0x29, 0xB6), uncheckedColor(Qt::gray)
{
    setMinimumSize(smallest);
    setCursor(Qt::PointingHandCursor);
}

QSize ToggleButton::sizeHint() const
{
    return smallest;
}

QSize ToggleButton::minimumSizeHint() const
{
    return smallest;
}

bool ToggleButton::hitButton(const QPoint& pos) const
{
    return rect().contains(pos);
}

void ToggleButton::mouseReleaseEvent(QMouseEvent* event)
{
    // The whole switch is the button: a release anywhere on it while enabled flips it.
    if (!isEnabled()) return;
    setDown(false);
    click();
    update();
    event->accept();
}

void ToggleButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    const QRectF pill = QRectF(rect()).adjusted(1, 1, -1, -1);
    const QColor fill = !isEnabled()  ? QColor(Qt::lightGray)
                        : isChecked() ? checkedColor
                                      : uncheckedColor;
    painter.setBrush(fill);
    painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);

    const QRectF inner = pill.adjusted(2, 2, -2, -2);
    const qreal side = inner.height();
    const QRectF knob(isChecked() ? inner.right() - side : inner.left(), inner.top(), side, side);
    painter.setBrush(isChecked() ? QColor(Qt::white) : QColor(0xE0, 0xE0, 0xE0));
    painter.drawEllipse(knob);
}
