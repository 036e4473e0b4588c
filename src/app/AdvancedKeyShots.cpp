#include "AdvancedKeyShots.h"

#include "DialogDeviceConnect.h"
#include "FrameDeviceHolder.h"
#include "FrameKeySetting.h"
#include "KeyEntry.h"
#include "KeyPageShots.h"
#include "KeyboardButton.h"
#include "MainWindow.h"
#include "ModuleKeyboard.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QSlider>
#include <QTabWidget>
#include <QTimer>
#include <array>

namespace AdvancedKeyShots {

namespace {

constexpr quint8 kW = 26;
constexpr quint8 kCaps = 57;
constexpr quint8 kZ = 29;
constexpr quint8 kA = 4;
constexpr quint8 kD = 7;

struct LayerWrite
{
    quint8 code;
    quint8 layer;
    KeyEntry entry;
    quint8 last = 0;
};
// W presses, then adds Shift at the bottom (a sprint), and presses again on the way up; Caps
// taps Esc and holds Ctrl; Z holds Ctrl down until pressed again.
constexpr std::array<LayerWrite, 7> kLayers{{
    {kW, 0, {0x00, 0x1A, 0x00, 0x00}},
    {kW, 1, {0x00, 0xE1, 0x1A, 0x00}},
    {kW, 2, {}},
    {kW, 3, {0x00, 0x1A, 0x00, 0x00}, 1},
    {kCaps, 0, {0x00, 0x29, 0x00, 0x00}},
    {kCaps, 1, {0x00, 0xE0, 0x00, 0x00}, 1},
    {kZ, 0, {0x00, 0xE0, 0x00, 0x00}, 1},
}};

struct TableWrite
{
    quint8 table;
    quint8 code;
    quint32 value;
    quint8 commit = 0;
};
constexpr std::array<TableWrite, 6> kTables{{
    {0x07, kW, 2},
    {0x04, kW, 250}, // 1.25 mm
    {0x08, kW, 0x55565B6F, 1},
    {0x07, kCaps, 3},
    {0x05, kCaps, 1, 1},
    {0x07, kZ, 5, 1},
}};

// The key whose bubble each picture shows; none on the SnapKey tab, whose bubbles name the
// partner's position as a key code.
constexpr std::array<quint8, kTabs> kHovered{kW, kCaps, kZ, 0};
constexpr std::array<const char*, kTabs> kFiles{"dks.png", "modtap.png", "toggle.png",
                                                "snapkey.png"};
constexpr int kHoldShown = 180; // ms on the mod-tap slider
constexpr int kPopupShownMs = 600;

FrameKeySetting* keyPage(MainWindow& window)
{
    return window.deviceHolder()->keySetting();
}

template <class T = QWidget> T* find(MainWindow& window, const char* name)
{
    return keyPage(window)->findChild<T*>(QLatin1String(name));
}

void clickKey(MainWindow& window, quint8 code)
{
    if (KeyboardButton* key = keyPage(window)->keyboard()->button(code)) key->click();
}

void send(QWidget* widget, QEvent::Type type, QPointF at)
{
    QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

// Press and release in the middle, as a pointer does.
void pointAndClick(QWidget* widget)
{
    const QPointF middle(widget->width() / 2.0, widget->height() / 2.0);
    send(widget, QEvent::MouseButtonPress, middle);
    send(widget, QEvent::MouseButtonRelease, middle);
}

// A drag across a DKS row from x to x.
void dragRow(QWidget* row, int from, int to)
{
    constexpr qreal kMiddle = 20;
    send(row, QEvent::MouseButtonPress, QPointF(from, kMiddle));
    send(row, QEvent::MouseMove, QPointF(to, kMiddle));
    send(row, QEvent::MouseButtonRelease, QPointF(to, kMiddle));
}

} // namespace

void writeKeys(MainWindow& window)
{
    DialogDeviceConnect* link = window.connection();
    for (const LayerWrite& w : kLayers)
        link->DoSetKey(w.code, w.entry.bytes.data(), w.layer, w.last);
    for (const TableWrite& t : kTables)
        link->DoSetMagnetism(t.table, t.code, t.value, t.commit);
}

void showTab(MainWindow& window, int tab)
{
    if (tab > 0) KeyPageShots::leaveKey(window, kHovered[tab - 1]);
    if (tab == 0) find<QAbstractButton>(window, "pushButtonSet2")->click();
    find<QTabWidget>(window, "tabWidgetAdv")->setCurrentIndex(tab);
    switch (tab) {
    case 0:
        clickKey(window, kW);
        // The second row's function runs from the press to the lift: its switches joined.
        dragRow(find(window, "frameDKS2"), 136, 330);
        // The third row has no function; its switches are off.
        for (int i = 1; i <= 4; ++i)
            pointAndClick(find(window, "frameDKS3")
                              ->findChild<QLabel*>(QStringLiteral("labelSwitch%1").arg(i)));
        break;
    case 1:
        clickKey(window, kCaps);
        find<QSlider>(window, "horizontalSlider")->setValue(kHoldShown);
        break;
    case 2:
        clickKey(window, kZ);
        break;
    case 3:
        // A and D, set as a user sets them, and saved.
        clickKey(window, kA);
        find<QAbstractButton>(window, "radioButton_Snap2")->click();
        clickKey(window, kD);
        find<QAbstractButton>(window, "pushButton_OKSnap")->click();
        break;
    default:
        break;
    }
    KeyPageShots::hoverKey(window, kHovered[tab]);
}

QString fileName(int tab)
{
    return QLatin1String(kFiles.at(tab));
}

bool saveTravelPopup(MainWindow& window, const QString& path)
{
    KeyPageShots::leaveKey(window, kW);
    bool saved = false;
    // The popup runs modally: it is pictured and closed from inside.
    QTimer::singleShot(kPopupShownMs, &window, [&] {
        saved = KeyPageShots::saveComposed(window, path);
        if (auto* popup = find(window, "DKSAdjust"))
            popup->findChild<QAbstractButton*>(QStringLiteral("pushButtonCancel"))->click();
    });
    pointAndClick(find(window, "labelPress1"));
    return saved;
}

} // namespace AdvancedKeyShots
