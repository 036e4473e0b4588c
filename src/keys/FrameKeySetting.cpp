#include "FrameKeySetting.h"

#include "Clock.h"
#include "DialogDeviceConnect.h"
#include "ModuleAdvancedKeys.h"
#include "ModuleDeviceOptions.h"
#include "ModuleKeyboard.h"

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>
#include <array>

namespace {

struct ModeButton
{
    const char* name;
    const char* text;
};
// By group id; id 3, the Fn layer, shares the custom page.
constexpr std::array<ModeButton, 4> kModes{{
    {"pushButtonSet1", QT_TRANSLATE_NOOP("FrameKeySetting", "自定义")},
    {"pushButtonSet2", QT_TRANSLATE_NOOP("FrameKeySetting", "高级键")},
    {"pushButtonSet3", QT_TRANSLATE_NOOP("FrameKeySetting", "其他设置")},
    {"pushButtonSet4", QT_TRANSLATE_NOOP("FrameKeySetting", "Fn层设置")},
}};

constexpr QSize kModeButtonSize{120, 32};

// The custom page's three steps under the note; the last is the only place that tells of the
// right click.
struct Step
{
    const char* title;
    const char* text;
};
constexpr std::array<Step, 3> kSteps{{
    {QT_TRANSLATE_NOOP("FrameKeySetting", "选择按键"),
     QT_TRANSLATE_NOOP("FrameKeySetting", "点击上方键盘中要修改的按键")},
    {QT_TRANSLATE_NOOP("FrameKeySetting", "选择功能"),
     QT_TRANSLATE_NOOP("FrameKeySetting", "组合键、宏、系统功能或鼠标功能")},
    {QT_TRANSLATE_NOOP("FrameKeySetting", "清除或禁用"),
     QT_TRANSLATE_NOOP("FrameKeySetting", "右键点击按键可清除设置或禁用按键")},
}};

// The line above the note: what the keys below show.
const char* const kTitleDefault = QT_TRANSLATE_NOOP("FrameKeySetting", "自定义/Fn层设置");
const char* const kTitleCustom = QT_TRANSLATE_NOOP("FrameKeySetting", "自定义按键");
const char* const kTitleFn = QT_TRANSLATE_NOOP("FrameKeySetting", "Fn层按键设置");

const char* const kPageStyle = R"(
QFrame#frameT { background-color: #FFFFFF; border: 1px solid #EFEFEF; border-radius: 24px; }
QFrame#frameMode, QStackedWidget#stackedWidget { background-color: #F6F6F6;
    border-radius: 24px; }
QFrame#frameMode QPushButton { background-color: #FFFFFF; color: #333333;
    border: 1px solid #E2E2E2; border-radius: 16px; font-size: 14px; padding: 0px; }
QFrame#frameMode QPushButton:hover { border-color: #6329B6; color: #6329B6; }
QFrame#frameMode QPushButton:checked { background-color: #6329B6; border-color: #6329B6;
    color: #FFFFFF; }
QLabel#labelFunc { color: #1A1A1A; font-size: 18px; font-weight: 600; }
QLabel#labelNote { color: #6B6B6B; font-size: 13px; }
QFrame[role="step"] { background-color: #FFFFFF; border-radius: 16px; }
QLabel[role="stepNumber"] { background-color: #6329B6; color: #FFFFFF; border-radius: 14px;
    font-size: 14px; font-weight: 600; min-width: 28px; max-width: 28px; min-height: 28px;
    max-height: 28px; qproperty-alignment: AlignCenter; }
QLabel[role="stepTitle"] { color: #1A1A1A; font-size: 15px; font-weight: 600; }
QLabel[role="stepText"] { color: #6B6B6B; font-size: 13px; }
)";

} // namespace

FrameKeySetting::FrameKeySetting(DialogDeviceConnect* connection,
                                 const ModuleGenKeymapping& keyTables,
                                 ModuleMacroManager& macroStore, Clock* clockIn, QWidget* parent)
    : QFrame(parent), device(connection), keys(keyTables), macros(macroStore),
      clock(clockIn ? clockIn : QtClock::shared())
{
    setObjectName(QStringLiteral("FrameKeySetting"));
    funcTitle = kTitleDefault;
    refreshRelease = clock->createTimer([this] { refreshing = false; }, true);
    buildForm();
    retranslate();

    connect(buttonGroupMode, &QButtonGroup::idClicked, this, &FrameKeySetting::onModeChanged);
    connect(frameKeyboard, &ModuleKeyboard::onKeyClicked, this, &FrameKeySetting::onPickKey);
    connect(frameKeyboard, &ModuleKeyboard::onKeyChanged, this, &FrameKeySetting::onKeyChanged);
    connect(advanced, &ModuleAdvancedKeys::onSaved, this, &FrameKeySetting::RefreshCustomLayer);
    buttonGroupMode->button(Custom)->click();
    advanced->tabs()->setCurrentIndex(0);
    frameKeyboard->setSelectionLimit(1);
}

FrameKeySetting::~FrameKeySetting() = default;

void FrameKeySetting::buildForm()
{
    setStyleSheet(QLatin1String(kPageStyle));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 20);
    layout->setSpacing(16);

    auto* frameT = new QFrame(this);
    frameT->setObjectName(QStringLiteral("frameT"));
    auto* topLayout = new QHBoxLayout(frameT);
    topLayout->setContentsMargins(0, 4, 0, 0);
    frameKeyboard = new ModuleKeyboard(device, clock, frameT);
    frameKeyboard->setObjectName(QStringLiteral("frameKeyboard"));
    frameKeyboard->setFixedSize(960, 400);
    topLayout->addWidget(frameKeyboard, 0, Qt::AlignCenter);
    layout->addWidget(frameT);

    auto* frameB = new QFrame(this);
    frameB->setObjectName(QStringLiteral("frameB"));
    auto* bottomLayout = new QHBoxLayout(frameB);
    bottomLayout->setContentsMargins(0, 0, 0, 0);
    bottomLayout->setSpacing(16);
    bottomLayout->addWidget(buildModeColumn());

    stackedWidget = new QStackedWidget(frameB);
    stackedWidget->setObjectName(QStringLiteral("stackedWidget"));
    stackedWidget->addWidget(buildCustomPage());
    advanced = new ModuleAdvancedKeys(device, keys, clock, this, frameT, stackedWidget);
    stackedWidget->addWidget(advanced);
    auto* page3 = new QWidget(stackedWidget);
    page3->setObjectName(QStringLiteral("page3"));
    auto* page3Layout = new QVBoxLayout(page3);
    page3Layout->setContentsMargins(0, 0, 0, 0);
    options = new ModuleDeviceOptions(
        device, [this] { return refreshing; }, page3);
    page3Layout->addWidget(options);
    stackedWidget->addWidget(page3);
    bottomLayout->addWidget(stackedWidget, 1);
    layout->addWidget(frameB, 1);
}

QWidget* FrameKeySetting::buildModeColumn()
{
    auto* frameMode = new QFrame(this);
    frameMode->setObjectName(QStringLiteral("frameMode"));
    frameMode->setFixedWidth(168);
    auto* layout = new QVBoxLayout(frameMode);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(14);
    buttonGroupMode = new QButtonGroup(this);
    buttonGroupMode->setObjectName(QStringLiteral("buttonGroupMode"));
    for (int id = 0; id < int(kModes.size()); ++id) {
        auto* button = new QPushButton(frameMode);
        button->setObjectName(QLatin1String(kModes[id].name));
        button->setFixedSize(kModeButtonSize);
        button->setCheckable(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setCursor(Qt::PointingHandCursor);
        buttonGroupMode->addButton(button, id);
        layout->addWidget(button);
    }
    layout->addStretch(1);
    return frameMode;
}

QWidget* FrameKeySetting::buildCustomPage()
{
    auto* page1 = new QWidget(this);
    page1->setObjectName(QStringLiteral("page1"));
    auto* layout = new QVBoxLayout(page1);
    layout->setContentsMargins(32, 28, 32, 28);
    layout->setSpacing(12);
    labelFunc = new QLabel(page1);
    labelFunc->setObjectName(QStringLiteral("labelFunc"));
    labelNote = new QLabel(page1);
    labelNote->setObjectName(QStringLiteral("labelNote"));
    labelNote->setWordWrap(true);
    layout->addWidget(labelFunc);
    layout->addWidget(labelNote);
    layout->addSpacing(10);
    auto* steps = new QHBoxLayout();
    steps->setSpacing(16);
    for (int i = 0; i < int(kSteps.size()); ++i) {
        auto* card = new QFrame(page1);
        card->setProperty("role", "step");
        auto* cardLayout = new QVBoxLayout(card);
        cardLayout->setContentsMargins(20, 18, 20, 20);
        cardLayout->setSpacing(8);
        auto* number = new QLabel(QString::number(i + 1), card);
        number->setProperty("role", "stepNumber");
        auto* title = new QLabel(card);
        title->setObjectName(QStringLiteral("labelStepTitle%1").arg(i + 1));
        title->setProperty("role", "stepTitle");
        auto* text = new QLabel(card);
        text->setObjectName(QStringLiteral("labelStepText%1").arg(i + 1));
        text->setProperty("role", "stepText");
        text->setWordWrap(true);
        cardLayout->addWidget(number);
        cardLayout->addWidget(title);
        cardLayout->addWidget(text);
        cardLayout->addStretch(1);
        steps->addWidget(card, 1);
    }
    layout->addLayout(steps, 1);
    return page1;
}

void FrameKeySetting::retranslate()
{
    for (int id = 0; id < int(kModes.size()); ++id)
        buttonGroupMode->button(id)->setText(tr(kModes[id].text));
    for (int i = 0; i < int(kSteps.size()); ++i) {
        findChild<QLabel*>(QStringLiteral("labelStepTitle%1").arg(i + 1))
            ->setText(tr(kSteps[i].title));
        findChild<QLabel*>(QStringLiteral("labelStepText%1").arg(i + 1))
            ->setText(tr(kSteps[i].text));
    }
    labelFunc->setText(tr(funcTitle));
    labelNote->setText(tr("*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、"
                          "鼠标功能进行改建设置"));
}

void FrameKeySetting::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QFrame::changeEvent(event);
}

void FrameKeySetting::showEvent(QShowEvent* event)
{
    // The cache may have changed while another page was shown.
    RefreshPage();
    QFrame::showEvent(event);
}

void FrameKeySetting::onModeChanged(int id)
{
    const int page = id == FnLayer ? 0 : id;
    if (isVisible()) {
        if (id == FnLayer) {
            RefreshFnLayer();
            funcTitle = kTitleFn;
        } else {
            // The advanced keys refresh the custom layer too; their title is on their own page.
            RefreshCustomLayer();
            funcTitle = kTitleCustom;
        }
        labelFunc->setText(tr(funcTitle));
    }
    stackedWidget->setCurrentIndex(page);
    mode = id;
    // On the options the keyboard grays out: nothing there is per key.
    frameKeyboard->setEnabled(id != Options);
}

void FrameKeySetting::holdRefreshing(int milliseconds)
{
    refreshing = true;
    refreshRelease->start(milliseconds);
}
