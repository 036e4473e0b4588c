#include "ModuleKeyboard.h"

#include "Clock.h"
#include "CustomTooltip.h"
#include "DialogDeviceConnect.h"
#include "KeyPositions.h"
#include "KeyboardButton.h"
#include "KeyboardLayout.h"

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <array>

namespace {

QList<ModuleKeyboard*>& keyboards()
{
    static QList<ModuleKeyboard*> list;
    return list;
}

constexpr int kLockDelayMs = 10;
constexpr int kLegendDelayMs = 20;
constexpr quint8 kHitCodeForZero = 129;
constexpr quint8 kModeSnapKey = 7;
constexpr quint8 kKeyModeTable = 0x07;
constexpr int kPopupGap = 5;
const char* const kDisabledTitle = "DISABLED";
const char* const kHitStyle = "QPushButton:disabled { background-color: #FF9052; color: white; }";

// The legend under the keys: a dot in a key state's colours and its name.
struct LegendEntry
{
    const char* name;
    const char* dotStyle;
    const char* text;
};
constexpr std::array<LegendEntry, 3> kLegend{{
    {"labelFlag1", "background-color: #3F3F3F; border: none;",
     QT_TRANSLATE_NOOP("ModuleKeyboard", "已选中按键")},
    {"labelFlag2", "background-color: #FBFBFB; border: 1px solid #D8BDFF;",
     QT_TRANSLATE_NOOP("ModuleKeyboard", "已修改按键")},
    {"labelFlag3", "background-color: #E4E4E4; border: none;",
     QT_TRANSLATE_NOOP("ModuleKeyboard", "已禁用按键")},
}};
constexpr int kLegendTop = 356;
constexpr int kDotSize = 12;

} // namespace

ModuleKeyboard::ModuleKeyboard(DialogDeviceConnect* connection, Clock* clockIn, QWidget* parent)
    : QFrame(parent), device(connection), clock(clockIn ? clockIn : QtClock::shared())
{
    setObjectName(QStringLiteral("ModuleKeyboard"));
    setMinimumSize(KeyboardLayout::kMinimumWidth, KeyboardLayout::kMinimumHeight);
    buildKeys();
    frameFlag = buildLegend();

    popup = new CustomTooltip(this);
    popup->setObjectName(QStringLiteral("keyPopup"));
    popup->setTextStyle(QStringLiteral("QLabel { color: red; }"));
    connect(popup, &CustomTooltip::onClicked, this, &ModuleKeyboard::onPopupClicked);

    // The rubber band is painted on a glass pane above the keys.
    bandPane = new QWidget(this);
    bandPane->setAttribute(Qt::WA_TransparentForMouseEvents);
    bandPane->setGeometry(rect());
    bandPane->installEventFilter(this);
    bandPane->raise();

    keyboards().append(this);
}

ModuleKeyboard::~ModuleKeyboard()
{
    keyboards().removeAll(this);
}

const QList<ModuleKeyboard*>& ModuleKeyboard::instances()
{
    return keyboards();
}

void ModuleKeyboard::buildKeys()
{
    buttonGroup = new QButtonGroup(this);
    buttonGroup->setObjectName(QStringLiteral("buttonGroup"));
    for (const KeyboardLayout::Key& key : KeyboardLayout::kKeys) {
        auto* button = new KeyboardButton(key.code, clock, this);
        button->setGeometry(key.x, key.y, key.width, KeyboardLayout::kKeyHeight);
        button->setFixedWidth(key.width); // the knob halves stay 20 wide whatever their style
        button->setText(QString::fromUtf8(key.legend));
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::NoFocus);
        buttonGroup->addButton(button, key.code);
    }
    for (const KeyboardLayout::ArrowKey& arrow : KeyboardLayout::kArrowKeys) {
        if (KeyboardButton* button = this->button(arrow.code)) {
            button->setIcon(QIcon(QString::fromLatin1(arrow.picture)));
            button->setIconSize(QSize(18, 18));
        }
    }
    connect(buttonGroup, &QButtonGroup::buttonClicked, this, &ModuleKeyboard::onButtonClicked);
}

QWidget* ModuleKeyboard::buildLegend()
{
    auto* legend = new QFrame(this);
    legend->setObjectName(QStringLiteral("frameFlag"));
    auto* layout = new QHBoxLayout(legend);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    for (const LegendEntry& entry : kLegend) {
        auto* dot = new QLabel(legend);
        dot->setFixedSize(kDotSize, kDotSize);
        dot->setStyleSheet(QStringLiteral("QLabel { border-radius: %1px; %2 }")
                               .arg(kDotSize / 2)
                               .arg(QLatin1String(entry.dotStyle)));
        auto* text = new QLabel(tr(entry.text), legend);
        text->setObjectName(QLatin1String(entry.name));
        text->setStyleSheet(QStringLiteral("QLabel { color: #6B6B6B; font-size: 13px; }"));
        layout->addWidget(dot);
        layout->addWidget(text);
        layout->addSpacing(18);
    }
    legend->move(KeyboardLayout::kKeys.front().x, kLegendTop);
    legend->adjustSize();
    return legend;
}

KeyboardButton* ModuleKeyboard::button(quint8 code) const
{
    return findChild<KeyboardButton*>(KeyboardButton::nameOf(code), Qt::FindDirectChildrenOnly);
}

QList<KeyboardButton*> ModuleKeyboard::buttons() const
{
    QList<KeyboardButton*> list;
    for (QAbstractButton* b : buttonGroup->buttons())
        list.append(static_cast<KeyboardButton*>(b));
    return list;
}

void ModuleKeyboard::setSelectionLimit(int limit)
{
    SelectionLimit = limit;
    buttonGroup->setExclusive(false);
}

int ModuleKeyboard::selectedCodes(QByteArray& out) const
{
    out.clear();
    for (KeyboardButton* b : buttons())
        if (b->isChecked()) out.append(char(b->code()));
    return int(out.size());
}

void ModuleKeyboard::selectAll(bool on)
{
    for (KeyboardButton* b : buttons())
        b->setChecked(on);
    emit onSelect();
}

void ModuleKeyboard::onButtonClicked(QAbstractButton* clicked)
{
    if (SelectionLimit > 1) {
        int kept = 0;
        for (KeyboardButton* b : buttons()) {
            if (!b->isChecked()) continue;
            if (kept < SelectionLimit)
                ++kept;
            else
                b->setChecked(false);
        }
    }
    emit onKeyClicked(clicked->text(), uchar(KeyboardButton::codeOf(clicked)));
    emit onSelect();
}

void ModuleKeyboard::setKeyColor(int code, const QColor& colour)
{
    if (code >= kAllKeys) {
        for (KeyboardButton* b : buttons())
            b->setFillColor(colour);
        return;
    }
    if (KeyboardButton* b = button(quint8(code))) b->setFillColor(colour);
}

void ModuleKeyboard::setKeyBorder(quint8 code, const QColor& colour)
{
    if (KeyboardButton* b = button(code)) b->setBorderColor(colour);
}

void ModuleKeyboard::setKeyValues2(quint8 code, float upper, float lower)
{
    if (KeyboardButton* b = button(code)) b->setValues2(upper, lower);
}

void ModuleKeyboard::setKeyValues3(quint8 code, float left, float right)
{
    if (KeyboardButton* b = button(code)) b->setValues3(left, right);
}

void ModuleKeyboard::setKeyValues4(quint8 code, float upperRight, float lowerRight, bool extra)
{
    if (KeyboardButton* b = button(code)) b->setValues4(upperRight, lowerRight, extra);
}

void ModuleKeyboard::setKeyTooltip(quint8 code, const QString& title, const QString& body,
                                   bool recurse)
{
    if (anyModeOn()) return;
    if (KeyboardButton* b = button(code)) {
        if (title == QLatin1String(kDisabledTitle)) {
            b->setEnabled(false);
            setKeyEnabledState(b, false, false);
        } else {
            b->setEnabled(true);
            b->setKeyContent(title, body);
        }
    }
    if (!recurse) return;
    for (ModuleKeyboard* other : keyboards())
        other->setKeyTooltip(code, title, body, false);
}

void ModuleKeyboard::setKeyEnabledState(KeyboardButton* key, bool enable, bool notify)
{
    if (!key) return;
    if (enable) {
        key->removeEventFilter(this);
        disabledKeys.removeAll(key);
        key->setEnabled(true);
    } else {
        // A key with a binding only loses the binding: that is the "clear setting" case.
        if (!key->hasBinding()) {
            key->setEnabled(false);
            key->installEventFilter(this);
            if (!disabledKeys.contains(key)) disabledKeys.append(key);
        }
        key->setChecked(false);
        key->setKeyContent(QString(), QString());
    }
    propagate(key->objectName(), key->isEnabled(), notify, true);
}

void ModuleKeyboard::propagate(const QString& name, bool enabled, bool notify, bool recurse)
{
    if (anyModeOn()) return;
    auto* key = findChild<KeyboardButton*>(name, Qt::FindDirectChildrenOnly);
    if (!key) return;
    key->setEnabled(enabled);
    if (!recurse) return;

    const quint8 code = key->code();
    const quint32 mode = device ? device->GetKeyMode(code) : 0;
    if (notify && device) {
        device->DoResetKey(code);
        emit onKeyChanged(code, uchar(mode), enabled);
        if (mode == kModeSnapKey) {
            // The option holds the partner's matrix position; it is used as a key code as it
            // stands, so the partner is cleared only where the two agree. Deliberate.
            const quint32 partner = device->GetKeyOption(PositionOfCode(code));
            device->DoSetMagnetism(kKeyModeTable, quint8(partner), 0, 1);
            if (KeyboardButton* other = button(quint8(partner)))
                other->setKeyContent(QString(), QString());
        }
        device->DoSetKeyCode(code, enabled, 0);
    }
    for (ModuleKeyboard* other : keyboards())
        other->propagate(name, enabled, false, false);
}

void ModuleKeyboard::resetKeys(quint8 displayMode)
{
    for (KeyboardButton* b : buttons()) {
        b->setCheckable(true);
        b->setKeyContent(QString(), QString());
        b->setDisplayMode(displayMode);
    }
}

void ModuleKeyboard::enterSelectMode()
{
    selectMode = true;
    for (KeyboardButton* b : buttons()) {
        b->setCheckable(true);
        b->setKeyContent(QString(), QString());
    }
    applyLegendRule();
    setFnEnabled(true);
}

void ModuleKeyboard::enterValueMode(quint8 mode)
{
    valueMode = true;
    resetKeys(mode);
    frameFlag->setVisible(mode == KeyboardButton::Plain);
    applyLegendRule();
}

void ModuleKeyboard::enterScaledValueMode(bool on)
{
    valueMode = true;
    resetKeys(on ? KeyboardButton::TwoValues : KeyboardButton::Plain);
    applyLegendRule();
}

void ModuleKeyboard::enterLayerMode(bool on)
{
    resetKeys(on ? KeyboardButton::CornerValues : KeyboardButton::Plain);
    frameFlag->show();
}

void ModuleKeyboard::leaveModes()
{
    selectMode = false;
    valueMode = false;
    applyLegendRule();
}

void ModuleKeyboard::lockKeyboard()
{
    frameFlag->hide();
    clock->singleShot(kLockDelayMs, this, [this] {
        locked = true;
        for (KeyboardButton* b : buttons())
            b->setEnabled(false);
        applyLegendRule();
    });
}

void ModuleKeyboard::updateLegend()
{
    clock->singleShot(kLegendDelayMs, this, [this] { applyLegendRule(); });
}

void ModuleKeyboard::applyLegendRule()
{
    // Outside the key page the knob halves can't be chosen.
    const bool show = !anyModeOn();
    for (quint8 code : {KeyboardLayout::kKnobLeft, KeyboardLayout::kKnobRight})
        if (KeyboardButton* b = button(code)) b->setVisible(show);
}

void ModuleKeyboard::setFnEnabled(bool enabled)
{
    if (KeyboardButton* b = button(KeyboardLayout::kFnKey)) b->setEnabled(enabled);
}

void ModuleKeyboard::setLegendVisible(bool visible)
{
    frameFlag->setVisible(visible);
}

void ModuleKeyboard::markKeyHit(quint8 code)
{
    if (KeyboardButton* b = button(code == 0 ? kHitCodeForZero : code))
        b->setStyleSheet(QLatin1String(kHitStyle));
}

void ModuleKeyboard::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && !locked) {
        dragStart = dragEnd = event->position().toPoint();
        dragging = true;
    }
    QFrame::mousePressEvent(event);
}

void ModuleKeyboard::mouseMoveEvent(QMouseEvent* event)
{
    if (!dragging || dragStart.x() <= 0) return QFrame::mouseMoveEvent(event);
    dragEnd = event->position().toPoint();
    const QRect band = QRect(dragStart, dragEnd).normalized();
    for (KeyboardButton* b : buttons()) {
        if (!b->isVisible() || !b->isEnabled()) continue;
        // A corner of the key must lie in the band; covering its middle alone doesn't count.
        const QRect g = b->geometry();
        const bool hit = band.contains(g.topLeft()) || band.contains(g.topRight()) ||
                         band.contains(g.bottomLeft()) || band.contains(g.bottomRight());
        b->setChecked(hit);
    }
    bandPane->update();
    emit onSelect();
}

void ModuleKeyboard::mouseReleaseEvent(QMouseEvent* event)
{
    const QPoint at = event->position().toPoint();
    if (event->button() == Qt::LeftButton) {
        dragging = false;
        dragStart = at;
        bandPane->update();
    } else if (event->button() == Qt::RightButton && popup) {
        for (KeyboardButton* b : buttons()) {
            if (b->isVisible() && b->geometry().contains(at)) {
                popup->setText(b->hasBinding() ? tr("清除设置") : tr("禁用按键"));
                openPopup(b);
                break;
            }
        }
    }
    QFrame::mouseReleaseEvent(event);
}

bool ModuleKeyboard::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == bandPane) {
        if (event->type() == QEvent::Paint && dragging) {
            QPainter painter(bandPane);
            QPen pen(Qt::blue, 0, Qt::DashLine);
            painter.setPen(pen);
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(QRect(dragStart, dragEnd).normalized());
        }
        return false;
    }
    // A disabled key gets no mouse events of its own: its right click is taken here.
    auto* key = qobject_cast<KeyboardButton*>(watched);
    if (key && !key->isEnabled() && disabledKeys.contains(key) &&
        event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::RightButton && popup) {
        popup->setText(tr("取消禁用"));
        openPopup(key);
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

void ModuleKeyboard::openPopup(KeyboardButton* target)
{
    popupTarget = target;
    popup->adjustSize();
    const QPoint at(target->width() + kPopupGap, (target->height() - popup->height()) / 2);
    popup->move(target->mapToGlobal(at));
    popup->show();
    popup->raise();
}

void ModuleKeyboard::onPopupClicked()
{
    if (popupTarget) setKeyEnabledState(popupTarget, !popupTarget->isEnabled(), true);
}

void ModuleKeyboard::resizeEvent(QResizeEvent* event)
{
    bandPane->setGeometry(rect());
    QFrame::resizeEvent(event);
}

void ModuleKeyboard::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        for (const LegendEntry& entry : kLegend)
            if (auto* label = frameFlag->findChild<QLabel*>(QLatin1String(entry.name)))
                label->setText(tr(entry.text));
        frameFlag->adjustSize();
    }
    QFrame::changeEvent(event);
}
