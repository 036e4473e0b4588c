// The widgets of the light page: the keyboard to paint on, the effect panel that stays behind
// the scenes, the works table and the brush with its layers.

#include "DialogColorPicker.h"
#include "EffectLink.h"
#include "FrameLight.h"
#include "ModuleKeyboard.h"
#include "PictureDelegate.h"
#include "PillRadioButton.h"
#include "ToggleButton.h"

#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr QSize kKeyboardSize{960, 350}; // the keys without the legend, which this page hides
constexpr int kKeyboardCardHeight = 372;
constexpr int kGap = 16;
constexpr int kWorksCardWidth = 540;
constexpr int kPreviewWidth = 200;
constexpr int kManageWidth = 84; // the delete link and its heading in every language
constexpr int kSwatchSize = 32;
constexpr QSize kLayerButtonSize{76, 30};

const char* const kHeader = QT_TRANSLATE_NOOP("FrameLight", "预览图,作品名称,管理");
const char* const kDefaultName = QT_TRANSLATE_NOOP("FrameLight", "我的作品");
const char* const kLayerText = QT_TRANSLATE_NOOP("FrameLight", "图%1");

const char* const kStyle = R"(
QFrame#frameT { background-color: #FFFFFF; border: 1px solid #EFEFEF; border-radius: 24px; }
QFrame#frameWorks, QFrame#frameBrush { background-color: #F6F6F6; border-radius: 24px; }
QLabel#labelTitle1 { color: #26262C; font-size: 15px; font-weight: 600; }
QLabel#labelHint { color: #9A9AA4; font-size: 12px; }
QFrame#frameBrush QLabel, QFrame#frameBrush QLabel#labelName { color: #5C5C66; font-size: 13px;
    font-weight: 400; }
QTableView#tableView { background-color: #FFFFFF; border: none; border-radius: 12px;
    gridline-color: #EFEFEF; selection-background-color: #EFE8F8; selection-color: #26262C;
    color: #26262C; font-size: 13px; }
QTableView#tableView QHeaderView::section { background-color: #FFFFFF; color: #9A9AA4;
    border: none; border-bottom: 1px solid #EFEFEF; font-size: 12px; padding: 6px; }
QFrame#frameBrush QPushButton { background-color: #FFFFFF; color: #333333;
    border: 1px solid #E2E2E2; border-radius: 15px; font-size: 13px; min-height: 28px;
    padding: 0px 14px; }
QFrame#frameBrush QPushButton:hover { border-color: #6329B6; color: #6329B6; }
QFrame#frameBrush PillRadioButton { font-size: 13px; }
QFrame#frameBrush QPushButton#pushButtonSave { background-color: #6329B6; border-color: #6329B6;
    color: #FFFFFF; }
QFrame#frameBrush QPushButton#pushButtonSave:hover { background-color: #7A44CC; }
QLineEdit#lineEditName { background-color: #FFFFFF; border: 1px solid #E2E2E2;
    border-radius: 15px; min-height: 28px; padding: 0px 12px; color: #26262C; font-size: 13px; }
QLineEdit#lineEditName:focus { border-color: #6329B6; }
)";

QLabel* namedLabel(QWidget* parent, const char* name)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    return label;
}

QPushButton* namedButton(QWidget* parent, const char* name)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setCursor(Qt::PointingHandCursor);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

} // namespace

void FrameLight::buildForm(Clock* clock)
{
    setStyleSheet(QLatin1String(kStyle));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);

    auto* frameT = new QFrame(this);
    frameT->setObjectName(QStringLiteral("frameT"));
    frameT->setFixedHeight(kKeyboardCardHeight);
    auto* topLayout = new QHBoxLayout(frameT);
    topLayout->setContentsMargins(0, 4, 0, 0);
    frameKeyboard = new ModuleKeyboard(device, clock, frameT);
    frameKeyboard->setObjectName(QStringLiteral("frameKeyboard"));
    // Painting: every key takes a colour (the knob halves have no light and stay hidden), a
    // band drawn over the keys takes them all, and bindings show on the key page only.
    frameKeyboard->enterSelectMode();
    frameKeyboard->setSelectionLimit(ModuleKeyboard::kDefaultSelectionLimit);
    frameKeyboard->setLegendVisible(false);
    frameKeyboard->setMinimumSize(kKeyboardSize);
    frameKeyboard->setFixedSize(kKeyboardSize);
    frameKeyboard->installEventFilter(this);
    topLayout->addWidget(frameKeyboard, 0, Qt::AlignCenter);
    layout->addWidget(frameT);

    stackedWidgetB = new QStackedWidget(this);
    stackedWidgetB->setObjectName(QStringLiteral("stackedWidgetB"));
    stackedWidgetB->addWidget(buildEffectPage(clock));
    stackedWidgetB->addWidget(buildWorksPage());
    // The effect panel lives on the home page; here it only follows the keyboard's answers.
    stackedWidgetB->setCurrentIndex(1);
    layout->addWidget(stackedWidgetB, 1);

    dialogPicker = new DialogColorPicker(this, clock);
    dialogPicker->setObjectName(QStringLiteral("DialogColorPickerLight"));
    retranslate();
}

QWidget* FrameLight::buildEffectPage(Clock* clock)
{
    auto* page0 = new QWidget;
    page0->setObjectName(QStringLiteral("page0"));
    auto* layout = new QHBoxLayout(page0);
    layout->setContentsMargins(0, 0, 0, 0);
    EffectLink::Panel panel{};
    layout->addWidget(EffectLink::buildPanel(device, clock, page0, &panel));
    return page0;
}

QWidget* FrameLight::buildWorksPage()
{
    auto* page1 = new QWidget;
    page1->setObjectName(QStringLiteral("page1"));
    auto* layout = new QHBoxLayout(page1);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);
    layout->addWidget(buildWorksCard(page1));
    layout->addWidget(buildBrushCard(page1), 1);
    return page1;
}

QWidget* FrameLight::buildWorksCard(QWidget* parent)
{
    auto* card = new QFrame(parent);
    card->setObjectName(QStringLiteral("frameWorks"));
    card->setFixedWidth(kWorksCardWidth);
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(20, 14, 20, 20);
    layout->setSpacing(10);
    labelTitle1 = namedLabel(card, "labelTitle1");
    layout->addWidget(labelTitle1);

    tableView = new QTableView(card);
    tableView->setObjectName(QStringLiteral("tableView"));
    model = new QStandardItemModel(0, 3, tableView);
    tableView->setModel(model);
    tableView->setItemDelegateForColumn(0, new PictureDelegate(tableView));
    tableView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tableView->setSelectionBehavior(QAbstractItemView::SelectRows);
    tableView->setSelectionMode(QAbstractItemView::SingleSelection);
    tableView->setFocusPolicy(Qt::NoFocus);
    tableView->setShowGrid(false);
    tableView->setMouseTracking(true);
    tableView->verticalHeader()->hide();
    tableView->verticalHeader()->setDefaultSectionSize(kRowHeight);
    tableView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QHeaderView* header = tableView->horizontalHeader();
    header->setSectionResizeMode(0, QHeaderView::Fixed);
    header->setSectionResizeMode(1, QHeaderView::Stretch);
    header->setSectionResizeMode(kManageColumn, QHeaderView::Fixed);
    header->resizeSection(0, kPreviewWidth);
    header->resizeSection(kManageColumn, kManageWidth);
    header->setHighlightSections(false);
    layout->addWidget(tableView, 1);
    return card;
}

QWidget* FrameLight::buildBrushCard(QWidget* parent)
{
    auto* card = new QFrame(parent);
    card->setObjectName(QStringLiteral("frameBrush"));
    auto* layout = new QGridLayout(card);
    layout->setContentsMargins(24, 18, 24, 18);
    layout->setHorizontalSpacing(12);
    layout->setVerticalSpacing(18);

    // The brush: its colour, the picker, the random colour and the clear button.
    auto* brush = new QHBoxLayout;
    brush->setSpacing(10);
    labelTitle2 = namedLabel(card, "labelTitle2");
    labelColor = namedLabel(card, "labelColor");
    labelColor->setFixedSize(kSwatchSize, kSwatchSize);
    labelColor->setCursor(Qt::PointingHandCursor);
    labelColor->installEventFilter(this);
    labelTitle3 = namedLabel(card, "labelTitle3");
    labelPickup = namedLabel(card, "labelPickup");
    labelPickup->setFixedSize(28, 28);
    labelPickup->setScaledContents(true);
    labelPickup->setPixmap(QPixmap(QStringLiteral(":/images/pickup2.png")));
    labelPickup->setCursor(Qt::PointingHandCursor);
    labelPickup->installEventFilter(this);
    labelTitle4 = namedLabel(card, "labelTitle4");
    checkBoxRam = new ToggleButton(card);
    checkBoxRam->setObjectName(QStringLiteral("checkBoxRam"));
    pushButtonReset = namedButton(card, "pushButtonReset");
    brush->addWidget(labelTitle2);
    brush->addWidget(labelColor);
    brush->addSpacing(8);
    brush->addWidget(labelTitle3);
    brush->addWidget(labelPickup);
    brush->addSpacing(8);
    brush->addWidget(labelTitle4);
    brush->addWidget(checkBoxRam);
    brush->addStretch(1);
    brush->addWidget(pushButtonReset);
    layout->addLayout(brush, 0, 0, 1, 2);

    labelTitle5 = namedLabel(card, "labelTitle5");
    buttonGroupWrite = buildLayerRow(layout, 1, labelTitle5, "buttonGroupWrite", "radioButtonW");
    labelTitle6 = namedLabel(card, "labelTitle6");
    buttonGroupRead = buildLayerRow(layout, 2, labelTitle6, "buttonGroupRead", "radioButtonR");

    labelName = namedLabel(card, "labelName");
    layout->addWidget(labelName, 3, 0);
    auto* nameRow = new QHBoxLayout;
    nameRow->setSpacing(10);
    lineEditName = new QLineEdit(card);
    lineEditName->setObjectName(QStringLiteral("lineEditName"));
    pushButtonUpdate = namedButton(card, "pushButtonUpdate");
    pushButtonUpdate->hide();
    pushButtonSave = namedButton(card, "pushButtonSave");
    nameRow->addWidget(lineEditName, 1);
    nameRow->addWidget(pushButtonUpdate);
    nameRow->addWidget(pushButtonSave);
    layout->addLayout(nameRow, 3, 1);

    labelHint = namedLabel(card, "labelHint");
    labelHint->setWordWrap(true);
    layout->addWidget(labelHint, 4, 0, 1, 2);
    layout->setRowStretch(5, 1);
    layout->setColumnStretch(1, 1);
    return card;
}

QButtonGroup* FrameLight::buildLayerRow(QGridLayout* grid, int row, QLabel* title, const char* name,
                                        const char* prefix)
{
    auto* group = new QButtonGroup(this); // automatic ids: -2 is the first layer
    group->setObjectName(QLatin1String(name));
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    for (int layer = 0; layer < kLayers; ++layer) {
        auto* radio = new PillRadioButton(title->parentWidget());
        radio->setObjectName(QLatin1String(prefix) + QString::number(layer));
        radio->setFixedSize(kLayerButtonSize);
        radio->setFocusPolicy(Qt::NoFocus);
        group->addButton(radio);
        buttons->addWidget(radio);
    }
    buttons->addStretch(1);
    grid->addWidget(title, row, 0);
    grid->addLayout(buttons, row, 1);
    return group;
}

void FrameLight::retranslate()
{
    labelTitle1->setText(tr("我的作品"));
    labelHint->setText(tr("点击按键或在键盘空白处拖出框选来上色；选择写入层即把图写入键盘，"
                          "选择读取层即从键盘读回。"));
    labelTitle2->setText(tr("颜色:"));
    labelTitle3->setText(tr("取色器："));
    labelPickup->setToolTip(tr("取色器"));
    labelTitle4->setText(tr("随机颜色："));
    pushButtonReset->setText(tr("清除设置"));
    labelTitle5->setText(tr("写入层(图):"));
    labelTitle6->setText(tr("读取层(图):"));
    for (QButtonGroup* group : {buttonGroupWrite, buttonGroupRead}) {
        const QList<QAbstractButton*> buttons = group->buttons();
        for (int layer = 0; layer < buttons.size(); ++layer)
            buttons.at(layer)->setText(tr(kLayerText).arg(layer + 1));
    }
    labelName->setText(tr("作品名称:"));
    if (lineEditName->text().isEmpty() || lineEditName->text() == defaultName) {
        defaultName = tr(kDefaultName);
        lineEditName->setText(defaultName);
    }
    pushButtonUpdate->setText(tr("更新"));
    pushButtonSave->setText(tr("保存"));
    model->setHorizontalHeaderLabels(tr(kHeader).split(u','));
    for (int row = 0; row < model->rowCount(); ++row)
        model->item(row, kManageColumn)->setText(tr("删除"));
}

void FrameLight::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QFrame::changeEvent(event);
}
