// The widgets of the colour panel: the system colour wheel, the custom square with its
// swatches, and the side light's groups.

#include "ColorDelegate.h"
#include "ColorLabel.h"
#include "ColorSlider.h"
#include "ColorSquare.h"
#include "ModuleEfColor.h"
#include "NewTabWidget.h"
#include "ToggleButton.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>
#include <array>

namespace {

constexpr QSize kSquareSize{300, 200};
constexpr int kHueMax = 359;
constexpr int kDotPointSize = 24;
constexpr int kSwatchSize = 34;
constexpr int kBandHeight = 150;

// The swatches' colours until the user keeps others.
constexpr std::array<QRgb, ModuleEfColor::kSwatches> kSwatchColors{
    0xFF3B30, 0xFF9500, 0xFFCC00, 0x34C759, 0x00C7BE, 0x007AFF, 0x6329B6, 0xFF6FB5};

struct SideButton
{
    const char* name;
    const char* text;
};

// The groups' buttons in the order of their values; the names are the form's own.
constexpr std::array<SideButton, 5> kSpeedButtons{{{"radioButtonS0", "0"},
                                                   {"radioButtonS1", "1"},
                                                   {"radioButtonS2", "2"},
                                                   {"radioButtonS4", "3"},
                                                   {"radioButtonS3", "4"}}};
constexpr std::array<SideButton, 5> kBrightButtons{{{"radioButtonL0", "0"},
                                                    {"radioButtonL1", "1"},
                                                    {"radioButtonL2", "2"},
                                                    {"radioButtonL3", "3"},
                                                    {"radioButtonL4", "4"}}};
constexpr std::array<SideButton, 2> kColorButtons{
    {{"pushButtonCol0", QT_TRANSLATE_NOOP("ModuleEfColor", "炫彩")},
     {"pushButtonCol1", QT_TRANSLATE_NOOP("ModuleEfColor", "自定义")}}};
constexpr std::array<SideButton, 6> kEffectButtons{
    {{"pushButton0", QT_TRANSLATE_NOOP("ModuleEfColor", "关闭")},
     {"pushButton1", QT_TRANSLATE_NOOP("ModuleEfColor", "常亮")},
     {"pushButton2", QT_TRANSLATE_NOOP("ModuleEfColor", "呼吸")},
     {"pushButton5", QT_TRANSLATE_NOOP("ModuleEfColor", "川流不息")},
     {"pushButton3", QT_TRANSLATE_NOOP("ModuleEfColor", "霓虹")},
     {"pushButton4", QT_TRANSLATE_NOOP("ModuleEfColor", "光波")}}};

const char* const kStyle = R"(
QTabWidget::pane { border: none; background: transparent; }
QTabWidget, QTabWidget > QWidget { background: transparent; }
#frameBand { border-image: url(:/images/light/light.png) 0 0 0 0 stretch stretch; }
QLabel#labelPresetHint { color: #9A9AA4; font-size: 12px; }
QTableView { background: transparent; border: none; }
#tab3 QPushButton { border: 1px solid #E2E2E2; border-radius: 13px; background-color: #FFFFFF;
    color: #26262C; min-height: 26px; padding: 0px 10px; font-size: 13px; }
#tab3 QPushButton:hover { border-color: #6329B6; }
#tab3 QPushButton:checked { background-color: #6329B6; border-color: #6329B6; color: #FFFFFF; }
#tab3 QLabel { color: #5C5C66; }
#tab3 QRadioButton { color: #26262C; spacing: 4px; }
)";

template <std::size_t N>
QButtonGroup* makeGroup(QWidget* owner, const char* name, const std::array<SideButton, N>& rows,
                        bool radio, QBoxLayout* into)
{
    auto* group = new QButtonGroup(owner);
    group->setObjectName(QLatin1String(name));
    for (const SideButton& row : rows) {
        QAbstractButton* button =
            radio ? static_cast<QAbstractButton*>(new QRadioButton(owner)) : new QPushButton(owner);
        button->setObjectName(QLatin1String(row.name));
        button->setCheckable(true);
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::NoFocus);
        group->addButton(button); // automatic ids: -2 is the first
        into->addWidget(button);
    }
    return group;
}

} // namespace

void ModuleEfColor::buildForm()
{
    setStyleSheet(QLatin1String(kStyle));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    tabWidget = new NewTabWidget(this);
    tabWidget->setObjectName(QStringLiteral("tabWidget"));
    tabWidget->addTab(buildSystemTab(), QString());
    tabWidget->addTab(buildCustomTab(), QString());
    tabWidget->addTab(buildSideTab(), QString());
    tabWidget->setAttribute(Qt::WA_TranslucentBackground);
    layout->addWidget(tabWidget);
    retranslate();
}

QWidget* ModuleEfColor::buildSystemTab()
{
    // The band of light with the dots stands in the middle of the tab, the hint under it.
    auto* page = new QWidget(this);
    page->setObjectName(QStringLiteral("tab1"));
    auto* pageLayout = new QVBoxLayout(page);
    pageLayout->setContentsMargins(0, 0, 0, 0);
    auto* tab = new QFrame(page);
    tab->setObjectName(QStringLiteral("frameBand"));
    tab->setFixedHeight(kBandHeight);
    auto* layout = new QVBoxLayout(tab);
    layout->setContentsMargins(10, 0, 10, 0);
    tableView = new QTableView(tab);
    tableView->setObjectName(QStringLiteral("tableView"));
    model = new QStandardItemModel(1, kSystemColors, tableView);
    QFont dotFont = font();
    dotFont.setPointSize(kDotPointSize);
    for (int i = 0; i < kSystemColors; ++i) {
        auto* item = new QStandardItem(QStringLiteral("●"));
        item->setFont(dotFont);
        item->setEditable(false);
        model->setItem(0, i, item);
    }
    tableView->setModel(model);
    delegate = new ColorDelegate(tableView);
    tableView->setItemDelegate(delegate);
    tableView->horizontalHeader()->hide();
    tableView->verticalHeader()->hide();
    tableView->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    tableView->verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    tableView->setShowGrid(false);
    tableView->setSelectionMode(QAbstractItemView::NoSelection);
    tableView->setFocusPolicy(Qt::NoFocus);
    tableView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    tableView->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    tableView->setFixedHeight(96);
    tableView->setCursor(Qt::PointingHandCursor);
    layout->addWidget(tableView);
    labelPresetHint = new QLabel(page);
    labelPresetHint->setObjectName(QStringLiteral("labelPresetHint"));
    labelPresetHint->setAlignment(Qt::AlignCenter);
    pageLayout->addStretch(1);
    pageLayout->addWidget(tab);
    pageLayout->addSpacing(12);
    pageLayout->addWidget(labelPresetHint);
    pageLayout->addStretch(2);
    recolorSystemTable();
    return page;
}

QWidget* ModuleEfColor::buildCustomTab()
{
    auto* tab = new QWidget(this);
    tab->setObjectName(QStringLiteral("tab2"));
    auto* layout = new QVBoxLayout(tab);
    layout->setContentsMargins(0, 10, 0, 0);
    layout->setSpacing(10);
    colorSquare = new ColorSquare(tab);
    colorSquare->setObjectName(QStringLiteral("colorSquare"));
    colorSquare->setFixedSize(kSquareSize);
    colorSlider = new ColorSlider(tab);
    colorSlider->setObjectName(QStringLiteral("colorSlider"));
    colorSlider->setFixedWidth(kSquareSize.width());
    colorSlider->setRange(0, kHueMax);
    layout->addWidget(colorSquare, 0, Qt::AlignHCenter);
    layout->addWidget(colorSlider, 0, Qt::AlignHCenter);

    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    row->addStretch(1);
    for (int i = 0; i < kSwatches; ++i) {
        auto* swatch = new ColorLabel(tab);
        swatch->setObjectName(QStringLiteral("label_%1").arg(i + 1));
        swatch->setText(QStringLiteral("C0"));
        swatch->setFixedSize(kSwatchSize, kSwatchSize);
        swatch->setColor(QColor(kSwatchColors[i]));
        swatches.append(swatch);
        row->addWidget(swatch);
    }
    row->addStretch(1);
    layout->addLayout(row);

    frameSingle = new QFrame(tab);
    frameSingle->setObjectName(QStringLiteral("frameSingle"));
    auto* single = new QHBoxLayout(frameSingle);
    single->setContentsMargins(0, 0, 0, 0);
    labelSingle = new QLabel(frameSingle);
    labelSingle->setObjectName(QStringLiteral("labelTitleL1"));
    checkBoxSingle = new ToggleButton(frameSingle);
    checkBoxSingle->setObjectName(QStringLiteral("checkBoxSingle"));
    checkBoxSingle->setText(QStringLiteral("ON"));
    single->addWidget(labelSingle);
    single->addWidget(checkBoxSingle);
    single->addStretch(1);
    frameSingle->hide();
    layout->addWidget(frameSingle);
    layout->addStretch(1);
    return tab;
}

QWidget* ModuleEfColor::buildSideTab()
{
    auto* tab = new QWidget(this);
    tab->setObjectName(QStringLiteral("tab3"));
    auto* grid = new QGridLayout(tab);
    grid->setContentsMargins(8, 16, 8, 8);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(16);
    for (int i = 0; i < 4; ++i) {
        auto* title = new QLabel(tab);
        title->setObjectName(QStringLiteral("labelSide%1").arg(i));
        grid->addWidget(title, i, 0, Qt::AlignRight | Qt::AlignTop);
        sideTitles.append(title);
    }

    // The effects, in two rows of three.
    auto* effects = new QVBoxLayout;
    effects->setSpacing(8);
    auto* first = new QHBoxLayout;
    auto* second = new QHBoxLayout;
    effects->addLayout(first);
    effects->addLayout(second);
    buttonGroupE = makeGroup(tab, "buttonGroupE", kEffectButtons, false, first);
    const QList<QAbstractButton*> effectButtons = buttonGroupE->buttons();
    for (int i = 3; i < effectButtons.size(); ++i)
        second->addWidget(effectButtons.at(i)); // moves it to the second row
    grid->addLayout(effects, 0, 1);

    auto* speeds = new QHBoxLayout;
    buttonGroupS = makeGroup(tab, "buttonGroupS", kSpeedButtons, true, speeds);
    speeds->addStretch(1);
    grid->addLayout(speeds, 1, 1);
    auto* brights = new QHBoxLayout;
    buttonGroupL = makeGroup(tab, "buttonGroupL", kBrightButtons, true, brights);
    brights->addStretch(1);
    grid->addLayout(brights, 2, 1);

    auto* colours = new QHBoxLayout;
    buttonGroupC = makeGroup(tab, "buttonGroupC", kColorButtons, false, colours);
    labelColor = new QLabel(tab);
    labelColor->setObjectName(QStringLiteral("labelColor"));
    labelColor->setFixedSize(32, 32);
    labelColor->setCursor(Qt::PointingHandCursor);
    labelPickup = new QLabel(tab);
    labelPickup->setObjectName(QStringLiteral("labelPickup"));
    labelPickup->setFixedSize(28, 28);
    labelPickup->setScaledContents(true);
    labelPickup->setPixmap(QPixmap(QStringLiteral(":/images/pickup2.png")));
    labelPickup->setCursor(Qt::PointingHandCursor);
    colours->addSpacing(6);
    colours->addWidget(labelColor);
    colours->addWidget(labelPickup);
    colours->addStretch(1);
    grid->addLayout(colours, 3, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(4, 1);
    return tab;
}

void ModuleEfColor::retranslate()
{
    tabWidget->setTabText(0, tr("系统默认"));
    tabWidget->setTabText(1, tr("自定义"));
    tabWidget->setTabText(2, tr("灯带灯效设置"));
    labelSingle->setText(tr("单键"));
    labelPresetHint->setText(tr("点击一种颜色，它会转到中间并成为灯效的颜色"));
    const char* titles[] = {QT_TR_NOOP("灯效："), QT_TR_NOOP("速度："), QT_TR_NOOP("亮度："),
                            QT_TR_NOOP("色彩：")};
    for (int i = 0; i < sideTitles.size(); ++i)
        sideTitles.at(i)->setText(tr(titles[i]));
    const QList<QAbstractButton*> effects = buttonGroupE->buttons();
    for (int i = 0; i < effects.size(); ++i)
        effects.at(i)->setText(tr(kEffectButtons[i].text));
    const QList<QAbstractButton*> modes = buttonGroupC->buttons();
    for (int i = 0; i < modes.size(); ++i)
        modes.at(i)->setText(tr(kColorButtons[i].text));
    for (QButtonGroup* group : {buttonGroupS, buttonGroupL}) {
        const auto& rows = group == buttonGroupS ? kSpeedButtons : kBrightButtons;
        const QList<QAbstractButton*> buttons = group->buttons();
        for (int i = 0; i < buttons.size(); ++i)
            buttons.at(i)->setText(QLatin1String(rows[i].text));
    }
    labelPickup->setToolTip(tr("取色器"));
}
