// The magnetic page driven as a user drives it, over the virtual keyboard: keys selected on the
// on-screen keyboard, values typed and applied. Each case checks the frames that went out, what
// the firmware then holds and what the keys show.

#include "CommandLayouts.h"
#include "MagicPageRig.h"
#include "SwitchTypes.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QtTest>

namespace {

constexpr quint8 kWrite = 0x65;
constexpr quint8 kW = 26, kA = 4, kS = 22, kD = 7, kEsc = 41;

// One magnetism write as it went out: table, position, commit and value.
struct Write
{
    quint8 table;
    quint8 position;
    quint8 commit;
    quint32 value;
    bool operator==(const Write&) const = default;
};

QList<Write> writes(const NativeKeyboardModel& fw)
{
    QList<Write> out;
    for (const QByteArray& f : framesOf(fw, kWrite))
        out.append({quint8(f[1]), quint8(f[3]), quint8(f[4]), CommandLayouts::leAt(f, 8, 4)});
    return out;
}

// The five writes that apply travel to one key: tables 0 to 3, then the mode byte committing.
QList<Write> travelWrites(quint8 code, const std::array<quint32, 4>& raw, quint32 mode)
{
    const quint8 p = PositionOfCode(code);
    return {{0x00, p, 0, raw[0]},
            {0x01, p, 0, raw[1]},
            {0x02, p, 0, raw[2]},
            {0x03, p, 0, raw[3]},
            {0x07, p, 1, mode}};
}

} // namespace

Q_DECLARE_METATYPE(Write)

class TestMagneticPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    // Apply on two keys with the switches as a user sets them: five writes per key in order,
    // the raw values in the firmware and the cache, and the keys' captions.
    void applyTravel_data()
    {
        QTest::addColumn<QStringList>("steps");  // "click NAME" or "type FRAME/EDIT TEXT"
        QTest::addColumn<QList<quint32>>("raw"); // tables 0 to 3
        QTest::addColumn<bool>("full");
        QTest::addColumn<QStringList>("captions");
        // The rapid trigger boxes start at 2.000 and 0.750; unchecked switches copy values over.
        QTest::newRow("press only, release and reset copied")
            << QStringList{"type frameLinear/lineEditValue1 1.3"}
            << QList<quint32>{260, 260, 400, 400} << false << QStringList{"1.300", "1.300"};
        QTest::newRow("release apart")
            << QStringList{"click checkBoxUnpress", "type frameLinear/lineEditValue1 0.5",
                           "type frameLinear/lineEditValue2 0.805"}
            << QList<quint32>{100, 161, 400, 400} << false << QStringList{"0.500", "0.805"};
        QTest::newRow("full travel with its own reset")
            << QStringList{"click checkBoxFullRT", "click checkBoxRTPress",
                           "type frame1/lineEditValue1 0.150", "type frame2/lineEditValue2 0.250"}
            << QList<quint32>{60, 60, 30, 50} << true << QStringList{"0.300", "0.300"};
    }
    void applyTravel()
    {
        QFETCH(QStringList, steps);
        QFETCH(QList<quint32>, raw);
        QFETCH(bool, full);
        QFETCH(QStringList, captions);
        MagicRig rig;
        rig.select({kW, kA});
        for (const QString& step : steps) {
            const QStringList part = step.split(u' ');
            if (part[0] == QLatin1String("click"))
                rig.click(qPrintable(part[1]));
            else
                rig.type(qPrintable(part[1].section(u'/', 0, 0)),
                         qPrintable(part[1].section(u'/', 1)), part[2]);
        }
        QCOMPARE(widget<QLabel>(&rig.page, "labelSelectRTKey")->text(), "已选中按键的数量: 2");
        rig.click("pushButtonSetRT");
        QVERIFY(rig.settle());

        const quint32 mode = full ? 0x80 : 0x00;
        const std::array<quint32, 4> r{raw[0], raw[1], raw[2], raw[3]};
        // In the keyboard's order, row by row: W before A.
        QCOMPARE(writes(rig.fw()), travelWrites(kW, r, mode) + travelWrites(kA, r, mode));
        for (quint8 code : {kW, kA}) {
            for (quint8 table = 0; table < 4; ++table) {
                QCOMPARE(rig.fwValue(table, code), raw[table]);
                QCOMPARE(rig.conn->GetMagnetism(table, PositionOfCode(code)), raw[table]);
            }
            QCOMPARE(rig.fwValue(0x07, code), mode);
            const QStringList shown = rig.key(code)->valueTexts();
            QCOMPARE(shown.mid(2, 2), captions);
            QCOMPARE(rig.key(code)->hasExtraValues(), full);
            if (full)
                QCOMPARE(shown.mid(4, 2), (QStringList{QString::asprintf("%.3f", raw[2] / 200.0),
                                                       QString::asprintf("%.3f", raw[3] / 200.0)}));
        }
        QCOMPARE(rig.key(kS)->valueTexts().mid(2, 2), (QStringList{"2.000", "2.800"}));
    }

    // Full travel on then off again: the flag comes and goes on the key and nothing else of its
    // mode byte changes.
    void fullTravelFlagOffAgain()
    {
        MagicRig rig;
        rig.keyboard->model().setMagnetValue(0x07, PositionOfCode(kD), 0x03); // a mod-tap key
        QVERIFY(rig.readAgain());
        rig.select({kD});
        rig.click("checkBoxFullRT");
        rig.click("pushButtonSetRT");
        QVERIFY(rig.settle());
        QCOMPARE(rig.fwValue(0x07, kD), 0x83u);
        rig.click("checkBoxFullRT");
        rig.click("pushButtonSetRT");
        QVERIFY(rig.settle());
        QCOMPARE(rig.fwValue(0x07, kD), 0x03u);
        QVERIFY(!rig.key(kD)->hasExtraValues());
    }

    // The switches that enable one control from another, from the page's first state on; the
    // second rapid trigger row shows 2.7 mm less its slider.
    void travelSwitches()
    {
        MagicRig rig;
        auto* bar = rig.find<QSlider>("horizontalSlider2");
        auto* box = rig.find<QLineEdit>("lineEditValue2", "frame2");
        QCOMPARE(box->text(), "0.750");
        QCOMPARE(rig.find<QLineEdit>("lineEditValue1", "frame1")->text(), "2.000");
        bar->setValue(bar->minimum());
        QCOMPARE(box->text(), "2.695");
        bar->setValue(bar->maximum());
        QCOMPARE(box->text(), "0.700");

        auto enabled = [&](const char* name) { return rig.find(name)->isEnabled(); };
        auto checked = [&](const char* name) {
            return rig.find<QAbstractButton>(name)->isChecked();
        };
        auto rightPane = [&] { return rig.find("rightPan", "frameLinear")->isEnabled(); };
        QVERIFY(!checked("checkBoxFullRT") && !checked("checkBoxRTPress") &&
                !checked("checkBoxUnpress"));
        QVERIFY(!enabled("frame0") && !enabled("frame1") && !enabled("frame2") && !rightPane());
        QVERIFY(enabled("checkBoxUnpress"));

        rig.click("checkBoxUnpress");
        QVERIFY(rightPane());
        rig.click("checkBoxFullRT");
        QVERIFY(enabled("frame0") && enabled("frame1") && !enabled("frame2"));
        QVERIFY(!rightPane() && !checked("checkBoxUnpress") && !enabled("checkBoxUnpress"));
        rig.click("checkBoxRTPress");
        QVERIFY(enabled("frame2"));
        rig.click("checkBoxFullRT");
        QVERIFY(!enabled("frame0") && !enabled("frame1") && !enabled("frame2"));
        QVERIFY(!checked("checkBoxRTPress") && enabled("checkBoxUnpress"));
    }

    // Typing in a rapid trigger box moves its slider 300 ms after the last change; the second
    // row shows 2.7 mm less its slider, but takes a typed value as it stands.
    void rapidBoxes_data()
    {
        QTest::addColumn<QString>("row");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("slider");
        QTest::addColumn<QString>("shown");
        QTest::newRow("raised to 0.2") << "1"
                                       << "0.1" << 200 << "0.200";
        QTest::newRow("text after the number") << "1"
                                               << "12abc" << 2000 << "2.000";
        QTest::newRow("not a number") << "1"
                                      << "abc" << 200 << "0.200";
        QTest::newRow("second row, backward") << "2"
                                              << "1.000" << 1000 << "1.700";
        QTest::newRow("second row at its top") << "2"
                                               << "2.4" << 2000 << "0.700";
    }
    void rapidBoxes()
    {
        QFETCH(QString, row);
        QFETCH(QString, typed);
        QFETCH(int, slider);
        QFETCH(QString, shown);
        MagicRig rig;
        rig.click("checkBoxFullRT");
        rig.click("checkBoxRTPress");
        const QByteArray frame = "frame" + row.toLatin1();
        const QByteArray edit = "lineEditValue" + row.toLatin1();
        auto* box = rig.find<QLineEdit>(edit.constData(), frame.constData());
        auto* bar = rig.find<QSlider>(("horizontalSlider" + row.toLatin1()).constData());
        const int before = bar->value();
        rig.type(frame.constData(), edit.constData(), QStringLiteral("0.9"));
        rig.clock.advance(200);
        rig.type(frame.constData(), edit.constData(), typed); // starts the wait again
        rig.clock.advance(299);
        QCOMPARE(bar->value(), before);
        rig.clock.advance(1);
        QCOMPARE(bar->value(), slider);
        QCOMPARE(box->text(), shown);
    }

    // Dead zones on three keys: six writes, only the last committing; a bottom zone past one
    // byte goes out whole while the firmware and the cache keep its low byte. Neither apply
    // button sends anything without a selection.
    void deadZones()
    {
        MagicRig rig;
        rig.type("frameLinear", "lineEditValue1", "0.1");
        rig.click("pushButtonSetRT");
        rig.click("pushButtonSet1");
        QCOMPARE(widget<QLabel>(&rig.page, "labelSelectDZKey")->text(), "已选中按键的数量: 0");
        rig.click("pushButtonSetDeathzone");
        QVERIFY(rig.settle());
        QVERIFY(rig.fw().receivedFrames().isEmpty());
        rig.select({kW, kA, kS});
        rig.type("frameDead", "lineEditValue1", "0.4");
        rig.type("frameDead", "lineEditValue2", "1.5");
        rig.click("pushButtonSetDeathzone");
        QVERIFY(rig.settle());

        QList<Write> expected;
        const quint8 order[] = {kW, kA, kS};
        for (quint8 code : order) {
            const quint8 p = PositionOfCode(code);
            expected << Write{0x06, p, 0, 80} << Write{0xFB, p, quint8(code == kS), 300};
        }
        QCOMPARE(writes(rig.fw()), expected);
        for (quint8 code : order) {
            QCOMPARE(rig.fwValue(0x06, code), 80u);
            QCOMPARE(rig.fwValue(0xFB, code), 300u & 0xFF);
            QCOMPARE(rig.conn->GetMagnetism(0xFB, PositionOfCode(code)), 300u & 0xFF);
            QCOMPARE(rig.key(code)->valueTexts().mid(0, 2), (QStringList{"0.40", "1.500"}));
        }
        // Entering the page again draws from the cache: bottom first, then top.
        rig.click("pushButtonSet0");
        QCOMPARE(rig.key(kW)->valueTexts().mid(2, 2), (QStringList{"2.000", "2.800"}));
        rig.click("pushButtonSet1");
        QCOMPARE(rig.key(kW)->valueTexts().mid(0, 2), (QStringList{"0.22", "0.400"}));
    }

    // Each type button writes its id on every key clicked while the switch page shows, one
    // frame per click, and the key takes the type's colour. Elsewhere a click only selects.
    void switchTypes_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("id");
        const int ids[] = {25, 31, 95, 1, 2, 3, 4, 5};
        for (int i = 0; i < 8; ++i)
            QTest::addRow("pushButtonMT%d", i) << i << ids[i];
    }
    void switchTypes()
    {
        QFETCH(int, button);
        QFETCH(int, id);
        MagicRig rig;
        rig.click("pushButtonSet1");
        rig.select({kEsc});
        rig.click("pushButtonSet2");
        rig.click(qPrintable(QStringLiteral("pushButtonMT%1").arg(button)));
        rig.select({kW, kD});
        QVERIFY(rig.settle());

        QCOMPARE(writes(rig.fw()), (QList<Write>{{0xFC, PositionOfCode(kW), 1, quint32(id)},
                                                 {0xFC, PositionOfCode(kD), 1, quint32(id)}}));
        QCOMPARE(rig.fwValue(0xFC, kW), quint32(id));
        QCOMPARE(rig.key(kW)->borderColour(), SwitchTypes::colourOf(quint8(id)));
        QCOMPARE(rig.key(kEsc)->borderColour(), SwitchTypes::colourOf(2)); // factory type
    }

    // What the keys show on entering each page comes from the cache as the last read left it,
    // with the deliberate second read of the re-press table and an unknown type in row 0's
    // colour.
    void captionsFromTheKeyboard()
    {
        MagicRig rig;
        NativeKeyboardModel& fw = rig.keyboard->model();
        const quint8 p = PositionOfCode(kW);
        for (auto [table, value] : {std::pair{0x00, 300},
                                    {0x01, 500},
                                    {0x02, 20},
                                    {0x03, 90},
                                    {0x07, 0x80},
                                    {0x06, 10},
                                    {0xFB, 30},
                                    {0xFC, 6}})
            fw.setMagnetValue(quint8(table), p, quint32(value));
        fw.setMagnetValue(0xFC, PositionOfCode(kA), 25);
        QVERIFY(rig.readAgain());

        QCOMPARE(rig.page.currentPage(), int(FrameMagic::Travel));
        QCOMPARE(rig.key(kW)->valueTexts().mid(2),
                 (QStringList{"1.500", "2.500", "0.100", "0.100"}));
        QVERIFY(rig.key(kW)->hasExtraValues());
        QVERIFY(!rig.key(kA)->hasExtraValues());
        rig.click("pushButtonSet1");
        QCOMPARE(rig.key(kW)->valueTexts().mid(0, 2), (QStringList{"0.15", "0.050"}));
        rig.click("pushButtonSet2");
        QCOMPARE(rig.key(kW)->borderColour(), QColor(0x9B, 0x9B, 0x9B));
        QCOMPARE(rig.key(kA)->borderColour(), QColor(0x2F, 0xC1, 0xFF));
        QVERIFY(writes(rig.fw()).isEmpty());
    }

    // Stabilisation and anti-mistouch write the option block at once; a read shows the
    // keyboard's own values without writing them back, and a level past 4 changes no radio.
    void stabilisationAndAntiMistouch()
    {
        MagicRig rig;
        rig.click("pushButtonSet3");
        QVERIFY(!rig.page.keyboard()->isEnabled());
        rig.click("radioButtonStab3");
        rig.click("checkBoxTouch");
        QVERIFY(rig.settle());
        QCOMPARE(quint8(rig.fw().optionBlock().at(4)), quint8(3));
        QCOMPARE(quint8(rig.fw().optionBlock().at(3)), quint8(1));
        QCOMPARE(framesOf(rig.fw(), 0x09).size(), 2);
        QCOMPARE(widget<QLabel>(&rig.page, "labelTunch")->text(), "已开启");

        // The option block is read when the keyboard connects.
        auto keyboardSets = [&](quint8 touch, quint8 level) {
            QByteArray options = rig.fw().optionBlock();
            options[0] = 0x09;
            options[3] = char(touch);
            options[4] = char(level);
            rig.keyboard->model().handle(options);
            rig.conn->connectStep();
            QVERIFY(rig.settle());
        };
        keyboardSets(0, 7);
        QVERIFY(!rig.find<QAbstractButton>("checkBoxTouch")->isChecked());
        QCOMPARE(widget<QLabel>(&rig.page, "labelTunch")->text(), "已关闭");
        QVERIFY(rig.find<QAbstractButton>("radioButtonStab3")->isChecked());
        rig.keyboard->model().clearReceivedFrames();
        keyboardSets(1, 1);
        QVERIFY(rig.find<QAbstractButton>("checkBoxTouch")->isChecked());
        QVERIFY(rig.find<QAbstractButton>("radioButtonStab1")->isChecked());
        QVERIFY(!rig.find<QAbstractButton>("radioButtonStab3")->isChecked());
        QCOMPARE(framesOf(rig.fw(), 0x09).size(), 1); // the keyboard's own change, no echo
        QCOMPARE(rig.page.currentPage(), int(FrameMagic::Travel)); // a read shows travel again
    }

    // One real-time run: the wired keyboard on the real clock takes an apply from the page.
    void realTimeApply()
    {
        QtClock clock;
        VirtualHidBackend hid(&clock);
        VirtualKeyboard* keyboard = hid.addWiredKeyboard();
        QTemporaryDir dir;
        ModuleGenKeymapping keys;
        // The HID calls on the connection's own I/O thread, as in the hub.
        DialogDeviceConnect conn(&hid, &clock, keys, dir.filePath("device.ini"));
        QObject::connect(&conn, &DialogDeviceConnect::onUpdataLayer, &conn,
                         [&](int layer) { conn.DoSetProfile(quint8(layer)); });
        FrameMagic page(&conn, &clock);
        page.show();
        conn.connectStep();
        QTRY_VERIFY_WITH_TIMEOUT(conn.isIdle() && !conn.GetMagnetTable(0).isEmpty(), 20000);
        QTest::mouseClick(page.keyboard()->button(kW), Qt::LeftButton);
        auto* box = widget<QWidget>(&page, "frameLinear")->findChild<QLineEdit*>("lineEditValue1");
        box->selectAll();
        QTest::keyClicks(box, "0.7");
        QTest::mouseClick(widget<QAbstractButton>(&page, "pushButtonSetRT"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(keyboard->model().magnetValue(0x01, PositionOfCode(kW)), 140u,
                                  5000);
        QTRY_VERIFY_WITH_TIMEOUT(conn.isIdle(), 5000);
        QCOMPARE(framesOf(keyboard->model(), kWrite).size(), 5);
        QCOMPARE(keyboard->model().magnetValue(0x00, PositionOfCode(kW)), 140u);
    }
};

QTEST_MAIN(TestMagneticPage)
#include "tst_magneticpage.moc"
