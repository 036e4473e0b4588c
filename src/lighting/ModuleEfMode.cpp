#include "ModuleEfMode.h"

#include "EffectCatalogue.h"
#include "ToggleButton.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

const char* const kStyle = R"(
QScrollArea, #scrollAreaWidgetContents { background: transparent; border: none; }
#scrollAreaWidgetContents QPushButton { text-align: left; padding-left: 14px; border: none;
    border-radius: 14px; background: transparent; color: #26262C; font-size: 13px; }
#scrollAreaWidgetContents QPushButton:hover { background-color: #EFE7FB; }
#scrollAreaWidgetContents QPushButton:checked { background-color: #6329B6; color: #FFFFFF;
    font-weight: 600; }
QScrollBar:vertical { width: 6px; background: transparent; margin: 0px; }
QScrollBar::handle:vertical { background: #D6D6DC; border-radius: 3px; min-height: 40px; }
QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0px; }
QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: transparent; }
QComboBox { border: 1px solid #E2E2E2; border-radius: 10px; padding: 2px 10px; min-height: 26px;
    background-color: #FFFFFF; color: #26262C; }
QComboBox::drop-down { border: none; width: 22px; }
QComboBox:disabled { color: #9A9AA4; background-color: #F0F0F0; }
)";

QString buttonText(const EffectCatalogue::Effect& effect)
{
    return QStringLiteral("%1 (%2)").arg(
        QCoreApplication::translate("ModuleEfMode", effect.name),
        QString::number(effect.id, 16).rightJustified(2, u'0').toUpper());
}

} // namespace

ModuleEfMode::ModuleEfMode(QWidget* parent) : QFrame(parent)
{
    buildForm();
    connect(group, &QButtonGroup::idClicked, this, &ModuleEfMode::onEffectClicked);
    connect(comboBoxPic, &QComboBox::currentIndexChanged, this,
            [this](int index) { emit onModeChanged(effect, uchar(index)); });
    connect(checkBoxEFMode, &QCheckBox::clicked, this,
            [this](bool checked) { emit onModeChanged(kOnOff, checked ? 1 : 0); });
    group->buttons().first()->click();
}

void ModuleEfMode::buildForm()
{
    setStyleSheet(QLatin1String(kStyle));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 12, 16);
    layout->setSpacing(10);

    auto* head = new QHBoxLayout;
    labelTitle1 = new QLabel(this);
    labelTitle1->setObjectName(QStringLiteral("labelTitle1"));
    checkBoxEFMode = new ToggleButton(this);
    checkBoxEFMode->setObjectName(QStringLiteral("checkBoxEFMode"));
    head->addWidget(labelTitle1);
    head->addStretch(1);
    head->addWidget(checkBoxEFMode);
    head->addSpacing(8);
    layout->addLayout(head);

    scrollArea = new QScrollArea(this);
    scrollArea->setObjectName(QStringLiteral("scrollArea"));
    scrollArea->setWidgetResizable(true);
    scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* contents = new QWidget(scrollArea);
    contents->setObjectName(QStringLiteral("scrollAreaWidgetContents"));
    auto* list = new QVBoxLayout(contents);
    list->setContentsMargins(0, 0, 0, 0);
    list->setSpacing(4);
    group = new QButtonGroup(this);
    group->setObjectName(QStringLiteral("buttonGroup"));
    for (const EffectCatalogue::Effect& entry : EffectCatalogue::kEffects) {
        auto* button = new QPushButton(contents);
        button->setObjectName(QStringLiteral("pushButtonEffect%1").arg(entry.id));
        button->setCheckable(true);
        button->setFixedSize(kButtonSize);
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::NoFocus);
        group->addButton(button, entry.id);
        list->addWidget(button);
    }
    list->addStretch(1);
    scrollArea->setWidget(contents);
    layout->addWidget(scrollArea, 1);

    auto* foot = new QHBoxLayout;
    labelPicture = new QLabel(this);
    labelPicture->setObjectName(QStringLiteral("labelPicture"));
    comboBoxPic = new QComboBox(this);
    comboBoxPic->setObjectName(QStringLiteral("comboBoxPic"));
    comboBoxPic->setMinimumWidth(110);
    foot->addWidget(labelPicture);
    foot->addWidget(comboBoxPic, 1);
    foot->addSpacing(8);
    layout->addLayout(foot);
    retranslate();
}

void ModuleEfMode::retranslate()
{
    labelTitle1->setText(tr("灯效模式"));
    labelPicture->setText(tr("灯光播放模式:"));
    checkBoxEFMode->setToolTip(tr("打开时关闭键盘灯光"));
    for (const EffectCatalogue::Effect& entry : EffectCatalogue::kEffects)
        group->button(entry.id)->setText(buttonText(entry));
    const int index = comboBoxPic->currentIndex();
    fillChoices();
    const QSignalBlocker blocker(comboBoxPic);
    comboBoxPic->setCurrentIndex(index);
}

void ModuleEfMode::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QFrame::changeEvent(event);
}

void ModuleEfMode::onEffectClicked(int id)
{
    if (!echo) emit onModeChanged(id, 0);
    effect = quint8(id);
    echo = false;
    fillChoices();
}

void ModuleEfMode::fillChoices()
{
    const QSignalBlocker blocker(comboBoxPic);
    comboBoxPic->clear();
    const QStringList choices = EffectCatalogue::choices(effect);
    if (choices.isEmpty()) {
        comboBoxPic->addItem(
            QCoreApplication::translate("ModuleEfMode", EffectCatalogue::kNoChoice));
        comboBoxPic->setEnabled(false);
    } else {
        comboBoxPic->addItems(choices);
        comboBoxPic->setEnabled(true);
    }
}

void ModuleEfMode::setEffect(int id)
{
    echo = true;
    // Deliberate: with no button for the id the flag stays, and the user's next click is not
    // sent; the keyboard reports only effects it was given.
    if (QAbstractButton* button = group->button(id)) button->click();
}
