#include "SuperLabel.h"

#include "CustomTooltip.h"

#include <QEvent>
#include <QHash>
#include <QPixmap>
#include <QPointer>

namespace {

constexpr int buildDelayMs = 100;
constexpr int showDelayMs = 100;
constexpr int toolTipDurationMs = 2'000'000;
constexpr int tipGap = 5;

// The selected label of each parent, process-wide.
QHash<const QObject*, QPointer<SuperLabel>>& selectedByParent()
{
    static QHash<const QObject*, QPointer<SuperLabel>> selected;
    return selected;
}

} // namespace

SuperLabel::SuperLabel(QWidget* parent) : QLabel(parent)
{
    showTimer.setSingleShot(true);
    showTimer.setInterval(showDelayMs);
    connect(&showTimer, &QTimer::timeout, this, &SuperLabel::showTooltip);
    // Built a little later, once the form has given the label its tool tip text.
    QTimer::singleShot(buildDelayMs, this, &SuperLabel::buildTooltip);
}

SuperLabel::~SuperLabel()
{
    auto& selected = selectedByParent();
    const auto it = selected.constFind(parent());
    if (it != selected.cend() && it.value() == this) selected.erase(it);
}

void SuperLabel::buildTooltip()
{
    if (!tip) {
        tip = new CustomTooltip(this);
        tip->setText(toolTip());
    }
    setToolTipDuration(toolTipDurationMs);
}

void SuperLabel::showTooltip()
{
    if (!tip) return;
    tip->adjustSize();
    tip->move(mapToGlobal(QPoint(width() + tipGap, (height() - tip->height()) / 2)));
    tip->show();
}

void SuperLabel::setPictures(const QString& on, const QString& off)
{
    pictureOn = on;
    pictureOff = off;
    if (!pictureOff.isEmpty()) setPixmap(QPixmap(pictureOff));
}

void SuperLabel::setStyles(const QString& on, const QString& off)
{
    styleOn = on;
    styleOff = off;
}

void SuperLabel::setSelected(bool selected)
{
    state = selected;
    // A label without pictures keeps its text: a null pixmap would clear it.
    const QString& picture = selected ? pictureOn : pictureOff;
    if (!picture.isEmpty()) setPixmap(QPixmap(picture));
    setStyleSheet(selected ? styleOn : styleOff);
    auto& selectedLabels = selectedByParent();
    if (!selected) {
        if (selectedLabels.value(parent()) == this) selectedLabels.remove(parent());
        return;
    }
    // Deselecting the previous label takes its entry out of the table: no reference into it
    // may be held across that call.
    const QPointer<SuperLabel> previous = selectedLabels.value(parent());
    if (previous && previous != this) previous->setSelected(false);
    selectedLabels.insert(parent(), this);
}

void SuperLabel::setTip(const QString& text)
{
    setText(QString());
    setToolTip(QString());
    if (!tip) buildTooltip();
    tip->setText(text);
}

bool SuperLabel::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Enter:
        showTimer.start();
        break;
    case QEvent::Leave:
        showTimer.stop();
        if (tip) tip->hide();
        break;
    case QEvent::MouseButtonPress:
        if (tip) tip->hide();
        break;
    default:
        break;
    }
    return QLabel::event(event);
}
