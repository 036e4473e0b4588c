#include "MagicStabPage.h"

#include "DialogDeviceConnect.h"
#include "ToggleButton.h"

#include <QButtonGroup>
#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

namespace {

// By level.
constexpr std::array<const char*, MagicStabPage::kLevels> kLevelTexts{
    QT_TRANSLATE_NOOP("MagicStabPage", "0%(关闭)"), "25%", "50%", "75%", "100%"};

QFrame* card(QWidget* parent, const char* name)
{
    auto* frame = new QFrame(parent);
    frame->setObjectName(QLatin1String(name));
    frame->setProperty("role", QStringLiteral("card"));
    return frame;
}

} // namespace

MagicStabPage::MagicStabPage(DialogDeviceConnect* connection, QWidget* parent)
    : QWidget(parent), device(connection)
{
    setObjectName(QStringLiteral("page3"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->setSpacing(16);

    QFrame* stab = card(this, "frameStab");
    auto* stabLayout = new QVBoxLayout(stab);
    stabLayout->setContentsMargins(20, 16, 20, 16);
    stabLayout->setSpacing(10);
    labelTitle8 = new QLabel(stab);
    labelTitle8->setObjectName(QStringLiteral("labelTitle8"));
    labelTitle8->setProperty("role", QStringLiteral("cardTitle"));
    labelMemo0 = new QLabel(stab);
    labelMemo0->setObjectName(QStringLiteral("labelMemo0"));
    labelMemo0->setProperty("role", QStringLiteral("note"));
    labelMemo0->setWordWrap(true);
    auto* radios = new QHBoxLayout;
    radios->setSpacing(10);
    buttonGroupStab = new QButtonGroup(this);
    buttonGroupStab->setObjectName(QStringLiteral("buttonGroupStab"));
    for (int level = 0; level < kLevels; ++level) {
        auto* radio = new QRadioButton(stab);
        radio->setObjectName(QStringLiteral("radioButtonStab%1").arg(level));
        radio->setCursor(Qt::PointingHandCursor);
        radio->setFocusPolicy(Qt::NoFocus);
        buttonGroupStab->addButton(radio); // automatic ids: -2 for level 0, then down
        radios->addWidget(radio);
    }
    radios->addStretch(1);
    stabLayout->addWidget(labelTitle8);
    stabLayout->addWidget(labelMemo0);
    stabLayout->addStretch(1);
    stabLayout->addLayout(radios);
    stabLayout->addStretch(1);

    QFrame* touch = card(this, "frameTouch");
    auto* touchLayout = new QVBoxLayout(touch);
    touchLayout->setContentsMargins(20, 16, 20, 16);
    touchLayout->setSpacing(10);
    auto* head = new QHBoxLayout;
    labelTitle9 = new QLabel(touch);
    labelTitle9->setObjectName(QStringLiteral("labelTitle9"));
    labelTitle9->setProperty("role", QStringLiteral("cardTitle"));
    labelTunch = new QLabel(touch);
    labelTunch->setObjectName(QStringLiteral("labelTunch"));
    labelTunch->setProperty("role", QStringLiteral("state"));
    checkBoxTouch = new ToggleButton(touch);
    checkBoxTouch->setObjectName(QStringLiteral("checkBoxTouch"));
    checkBoxTouch->setFocusPolicy(Qt::NoFocus);
    head->addWidget(labelTitle9);
    head->addWidget(labelTunch);
    head->addStretch(1);
    head->addWidget(checkBoxTouch);
    labelMemo1 = new QLabel(touch);
    labelMemo1->setObjectName(QStringLiteral("labelMemo1"));
    labelMemo1->setProperty("role", QStringLiteral("note"));
    labelMemo1->setWordWrap(true);
    touchLayout->addLayout(head);
    touchLayout->addWidget(labelMemo1);
    touchLayout->addStretch(1);

    layout->addWidget(stab, 1);
    layout->addWidget(touch, 1);
    retranslate();

    connect(buttonGroupStab, &QButtonGroup::idClicked, this,
            [this](int id) { device->DoSetKbOption(kStabOption, quint8(qAbs(id) - 2)); });
    connect(checkBoxTouch, &QCheckBox::clicked, this, [this](bool on) {
        device->DoSetKbOption(kTouchOption, on ? 1 : 0);
        showTouch(on);
    });
}

void MagicStabPage::refresh()
{
    checkBoxTouch->setChecked(device->GetKbOption(kTouchOption) != 0);
    showTouch(checkBoxTouch->isChecked());
    // A level past 4 checks none; the exclusive group then keeps the one it had.
    const int level = device->GetKbOption(kStabOption);
    const QList<QAbstractButton*> buttons = buttonGroupStab->buttons();
    for (int i = 0; i < buttons.size(); ++i)
        buttons.at(i)->setChecked(i == level);
}

void MagicStabPage::showTouch(bool on)
{
    touchShown = true;
    labelTunch->setText(on ? tr("已开启") : tr("已关闭"));
}

void MagicStabPage::retranslate()
{
    labelTitle8->setText(tr("RT Stab(RT 增稳算法)"));
    labelMemo0->setText(tr("RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越"
                           "强，延迟也会有所增加。"));
    labelTitle9->setText(tr("防误触模式"));
    labelMemo1->setText(tr("防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开"
                           "启后优化底部按键算法补足行程差值提高键盘稳定性。"));
    if (touchShown)
        showTouch(checkBoxTouch->isChecked());
    else
        labelTunch->setText(tr("(已关闭)"));
    const QList<QAbstractButton*> buttons = buttonGroupStab->buttons();
    for (int level = 0; level < buttons.size(); ++level)
        buttons.at(level)->setText(level == 0 ? tr(kLevelTexts[level])
                                              : QLatin1String(kLevelTexts[level]));
}

void MagicStabPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QWidget::changeEvent(event);
}
