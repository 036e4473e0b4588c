#include "FrameMagic.h"

#include "Clock.h"
#include "DialogDeviceConnect.h"
#include "KeyPositions.h"
#include "KeyboardButton.h"
#include "KeyboardPageFrame.h"
#include "MagicDeadZonePage.h"
#include "MagicStabPage.h"
#include "MagicSwitchPage.h"
#include "MagicTestPage.h"
#include "MagicTravelPage.h"
#include "MagnetTables.h"
#include "ModuleKeyboard.h"
#include "SwitchTypes.h"

#include <QButtonGroup>
#include <QEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <array>

namespace {

// By page, which is also the button's group id.
constexpr std::array<const char*, FrameMagic::kPages> kPageTexts{
    QT_TRANSLATE_NOOP("FrameMagic", "行程设置"), QT_TRANSLATE_NOOP("FrameMagic", "死区设置"),
    QT_TRANSLATE_NOOP("FrameMagic", "轴体设置"), QT_TRANSLATE_NOOP("FrameMagic", "增稳算法"),
    QT_TRANSLATE_NOOP("FrameMagic", "模拟测试")};

constexpr quint8 kPress = 0x00;
constexpr quint8 kRelease = 0x01;
constexpr quint8 kRapidPress = 0x02;
constexpr quint8 kRapidRelease = 0x03;
constexpr quint8 kTopDeadZone = 0x06;
constexpr quint8 kKeyMode = 0x07;
constexpr quint8 kBottomDeadZone = 0xFB;
constexpr quint8 kSwitchType = 0xFC;
constexpr quint32 kFullTravelFlag = 0x80;
constexpr int kFirstButton = 0; // the switch page's first type, chosen at the start

const char* const kPageStyle = R"(
QFrame[role="card"] { background-color: #FFFFFF; border-radius: 16px; }
QLabel[role="pageTitle"] { color: #1A1A1A; font-size: 18px; font-weight: 600; }
QLabel[role="cardTitle"] { color: #1A1A1A; font-size: 14px; font-weight: 600; }
QLabel[role="count"] { color: #6B6B6B; font-size: 13px; }
QLabel[role="note"] { color: #8A8A92; font-size: 12px; }
QLabel[role="rowTitle"] { color: #3A3A40; font-size: 12px; }
QLabel[role="rowEnd"] { color: #9A9AA4; font-size: 11px; }
QLabel[role="state"] { color: #6329B6; font-size: 13px; }
QLabel[role="typeName"] { color: #3A3A40; font-size: 12px; }
QLabel[role="legend"] { color: #5C5C66; font-size: 12px; }
QLabel { color: #333333; font-size: 13px; }
QLabel:disabled { color: #B7B7B7; }
QPushButton[role="apply"] { background-color: #6329B6; color: #FFFFFF; border: none;
    border-radius: 16px; font-size: 14px; min-width: 96px; min-height: 32px; }
QPushButton[role="apply"]:hover { background-color: #7A45C8; }
QPushButton[role="apply"]:pressed { background-color: #4A1D8C; }
QFrame#frameRapid QPushButton { border: none; border-radius: 12px; background-color: #F1ECF9;
    color: #6329B6; min-width: 24px; max-width: 24px; min-height: 24px; max-height: 24px;
    font-size: 14px; font-weight: 600; padding: 0px; }
QFrame#frameRapid QPushButton:disabled { background-color: #F2F2F4; color: #C4C4CA; }
QFrame#frameRapid QLineEdit { border: 1px solid #E2E2E2; border-radius: 10px; min-height: 24px;
    min-width: 58px; max-width: 58px; color: #26262C; font-weight: 600; padding: 0px; }
QFrame#frameRapid QLineEdit:disabled { color: #B7B7B7; }
QSlider::groove:horizontal { height: 6px; border-radius: 3px; background: #E2E2E8; }
QSlider::handle:horizontal { width: 16px; height: 16px; margin: -6px 0px; border-radius: 8px;
    background: #FFFFFF; border: 2px solid #6329B6; }
QSlider#horizontalSlider1::sub-page:horizontal { border-radius: 3px; background: #FFA73C; }
QSlider#horizontalSlider2::add-page:horizontal { border-radius: 3px; background: #39E1DC; }
QSlider:disabled::handle:horizontal { border-color: #C4C4CA; }
QSlider#horizontalSlider1:disabled::sub-page:horizontal,
QSlider#horizontalSlider2:disabled::add-page:horizontal { background: #D0D0D6; }
QFrame#frameTypes QPushButton { background-color: #FAFAFC; border: 2px solid #EDEDF1;
    border-radius: 16px; }
QFrame#frameTypes QPushButton:hover { border-color: #D8BDFF; }
QFrame#frameTypes QPushButton:checked { background-color: #F4EEFD; border-color: #6329B6; }
QRadioButton { color: #333333; font-size: 13px; spacing: 6px; }
QRadioButton::indicator { width: 14px; height: 14px; border-radius: 8px;
    border: 2px solid #C9C9D1; background: #FFFFFF; }
QRadioButton::indicator:checked { border: 5px solid #6329B6; width: 8px; height: 8px; }
QScrollArea { border: 1px solid #EFEFF3; border-radius: 10px; background: #FBFBFD; }
QScrollArea > QWidget > QWidget { background: transparent; }
)";

} // namespace

FrameMagic::FrameMagic(DialogDeviceConnect* connection, Clock* clock, QWidget* parent)
    : QFrame(parent), device(connection)
{
    setObjectName(QStringLiteral("FrameMagic"));
    setFocusPolicy(Qt::ClickFocus); // the key test listens to the page's own key events
    buildForm(clock);
    retranslate();

    connect(buttonGroupSet, &QButtonGroup::idClicked, this, &FrameMagic::onPageClicked);
    connect(frameKeyboard, &ModuleKeyboard::onSelect, this, &FrameMagic::onSelectionChanged);
    connect(frameKeyboard, &ModuleKeyboard::onKeyClicked, this, &FrameMagic::onKeyClicked);
    connect(page0->applyButton(), &QPushButton::clicked, this, &FrameMagic::applyTravel);
    connect(page1->applyButton(), &QPushButton::clicked, this, &FrameMagic::applyDeadZones);
    connect(page2, &MagicSwitchPage::typeChosen, this, [this](quint8 id, const QColor& c) {
        switchType = id;
        colour = c;
    });
    connect(page4, &MagicTestPage::keyTestSwitched, this, [this](bool on) {
        if (on) setFocus(Qt::OtherFocusReason);
    });
    connect(device, &DialogDeviceConnect::onReadDone, this, &FrameMagic::onReadDone);

    buttonGroupSet->button(Travel)->click();
    page2->group()->buttons().at(kFirstButton)->click();
    frameKeyboard->setEnabled(true);
}

FrameMagic::~FrameMagic() = default;

void FrameMagic::buildForm(Clock* clock)
{
    QStringList names;
    for (int id = 0; id < kPages; ++id)
        names << QStringLiteral("pushButtonSet%1").arg(id);
    // The keyboard is lower than on the key page: its legend doesn't show here.
    const KeyboardPageFrame::Parts parts =
        KeyboardPageFrame::build(this, device, clock, QSize(960, 350), QStringLiteral("frameSet"),
                                 QStringLiteral("buttonGroupSet"), names);
    setStyleSheet(KeyboardPageFrame::styleSheet(QStringLiteral("frameSet")) +
                  QLatin1String(kPageStyle));
    frameKeyboard = parts.keyboard;
    buttonGroupSet = parts.group;
    stackedWidget = parts.stack;
    // Many keys at a time: by clicks or with a rubber band.
    frameKeyboard->setSelectionLimit(ModuleKeyboard::kDefaultSelectionLimit);
    page0 = new MagicTravelPage(clock, stackedWidget);
    page1 = new MagicDeadZonePage(stackedWidget);
    page2 = new MagicSwitchPage(stackedWidget);
    page3 = new MagicStabPage(device, stackedWidget);
    page4 = new MagicTestPage(device, stackedWidget);
    for (QWidget* page :
         {static_cast<QWidget*>(page0), static_cast<QWidget*>(page1), static_cast<QWidget*>(page2),
          static_cast<QWidget*>(page3), static_cast<QWidget*>(page4)})
        stackedWidget->addWidget(page);
}

int FrameMagic::currentPage() const
{
    return stackedWidget->currentIndex();
}

void FrameMagic::onPageClicked(int id)
{
    stackedWidget->setCurrentIndex(id);
    frameKeyboard->selectAll(false);
    // Stabilisation and the tests are not per key.
    frameKeyboard->setEnabled(id != Stabilisation && id != Test);
    frameKeyboard->leaveModes();
    showCaptions(id);
}

void FrameMagic::showCaptions(int page)
{
    switch (page) {
    case Travel:
        frameKeyboard->enterValueMode(KeyboardButton::CornerValues);
        for (int position = 0; position < MagnetTables::kValues; ++position) {
            const quint8 p = quint8(position);
            const quint8 code = CodeOfPosition(p);
            const quint32 press = device->GetMagnetism(kPress, p);
            const quint32 release = device->GetMagnetism(kRelease, p);
            const quint32 rapidPress = device->GetMagnetism(kRapidPress, p);
            // Deliberate: the re-press table read twice, so that until a key is written again
            // its release corner shows the re-press travel.
            const quint32 rapidRelease = device->GetMagnetism(kRapidPress, p);
            const bool full = device->GetMagnetism(kKeyMode, p) & kFullTravelFlag;
            frameKeyboard->setKeyValues3(code, float(MagnetTables::millimetresFromRaw(press)),
                                         float(MagnetTables::millimetresFromRaw(release)));
            frameKeyboard->setKeyValues4(code, float(MagnetTables::millimetresFromRaw(rapidPress)),
                                         float(MagnetTables::millimetresFromRaw(rapidRelease)),
                                         full);
        }
        return;
    case DeadZone:
        frameKeyboard->enterValueMode(KeyboardButton::TwoValues);
        for (int position = 0; position < MagnetTables::kValues; ++position) {
            const quint8 p = quint8(position);
            // Bottom first, then top: the reverse of what an apply shows. Kept as it is.
            frameKeyboard->setKeyValues2(
                CodeOfPosition(p),
                float(MagnetTables::millimetresFromRaw(device->GetMagnetism(kBottomDeadZone, p))),
                float(MagnetTables::millimetresFromRaw(device->GetMagnetism(kTopDeadZone, p))));
        }
        return;
    case Switch:
        frameKeyboard->enterValueMode(KeyboardButton::ColouredBorder);
        for (int position = 0; position < MagnetTables::kValues; ++position) {
            const quint8 p = quint8(position);
            frameKeyboard->setKeyBorder(
                CodeOfPosition(p),
                SwitchTypes::colourOf(quint8(device->GetMagnetism(kSwitchType, p))));
        }
        return;
    default:
        frameKeyboard->enterValueMode(KeyboardButton::Plain);
        frameKeyboard->setLegendVisible(false);
        return;
    }
}

void FrameMagic::onSelectionChanged()
{
    QByteArray codes;
    const QString text =
        tr("已选中按键的数量") + QStringLiteral(": %1").arg(frameKeyboard->selectedCodes(codes));
    page0->setSelectionText(text);
    page1->setSelectionText(text);
}

void FrameMagic::applyTravel()
{
    QByteArray codes;
    if (frameKeyboard->selectedCodes(codes) == 0) return;
    const MagicTravelPage::Values v = page0->values();
    // Each key is five commands; the flag write goes with commit 1 and closes the key's group.
    // The connection's queue paces them.
    for (char c : std::as_const(codes)) {
        const quint8 code = quint8(c);
        device->DoSetMagnetism(kPress, code, MagnetTables::rawFromMillimetres(v.press), 0);
        device->DoSetMagnetism(kRelease, code, MagnetTables::rawFromMillimetres(v.release), 0);
        device->DoSetMagnetism(kRapidPress, code, MagnetTables::rawFromMillimetres(v.rapidPress),
                               0);
        device->DoSetMagnetism(kRapidRelease, code,
                               MagnetTables::rawFromMillimetres(v.rapidRelease), 0);
        device->DoSetKeyFlag(code, v.fullTravel);
        frameKeyboard->setKeyValues3(code, v.press, v.release);
        frameKeyboard->setKeyValues4(code, v.rapidPress, v.rapidRelease, v.fullTravel);
    }
}

void FrameMagic::applyDeadZones()
{
    QByteArray codes;
    if (frameKeyboard->selectedCodes(codes) == 0) return;
    const float top = page1->top();
    const float bottom = page1->bottom();
    for (qsizetype i = 0; i < codes.size(); ++i) {
        const quint8 code = quint8(codes.at(i));
        const quint8 commit = i == codes.size() - 1 ? 1 : 0; // the list commits once, at its end
        device->DoSetMagnetism(kTopDeadZone, code, MagnetTables::rawFromMillimetres(top), 0);
        device->DoSetMagnetism(kBottomDeadZone, code, MagnetTables::rawFromMillimetres(bottom),
                               commit);
        frameKeyboard->setKeyValues2(code, top, bottom);
    }
}

void FrameMagic::onKeyClicked(const QString&, uchar code)
{
    // Only the switch page writes on a click: one command per key, at once.
    if (currentPage() != Switch) return;
    frameKeyboard->setKeyBorder(code, colour);
    device->DoSetMagnetism(kSwitchType, code, switchType, 1);
}

void FrameMagic::onReadDone()
{
    page3->refresh();
    buttonGroupSet->button(Travel)->click();
}

void FrameMagic::keyPressEvent(QKeyEvent* event)
{
    if (page4->isKeyTestOn())
        page4->keyPressed(*event);
    else
        QFrame::keyPressEvent(event);
}

void FrameMagic::keyReleaseEvent(QKeyEvent* event)
{
    if (page4->isKeyTestOn())
        page4->keyReleased(*event);
    else
        QFrame::keyReleaseEvent(event);
}

bool FrameMagic::focusNextPrevChild(bool next)
{
    // While the key test runs, Tab is a key to test, not a move of the focus.
    if (page4->isKeyTestOn() && hasFocus()) return false;
    return QFrame::focusNextPrevChild(next);
}

void FrameMagic::retranslate()
{
    for (int id = 0; id < kPages; ++id)
        buttonGroupSet->button(id)->setText(tr(kPageTexts[id]));
    onSelectionChanged();
}

void FrameMagic::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QFrame::changeEvent(event);
}
