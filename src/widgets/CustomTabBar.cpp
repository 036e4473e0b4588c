#include "CustomTabBar.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPropertyAnimation>

namespace {

constexpr int slideMs = 300;
constexpr int barHeight = 3;
constexpr int underlineInset = 20;
constexpr int underlineLift = 6;
const QColor slidingBarColor(0x34, 0x98, 0xDB);
const QColor selectedTextColor(0x63, 0x29, 0xB6);

QPropertyAnimation* slide(QObject* target, const char* property)
{
    auto* animation = new QPropertyAnimation(target, property, target);
    animation->setDuration(slideMs);
    animation->setEasingCurve(QEasingCurve::OutQuart);
    return animation;
}

} // namespace

CustomTabBar::CustomTabBar(QWidget* parent)
    : QTabBar(parent), xAnimation(slide(this, "currentX")), normalColor(0xF0, 0xF0, 0xF0),
      hoverColor(0xDC, 0xDC, 0xDC), selectedColor(0xFF, 0xFF, 0xFF)
{
    slide(this, "currentWidth");
    setMouseTracking(true);
    setDrawBase(false);
    connect(this, &QTabBar::currentChanged, this, &CustomTabBar::onCurrentChanged);
}

void CustomTabBar::setCurrentX(int x)
{
    currentX = x;
    update();
}

void CustomTabBar::setCurrentWidth(int width)
{
    currentWidth = width;
    update();
}

void CustomTabBar::onCurrentChanged(int index)
{
    if (index < 0 || index >= count()) return;
    const QRect target = tabRect(index);
    xAnimation->stop();
    xAnimation->setStartValue(currentX);
    xAnimation->setEndValue(target.x());

    QPropertyAnimation* widthAnimation = nullptr;
    const QList<QPropertyAnimation*> animations = findChildren<QPropertyAnimation*>();
    for (QPropertyAnimation* animation : animations) {
        if (animation->propertyName() == "currentWidth") widthAnimation = animation;
    }
    if (widthAnimation) {
        widthAnimation->stop();
        widthAnimation->setStartValue(currentWidth);
        widthAnimation->setEndValue(target.width());
        widthAnimation->start();
    }
    xAnimation->start();
}

bool CustomTabBar::event(QEvent* event)
{
    int nowHovered = hovered;
    if (event->type() == QEvent::MouseMove)
        nowHovered = tabAt(static_cast<QMouseEvent*>(event)->position().toPoint());
    else if (event->type() == QEvent::Leave)
        nowHovered = -1;
    if (nowHovered != hovered) {
        hovered = nowHovered;
        update();
    }
    return QTabBar::event(event);
}

void CustomTabBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    // The sliding bar goes first and the tab backgrounds over it, so where a tab stands it is
    // covered; the selected tab's own underline is what shows. Deliberately so.
    painter.setPen(Qt::NoPen);
    painter.setBrush(slidingBarColor);
    painter.drawRoundedRect(QRectF(currentX, height() - barHeight, currentWidth, barHeight), 1.5,
                            1.5);

    const int selected = currentIndex();
    for (int i = 0; i < count(); ++i) {
        const QRect r = tabRect(i);
        const bool isSelected = i == selected;
        painter.fillRect(r, isSelected ? selectedColor : i == hovered ? hoverColor : normalColor);

        QFont font = painter.font();
        font.setWeight(isSelected ? QFont::ExtraBold : QFont::Normal);
        painter.setFont(font);
        painter.setPen(isSelected     ? selectedTextColor
                       : i == hovered ? QColor(Qt::blue)
                                      : QColor(Qt::black));
        painter.drawText(r, Qt::AlignCenter, tabText(i));

        if (isSelected) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(selectedTextColor);
            painter.drawRoundedRect(QRectF(r.x() + underlineInset, r.bottom() + 1 - underlineLift,
                                           r.width() - 2 * underlineInset, barHeight),
                                    1.5, 1.5);
        }
    }
}
