#include "CustomTooltip.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace {
constexpr int hideAfterLeaveMs = 1000;
const QString defaultTextStyle = QStringLiteral("QLabel { color: #333333; }");
} // namespace

CustomTooltip::CustomTooltip(QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint), label(new QLabel(this))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setCursor(Qt::PointingHandCursor);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(defaultTextStyle);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->addWidget(label);

    hideTimer.setInterval(hideAfterLeaveMs);
    connect(&hideTimer, &QTimer::timeout, this, [this] {
        hideTimer.stop();
        hide();
    });
}

void CustomTooltip::setText(const QString& text)
{
    label->setText(text);
    adjustSize();
}

QString CustomTooltip::text() const
{
    return label->text();
}

void CustomTooltip::setTextStyle(const QString& styleSheet)
{
    label->setStyleSheet(styleSheet);
}

void CustomTooltip::enterEvent(QEnterEvent* event)
{
    hideTimer.stop();
    QWidget::enterEvent(event);
}

void CustomTooltip::leaveEvent(QEvent* event)
{
    hideTimer.start(hideAfterLeaveMs);
    QWidget::leaveEvent(event);
}

void CustomTooltip::focusOutEvent(QFocusEvent* event)
{
    hide();
    QWidget::focusOutEvent(event);
}

void CustomTooltip::mousePressEvent(QMouseEvent* event)
{
    emit onClicked();
    hide();
    hideTimer.stop();
    event->accept();
}

void CustomTooltip::paintEvent(QPaintEvent*)
{
    // The window is translucent; the card under the text is ours to draw.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(0xEA, 0xEA, 0xEA));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
}
