// The device home page against the virtual keyboard: the lighting panel's effects (music's
// reports among them), colours, levels and side light as frames and as the firmware's LED
// state, the keyboard's own values shown without being written back, and the travel for all
// keys at once (key code FF) reaching every key of the firmware while the connection's cache
// stays as it was.

#include "ColorSquare.h"
#include "DialogColorPicker.h"
#include "FrameMain.h"
#include "MagnetTables.h"
#include "ModuleEfColor.h"
#include "SimRig.h"
#include "TestSupport.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableView>
#include <QtTest>
#include <functional>

namespace {

constexpr quint8 kLedParam = 0x07;
constexpr quint8 kSideLed = 0x08;
constexpr quint8 kLedOnOff = 0x05;
constexpr quint8 kWriteMagnetism = 0x65;
constexpr quint8 kMusic = 0x0D;

// The home page on a read keyboard, shown, with what was sent so far forgotten.
struct HomeRig : SimRig
{
    FrameMain page{conn.get(), nullptr, &clock};

    HomeRig()
    {
        page.show();
        keyboard->model().clearReceivedFrames();
    }
    void click(const QString& name)
    {
        QTest::mouseClick(widget<QAbstractButton>(&page, qPrintable(name)), Qt::LeftButton);
    }
    // A write made on the keyboard itself (with its Fn keys, say), then a fresh read.
    bool keyboardSets(const char* frame)
    {
        keyboard->model().handle(hex(frame).leftJustified(64, '\0'));
        const bool read = readAgain();
        keyboard->model().clearReceivedFrames();
        return read;
    }
    // The slider of the brightness or the speed panel.
    QSlider* level(const char* panel) const
    {
        return widget<QWidget>(&page, panel)->findChild<QSlider*>();
    }
    // Heads of the LED frames sent: command, effect, speed byte, brightness, option, RGB.
    QList<QByteArray> heads(quint8 command) const { return framesOf(fw(), command, 8); }
};

using PageAction = std::function<void(FrameMain&)>;

struct TravelWrite
{
    quint8 table;
    quint32 raw;
};

void typeInto(QLineEdit* edit, const QString& text)
{
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

} // namespace

Q_DECLARE_METATYPE(PageAction)
Q_DECLARE_METATYPE(TravelWrite)

class TestHomePage : public QObject
{
    Q_OBJECT

private slots:
    // One effect button, then maybe a choice of the box: what goes out and what the keyboard
    // keeps.
    void effectChoice_data()
    {
        QTest::addColumn<int>("effect");
        QTest::addColumn<int>("choice"); // -1: the box is left alone
        QTest::addColumn<QString>("boxText");
        QTest::addColumn<QList<QByteArray>>("heads");
        QTest::addColumn<bool>("music");
        // After the first read the console row holds the keyboard's factory values: speed
        // byte 1 (4 minus the 3 read), brightness 3, colour FF FF FF.
        QTest::newRow("neon has no choices")
            << 3 << -1 << "无" << QList<QByteArray>{hex("07 03 01 03 07 FF FF FF")} << false;
        QTest::newRow("wave, up") << 4 << 2 << "上"
                                  << QList<QByteArray>{hex("07 04 01 03 07 FF FF FF"),
                                                       hex("07 04 01 03 27 FF FF FF")}
                                  << false;
        QTest::newRow("picture 3")
            << 13 << 2 << "图案3"
            << QList<QByteArray>{hex("07 0D 01 03 00 FF FF FF"), hex("07 0D 01 03 20 FF FF FF")}
            << false;
        QTest::newRow("music") << 22 << -1 << "无"
                               << QList<QByteArray>{hex("07 16 01 03 07 FF FF FF")} << true;
    }
    void effectChoice()
    {
        QFETCH(int, effect);
        QFETCH(int, choice);
        QFETCH(QString, boxText);
        QFETCH(QList<QByteArray>, heads);
        QFETCH(bool, music);
        HomeRig rig;
        rig.click(QStringLiteral("pushButtonEffect%1").arg(effect));
        auto* box = widget<QComboBox>(&rig.page, "comboBoxPic");
        if (choice >= 0) box->setCurrentIndex(choice);
        QVERIFY(rig.settle());

        QCOMPARE(box->currentText(), boxText);
        QCOMPARE(box->isEnabled(), choice >= 0);
        QCOMPARE(rig.heads(kLedParam), heads);
        QCOMPARE(rig.fw().ledEffect(), quint8(effect));
        QCOMPARE(rig.fw().ledParams(quint8(effect)).option, quint8(heads.last().at(4)));
        QCOMPARE(rig.conn->IsMusicOn(), music);
        // Music alone starts the rounds of ten reports (silence: no capture here).
        rig.clock.advance(500);
        const int reports = int(framesOf(rig.fw(), kMusic).size());
        QCOMPARE(reports >= 2 * 10, music);
        QCOMPARE(reports % 10, 0);
    }

    // Effect, brightness, speed and a colour from the square, one after the other: each frame
    // carries what the ones before set, and the keyboard ends with all four.
    void effectWithColourSpeedAndBrightness()
    {
        HomeRig rig;
        rig.click(QStringLiteral("pushButtonEffect4"));
        QTest::keyClick(rig.level("frameLEDBright"), Qt::Key_End);
        QTest::keyClick(rig.level("frameLEDSpeed"), Qt::Key_End);
        widget<QTabWidget>(&rig.page, "tabWidget")->setCurrentIndex(1);
        auto* square = widget<ColorSquare>(&rig.page, "colorSquare");
        QSignalSpy picked(square, &ColorSquare::colorSelected);
        QTest::mouseClick(square, Qt::LeftButton, {}, QPoint(150, 50));
        QVERIFY(rig.settle());

        QCOMPARE(picked.size(), 1);
        const QColor colour = picked.at(0).at(0).value<QColor>();
        // Hue 0 (the bar's start), half saturation, three quarters of the value.
        QCOMPARE(colour.hsvSaturation(), 128);
        QCOMPARE(colour.value(), 191);
        QByteArray last = hex("07 04 00 04 08");
        last.append(char(colour.red())).append(char(colour.green())).append(char(colour.blue()));
        QCOMPARE(rig.heads(kLedParam),
                 (QList<QByteArray>{hex("07 04 01 03 07 FF FF FF"), hex("07 04 01 04 07 FF FF FF"),
                                    hex("07 04 00 04 07 FF FF FF"), last}));
        const LedParams led = rig.fw().ledParams(4);
        QCOMPARE(rig.fw().ledEffect(), quint8(4));
        QCOMPARE(led.speed, quint8(0)); // the fastest: the user's 4
        QCOMPARE(led.brightness, quint8(4));
        QCOMPARE(led.option, quint8(ModuleEfColor::kCustomOption));
        QCOMPARE(qRgb(led.red, led.green, led.blue), colour.rgb());
        QCOMPARE(widget<QLabel>(widget<QWidget>(&rig.page, "frameLEDSpeed"), "labelTitle2")->text(),
                 QStringLiteral("100%"));
    }

    // The system colours turn so that the clicked one comes to the middle, and its place in
    // the list goes out as the option; the colour bytes stay.
    void systemColourWheel_data()
    {
        QTest::addColumn<QList<int>>("columns");
        QTest::addColumn<int>("turn"); // the wheel's turn after the clicks
        QTest::newRow("the centre again") << QList<int>{3} << 0;
        QTest::newRow("right, then back") << QList<int>{6, 0} << 0;
        QTest::newRow("two to the left") << QList<int>{1} << -2;
    }
    void systemColourWheel()
    {
        QFETCH(QList<int>, columns);
        QFETCH(int, turn);
        HomeRig rig;
        auto* table = widget<QTableView>(&rig.page, "tableView");
        const int start = ModuleEfColor::rotation(); // the wheel is the program's, not the page's
        const QList<QColor>& list = ModuleEfColor::systemColors();
        const auto centreAt = [&](int rotation) { return ((rotation + 3) % 7 + 7) % 7; };

        QList<QByteArray> expected;
        int rotation = start;
        for (int column : columns) {
            QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                              table->visualRect(table->model()->index(0, column)).center());
            rotation += column - 3;
            QByteArray head = hex("07 01 01 03");
            head.append(char(centreAt(rotation))).append(hex("FF FF FF"));
            expected << head;
        }
        QVERIFY(rig.settle());

        QCOMPARE(ModuleEfColor::rotation() - start, turn);
        QCOMPARE(rig.heads(kLedParam), expected);
        auto* model = static_cast<QStandardItemModel*>(table->model());
        for (int i = 0; i < 7; ++i)
            QCOMPARE(model->item(0, i)->foreground().color(),
                     list.at(((rotation + i) % 7 + 7) % 7));
        QCOMPARE(rig.fw().ledParams(1).option, quint8(centreAt(rotation)));
        QCOMPARE(rig.fw().ledParams(1).red, quint8(0xFF));
    }

    // What the keyboard reports is shown and not written back; the user's next change is.
    void keyboardValuesShownWithoutEcho()
    {
        HomeRig rig;
        QVERIFY(rig.keyboardSets("07 07 01 02 17 10 20 30")); // stream, speed byte 1
        QVERIFY(rig.keyboardSets("08 03 02 04 08 11 22 33")); // side light, custom colour
        QVERIFY(rig.readAgain());

        QVERIFY(rig.heads(kLedParam).isEmpty());
        QVERIFY(rig.heads(kSideLed).isEmpty());
        QVERIFY(widget<QAbstractButton>(&rig.page, "pushButtonEffect7")->isChecked());
        QCOMPARE(widget<QComboBox>(&rig.page, "comboBoxPic")->currentText(), QStringLiteral("Z形"));
        QCOMPARE(rig.level("frameLEDSpeed")->value(), 3);
        QCOMPARE(rig.level("frameLEDBright")->value(), 2);
        for (const char* name : {"pushButton5", "radioButtonS2", "radioButtonL4", "pushButtonCol1"})
            QVERIFY2(widget<QAbstractButton>(&rig.page, name)->isChecked(), name);
        auto* side = widget<QLabel>(widget<QWidget>(&rig.page, "tab3"), "labelColor");
        QVERIFY(!side->isHidden());
        QVERIFY(side->styleSheet().contains(QStringLiteral("rgb(17, 34, 51)")));

        rig.click(QStringLiteral("pushButtonEffect3"));
        QVERIFY(rig.settle());
        QCOMPARE(rig.heads(kLedParam), QList<QByteArray>{hex("07 03 03 02 07 FF FF FF")});

        // An effect the list doesn't have: the user's next click is swallowed, the one after
        // goes out. The keyboard only reports effects it was given, so this stays.
        QVERIFY(rig.keyboardSets("07 63 01 02 07 00 00 00"));
        rig.click(QStringLiteral("pushButtonEffect2"));
        QVERIFY(rig.settle());
        QVERIFY(rig.heads(kLedParam).isEmpty());
        rig.click(QStringLiteral("pushButtonEffect1"));
        QVERIFY(rig.settle());
        QCOMPARE(rig.heads(kLedParam).size(), 1);
        QCOMPARE(rig.fw().ledEffect(), quint8(1));
    }

    void lightsOffSwitch()
    {
        HomeRig rig;
        auto* toggle = widget<QAbstractButton>(&rig.page, "checkBoxEFMode");
        QTest::mouseClick(toggle, Qt::LeftButton);
        QVERIFY(rig.settle());
        QVERIFY(!rig.fw().ledOn());
        QTest::mouseClick(toggle, Qt::LeftButton);
        QVERIFY(rig.settle());
        QVERIFY(rig.fw().ledOn());
        QCOMPARE(framesOf(rig.fw(), kLedOnOff, 3),
                 (QList<QByteArray>{hex("05 00 00"), hex("05 01 01")}));
    }

    // The side light: each click sends the whole block; a drag in its picker sends one block
    // per pause; the rainbow mode hides the colour and says 7.
    void sideLight()
    {
        HomeRig rig;
        for (const char* name : {"pushButton2", "radioButtonS4", "radioButtonL1", "pushButtonCol1"})
            rig.click(QLatin1String(name));
        QVERIFY(rig.settle());
        QCOMPARE(
            rig.heads(kSideLed),
            (QList<QByteArray>{hex("08 02 00 00 07 FF FF FF"), hex("08 02 03 00 07 FF FF FF"),
                               hex("08 02 03 01 07 FF FF FF"), hex("08 02 03 01 08 FF FF FF")}));
        rig.keyboard->model().clearReceivedFrames();

        auto* tab = widget<QWidget>(&rig.page, "tab3");
        QTest::mouseClick(widget<QLabel>(tab, "labelPickup"), Qt::LeftButton);
        auto* colours = widget<ModuleEfColor>(&rig.page, "frameLEDColor");
        QVERIFY(colours->picker()->isVisible());
        auto* square = widget<ColorSquare>(colours->picker(), "colorSquare");
        QTest::mousePress(square, Qt::LeftButton, {}, QPoint(10, 10));
        for (int x = 20; x <= 60; x += 20) {
            rig.clock.advance(150); // a drag, never pausing 200 ms
            QTest::mouseMove(square, QPoint(x, 10));
        }
        QTest::mouseRelease(square, Qt::LeftButton, {}, QPoint(60, 10));
        rig.clock.advance(ModuleEfColor::kSideSendDelayMs - 1);
        QVERIFY(rig.heads(kSideLed).isEmpty());
        rig.clock.advance(1);
        QVERIFY(rig.settle());
        const QColor last = colours->picker()->color();
        QByteArray block = hex("08 02 03 01 08");
        block.append(char(last.red())).append(char(last.green())).append(char(last.blue()));
        QCOMPARE(rig.heads(kSideLed), QList<QByteArray>{block});
        const LedParams side = rig.fw().sideLedParams(2);
        QCOMPARE(qRgb(side.red, side.green, side.blue), last.rgb());
        QCOMPARE(side.speed, quint8(3)); // the side light's speed is not turned round

        rig.click(QStringLiteral("pushButtonCol0"));
        QVERIFY(rig.settle());
        QVERIFY(widget<QLabel>(tab, "labelColor")->isHidden());
        QVERIFY(widget<QLabel>(tab, "labelPickup")->isHidden());
        QCOMPARE(rig.fw().sideLedParams(2).option, quint8(7));
    }

    // The travel controls write every key at once, with key code FF, commit 1; the titles are
    // deliberately the other way round from the tables. The connection's cache is untouched.
    void travelForAllKeys_data()
    {
        QTest::addColumn<PageAction>("action");
        QTest::addColumn<QList<TravelWrite>>("writes");
        const auto rt = [](FrameMain& page) { return widget<QWidget>(&page, "frameRTSetting"); };
        const auto rtBox = [](FrameMain& page) {
            return widget<QLineEdit>(widget<QWidget>(&page, "frameRTSetting"), "lineEdit");
        };
        const auto press = [rt](const char* name) {
            return PageAction([rt, name](FrameMain& page) {
                QTest::mouseClick(widget<QAbstractButton>(rt(page), name), Qt::LeftButton);
            });
        };
        QTest::newRow("ruler minus")
            << press("pushButtonMinus") << QList<TravelWrite>{{0, 113}, {1, 113}}; // 0.565
        QTest::newRow("ruler typed 9, the maximum")
            << PageAction([rtBox](FrameMain& page) { typeInto(rtBox(page), "9"); })
            << QList<TravelWrite>{{0, 500}, {1, 500}};
        QTest::newRow("ruler plus truncates") << PageAction([rtBox, press](FrameMain& page) {
            typeInto(rtBox(page), "1.23456"); // kept as typed, not sent
            press("pushButtonPlug")(page);    // 1.23956 falls to 1.235
        }) << QList<TravelWrite>{{0, 247}, {1, 247}};
        QTest::newRow("ruler plus at the top") << PageAction([rtBox, press](FrameMain& page) {
            typeInto(rtBox(page), "2.5");
            press("pushButtonPlug")(page);
        }) << QList<TravelWrite>{{0, 500}, {1, 500}};
        QTest::newRow("ruler dragged to its middle") << PageAction([rt](FrameMain& page) {
            QTest::mousePress(rt(page), Qt::LeftButton, {}, QPoint(150, 70));
            QTest::mouseRelease(rt(page), Qt::LeftButton, {}, QPoint(150, 70));
        }) << QList<TravelWrite>{{0, 270}, {1, 270}}; // 1.35
        QTest::newRow("ruler off: no drag") << PageAction([rt](FrameMain& page) {
            QTest::mouseClick(widget<QAbstractButton>(rt(page), "checkBoxRTMode"), Qt::LeftButton);
            QTest::mousePress(rt(page), Qt::LeftButton, {}, QPoint(150, 70));
            QVERIFY(!widget<QAbstractButton>(rt(page), "pushButtonPlug")->isEnabled());
        }) << QList<TravelWrite>{};
        const auto linear = [](const char* name) {
            return PageAction([name](FrameMain& page) {
                QTest::mouseClick(
                    widget<QAbstractButton>(widget<QWidget>(&page, "frameLinearSet"), name),
                    Qt::LeftButton);
            });
        };
        QTest::newRow("press pane down")
            << linear("pushButtonM1") << QList<TravelWrite>{{2, 80}}; // 0.40
        QTest::newRow("release pane up")
            << linear("pushButtonP2") << QList<TravelWrite>{{3, 81}}; // 0.405
        QTest::newRow("press pane groove") << PageAction([](FrameMain& page) {
            auto* slider = widget<QSlider>(&page, "verticalSlider1");
            QTest::mouseClick(slider, Qt::LeftButton, {},
                              QPoint(slider->width() / 2, slider->height() / 2));
        }) << QList<TravelWrite>{{2, 400}}; // the middle of 4 mm
        QTest::newRow("typed travel is not sent") << PageAction([](FrameMain& page) {
            typeInto(widget<QLineEdit>(&page, "lineEditValue1"), "1.3");
            QCOMPARE(widget<QSlider>(&page, "verticalSlider1")->value(), 2700);
        }) << QList<TravelWrite>{};
    }
    void travelForAllKeys()
    {
        QFETCH(PageAction, action);
        QFETCH(QList<TravelWrite>, writes);
        HomeRig rig;
        std::array<QByteArray, 4> cache;
        for (int t = 0; t < 4; ++t)
            cache[t] = rig.conn->GetMagnetTable(t);
        std::array<quint32, 4> before;
        for (int t = 0; t < 4; ++t)
            before[t] = rig.fw().magnetValue(quint8(t), 0);

        action(rig.page);
        QVERIFY(rig.settle());

        QList<QByteArray> expected;
        for (const TravelWrite& w : writes) {
            QByteArray frame = hex("65 00 00 FF 01 00 00 00 00 00 00 00");
            frame[1] = char(w.table);
            frame[8] = char(w.raw & 0xFF);
            frame[9] = char(w.raw >> 8);
            expected << frame;
            before[w.table] = w.raw;
        }
        const QList<QByteArray> sent = framesOf(rig.fw(), kWriteMagnetism);
        for (int i = 0; i < sent.size(); ++i) // the checksum at 7 is the framing's
            QCOMPARE(sent.at(i).left(7) + sent.at(i).mid(8),
                     expected.value(i).left(7) + expected.value(i).mid(8));
        QCOMPARE(sent.size(), expected.size());
        for (int t = 0; t < 4; ++t) {
            for (int key : {0, 63, 127})
                QCOMPARE(rig.fw().magnetValue(quint8(t), key), before[t]);
            QCOMPARE(rig.conn->GetMagnetTable(t), cache[t]);
        }
    }

    // The whole road in real time: the page on a connection with real pacing.
    void realTimeEffect()
    {
        VirtualHidBackend hid(QtClock::shared());
        VirtualKeyboard* keyboard = hid.addWiredKeyboard();
        QTemporaryDir dir;
        ModuleGenKeymapping keys;
        DialogDeviceConnect conn(&hid, QtClock::shared(), keys, dir.filePath("device.ini"));
        QObject::connect(&conn, &DialogDeviceConnect::onUpdataLayer, &conn,
                         [&conn](int layer) { conn.DoSetProfile(quint8(layer)); });
        FrameMain page(&conn);
        conn.connectStep();
        QTRY_VERIFY_WITH_TIMEOUT(conn.isIdle() && !conn.GetKeyMatrix(0).isEmpty(), 30000);
        QTest::mouseClick(widget<QAbstractButton>(&page, "pushButtonEffect18"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(keyboard->model().ledEffect(), quint8(18), 5000);
    }
};

QTEST_MAIN(TestHomePage)
#include "tst_homepage.moc"
