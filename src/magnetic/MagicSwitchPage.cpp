#include "MagicSwitchPage.h"

#include "KeyboardButton.h"
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

    layout->addWidget(buildButtons());
    layout->addWidget(buildLegend(), 1);
    retranslate();

    connect(buttonGroupMT, &QButtonGroup::idClicked, this, &MagicSwitchPage::onTypeClicked);
}

QWidget* MagicSwitchPage::buildButtons()
{
    auto* card = new QFrame(this);
    card->setObjectName(QStringLiteral("frameTypes"));
    card->setProperty("role", QStringLiteral("card"));
    auto* grid = new QGridLayout(card);
    grid->setContentsMargins(12, 10, 12, 6);
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
        grid->addWidget(button, 0, i, Qt::AlignHCenter);
        grid->addWidget(name, 1, i, Qt::AlignHCenter);
        names.append(name);
    }
    buttonGroupMT->buttons().constFirst()->setChecked(true);
    return card;
}

QWidget* MagicSwitchPage::buildLegend()
{
    auto* card = new QFrame(this);
    card->setObjectName(QStringLiteral("frameTypeColours"));
    card->setProperty("role", QStringLiteral("card"));
    auto* grid = new QGridLayout(card);
    grid->setContentsMargins(16, 10, 16, 10);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    constexpr int kPerRow = 8;
    for (int row = 0; row < int(SwitchTypes::kTypes.size()); ++row) {
        auto* dot = new QLabel(card);
        dot->setFixedSize(18, 18);
        // The colour as the keys show it, so that a key can be told by its border.
        dot->setStyleSheet(QStringLiteral("QLabel { border: 3px solid %1; border-radius: 5px; "
                                          "background-color: #FBFBFB; }")
                               .arg(KeyboardButton::borderColourText(
                                   QColor::fromRgb(SwitchTypes::kTypes[row].colour))));
        auto* name = new QLabel(card);
        name->setProperty("role", QStringLiteral("legend"));
        grid->addWidget(dot, row / kPerRow, 2 * (row % kPerRow));
        grid->addWidget(name, row / kPerRow, 2 * (row % kPerRow) + 1);
        legendNames.append(name);
    }
    for (int column = 1; column < 2 * kPerRow; column += 2)
        grid->setColumnStretch(column, 1);
    return card;
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
    for (int row = 0; row < legendNames.size(); ++row)
        legendNames.at(row)->setText(
            QCoreApplication::translate("FrameMagic", SwitchTypes::kTypes[row].name));
}

void MagicSwitchPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QWidget::changeEvent(event);
}
