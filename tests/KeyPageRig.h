#pragma once

// The key page over a wired virtual keyboard in virtual time: connected, read whole, shown, and
// the frames of the read forgotten. Helpers drive the page as a user does (click a key, act in
// the picker, answer the popup) and read back what went out and what the firmware holds.

#include "CustomTooltip.h"
#include "DialogDeviceConnect.h"
#include "DialogFNPicker.h"
#include "DialogKeyPickerBase.h"
#include "FrameKeySetting.h"
#include "KeyPositions.h"
#include "KeyboardButton.h"
#include "ManualClock.h"
#include "ModuleGenKeymapping.h"
#include "ModuleKeyboard.h"
#include "ModuleMacroManager.h"
#include "VirtualHidBackend.h"
#include "keySetTooltip.h"

#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

struct KeyPageRig
{
    ManualClock clock;
    VirtualHidBackend hid{&clock};
    VirtualKeyboard* keyboard = hid.addWiredKeyboard();
    QTemporaryDir dir;
    ModuleGenKeymapping keys;
    std::unique_ptr<DialogDeviceConnect> link;
    std::unique_ptr<ModuleMacroManager> macros;
    std::unique_ptr<FrameKeySetting> page;

    KeyPageRig()
    {
        link = std::make_unique<DialogDeviceConnect>(&hid, &clock, keys, dir.filePath("device.ini"),
                                                     std::make_unique<InlineHidExecutor>());
        macros = std::make_unique<ModuleMacroManager>(dir.path());
        page = std::make_unique<FrameKeySetting>(link.get(), keys, *macros, &clock);
        // As the page shell wires it.
        QObject::connect(link.get(), &DialogDeviceConnect::onUpdataLayer, link.get(),
                         [this](int layer) { link->DoSetProfile(quint8(layer)); });
        QObject::connect(link.get(), &DialogDeviceConnect::onReadDone, page.get(),
                         &FrameKeySetting::RefreshPage);
        page->show();
        link->connectStep();
        settle();
        keyboard->model().clearReceivedFrames();
    }

    // Runs the connection until its queue is empty, then lets the page's hold run out.
    bool settle()
    {
        const bool idle = clock.advanceUntil([this] { return link->isIdle(); }, 60000, 5);
        clock.advance(FrameKeySetting::kFnHoldMs);
        return idle;
    }
    const NativeKeyboardModel& fw() const { return keyboard->model(); }
    QByteArray layer0(quint8 code) const { return fw().keyEntry(0, 0, PositionOfCode(code)); }
    QByteArray fnEntry(quint8 code) const { return fw().fnEntry(PositionOfCode(code)); }
    // The frames the firmware got with this command byte, oldest first.
    QList<QByteArray> frames(quint8 command) const
    {
        QList<QByteArray> found;
        for (const QByteArray& f : fw().receivedFrames())
            if (quint8(f.at(0)) == command) found << f;
        return found;
    }
    int frameCount() const { return int(fw().receivedFrames().size()); }

    KeyboardButton* key(quint8 code) const { return page->keyboard()->button(code); }
    template <class T = QWidget> T* widget(const char* name) const
    {
        return page->findChild<T*>(QLatin1String(name));
    }
    void mode(int id) { widget<QPushButton>(modeButtonName(id))->click(); }
    static const char* modeButtonName(int id)
    {
        static const char* const names[] = {"pushButtonSet1", "pushButtonSet2", "pushButtonSet3",
                                            "pushButtonSet4"};
        return names[id];
    }

    // Clicks a key; once the picker is up, runs the steps in it: "tab N", "click NAME" (a
    // button of the picker), "slot N" (a press on slot label N), "spin N" (the repeat box),
    // then "ok" or "cancel". Returns what the picker's first slot read before it closed.
    QString pick(quint8 code, const QStringList& steps)
    {
        return runPicker([&] { QTest::mouseClick(key(code), Qt::LeftButton); }, steps);
    }
    // The same for a picker that open() brings up (either picker).
    QString runPicker(const std::function<void()>& open, const QStringList& steps)
    {
        QString firstSlot;
        QTimer::singleShot(0, page.get(), [&] {
            auto* picker = page->findChild<DialogKeyPickerBase*>();
            if (!picker) return;
            for (const QString& step : steps) {
                const QString arg = step.section(u' ', 1);
                if (step.startsWith(QLatin1String("tab ")))
                    picker->findChild<QTabWidget*>("tabWidgetKey")->setCurrentIndex(arg.toInt());
                else if (step.startsWith(QLatin1String("click ")))
                    picker->findChild<QAbstractButton*>(arg)->click();
                else if (step.startsWith(QLatin1String("slot ")))
                    QTest::mouseClick(picker->slotLabel(arg.toInt() - 1), Qt::LeftButton);
                else if (step.startsWith(QLatin1String("spin ")))
                    picker->findChild<QSpinBox*>("spinBoxM")->setValue(arg.toInt());
                firstSlot = picker->slotLabel(0)->text();
                if (step == QLatin1String("ok"))
                    picker->findChild<QPushButton*>("pushButtonOK")->click();
                else if (step == QLatin1String("cancel"))
                    picker->findChild<QPushButton*>("pushButtonCancel")->click();
            }
        });
        open();
        settle();
        return firstSlot;
    }

    // Right-clicks a key (or the keyboard's empty corner for code 0) and tells what the popup
    // offers; empty when nothing shows.
    QString rightClick(quint8 code, ModuleKeyboard* board = nullptr)
    {
        if (!board) board = page->keyboard();
        board->popupWidget()->hide();
        if (code == 0)
            QTest::mouseClick(board, Qt::RightButton, {}, QPoint(4, 4));
        else
            QTest::mouseClick(board->button(code), Qt::RightButton);
        return board->popupWidget()->isVisible() ? board->popupWidget()->text() : QString();
    }
    void confirmPopup(ModuleKeyboard* board = nullptr)
    {
        if (!board) board = page->keyboard();
        QTest::mouseClick(board->popupWidget(), Qt::LeftButton);
        settle();
    }

    // The bubble's two texts, or empty texts when the key has none.
    QStringList bubble(quint8 code) const
    {
        KeyboardButton* b = key(code);
        if (!b || !b->bubble()) return {QString(), QString()};
        return {b->bubble()->title(), b->bubble()->body()};
    }
};

inline QByteArray bytes(const char* hexText)
{
    return QByteArray::fromHex(hexText);
}
