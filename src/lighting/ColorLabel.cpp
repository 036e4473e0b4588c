#include "ColorLabel.h"

#include <QHash>
#include <QMouseEvent>
#include <QPainter>

namespace {

// One selected swatch per parent, for the whole program.
QHash<const QObject*, ColorLabel*>& selection()
{
    static QHash<const QObject*, ColorLabel*> map;
    return map;
}

constexpr int kOuterInset = 2;
constexpr int kSwatchInset = 4;
constexpr qreal kRingWidth = 2.0;

} // namespace

ColorLabel::ColorLabel(QWidget* parent) : QLabel(parent), m_color(Qt::white)
{
    setCursor(Qt::PointingHandCursor);
}

ColorLabel::~ColorLabel()
{
    // The parent's entry must not outlive the swatch it names.
    auto& map = selection();
    for (auto it = map.begin(); it != map.end();) {
        if (it.value() == this)
            it = map.erase(it);
        else
            ++it;
    }
}

void ColorLabel::setColor(const QColor& color)
{
    m_color = color;
    update();
}

bool ColorLabel::isSelected() const
{
    return selection().value(parent()) == this;
}

ColorLabel* ColorLabel::selectedOf(const QObject* parent)
{
    return selection().value(parent);
}

void ColorLabel::select()
{
    ColorLabel*& slot = selection()[parent()];
    ColorLabel* former = slot;
    slot = this;
    if (former && former != this) former->update();
    update();
}

void ColorLabel::mousePressEvent(QMouseEvent* event)
{
    select();
    emit pressed(m_color);
    event->accept();
}

void ColorLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF outer =
        QRectF(rect()).adjusted(kOuterInset, kOuterInset, -kOuterInset, -kOuterInset);
    const QRectF swatch = outer.adjusted(kSwatchInset, kSwatchInset, -kSwatchInset, -kSwatchInset);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_color);
    const qreal swatchRadius = std::min(swatch.width(), swatch.height()) / 2;
    painter.drawRoundedRect(swatch, swatchRadius, swatchRadius);
    if (isSelected()) {
        painter.setPen(QPen(m_color, kRingWidth));
        painter.setBrush(Qt::NoBrush);
        const qreal radius = std::min(outer.width(), outer.height()) / 2;
        painter.drawRoundedRect(outer, radius, radius);
    }
}
