#include "DialogFNPicker.h"

#include "Macro.h"
#include "ModuleGenKeymapping.h"
#include "ModuleMacroManager.h"
#include "NewTabWidget.h"

#include <QButtonGroup>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <array>

namespace {

constexpr int kKeyWidth = 42;
constexpr int kMacroColumns = 5;
constexpr int kSystemColumns = 7;
constexpr int kMouseColumns = 4;
constexpr int kMacroEventsForName = 2;
constexpr int kRepeatMax = 10000;

// pushButton_F01 to F19 by picture; F n gives row n - 1 of the function list. From F14 on the
// pictures and the rows don't match; the pairing stands as it is.
constexpr std::array<const char*, 19> kSystemPictures{
    "fn.png",
    "houtui.png",
    "kuaijin.png",
    "zanting.png",
    "guanbiyinliang.png",
    "yinliangjia.png",
    "yinliangjian.png",
    "yinyue.png",
    "jisuanqi.png",
    "youjian.png",
    "frame.png",
    "sousuo.png",
    "shouye.png",
    "shuaxin.png",
    "jianpanliangdujia.png",
    "jianpanliangdu.png",
    "fangda.png",
    "suoxiao.png",
    "yuyin.png",
};
// The two without a picture.
constexpr std::array<const char*, 2> kSystemTexts{"IME On", "IME Off"};

// pushButton_Mouse00 to 10 give the mouse list's rows 0 to 10.
struct MouseButton
{
    const char* text;
    const char* picture;
};
constexpr std::array<MouseButton, 11> kMouseChoices{{
    {QT_TRANSLATE_NOOP("DialogFNPicker", "左键"), "left.png"},
    {QT_TRANSLATE_NOOP("DialogFNPicker", "右键"), "right.png"},
    {QT_TRANSLATE_NOOP("DialogFNPicker", "中键"), "middle.png"},
    {QT_TRANSLATE_NOOP("DialogFNPicker", "前移"), "forward.png"},
    {QT_TRANSLATE_NOOP("DialogFNPicker", "后移"), "back.png"},
    {QT_TRANSLATE_NOOP("DialogFNPicker", "左滚"), "wheel-left.png"},
    {QT_TRANSLATE_NOOP("DialogFNPicker", "右滚"), "wheel-right.png"},
    {QT_TRANSLATE_NOOP("DialogFNPicker", "上滚"), "wheel-up.png"},
    {QT_TRANSLATE_NOOP("DialogFNPicker", "下滚"), "wheel-down.png"},
    {QT_TRANSLATE_NOOP("DialogFNPicker", "向上滚屏"), "page-up.png"},
    {QT_TRANSLATE_NOOP("DialogFNPicker", "向下滚屏"), "page-down.png"},
}};

const char* const kTabStyle = R"(
QPushButton[choice="macro"], QPushButton[choice="mouse"] { background-color: #FBFBFB;
    color: #1A1A1A; border: 1px solid #EAEAEA; border-radius: 10px; font-size: 13px;
    padding: 0px 10px; }
QPushButton[choice="macro"] { min-width: 128px; max-width: 128px; min-height: 30px; }
QPushButton[choice="mouse"] { min-width: 150px; min-height: 52px; text-align: left; }
QPushButton[choice="macro"]:hover, QPushButton[choice="mouse"]:hover { border-color: #6329B6;
    color: #6329B6; }
QPushButton[choice="macro"]:checked, QPushButton[choice="mouse"]:checked {
    background-color: #6329B6; border-color: #6329B6; color: #FFFFFF; }
QPushButton[choice="picture"], QPushButton[choice="text"] { min-width: 64px; max-width: 64px;
    min-height: 64px; max-height: 64px; }
QPushButton[choice="text"] { background-color: #F3F0F8; color: #4A1D8C; border: none;
    border-radius: 14px; font-size: 12px; font-weight: 600; }
QPushButton[choice="text"]:hover, QPushButton[choice="text"]:checked {
    background-color: #6329B6; color: #FFFFFF; }
QLabel#labelPlay { color: #1A1A1A; font-size: 14px; font-weight: 600; }
QSpinBox { border: 1px solid #D0D0D0; border-radius: 6px; min-height: 26px; padding: 0px 6px; }
)";

QWidget* tabPage(const char* name, const char* frameName, QWidget* owner, QWidget*& frame)
{
    auto* page = new QWidget(owner);
    page->setObjectName(QLatin1String(name));
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 14, 0, 0);
    frame = new QFrame(page);
    frame->setObjectName(QLatin1String(frameName));
    layout->addWidget(frame);
    layout->addStretch(1);
    return page;
}

} // namespace

DialogFNPicker::DialogFNPicker(const ModuleGenKeymapping& keyTables,
                               const ModuleMacroManager& macroStore, QWidget* parent)
    : DialogKeyPickerBase(kKeyWidth, parent), keys(keyTables), macros(macroStore),
      buttonGroupFN(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("DialogFNPicker"));
    buttonGroupFN->setObjectName(QStringLiteral("buttonGroupFN"));
    card()->setStyleSheet(QLatin1String(kTabStyle));

    tabWidgetKey = new NewTabWidget(card());
    tabWidgetKey->setObjectName(QStringLiteral("tabWidgetKey"));
    QWidget* frame = nullptr;
    QWidget* page = tabPage("tab11", "frameNorKey", tabWidgetKey, frame);
    auto* norLayout = new QVBoxLayout(frame);
    norLayout->setContentsMargins(0, 0, 0, 0);
    norLayout->addWidget(buildKeyBlocks(frame, tr("基本字符"), tr("拓展字符(按键)")));
    tabWidgetKey->addTab(page, tr("组合键"));
    tabWidgetKey->addTab(buildMacroTab(), tr("宏设置"));
    tabWidgetKey->addTab(buildSystemTab(), tr("系统功能"));
    tabWidgetKey->addTab(buildMouseTab(), tr("鼠标功能"));

    auto* layout = new QVBoxLayout(card());
    layout->setContentsMargins(28, 20, 28, 24);
    layout->setSpacing(16);
    layout->addWidget(tabWidgetKey);
    layout->addWidget(buildSlotRow(card(), tr("设置功能为:"), tr("确定")));

    connect(buttonGroupFN, &QButtonGroup::buttonClicked, this, &DialogFNPicker::onFunctionButton);
    connect(tabWidgetKey, &QTabWidget::currentChanged, this, &DialogFNPicker::onTabChanged);
}

QPushButton* DialogFNPicker::choiceButton(QWidget* frame, const char* prefix, int number,
                                          const char* kind)
{
    auto* button = new QPushButton(frame);
    button->setObjectName(QLatin1String(prefix) +
                          QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')));
    button->setProperty("choice", kind);
    button->setCheckable(true);
    button->setCursor(Qt::PointingHandCursor);
    button->setFocusPolicy(Qt::NoFocus);
    buttonGroupFN->addButton(button);
    return button;
}

QWidget* DialogFNPicker::buildMacroTab()
{
    QWidget* frame = nullptr;
    QWidget* page = tabPage("tab12", "frameMocro", tabWidgetKey, frame);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(14);
    auto* grid = new QGridLayout();
    grid->setSpacing(8);
    for (int n = 0; n < kMacroButtons; ++n) {
        QPushButton* button = choiceButton(frame, "pushButton_Micro", n, "macro");
        const Macro* stored = macros.FindMacro(quint8(n));
        button->setText(stored && stored->events.size() >= kMacroEventsForName
                            ? stored->name
                            : tr("宏%1").arg(n + 1));
        grid->addWidget(button, n / kMacroColumns, n % kMacroColumns);
    }
    grid->setColumnStretch(kMacroColumns, 1);
    layout->addLayout(grid);

    auto* play = new QHBoxLayout();
    play->setSpacing(14);
    auto* labelPlay = new QLabel(tr("播放方式:"), frame);
    labelPlay->setObjectName(QStringLiteral("labelPlay"));
    radioButtonM1 = new QRadioButton(tr("循环次数"), frame);
    radioButtonM1->setObjectName(QStringLiteral("radioButtonM1"));
    radioButtonM1->setChecked(true);
    spinBoxM = new QSpinBox(frame);
    spinBoxM->setObjectName(QStringLiteral("spinBoxM"));
    spinBoxM->setRange(1, kRepeatMax);
    spinBoxM->setFixedWidth(90);
    radioButtonM2 = new QRadioButton(tr("自动"), frame);
    radioButtonM2->setObjectName(QStringLiteral("radioButtonM2"));
    radioButtonM3 = new QRadioButton(tr("按下"), frame);
    radioButtonM3->setObjectName(QStringLiteral("radioButtonM3"));
    play->addWidget(labelPlay);
    play->addWidget(radioButtonM1);
    play->addWidget(spinBoxM);
    play->addSpacing(10);
    play->addWidget(radioButtonM2);
    play->addWidget(radioButtonM3);
    play->addStretch(1);
    layout->addLayout(play);
    return page;
}

QWidget* DialogFNPicker::buildSystemTab()
{
    QWidget* frame = nullptr;
    QWidget* page = tabPage("tab13", "frameFnKey", tabWidgetKey, frame);
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(14);
    QString style;
    for (int n = 1; n <= kSystemButtons; ++n) {
        QPushButton* button = choiceButton(frame, "pushButton_F", n, "picture");
        const QString name = button->objectName();
        button->setFixedSize(64, 64);
        if (n <= int(kSystemPictures.size())) {
            const QString picture = QLatin1String(kSystemPictures[n - 1]);
            style += QStringLiteral("QPushButton#%1 { border: none; border-image: "
                                    "url(:/images/macro/fn0/%2); }")
                         .arg(name, picture);
            style += QStringLiteral("QPushButton#%1:checked, QPushButton#%1:pressed, "
                                    "QPushButton#%1:hover { border-image: "
                                    "url(:/images/macro/fn1/%2); }")
                         .arg(name, picture);
        } else {
            button->setText(QLatin1String(kSystemTexts[n - 1 - kSystemPictures.size()]));
            button->setProperty("choice", "text");
        }
        if (const auto row = keys.FunctionEntryAt(quint8(n - 1)))
            button->setToolTip(keys.KeyEntryText(row->entry, true));
        grid->addWidget(button, (n - 1) / kSystemColumns, (n - 1) % kSystemColumns);
    }
    frame->setStyleSheet(style);
    grid->setColumnStretch(kSystemColumns, 1);
    return page;
}

QWidget* DialogFNPicker::buildMouseTab()
{
    QWidget* frame = nullptr;
    QWidget* page = tabPage("tab14", "frameFnMouse", tabWidgetKey, frame);
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(12);
    for (int n = 0; n < kMouseButtons; ++n) {
        const MouseButton& entry = kMouseChoices[n];
        QPushButton* button = choiceButton(frame, "pushButton_Mouse", n, "mouse");
        button->setText(tr(entry.text));
        button->setIcon(QIcon(QStringLiteral(":/images/macro/mouse/%1").arg(entry.picture)));
        button->setIconSize(QSize(32, 32));
        if (const auto row = keys.MouseEntryAt(quint8(n)))
            button->setToolTip(keys.KeyEntryText(row->entry, true));
        grid->addWidget(button, n / kMouseColumns, n % kMouseColumns);
    }
    grid->setColumnStretch(kMouseColumns, 1);
    return page;
}

void DialogFNPicker::onFunctionButton(QAbstractButton* button)
{
    macro = false;
    const QString name = button->objectName();
    const quint8 n = quint8(name.right(2).toUInt());
    if (name.contains(QLatin1String("_Micro"))) {
        macro = true;
        // The box goes to 10000 and the byte keeps its low 8 bits: deliberate, 300 gives 44.
        const quint8 repeat = quint8(spinBoxM->value() & 0xFF);
        const quint8 mode = radioButtonM2->isChecked() ? 1 : radioButtonM3->isChecked() ? 2 : 0;
        result = KeyEntry(repeat, mode, n, 0);
        const Macro* stored = macros.FindMacro(n);
        slotLabel(0)->setText(stored ? stored->name : tr("未录制的宏"));
        return;
    }
    std::optional<KeyFunctionRow> row;
    if (name.contains(QLatin1String("_F")))
        row = keys.FunctionEntryAt(quint8(n - 1));
    else if (name.contains(QLatin1String("_Mouse")))
        row = keys.MouseEntryAt(n);
    if (!row) return;
    result = row->entry;
    slotLabel(0)->setText(keys.KeyEntryText(result, true));
}

void DialogFNPicker::onTabChanged(int index)
{
    macro = false;
    clearSlots();
    slotLabel(1)->setVisible(index == 0);
    slotLabel(2)->setVisible(index == 0);
    // The choice of the tab left behind goes with it.
    buttonGroupFN->setExclusive(false);
    if (QAbstractButton* checked = buttonGroupFN->checkedButton()) checked->setChecked(false);
    buttonGroupFN->setExclusive(true);
}
