#include "FrameMacroForm.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

// The squares' look is here too: they live in the page's grid.
const char* const kPageStyle = R"(
QFrame#frameList, QFrame#frameEditor { background-color: #F6F6F6; border-radius: 25px; }
QLabel#labelListTitle, QLabel#labelMacroName { font-size: 18px; font-weight: 600;
    color: #1A1A1A; }
QLabel#labelSize { font-size: 14px; font-weight: 600; color: #6329B6;
    background-color: #EFE7FB; border-radius: 15px; padding: 0px 14px; min-height: 30px; }
QLabel#labelSize[over="true"] { color: #C4323A; background-color: #FBE5E6; }
QLabel#labelHint, QLabel#labelRelease, QLabel#labelPress, QLabel#labelDelay {
    font-size: 13px; color: #6A6A74; }
QLabel#labelEmpty { font-size: 14px; color: #9A9AA4; }
QPushButton[tool="true"] { font-size: 14px;
    color: #333333; background-color: #FFFFFF; border: 1px solid #E2E2E2; border-radius: 17px;
    padding: 0px 16px; min-height: 34px; }
QPushButton[tool="true"]:hover { border-color: #6329B6; color: #6329B6; }
QPushButton[tool="true"]:pressed { background-color: #EFE8F8; }
QPushButton[tool="true"]:disabled { color: #B8B8C0; border-color: #ECECEC; }
QPushButton#pushButtonAddMacro { padding: 0px; min-width: 34px; max-width: 34px; }
QPushButton#pushButtonRecord:checked { background-color: #E5484D; border-color: #E5484D;
    color: #FFFFFF; }
QPushButton#pushButtonSave { background-color: #6329B6; border-color: #6329B6; color: #FFFFFF; }
QPushButton#pushButtonSave:hover { background-color: #7440C4; color: #FFFFFF; }
QPushButton#pushButtonSave:disabled { background-color: #CDBDE8; border-color: #CDBDE8; }
QSpinBox#spinBoxDelay { min-height: 32px; min-width: 76px; border: 1px solid #E2E2E2;
    border-radius: 8px; padding: 0px 8px; background-color: #FFFFFF; font-size: 14px; }
QScrollArea { background: transparent; border: none; }
QWidget#listContents { background: transparent; }
QScrollArea#scrollAreaSquares { background-color: #FFFFFF; border-radius: 16px; }
QWidget#gridWidget { background-color: #FFFFFF; }
QScrollBar:vertical { width: 8px; background: transparent; margin: 8px 2px 8px 0px; }
QScrollBar::handle:vertical { background: #D6D6DE; border-radius: 3px; min-height: 32px; }
QScrollBar::add-line, QScrollBar::sub-line { height: 0px; }
MacroItem { background-color: transparent; border-radius: 12px; }
MacroItem:hover { background-color: #ECECF2; }
MacroItem[selected="true"] { background-color: #6329B6; }
MacroItem QLineEdit { background: transparent; border: none; font-size: 14px; color: #333333; }
MacroItem[selected="true"] QLineEdit { color: #FFFFFF; }
MacroItem QLineEdit[readOnly="false"] { background-color: #FFFFFF; color: #1A1A1A;
    border: 1px solid #6329B6; border-radius: 6px; padding: 0px 4px; }
MacroItem QPushButton { border: none; background: transparent; border-radius: 13px; }
MacroItem QPushButton:hover { background-color: rgba(255, 255, 255, 0.55); }
MacroSquare { border-radius: 10px; border: 2px solid transparent; }
MacroSquare QLabel { font-size: 15px; font-weight: 700; background: transparent; }
MacroSquare[kind="press"], MacroSquare[kind="release"] { background-color: #9470DA; }
MacroSquare QLabel[long="true"] { font-size: 12px; }
MacroSquare[kind="press"] QLabel { color: #15121C; }
MacroSquare[kind="release"] QLabel { color: #FFFFFF; }
MacroSquare[kind="position"] { background-color: #DCE6F7; }
MacroSquare[kind="position"] QLabel { color: #1E2A3C; font-size: 12px; }
MacroSquare[kind="delay"] { background-color: #FFF1DA; border: 1px solid #F2A122; }
MacroSquare[kind="delay"] QLabel { color: #9A5A00; font-size: 12px; font-weight: 600; }
MacroSquare[selected="true"] { border: 3px solid #2B8AE0; }
MacroSquare QSpinBox { border: 1px solid #6329B6; border-radius: 4px; background: #FFFFFF;
    font-size: 12px; padding: 0px; min-height: 20px; }
MacroSquare QPushButton { border: none; background: transparent; padding: 0px; }
)";

constexpr int kSquareSpacing = 4; // between squares, both ways
constexpr int kDot = 10;

// A legend's coloured dot.
QPixmap dot(QColor fill, QColor edge)
{
    QPixmap pixmap(kDot * 2, kDot * 2);
    pixmap.setDevicePixelRatio(2);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, 1));
    painter.setBrush(fill);
    painter.drawEllipse(QRectF(1, 1, kDot - 2, kDot - 2));
    return pixmap;
}

QPushButton* toolButton(QWidget* parent, const char* name, const char* icon = nullptr)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    if (icon) {
        button->setIcon(QIcon(QLatin1String(icon)));
        button->setIconSize(QSize(16, 16));
    }
    button->setProperty("tool", true);
    button->setCursor(Qt::PointingHandCursor);
    // The page keeps the focus while recording; buttons must not take it.
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

QLabel* legendEntry(QWidget* parent, QHBoxLayout* layout, const char* name, QColor fill,
                    QColor edge)
{
    auto* mark = new QLabel(parent);
    mark->setPixmap(dot(fill, edge));
    auto* text = new QLabel(parent);
    text->setObjectName(QLatin1String(name));
    layout->addWidget(mark);
    layout->addWidget(text);
    layout->addSpacing(14);
    return text;
}

} // namespace

void FrameMacroForm::setupUi(QFrame* page)
{
    page->setStyleSheet(QLatin1String(kPageStyle));
    auto* layout = new QHBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(20);
    layout->addWidget(buildList(page));
    layout->addWidget(buildEditor(page), 1);
    retranslateUi();
}

QWidget* FrameMacroForm::buildList(QFrame* page)
{
    frameList = new QFrame(page);
    frameList->setObjectName(QStringLiteral("frameList"));
    frameList->setFixedWidth(kListWidth);
    auto* layout = new QVBoxLayout(frameList);
    layout->setContentsMargins(16, 20, 16, 16);
    layout->setSpacing(12);

    auto* head = new QHBoxLayout;
    head->setContentsMargins(8, 0, 0, 0);
    labelListTitle = new QLabel(frameList);
    labelListTitle->setObjectName(QStringLiteral("labelListTitle"));
    pushButtonAddMacro = toolButton(frameList, "pushButtonAddMacro", ":/images/macropage/add.png");
    pushButtonAddMacro->setIconSize(QSize(18, 18));
    head->addWidget(labelListTitle, 1);
    head->addWidget(pushButtonAddMacro);
    layout->addLayout(head);

    scrollAreaList = new QScrollArea(frameList);
    scrollAreaList->setObjectName(QStringLiteral("scrollAreaList"));
    scrollAreaList->setWidgetResizable(true);
    scrollAreaList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* contents = new QWidget;
    contents->setObjectName(QStringLiteral("listContents"));
    listLayout = new QVBoxLayout(contents);
    listLayout->setContentsMargins(0, 0, 0, 0);
    listLayout->setSpacing(4);
    listLayout->addStretch(1);
    scrollAreaList->setWidget(contents);
    layout->addWidget(scrollAreaList, 1);
    return frameList;
}

QWidget* FrameMacroForm::buildEditor(QFrame* page)
{
    frameEditor = new QFrame(page);
    frameEditor->setObjectName(QStringLiteral("frameEditor"));
    auto* layout = new QVBoxLayout(frameEditor);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(12);

    auto* head = new QHBoxLayout;
    labelMacroName = new QLabel(frameEditor);
    labelMacroName->setObjectName(QStringLiteral("labelMacroName"));
    labelSize = new QLabel(frameEditor);
    labelSize->setObjectName(QStringLiteral("labelSize"));
    head->addWidget(labelMacroName, 1);
    head->addWidget(labelSize);
    layout->addLayout(head);

    layout->addWidget(buildTools(frameEditor));
    layout->addWidget(buildLegend(frameEditor));

    scrollAreaSquares = new QScrollArea(frameEditor);
    scrollAreaSquares->setObjectName(QStringLiteral("scrollAreaSquares"));
    scrollAreaSquares->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrollAreaSquares->setWidgetResizable(false);
    gridWidget = new QWidget;
    gridWidget->setObjectName(QStringLiteral("gridWidget"));
    gridLayout = new QGridLayout(gridWidget);
    gridLayout->setContentsMargins(16, 16, 16, 16);
    gridLayout->setSpacing(kSquareSpacing);
    gridLayout->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    scrollAreaSquares->setWidget(gridWidget);
    layout->addWidget(scrollAreaSquares, 1);
    labelHint = new QLabel(frameEditor);
    labelHint->setObjectName(QStringLiteral("labelHint"));
    layout->addWidget(labelHint);

    labelEmpty = new QLabel(scrollAreaSquares->viewport());
    labelEmpty->setObjectName(QStringLiteral("labelEmpty"));
    labelEmpty->setAlignment(Qt::AlignCenter);
    labelEmpty->setWordWrap(true);
    labelEmpty->setAttribute(Qt::WA_TransparentForMouseEvents);
    return frameEditor;
}

QWidget* FrameMacroForm::buildTools(QWidget* parent)
{
    auto* tools = new QWidget(parent);
    auto* layout = new QHBoxLayout(tools);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    pushButtonRecord = toolButton(tools, "pushButtonRecord", ":/images/macropage/record.png");
    pushButtonRecord->setCheckable(true);
    pushButtonInsert = toolButton(tools, "pushButtonInsert", ":/images/macropage/insert.png");
    pushButtonDelete = toolButton(tools, "pushButtonDelete", ":/images/macropage/delete.png");
    pushButtonClear = toolButton(tools, "pushButtonClear", ":/images/macropage/clear.png");
    for (QPushButton* button :
         {pushButtonRecord, pushButtonInsert, pushButtonDelete, pushButtonClear})
        layout->addWidget(button);
    layout->addStretch(1);
    pushButtonSave = toolButton(tools, "pushButtonSave", ":/images/macropage/save-light.png");
    layout->addWidget(pushButtonSave);
    return tools;
}

QWidget* FrameMacroForm::buildLegend(QWidget* parent)
{
    auto* legend = new QWidget(parent);
    auto* layout = new QHBoxLayout(legend);
    layout->setContentsMargins(4, 0, 0, 0);
    layout->setSpacing(6);
    labelRelease = legendEntry(legend, layout, "labelRelease", Qt::white, QColor(0xB0B0BA));
    labelPress = legendEntry(legend, layout, "labelPress", QColor(0x15121C), QColor(0x15121C));
    labelDelay = legendEntry(legend, layout, "labelDelay", QColor(0xF2A122), QColor(0xF2A122));
    layout->addStretch(1);
    pushButtonSetDelay = toolButton(legend, "pushButtonSetDelay");
    spinBoxDelay = new QSpinBox(legend);
    spinBoxDelay->setObjectName(QStringLiteral("spinBoxDelay"));
    spinBoxDelay->setRange(5, 65535); // the squares' own limits for a delay
    spinBoxDelay->setValue(50);
    spinBoxDelay->setButtonSymbols(QAbstractSpinBox::NoButtons);
    spinBoxDelay->setAlignment(Qt::AlignCenter);
    layout->addWidget(pushButtonSetDelay);
    layout->addWidget(spinBoxDelay);
    return legend;
}

void FrameMacroForm::retranslateUi()
{
    labelListTitle->setText(tr("宏列表"));
    pushButtonAddMacro->setToolTip(tr("新建宏"));
    pushButtonInsert->setText(tr("插入"));
    pushButtonDelete->setText(tr("删除"));
    pushButtonClear->setText(tr("清空"));
    pushButtonSetDelay->setText(tr("设置固定延迟(ms):"));
    pushButtonSave->setText(tr("保存"));
    labelRelease->setText(tr("松开"));
    labelPress->setText(tr("按下"));
    labelDelay->setText(tr("延迟"));
    labelHint->setText(tr("录制时，在本页按下按键或点击鼠标即被记录"));
    labelEmpty->setText(tr("点击“开始录制”后按下按键或点击鼠标，或用“插入”逐个添加事件"));
}
