#include "MagicSwitchPage.h"

#include "SwitchTypes.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QSize kIconSize{64, 64};
constexpr QSize kButtonSize{88, 88};

} // namespace

MagicSwitchPage::MagicSwitchPage(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("page2"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->setSpacing(8);
    labelTitle1 = new QLabel(this);
    labelTitle1->setObjectName(QStringLiteral("labelTitle1"));
    labelTitle1->setProperty("role", QStringLiteral("pageTitle"));
    label_16 = new QLabel(this);
    label_16->setObjectName(QStringLiteral("label_16"));
    label_16->setProperty("role", QStringLiteral("note"));
    label_16->setWordWrap(true);
    layout->addWidget(labelTitle1);
    layout->addWidget(label_16);

    auto* card = new QFrame(this);
    card->setObjectName(QStringLiteral("frameTypes"));
    card->setProperty("role", QStringLiteral("card"));
    auto* grid = new QGridLayout(card);
    grid->setContentsMargins(12, 0, 12, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(4);
    buttonGroupMT = new QButtonGroup(this);
    buttonGroupMT->setObjectName(QStringLiteral("buttonGroupMT"));
    for (int i = 0; i < int(SwitchTypes::kButtons.size()); ++i) {
        const SwitchTypes::Button& type = SwitchTypes::kButtons[i];
        auto* button = new QPushButton(card);
        button->setObjectName(QStringLiteral("pushButtonMT%1").arg(i));
        button->setIcon(QIcon(QLatin1String(type.icon)));
        button->setIconSize(kIconSize);
        button->setFixedSize(kButtonSize);
        button->setCheckable(true);
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::NoFocus);
        buttonGroupMT->addButton(button); // automatic ids: -2 for the first, then down
        auto* name = new QLabel(card);
        name->setObjectName(QStringLiteral("labelName%1").arg(i));
        name->setProperty("role", QStringLiteral("typeName"));
        name->setAlignment(Qt::AlignCenter);
        grid->addWidget(button, 1, i, Qt::AlignHCenter);
        grid->addWidget(name, 2, i, Qt::AlignHCenter);
        names.append(name);
    }
    // The buttons stand in the middle of the card's height.
    grid->setRowStretch(0, 1);
    grid->setRowStretch(3, 1);
    buttonGroupMT->buttons().constFirst()->setChecked(true);
    layout->addWidget(card, 1);
    retranslate();

    connect(buttonGroupMT, &QButtonGroup::idClicked, this, &MagicSwitchPage::onTypeClicked);
}

void MagicSwitchPage::onTypeClicked(int groupId)
{
    // Automatic group ids count down from -2: the place is the id's size minus 2.
    const int place = qAbs(groupId) - 2;
    if (place < 0 || place >= int(SwitchTypes::kButtons.size())) return;
    const quint8 id = SwitchTypes::kButtons[place].id;
    emit typeChosen(id, SwitchTypes::colourOf(id));
}

void MagicSwitchPage::retranslate()
{
    labelTitle1->setText(tr("轴体设置"));
    label_16->setText(
        tr("更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体"));
    for (int i = 0; i < names.size(); ++i)
        names.at(i)->setText(
            QCoreApplication::translate("FrameMagic", SwitchTypes::kButtons[i].label));
}

void MagicSwitchPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QWidget::changeEvent(event);
}
