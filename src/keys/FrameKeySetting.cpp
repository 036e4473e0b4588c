#include "FrameKeySetting.h"

#include "Clock.h"
#include "DialogDeviceConnect.h"
#include "KeyboardPageFrame.h"
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
    QStringList modeNames;
    for (const ModeButton& m : kModes)
        modeNames << QLatin1String(m.name);
    const KeyboardPageFrame::Parts parts =
        KeyboardPageFrame::build(this, device, clock, QSize(960, 400), QStringLiteral("frameMode"),
                                 QStringLiteral("buttonGroupMode"), modeNames);
    setStyleSheet(KeyboardPageFrame::styleSheet(QStringLiteral("frameMode")) +
                  QLatin1String(kPageStyle));
    frameKeyboard = parts.keyboard;
    buttonGroupMode = parts.group;
    stackedWidget = parts.stack;
    stackedWidget->addWidget(buildCustomPage());
    advanced = new ModuleAdvancedKeys(device, keys, clock, this, parts.card, stackedWidget);
    stackedWidget->addWidget(advanced);
    auto* page3 = new QWidget(stackedWidget);
    page3->setObjectName(QStringLiteral("page3"));
    auto* page3Layout = new QVBoxLayout(page3);
    page3Layout->setContentsMargins(0, 0, 0, 0);
    options = new ModuleDeviceOptions(
        device, [this] { return refreshing; }, page3);
    page3Layout->addWidget(options);
    stackedWidget->addWidget(page3);
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
