#include "PillRadioButton.h"

#include <QPainter>

namespace {

const QColor kAccent(0x63, 0x29, 0xB6);
const QColor kBorder(0xE2, 0xE2, 0xE2);
const QColor kText(0x33, 0x33, 0x33);
constexpr int kHeight = 30;
constexpr int kPadding = 14;

} // namespace

PillRadioButton::PillRadioButton(QWidget* parent) : QRadioButton(parent)
{
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

QSize PillRadioButton::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 2 * kPadding, kHeight};
}

bool PillRadioButton::hitButton(const QPoint& pos) const
{
    return rect().contains(pos); // the whole pill, not only an indicator
}

void PillRadioButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF pill = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const bool hover = underMouse() && isEnabled();
    QColor fill = Qt::white;
    QColor edge = hover ? kAccent : kBorder;
    QColor ink = hover ? kAccent : kText;
    if (isChecked()) {
        fill = edge = kAccent;
        ink = Qt::white;
    }
    if (!isEnabled()) ink = Qt::gray;
    painter.setPen(QPen(edge, 1));
    painter.setBrush(fill);
    painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    painter.setPen(ink);
    painter.drawText(rect(), Qt::AlignCenter, text());
}
