#include "ModuleDKSItem.h"

#include "Clock.h"

#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <algorithm>

namespace {

const QRect kFuncKeyGeometry(5, 7, 112, 26);
constexpr int kSwitchY = 10;
// The switches a drag may hide; the last one always shows.
constexpr int kHideable = 3;
constexpr int kDragEndMs = 500;

// The bar of a drag: where it may start and end, how high it is, its least width.
constexpr int kBarLeftMost = 130;
constexpr int kBarRightMost = 368;
constexpr int kBarLead = 15;
constexpr int kBarTail = 50;
constexpr int kBarY = 8;
constexpr int kBarHeight = 24;
constexpr int kBarRadius = 12;
constexpr int kBarLeast = 10;
const QColor kBarColour(0x63, 0x29, 0xB6);
const QColor kTrackColour(0xE6, 0xE1, 0xEE);

const char* const kSwitchOn = ":/images/k/ic_selected.png";
const char* const kSwitchOff = ":/images/k/ic_add.png";

const char* const kStyle = R"(
QPushButton#pushButton_FuncKey { background-color: #FFFFFF; color: #333333;
    border: 1px solid #E2E2E2; border-radius: 13px; font-size: 12px; padding: 0px 6px; }
QPushButton#pushButton_FuncKey:hover { border-color: #6329B6; color: #6329B6; }
)";

// The pictures are drawn at twice the size they show at.
QPixmap picture(const char* path)
{
    QPixmap pixmap(QString::fromLatin1(path));
    pixmap.setDevicePixelRatio(2);
    return pixmap;
}

} // namespace

ModuleDKSItem::ModuleDKSItem(Clock* clockIn, QWidget* parent)
    : QFrame(parent), pushButton_FuncKey(new QPushButton(this))
{
    Clock* clock = clockIn ? clockIn : QtClock::shared();
    setFixedSize(kWidth, kHeight);
    setStyleSheet(QLatin1String(kStyle));
    pushButton_FuncKey->setObjectName(QStringLiteral("pushButton_FuncKey"));
    pushButton_FuncKey->setGeometry(kFuncKeyGeometry);
    pushButton_FuncKey->setCursor(Qt::PointingHandCursor);
    pushButton_FuncKey->setFocusPolicy(Qt::NoFocus);
    for (int i = 0; i < kSwitches; ++i) {
        auto* label = new QLabel(this);
        label->setObjectName(QStringLiteral("labelSwitch%1").arg(i + 1));
        label->setGeometry(kSwitchX[i], kSwitchY, kSwitchSize, kSwitchSize);
        label->setCursor(Qt::PointingHandCursor);
        labelSwitch[i] = label;
        showState(i);
    }
    showKeyText();
    dragEnd = clock->createTimer(
        [this] {
            if (dragging) return;
            startX = 0;
            update();
        },
        true);
    connect(pushButton_FuncKey, &QPushButton::clicked, this, &ModuleDKSItem::onButtonClicked);
}

ModuleDKSItem::~ModuleDKSItem() = default;

void ModuleDKSItem::setKeyText(const QString& text)
{
    keyFunction = text;
    showKeyText();
}

QString ModuleDKSItem::keyText() const
{
    return pushButton_FuncKey->text();
}

void ModuleDKSItem::showKeyText()
{
    pushButton_FuncKey->setText(keyFunction.isEmpty() ? tr("未设置功能") : keyFunction);
}

void ModuleDKSItem::showState(int index)
{
    labelSwitch[index]->setPixmap(picture(states[index] ? kSwitchOn : kSwitchOff));
}

void ModuleDKSItem::mousePressEvent(QMouseEvent* event)
{
    if (startX == 0) startX = event->position().toPoint().x();
    dragging = true;
    QFrame::mousePressEvent(event);
}

void ModuleDKSItem::mouseMoveEvent(QMouseEvent* event)
{
    if (dragging) {
        dragEnd->stop();
        currentX = event->position().toPoint().x();
        bool anyHidden = false;
        for (int i = 0; i < kHideable; ++i) {
            const bool covered = kSwitchX[i] + kSwitchSize < currentX && kSwitchX[i] > startX;
            labelSwitch[i]->setVisible(!covered);
            anyHidden = anyHidden || covered;
        }
        if (!anyHidden) {
            currentX = 0;
            dragEnd->start(kDragEndMs);
        }
        update();
    }
    QFrame::mouseMoveEvent(event);
}

void ModuleDKSItem::mouseReleaseEvent(QMouseEvent* event)
{
    dragging = false;
    // The switches don't take the press, so their release arrives here.
    const QPoint at = event->position().toPoint();
    for (int i = 0; i < kSwitches; ++i) {
        if (!labelSwitch[i]->isVisible() || !labelSwitch[i]->geometry().contains(at)) continue;
        states[i] = !states[i];
        showState(i);
    }
    QFrame::mouseReleaseEvent(event);
}

void ModuleDKSItem::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // A thin track behind the switches, so that a row reads as one line of travel.
    const int middle = kSwitchY + kSwitchSize / 2;
    painter.setPen(QPen(kTrackColour, 2));
    painter.drawLine(kSwitchX.front() + kSwitchSize, middle, kSwitchX.back(), middle);

    if (currentX <= 0) return;
    int first = -1;
    int last = -1;
    for (int i = 0; i < kSwitches; ++i) {
        if (first < 0 && kSwitchX[i] > startX) first = i;
        if (kSwitchX[i] + kSwitchSize < currentX) last = i;
    }
    if (first < 0 || last < 0) return;
    const int left = std::max(kBarLeftMost, kSwitchX[first] - kBarLead);
    const int right = std::min(kBarRightMost, kSwitchX[last] + kBarTail);
    if (right - left < kBarLeast) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(kBarColour);
    painter.drawRoundedRect(QRect(left, kBarY, right - left, kBarHeight), kBarRadius, kBarRadius);
    const int inset = (kBarHeight - kSwitchSize) / 2;
    painter.drawPixmap(QRect(right - kSwitchSize - inset, kBarY + inset, kSwitchSize, kSwitchSize),
                       picture(kSwitchOn));
}

void ModuleDKSItem::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) showKeyText();
    QFrame::changeEvent(event);
}
