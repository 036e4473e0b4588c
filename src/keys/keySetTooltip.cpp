#include "keySetTooltip.h"

#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>
#include <cmath>

namespace {

constexpr int kRadius = 12;
constexpr int kPointRoom = 10; // free below the card, where the point sits
constexpr double kPointSide = 14;
const QColor kBorder(0xD8, 0xBD, 0xFF);
const QColor kFill(0xFA, 0xF7, 0xFF);
const char* const kLabelStyle = "QLabel { color: black; background: transparent; }";

} // namespace

keySetTooltip::keySetTooltip(QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus),
      labelTitle(new QLabel(this)), labelBody(new QLabel(this))
{
    setObjectName(QStringLiteral("keySetTooltip"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 8, 10, 16);
    layout->setSpacing(4);
    auto* rule = new QFrame(this);
    rule->setFixedHeight(2);
    rule->setStyleSheet(QStringLiteral("QFrame { background-color: black; border: none; }"));
    for (QLabel* label : {labelTitle, labelBody}) {
        label->setAlignment(Qt::AlignCenter);
        label->setStyleSheet(QLatin1String(kLabelStyle));
    }
    labelTitle->setStyleSheet(QLatin1String(kLabelStyle) +
                              QStringLiteral("QLabel { font-weight: 600; }"));
    layout->addWidget(labelTitle);
    layout->addWidget(rule);
    layout->addWidget(labelBody);
}

void keySetTooltip::setTexts(const QString& title, const QString& body)
{
    if (title == labelTitle->text() && body == labelBody->text()) return;
    labelTitle->setText(title);
    labelBody->setText(body);
    labelTitle->adjustSize();
    labelBody->adjustSize();
    adjustSize();
}

QString keySetTooltip::title() const
{
    return labelTitle->text();
}

QString keySetTooltip::body() const
{
    return labelBody->text();
}

void keySetTooltip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF card = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5 - kPointRoom);
    painter.setPen(kBorder);
    painter.setBrush(kFill);
    painter.drawRoundedRect(card, kRadius, kRadius);

    // An equilateral point below the card; its top edge is painted over in the fill colour so
    // that card and point read as one shape.
    const double h = kPointSide * std::sqrt(3.0) / 2;
    const double cx = width() / 2.0;
    const double top = card.bottom();
    QPainterPath point;
    point.moveTo(cx - kPointSide / 2, top);
    point.lineTo(cx + kPointSide / 2, top);
    point.lineTo(cx, std::min(top + h, double(height()) - 0.5));
    point.closeSubpath();
    painter.drawPath(point);
    painter.setPen(QPen(kFill, 2));
    painter.drawLine(QPointF(cx - kPointSide / 2 + 1.5, top),
                     QPointF(cx + kPointSide / 2 - 1.5, top));
}
