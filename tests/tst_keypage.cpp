// The key page over the virtual keyboard: picks on the custom and Fn layers reach the
// firmware's matrices, macros reach its macro pages and the 09 entry, the popup clears,
// disables and enables keys on every keyboard with one write, and the refreshes draw what the
// cache holds.

#include "CommandCatalogue.h"
#include "FrameDeviceHolder.h"
#include "KeyPageRig.h"
#include "Macro.h"
#include "ShellRig.h"
#include "SuperLabel.h"

#include <QSignalSpy>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QtTest>

namespace {

constexpr quint8 kF5 = 62;  // 0x3E, position 30
constexpr quint8 kA = 4;    // position 9
constexpr quint8 kTab = 43; // position 2, nothing on the Fn layer

using namespace CommandCatalogue;

// The entry bytes of a 0A or 10 frame.
QByteArray entryOf(const QByteArray& frame)
{
    return frame.mid(8, 4);
}

} // namespace

class TestKeyPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    // ---- the custom layer through the picker

    void customPicks_data()
    {
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QByteArray>("entry");   // layer 0 of F5 afterwards, in the firmware
        QTest::addColumn<QString>("firstSlot");  // what the picker's first slot read
        QTest::addColumn<QStringList>("bubble"); // F5's title and body afterwards

        QTest::newRow("one key") << QStringList{"click pushButton_Hid004", "ok"}
                                 << bytes("00040000") << "A" << QStringList{"F5", "组合: A"};
        QTest::newRow("three keys, a fourth ignored")
            << QStringList{"click pushButton_Hid224", "click pushButton_Hid225",
                           "click pushButton_Hid004", "click pushButton_Hid005", "ok"}
            << bytes("00E0E104") << "LCtrl" << QStringList{"F5", "组合: L-Ctrl + L-Shift + A"};
        QTest::newRow("a cleared slot is the next one filled")
            << QStringList{"click pushButton_Hid224", "click pushButton_Hid225",
                           "click pushButton_Hid004", "slot 2",
                           "click pushButton_Hid006", "ok"}
            << bytes("00E00604") << "LCtrl" << QStringList{"F5", "组合: L-Ctrl + C + A"};
        QTest::newRow("system function F03 is row 2")
            << QStringList{"tab 2", "click pushButton_F03", "ok"} << bytes("0300CD00")
            << "功能: 播放/暂停" << QStringList{"F5", "功能: 播放/暂停"};
        QTest::newRow("F14's picture is refresh, its row is back")
            << QStringList{"tab 2", "click pushButton_F14", "ok"} << bytes("03002402")
            << "功能: 后退" << QStringList{"F5", "功能: 后退"};
        QTest::newRow("mouse function")
            << QStringList{"tab 3", "click pushButton_Mouse01", "ok"} << bytes("0100F100")
            << "鼠标: 右键单击" << QStringList{"F5", "鼠标: 右键单击"};
        QTest::newRow("the tab change drops the keys picked before")
            << QStringList{"click pushButton_Hid224", "tab 2", "click pushButton_F01", "ok"}
            << bytes("0300B600") << "功能: 上一曲" << QStringList{"F5", "功能: 上一曲"};
        QTest::newRow("nothing picked disables the key")
            << QStringList{"ok"} << bytes("00000000") << "--" << QStringList{"", ""};
        QTest::newRow("cancel leaves the key alone")
            << QStringList{"click pushButton_Hid004", "cancel"} << bytes("00003E00") << "A"
            << QStringList{"", ""};
    }
    void customPicks()
    {
        QFETCH(QStringList, steps);
        QFETCH(QByteArray, entry);
        QFETCH(QString, firstSlot);
        QFETCH(QStringList, bubble);

        KeyPageRig rig;
        QCOMPARE(rig.pick(kF5, steps), firstSlot);
        QCOMPARE(rig.layer0(kF5), entry);
        // One write, the last of its group, on layer 0 at F5's position; none when cancelled.
        const bool cancelled = steps.last() == QLatin1String("cancel");
        const QList<QByteArray> writes = rig.frames(CMD_SET_KEYMATRIX);
        QCOMPARE(rig.frameCount(), cancelled ? 0 : 1);
        QCOMPARE(writes.size(), rig.frameCount());
        if (!cancelled) {
            QCOMPARE(quint8(writes[0][2]), PositionOfCode(kF5));
            QCOMPARE(quint8(writes[0][5]), 1);
            QCOMPARE(quint8(writes[0][6]), 0);
        }
        QCOMPARE(rig.bubble(kF5), bubble);
        // All zeros shows the key disabled, and it offers to be enabled again.
        const bool disabled = entry == bytes("00000000");
        QCOMPARE(rig.key(kF5)->isEnabled(), !disabled);
        if (disabled) QCOMPARE(rig.rightClick(kF5), QString("取消禁用"));
    }

    // ---- macros

    void macroAssignment_data()
    {
        QTest::addColumn<int>("slot");
        QTest::addColumn<QStringList>("playSteps");
        QTest::addColumn<QByteArray>("entry");
        QTest::addColumn<int>("repeat"); // the u16 at the head of the macro's blob
        QTest::addColumn<QString>("firstSlot");
        QTest::addColumn<QString>("body");

        QTest::newRow("recorded macro, loop count kept to 8 bits, auto")
            << 3 << QStringList{"spin 300", "click radioButtonM2"} << bytes("09010300") << 44
            << "Copy"
            << "宏设置:\nCopy";
        QTest::newRow("while held")
            << 3 << QStringList{"click radioButtonM3"} << bytes("09020300") << 1 << "Copy"
            << "宏设置:\nCopy";
        QTest::newRow("empty slot can still be chosen")
            << 30 << QStringList{"spin 2"} << bytes("09001E00") << 2 << "未录制的宏"
            << "宏设置";
    }
    void macroAssignment()
    {
        QFETCH(int, slot);
        QFETCH(QStringList, playSteps);
        QFETCH(QByteArray, entry);
        QFETCH(int, repeat);
        QFETCH(QString, firstSlot);
        QFETCH(QString, body);

        KeyPageRig rig;
        // Macro 3 of the store (a first start makes 0 to 7, empty), recorded: press and release
        // of C.
        Macro* copy = rig.macros->FindMacro(3);
        QVERIFY(copy && copy->events.isEmpty());
        copy->name = QStringLiteral("Copy");
        rig.macros->AddEvent(copy, MacroEvent::Key, 0x06, true, QStringLiteral("C"));
        rig.macros->AddEvent(copy, MacroEvent::Delay, 30, false, QString());
        rig.macros->AddEvent(copy, MacroEvent::Key, 0x06, false, QStringLiteral("C"));
        rig.macros->AddEvent(copy, MacroEvent::Delay, 30, false, QString());

        QString buttonText;
        QTimer::singleShot(0, rig.page.get(), [&] {
            if (auto* picker = rig.page->findChild<DialogFNPicker*>())
                buttonText = picker->findChild<QPushButton*>("pushButton_Micro03")->text();
        });
        const QString micro =
            QStringLiteral("click pushButton_Micro%1").arg(slot, 2, 10, QChar('0'));
        QCOMPARE(rig.pick(kF5, QStringList{"tab 1"} + playSteps + QStringList{micro, "ok"}),
                 firstSlot);
        QCOMPARE(buttonText, QString("Copy")); // named from the store

        QCOMPARE(rig.layer0(kF5), entry);
        const QByteArray blob = rig.fw().macro(slot);
        QVERIFY(!rig.frames(CMD_SET_MACRO).isEmpty());
        QCOMPARE(quint8(blob[0]) | quint8(blob[1]) << 8, repeat);
        const QByteArray stream =
            ModuleMacroManager::PackMacro(rig.macros->FindMacro(quint8(slot)));
        QCOMPARE(blob.mid(2, stream.size()), stream);
        QCOMPARE(rig.bubble(kF5), (QStringList{"F5", body}));
    }

    // ---- the Fn layer

    void fnLayerPicksGoThroughDoSetFn()
    {
        KeyPageRig rig;
        rig.mode(FrameKeySetting::FnLayer);
        QCOMPARE(rig.widget<QLabel>("labelFunc")->text(), QString("Fn层按键设置"));
        rig.pick(kF5, {"tab 2", "click pushButton_F05", "ok"});
        QCOMPARE(rig.fnEntry(kF5), bytes("0300E200"));
        QCOMPARE(rig.layer0(kF5), bytes("00003E00"));
        const QList<QByteArray> writes = rig.frames(CMD_SET_FN);
        QCOMPARE(writes.size(), 1);
        QCOMPARE(quint8(writes[0][3]), PositionOfCode(kF5));
        QCOMPARE(rig.bubble(kF5), (QStringList{"Fn + F5", "功能: 静音"}));
        // The macro tab's flag means nothing here: the picker's bytes go out as they stand.
        rig.pick(kA, {"tab 1", "spin 5", "click pushButton_Micro02", "ok"});
        QCOMPARE(rig.fnEntry(kA), bytes("05000200"));
    }

    void fnRefreshRules_data()
    {
        QTest::addColumn<QByteArray>("fn");
        QTest::addColumn<bool>("customBinding"); // F5 has a layer 0 binding first
        QTest::addColumn<QStringList>("bubble");
        QTest::addColumn<bool>("enabled");

        QTest::newRow("plain factory key is a system key")
            << bytes("00000400") << false << QStringList{"Fn + F5", "系统按键"} << true;
        QTest::newRow("00 00 00 01 disables")
            << bytes("00000001") << false << QStringList{"", ""} << false;
        QTest::newRow("00 00 00 01 disables a key with a custom binding too")
            << bytes("00000001") << true << QStringList{"", ""} << false;
        QTest::newRow("empty entry keeps the custom bubble")
            << bytes("00000000") << true << QStringList{"F5", "功能: 静音"} << true;
        QTest::newRow("FF entry keeps the custom bubble")
            << bytes("FFFFFFFF") << true << QStringList{"F5", "功能: 静音"} << true;
    }
    void fnRefreshRules()
    {
        QFETCH(QByteArray, fn);
        QFETCH(bool, customBinding);
        QFETCH(QStringList, bubble);
        QFETCH(bool, enabled);

        KeyPageRig rig;
        if (customBinding) rig.pick(kF5, {"tab 2", "click pushButton_F05", "ok"});
        rig.link->DoSetFn(kF5, reinterpret_cast<const quint8*>(fn.constData()));
        rig.settle();
        rig.mode(FrameKeySetting::FnLayer);
        QCOMPARE(rig.bubble(kF5), bubble);
        QCOMPARE(rig.key(kF5)->isEnabled(), enabled);
        if (!enabled) QCOMPARE(rig.rightClick(kF5), QString("取消禁用"));
        // Back on the custom layer the Fn layer's marks are gone.
        rig.mode(FrameKeySetting::Custom);
        QVERIFY(rig.key(kF5)->isEnabled());
        QCOMPARE(rig.key(kF5)->hasBinding(), customBinding);
    }

    // ---- the popup

    // A binding cleared (its travel too), then the key disabled on every keyboard with one
    // write, then enabled again.
    void popupClearsDisablesAndEnables()
    {
        KeyPageRig rig;
        ModuleKeyboard otherPage(rig.link.get(), &rig.clock); // as the magnetic page holds one
        QCOMPARE(rig.rightClick(0), QString());               // no key under the pointer
        rig.pick(kF5, {"tab 3", "click pushButton_Mouse00", "ok"});
        rig.link->DoSetMagnetism(0x00, kF5, 200, 1); // a travel of its own, 1.0 mm
        rig.settle();
        QCOMPARE(rig.rightClick(kF5), QString("清除设置"));
        rig.confirmPopup();
        QCOMPARE(rig.layer0(kF5), bytes("00003E00"));
        QCOMPARE(rig.fw().magnetValue(0x00, PositionOfCode(kF5)), 400u);
        QVERIFY(rig.key(kF5)->isEnabled());
        QVERIFY(!rig.key(kF5)->hasBinding());

        rig.keyboard->model().clearReceivedFrames();
        QCOMPARE(rig.rightClick(kF5), QString("禁用按键"));
        rig.confirmPopup();

        QCOMPARE(rig.layer0(kF5), bytes("00000000"));
        QVERIFY(!rig.key(kF5)->isEnabled());
        QVERIFY(!otherPage.button(kF5)->isEnabled());
        // The reset of the key (its four layers, six tables), then its one zero entry: the
        // other keyboard adds nothing.
        QCOMPARE(rig.frames(CMD_WRITE_MAGNETISM).size(), 6);
        const QList<QByteArray> writes = rig.frames(CMD_SET_KEYMATRIX);
        QCOMPARE(writes.size(), 5);
        QCOMPARE(entryOf(writes.last()), bytes("00000000"));
        QCOMPARE(rig.frameCount(), 11);

        // The disabled key offers to come back, and does, everywhere.
        rig.keyboard->model().clearReceivedFrames();
        QCOMPARE(rig.rightClick(kF5), QString("取消禁用"));
        rig.confirmPopup();
        QCOMPARE(rig.layer0(kF5), bytes("00003E00"));
        QVERIFY(rig.key(kF5)->isEnabled());
        QVERIFY(otherPage.button(kF5)->isEnabled());
        QCOMPARE(rig.frameCount(), 11);
    }

    void popupOnTheFnLayerSwitchesTheFnEntry()
    {
        KeyPageRig rig;
        rig.mode(FrameKeySetting::FnLayer);
        QCOMPARE(rig.rightClick(kTab), QString("禁用按键"));
        rig.confirmPopup();
        QCOMPARE(rig.fnEntry(kTab), bytes("00000001"));
        // The keyboard's own step has written layer 0 as well, as on the custom layer.
        QCOMPARE(rig.layer0(kTab), bytes("00000000"));
        QCOMPARE(rig.rightClick(kTab), QString("取消禁用"));
        rig.confirmPopup();
        QCOMPARE(rig.fnEntry(kTab), bytes("00000000"));
        QCOMPARE(rig.layer0(kTab), bytes("00002B00"));
    }

    // ---- what the custom refresh draws

    void customRefreshDraws_data()
    {
        QTest::addColumn<int>("mode");                 // table 07 of A
        QTest::addColumn<QList<QByteArray>>("layers"); // A's layers 0 to 3
        QTest::addColumn<QStringList>("bubble");

        const QByteArray own = bytes("00000400");
        const QByteArray none = bytes("00000000");
        QTest::newRow("factory entry: no bubble")
            << 0 << QList<QByteArray>{own, none, none, none} << QStringList{"", ""};
        QTest::newRow("factory entry with a mode still shows")
            << 4 << QList<QByteArray>{own, none, none, none} << QStringList{"A", "切换开关(TGL):"};
        QTest::newRow("dynamic keystroke")
            << 2 << QList<QByteArray>{bytes("00050000"), bytes("00060000"), none, bytes("00070000")}
            << QStringList{"A", "动态键程(DKS):\nB\nC\n\nD"};
        QTest::newRow("mod-tap, flag bit masked")
            << 0x83 << QList<QByteArray>{bytes("00050000"), bytes("00E00000"), none, none}
            << QStringList{"A", "按住单击(MT):\nB:\nL-Ctrl"};
        QTest::newRow("toggle") << 5 << QList<QByteArray>{bytes("0300CD00"), none, none, none}
                                << QStringList{"A", "切换开关(TGL):\n功能: 播放/暂停"};
    }
    void customRefreshDraws()
    {
        QFETCH(int, mode);
        QFETCH(QList<QByteArray>, layers);
        QFETCH(QStringList, bubble);

        KeyPageRig rig;
        for (int layer = 0; layer < 4; ++layer)
            rig.link->DoSetKey(kA, reinterpret_cast<const quint8*>(layers[layer].constData()),
                               quint8(layer), layer == 3);
        rig.link->DoSetMagnetism(0x07, kA, quint32(mode), 1);
        rig.settle();
        // What the keyboard holds, read again: the refresh after the read draws it.
        rig.link->DoReadAll();
        QVERIFY(rig.settle());
        QCOMPARE(rig.bubble(kA), bubble);
    }

    void refreshWaitsForTheReadSequence()
    {
        KeyPageRig rig;
        const quint8 entry[4] = {0x03, 0x00, 0xE9, 0x00};
        rig.link->DoSetKey(kF5, entry, 0, 1);
        rig.settle();
        rig.link->DoReadAll();
        rig.page->RefreshCustomLayer(); // returns at once: nothing is drawn from a half cache
        QVERIFY(!rig.key(kF5)->hasBinding());
        QVERIFY(!rig.page->isRefreshing());
        QVERIFY(rig.settle()); // the read's end draws it
        QCOMPARE(rig.bubble(kF5), (QStringList{"F5", "功能: 音量+"}));
    }

    void optionsGrayTheKeyboardAndAdvancedClicksOpenNoPicker()
    {
        KeyPageRig rig;
        rig.mode(FrameKeySetting::Options);
        QVERIFY(!rig.widget<ModuleKeyboard>("frameKeyboard")->isEnabled());
        QCOMPARE(rig.widget<QStackedWidget>("stackedWidget")->currentWidget()->objectName(),
                 QString("page3"));
        rig.mode(FrameKeySetting::Advanced);
        QVERIFY(rig.widget<ModuleKeyboard>("frameKeyboard")->isEnabled());
        QTest::mouseClick(rig.key(kF5), Qt::LeftButton); // it only becomes the tab's key
        QVERIFY(!rig.page->findChild<DialogFNPicker*>());
        QCOMPARE(rig.frameCount(), 0);
    }

    // ---- in the page shell

    void profileSwitchRedrawsTheKeyPage()
    {
        ShellRig rig;
        // F5 mutes on onboard profile 2 only. The key page stays hidden: what it shows comes
        // from the read's end alone.
        QVERIFY(rig.pressLayer(1));
        const quint8 mute[4] = {0x03, 0x00, 0xE2, 0x00};
        rig.holder.connection()->DoSetKey(kF5, mute, 0, 1);
        QVERIFY(rig.settle());
        KeyboardButton* f5 = rig.holder.keySetting()->keyboard()->button(kF5);
        QVERIFY(rig.pressLayer(0));
        QVERIFY(!rig.holder.keySetting()->isVisible());
        QVERIFY(!f5->hasBinding());
        QVERIFY(rig.pressLayer(1));
        QVERIFY(f5->hasBinding());
        QCOMPARE(f5->bubble()->body(), QString("功能: 静音"));
    }

    // The shell's own button style reaches into the picker over the key page; the picker's
    // tiles and keys keep their sizes all the same.
    void pickerKeepsItsSizesInTheShell()
    {
        ShellRig rig;
        rig.holder.show();
        rig.holder.showPage(rig.holder.findChild<SuperLabel*>("label2"), 1);
        QSize tileMin, tileMax, keyMin, keyMax;
        QTimer::singleShot(0, &rig.holder, [&] {
            auto* picker = rig.holder.findChild<DialogFNPicker*>();
            if (!picker) return;
            auto* tile = picker->findChild<QPushButton*>("pushButton_F01");
            auto* key = picker->findChild<QPushButton*>("pushButton_Hid004");
            tile->ensurePolished();
            key->ensurePolished();
            tileMin = tile->minimumSize();
            tileMax = tile->maximumSize();
            keyMin = key->minimumSize();
            keyMax = key->maximumSize();
            picker->reject();
        });
        QTest::mouseClick(rig.holder.keySetting()->keyboard()->button(kF5), Qt::LeftButton);
        QCOMPARE(tileMin, QSize(64, 64));
        QCOMPARE(tileMax, QSize(64, 64));
        QCOMPARE(keyMin, QSize(42, 34));
        QCOMPARE(keyMax, QSize(42, 34));
    }

    // ---- real time, once

    void realTimePickReachesTheKeyboard()
    {
        VirtualHidBackend hid(QtClock::shared());
        VirtualKeyboard* keyboard = hid.addWiredKeyboard();
        QTemporaryDir dir;
        ModuleGenKeymapping keys;
        DialogDeviceConnect link(&hid, QtClock::shared(), keys, dir.filePath("device.ini"));
        ModuleMacroManager macros(dir.path());
        FrameKeySetting page(&link, keys, macros);
        connect(&link, &DialogDeviceConnect::onUpdataLayer, &link,
                [&](int layer) { link.DoSetProfile(quint8(layer)); });
        connect(&link, &DialogDeviceConnect::onReadDone, &page, &FrameKeySetting::RefreshPage);
        page.show();
        link.connectStep();
        QTRY_VERIFY_WITH_TIMEOUT(link.isIdle() && !link.GetKeyMatrix(0).isEmpty(), 30000);

        QTimer::singleShot(0, &page, [&] {
            auto* picker = page.findChild<DialogFNPicker*>();
            picker->findChild<QPushButton*>("pushButton_Hid224")->click();
            picker->findChild<QPushButton*>("pushButton_Hid006")->click();
            picker->findChild<QPushButton*>("pushButtonOK")->click();
        });
        QTest::mouseClick(page.keyboard()->button(kF5), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(keyboard->model().keyEntry(0, 0, PositionOfCode(kF5)),
                                  bytes("00E00600"), 5000);
        QCOMPARE(page.keyboard()->button(kF5)->bubble()->body(), QString("组合: L-Ctrl + C"));
    }
};

QTEST_MAIN(TestKeyPage)
#include "tst_keypage.moc"
