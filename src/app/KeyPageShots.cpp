#include "KeyPageShots.h"

#include "DialogDeviceConnect.h"
#include "DialogFNPicker.h"
#include "FrameDeviceHolder.h"
#include "FrameKeySetting.h"
#include "KeyEntry.h"
#include "KeyboardButton.h"
#include "Macro.h"
#include "MainWindow.h"
#include "ModuleKeyboard.h"
#include "ModuleMacroManager.h"
#include "SuperLabel.h"

#include <QApplication>
#include <QEnterEvent>
#include <QPainter>
#include <QPushButton>
#include <QTextStream>
#include <array>

namespace KeyPageShots {

namespace {

constexpr int kKeyPage = 1;
constexpr quint8 kBubbleKey = 20; // Q, which runs a macro

struct Binding
{
    quint8 code;
    KeyEntry entry;
};
// Media keys on F1 to F4, Ctrl on Caps Lock, a copy on M, a mouse click on G.
constexpr std::array<Binding, 7> kBindings{{
    {58, {0x03, 0x00, 0xB6, 0x00}},
    {59, {0x03, 0x00, 0xCD, 0x00}},
    {60, {0x03, 0x00, 0xB5, 0x00}},
    {61, {0x03, 0x00, 0xE2, 0x00}},
    {57, {0x00, 0xE0, 0x00, 0x00}},
    {16, {0x00, 0xE0, 0x06, 0x00}},
    {10, {0x01, 0x00, 0xF0, 0x00}},
}};
constexpr quint8 kDisabledKey = 227; // the Win key, off while gaming

DialogFNPicker* openedPicker = nullptr;

void click(QWidget* widget)
{
    if (auto* button = qobject_cast<QPushButton*>(widget)) button->click();
}

} // namespace

void writeBindings(MainWindow& window)
{
    DialogDeviceConnect* link = window.connection();
    for (const Binding& binding : kBindings)
        link->DoSetKey(binding.code, binding.entry.bytes.data(), 0, 1);
    link->DoSetKeyCode(kDisabledKey, false, 0);
    // The first of the user's macros on Q.
    ModuleMacroManager& macros = window.macros();
    if (!macros.macros().isEmpty()) {
        const Macro* macro = macros.macros().first();
        link->DoSetMacro(kBubbleKey, 1, 0, macro->id, ModuleMacroManager::PackMacro(macro));
    }
}

void showKeyPage(MainWindow& window)
{
    FrameDeviceHolder* holder = window.deviceHolder();
    holder->showPage(holder->findChild<SuperLabel*>(QStringLiteral("label2")), kKeyPage);
    holder->keySetting()->RefreshPage();
    hoverKey(window, kBubbleKey);
}

void hoverKey(MainWindow& window, quint8 code)
{
    KeyboardButton* key = window.deviceHolder()->keySetting()->keyboard()->button(code);
    if (!key) return;
    const QPointF inside(key->width() / 2.0, key->height() / 2.0);
    QEnterEvent enter(inside, inside, key->mapToGlobal(inside));
    QCoreApplication::sendEvent(key, &enter);
}

void leaveKey(MainWindow& window, quint8 code)
{
    if (KeyboardButton* key = window.deviceHolder()->keySetting()->keyboard()->button(code)) {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(key, &leave);
    }
}

void openPicker(MainWindow& window)
{
    FrameKeySetting* page = window.deviceHolder()->keySetting();
    leaveKey(window, kBubbleKey);
    FrameDeviceHolder* holder = window.deviceHolder();
    openedPicker = new DialogFNPicker(holder->keyTables(), window.macros(), page);
    openedPicker->show();
    click(openedPicker->findChild<QWidget*>(QStringLiteral("pushButton_Hid224")));
    click(openedPicker->findChild<QWidget*>(QStringLiteral("pushButton_Hid225")));
    click(openedPicker->findChild<QWidget*>(QStringLiteral("pushButton_Hid022")));
}

void closePicker(MainWindow&)
{
    delete openedPicker;
    openedPicker = nullptr;
}

void showOptions(MainWindow& window)
{
    click(
        window.deviceHolder()->keySetting()->findChild<QWidget*>(QStringLiteral("pushButtonSet3")));
}

bool saveComposed(QWidget& window, const QString& path)
{
    QImage shot = window.grab().toImage();
    QPainter painter(&shot);
    const QPoint origin = window.mapToGlobal(QPoint(0, 0));
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (top == &window || !top->isVisible()) continue;
        painter.drawPixmap(top->mapToGlobal(QPoint(0, 0)) - origin, top->grab());
    }
    painter.end();
    const bool ok = shot.save(path);
    QTextStream(stdout) << (ok ? "wrote " : "could not write ") << path << '\n';
    return ok;
}

} // namespace KeyPageShots
