// The key page's advanced keys over the virtual keyboard: each tab's save, driven through its
// widgets, checked in the frames that went out (in order) and in the firmware's layers and
// tables afterwards; the travel popup's text and slider; keys that already are DKS, MT, TGL or
// SnapKey loading back into the tabs; a SnapKey pair cleared from the keyboard's popup.

#include "CommandCatalogue.h"
#include "KeyPageRig.h"
#include "ModuleAdvancedKeys.h"
#include "ModuleDKSAdjust.h"
#include "ModuleDKSItem.h"
#include "ModuleGeneralMasker.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>
#include <QStandardPaths>
#include <QtEndian>
#include <QtTest>

namespace {

using namespace CommandCatalogue;

// Key codes, and their matrix positions as the frames carry them.
constexpr quint8 kA = 4;          // @9
constexpr quint8 kD = 7;          // @21
constexpr quint8 kQ = 20;         // @8
constexpr quint8 kF5 = 62;        // @30
constexpr quint8 kSPosition = 15; // S's position, and L's code (L is @57)
constexpr quint8 kPosA = 9;
constexpr quint8 kPosD = 21;
constexpr quint8 kPosR = 26; // R's code is 21, D's position
const QString kDksWord = QStringLiteral("0x55565B6F");

// A frame as a line: "key @POS LLAYER ENTRY [last]" or "mag TABLE @POS =VALUE [commit]".
QString describe(const QByteArray& f)
{
    switch (quint8(f.at(0))) {
    case CMD_SET_KEYMATRIX:
        return QStringLiteral("key @%1 L%2 %3%4")
            .arg(quint8(f[2]))
            .arg(quint8(f[6]))
            .arg(QString::fromLatin1(f.mid(8, 4).toHex().toUpper()))
            .arg(f[5] ? " last" : "");
    case CMD_WRITE_MAGNETISM: {
        const quint32 value = qFromLittleEndian<quint32>(f.constData() + 8);
        return QStringLiteral("mag %1 @%2 =%3%4")
            .arg(quint8(f[1]), 2, 16, QChar('0'))
            .arg(quint8(f[3]))
            .arg(value < 0x10000 ? QString::number(value)
                                 : QStringLiteral("0x") + QString::number(value, 16).toUpper())
            .arg(f[4] ? " commit" : "");
    }
    default:
        return QString::fromLatin1(f.left(4).toHex(' '));
    }
}

struct AdvancedRig : KeyPageRig
{
    AdvancedRig() { mode(FrameKeySetting::Advanced); }

    // Everything the firmware got since the last call, as lines.
    QStringList wire()
    {
        settle();
        QStringList lines;
        for (const QByteArray& f : fw().receivedFrames())
            lines << describe(f);
        keyboard->model().clearReceivedFrames();
        return lines;
    }
    void tab(int index) { widget<QTabWidget>("tabWidgetAdv")->setCurrentIndex(index); }
    void click(quint8 code) { QTest::mouseClick(key(code), Qt::LeftButton); }
    void press(const char* name)
    {
        QTest::mouseClick(widget<QAbstractButton>(name), Qt::LeftButton);
    }
    QString text(const char* name) const { return widget<QAbstractButton>(name)->text(); }
    QString label(const char* name) const { return widget<QLabel>(name)->text(); }
    ModuleDKSItem* row(int n) const
    {
        return widget<ModuleDKSItem>(qPrintable(QStringLiteral("frameDKS%1").arg(n)));
    }
    // Picks in the key picker that the named button (or a DKS row's button) opens.
    void pickFor(QAbstractButton* opener, const QStringList& steps)
    {
        runPicker([&] { QTest::mouseClick(opener, Qt::LeftButton); }, steps);
    }
    void pickFor(const char* name, const QStringList& steps)
    {
        pickFor(widget<QAbstractButton>(name), steps);
    }
    void pickRow(int n, const QStringList& steps)
    {
        pickFor(row(n)->findChild<QPushButton*>("pushButton_FuncKey"), steps);
    }
    void type(QLineEdit* edit, const QString& text)
    {
        edit->clear();
        QTest::keyClicks(edit, text);
    }

    // Opens the travel popup from a label and runs: "type TEXT", "wait MS" (the slider's value
    // is noted after it), "plus", "minus", then "ok", "cancel" or "escape" (on the mask). Returns
    // what the text box opened with, then the values noted.
    QStringList travel(const char* opener, const QStringList& steps)
    {
        QStringList seen;
        QTimer::singleShot(0, page.get(), [&] {
            auto* adjust = page->findChild<ModuleDKSAdjust*>("DKSAdjust");
            if (!adjust || !adjust->isVisible()) return;
            seen << adjust->valueText();
            for (const QString& step : steps) {
                const QString arg = step.section(u' ', 1);
                if (step.startsWith(QLatin1String("type ")))
                    type(adjust->findChild<QLineEdit*>("lineEditValue1"), arg);
                else if (step.startsWith(QLatin1String("wait "))) {
                    clock.advance(arg.toInt());
                    seen << QString::number(adjust->value());
                } else if (step == QLatin1String("escape")) {
                    QTest::keyClick(page->findChild<ModuleGeneralMasker*>(), Qt::Key_Escape);
                } else {
                    static const QMap<QString, const char*> buttons{{"plus", "pushButtonP1"},
                                                                    {"minus", "pushButtonM1"},
                                                                    {"ok", "pushButtonOK"},
                                                                    {"cancel", "pushButtonCancel"}};
                    QTest::mouseClick(adjust->findChild<QPushButton*>(buttons.value(step)),
                                      Qt::LeftButton);
                }
            }
        });
        QTest::mouseClick(widget<QLabel>(opener), Qt::LeftButton);
        return seen;
    }
};

} // namespace

class TestAdvancedKeys : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    // ---- DKS

    void dksSave()
    {
        AdvancedRig rig;
        rig.click(kA);
        QCOMPARE(rig.text("pushButton_DKS"), QString("A"));
        rig.pickRow(1, {"click pushButton_Hid005", "ok"});
        rig.pickRow(2, {"click pushButton_Hid224", "click pushButton_Hid006", "ok"});
        rig.pickRow(4, {"click pushButton_Hid007", "ok"});
        rig.pickRow(3, {"click pushButton_Hid008", "cancel"});
        QCOMPARE(rig.row(2)->keyText(), QString("L-Ctrl + C"));
        QCOMPARE(rig.row(3)->keyText(), QString("未设置功能"));
        // The switches show what the user likes; the keyboard is given the fixed word anyway.
        QTest::mouseClick(rig.row(1)->switchLabel(1), Qt::LeftButton);
        QTest::mouseClick(rig.row(4)->switchLabel(3), Qt::LeftButton);
        QVERIFY(!rig.row(1)->switchState(1));
        QVERIFY(!rig.row(4)->switchState(3));
        QVERIFY(rig.wire().isEmpty());

        rig.press("pushButton_OKDKS");
        QCOMPARE(rig.wire(),
                 (QStringList{"key @9 L0 00050000", "key @9 L1 00E00600", "key @9 L2 00000000",
                              "key @9 L3 00070000 last", "mag 07 @9 =2", "mag 04 @9 =140",
                              "mag 08 @9 =" + kDksWord + " commit"}));
        const QList<QByteArray> layers{bytes("00050000"), bytes("00E00600"), bytes("00000000"),
                                       bytes("00070000")};
        for (int layer = 0; layer < 4; ++layer)
            QCOMPARE(rig.fw().keyEntry(0, layer, kPosA), layers[layer]);
        QCOMPARE(rig.fw().magnetValue(0x07, kPosA), 2u);
        QCOMPARE(rig.fw().magnetValue(0x04, kPosA), 140u);
        QCOMPARE(rig.fw().magnetValue(0x08, kPosA), 0x6Fu); // a byte wide on the keyboard
        QCOMPARE(rig.bubble(kA), (QStringList{"A", "动态键程(DKS):\nB\nL-Ctrl + C\n\nD"}));
    }

    void dksTravel_data()
    {
        QTest::addColumn<QString>("opener");
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QStringList>("seen"); // text opened with, then the slider at each wait
        QTest::addColumn<QString>("shown");    // labelPress1 and labelRelease2 afterwards
        QTest::addColumn<int>("raw");          // table 04 written

        QTest::newRow("the text reaches the slider 300 ms after its last change")
            << "labelPress1"
            << QStringList{"type 1", "wait 200", "type 1.2", "wait 299", "wait 1", "ok"}
            << QStringList{"0.7", "700", "700", "1200"} << "1.20 mm" << 240;
        QTest::newRow("steps of 5; the labels round, the raw value keeps them")
            << "labelPress3" << QStringList{"plus", "plus", "minus", "wait 300", "ok"}
            << QStringList{"0.7", "705"} << "0.70 mm" << 141;
        QTest::newRow("4.000 is 800")
            << "labelPress1" << QStringList{"type 4.000", "wait 300", "ok"}
            << QStringList{"0.7", "4000"} << "4.00 mm" << 800;
        QTest::newRow("past the end the slider stops at 4.000")
            << "labelPress1" << QStringList{"type 9", "wait 300", "ok"}
            << QStringList{"0.7", "4000"} << "4.00 mm" << 800;
        QTest::newRow("the whole text is the number: a unit makes it 0")
            << "labelPress1" << QStringList{"type 1.5 mm", "wait 300", "ok"}
            << QStringList{"0.7", "0"} << "0.00 mm" << 0;
        QTest::newRow("saved before the slider took it: the text counts")
            << "labelPress1" << QStringList{"type 1.234", "ok"} << QStringList{"0.7"} << "1.23 mm"
            << 246;
        QTest::newRow("cancel keeps the travel")
            << "labelPress1" << QStringList{"type 2", "wait 300", "cancel"}
            << QStringList{"0.7", "2000"} << "0.7 mm" << 140;
        QTest::newRow("escape on the mask is a cancel")
            << "labelPress1" << QStringList{"type 2", "wait 300", "escape"}
            << QStringList{"0.7", "2000"} << "0.7 mm" << 140;
        QTest::newRow("the peak opens it too, and sets both")
            << "labelRelease4" << QStringList{"type 2", "wait 300", "ok"}
            << QStringList{"0.7", "2000"} << "2.00 mm" << 400;
    }
    void dksTravel()
    {
        QFETCH(QString, opener);
        QFETCH(QStringList, steps);
        QFETCH(QStringList, seen);
        QFETCH(QString, shown);
        QFETCH(int, raw);

        AdvancedRig rig;
        QCOMPARE(rig.travel(qPrintable(opener), steps), seen);
        // However it closed, the popup is back with the page, hidden, for the next time.
        auto* popup = rig.widget<ModuleDKSAdjust>("DKSAdjust");
        QVERIFY(popup && !popup->isVisible());
        QVERIFY(!rig.page->findChild<ModuleGeneralMasker*>());
        QCOMPARE(rig.label("labelPress1"), shown);
        QCOMPARE(rig.label("labelRelease2"), shown);
        QCOMPARE(rig.label("labelPress2"), QString("3.2 mm"));
        rig.click(kA);
        rig.press("pushButton_OKDKS");
        QVERIFY(rig.wire().contains(QStringLiteral("mag 04 @9 =%1").arg(raw)));
        QCOMPARE(rig.fw().magnetValue(0x04, kPosA), quint32(raw));
    }

    // A drag across a row joins the switches it passes into one bar; a drag that joins nothing
    // forgets where it started half a second later.
    void dksRowDrag()
    {
        AdvancedRig rig;
        ModuleDKSItem* row = rig.row(1);
        const auto mouse = [row](QEvent::Type type, int x) {
            const QPointF at(x, 20);
            QMouseEvent event(type, at, row->mapToGlobal(at), Qt::LeftButton,
                              type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                              Qt::NoModifier);
            QApplication::sendEvent(row, &event);
        };
        const auto hidden = [row] {
            QString marks;
            for (int i = 0; i < ModuleDKSItem::kSwitches; ++i)
                marks += row->switchLabel(i)->isVisible() ? u'o' : u'-';
            return marks;
        };
        const QColor bar(0x63, 0x29, 0xB6);
        QVERIFY(row->grab().toImage().pixelColor(200, 20) != bar);

        mouse(QEvent::MouseButtonPress, 200);
        mouse(QEvent::MouseMove, 330);
        QCOMPARE(hidden(), QString("o--o")); // the second and third lie between 200 and 330
        mouse(QEvent::MouseButtonRelease, 330);
        mouse(QEvent::MouseButtonPress, 100); // the start stays at 200
        mouse(QEvent::MouseMove, 330);
        QCOMPARE(hidden(), QString("o--o"));
        mouse(QEvent::MouseMove, 150); // nothing passed: the bar goes
        QCOMPARE(hidden(), QString("oooo"));
        mouse(QEvent::MouseButtonRelease, 150);
        rig.clock.advance(500);
        mouse(QEvent::MouseButtonPress, 100);
        mouse(QEvent::MouseMove, 330);
        QCOMPARE(hidden(), QString("---o")); // the last switch never hides
        // From the first switch after the start to the last one passed, with a tail.
        const QImage shot = row->grab().toImage();
        QCOMPARE(shot.pixelColor(200, 20), bar);
        QVERIFY(shot.pixelColor(360, 20) != bar);
        mouse(QEvent::MouseButtonRelease, 330);
    }

    // ---- MT

    void mtSave_data()
    {
        QTest::addColumn<QString>("typed"); // into lineEditValue; empty for none
        QTest::addColumn<int>("slider");
        QTest::addColumn<int>("sent"); // table 05

        QTest::newRow("the default 25 sends 0") << "" << 25 << 0;
        QTest::newRow("150 ms sends 1") << "150 ms" << 150 << 1;
        QTest::newRow("100 is the first to send 1") << "100" << 100 << 1;
        QTest::newRow("999 stops at 200 and sends 2") << "999" << 200 << 2;
    }
    void mtSave()
    {
        QFETCH(QString, typed);
        QFETCH(int, slider);
        QFETCH(int, sent);

        AdvancedRig rig;
        rig.tab(ModuleAdvancedKeys::MtTab);
        QCOMPARE(rig.widget<QLineEdit>("lineEditValue")->text(), QString("25 ms"));
        rig.click(kA);
        rig.pickFor("pushButton_MT1", {"click pushButton_Hid005", "ok"});
        rig.pickFor("pushButton_MT2", {"click pushButton_Hid224", "ok"});
        QCOMPARE(rig.text("pushButton_MT1"), QString("B"));
        QCOMPARE(rig.text("pushButton_MT2"), QString("L-Ctrl"));
        if (!typed.isEmpty()) {
            rig.type(rig.widget<QLineEdit>("lineEditValue"), typed);
            rig.clock.advance(ModuleAdvancedKeys::kTextDelayMs);
        }
        QCOMPARE(rig.widget<QSlider>("horizontalSlider")->value(), slider);
        QCOMPARE(rig.widget<QLineEdit>("lineEditValue")->text(),
                 QStringLiteral("%1 ms").arg(slider));

        rig.press("pushButton_OKMT");
        QCOMPARE(rig.wire(),
                 (QStringList{"key @9 L0 00050000", "key @9 L1 00E00000 last", "mag 07 @9 =3",
                              QStringLiteral("mag 05 @9 =%1 commit").arg(sent)}));
        QCOMPARE(rig.fw().keyEntry(0, 0, kPosA), bytes("00050000"));
        QCOMPARE(rig.fw().keyEntry(0, 1, kPosA), bytes("00E00000"));
        QCOMPARE(rig.fw().magnetValue(0x07, kPosA), 3u);
        QCOMPARE(rig.fw().magnetValue(0x05, kPosA), quint32(sent));
        QCOMPARE(rig.bubble(kA), (QStringList{"A", "按住单击(MT):\nB:\nL-Ctrl"}));
    }

    // ---- TGL

    void tglSave_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<int>("kind");

        QTest::newRow("the hold kind saves at once") << "radioButton_TGL2" << 5;
        QTest::newRow("the repeat kind saves at once") << "radioButton_TGL1" << 4;
        QTest::newRow("the save button") << "pushButton_OKTGL" << 4;
    }
    void tglSave()
    {
        QFETCH(QString, control);
        QFETCH(int, kind);

        AdvancedRig rig;
        rig.tab(ModuleAdvancedKeys::TglTab);
        rig.click(kA);
        rig.pickFor("pushButton_TGL1", {"click pushButton_Hid006", "ok"});
        QVERIFY(rig.wire().isEmpty());
        rig.press(qPrintable(control));
        QCOMPARE(rig.wire(), (QStringList{"key @9 L0 00060000 last",
                                          QStringLiteral("mag 07 @9 =%1 commit").arg(kind)}));
        QCOMPARE(rig.fw().keyEntry(0, 0, kPosA), bytes("00060000"));
        QCOMPARE(rig.fw().magnetValue(0x07, kPosA), quint32(kind));
        QCOMPARE(rig.bubble(kA), (QStringList{"A", "切换开关(TGL):\nC"}));
    }

    // ---- SnapKey

    void snapKeyPairThenClearedFromThePopup()
    {
        AdvancedRig rig;
        rig.tab(ModuleAdvancedKeys::SnapTab);
        rig.click(kA); // A is the default target
        QCOMPARE(rig.text("pushButton_Snap1"), QString("A"));
        rig.press("pushButton_OKSnap"); // B missing: nothing
        QVERIFY(rig.wire().isEmpty());
        rig.press("radioButton_Snap2");
        rig.click(kD);
        QCOMPARE(rig.text("pushButton_Snap2"), QString("D"));
        rig.press("pushButton_OKSnap");

        QCOMPARE(rig.wire(), (QStringList{"mag 07 @9 =7", "mag 07 @21 =7", "mag 09 @9 =21",
                                          "mag 09 @21 =9 commit"}));
        QCOMPARE(rig.fw().magnetValue(0x09, kPosA), quint32(kPosD));
        QCOMPARE(rig.fw().magnetValue(0x09, kPosD), quint32(kPosA));
        QCOMPARE(rig.fw().magnetValue(0x07, kPosD), 7u);
        QCOMPARE(rig.fw().keyEntry(0, 0, kPosA), bytes("00000400")); // layers untouched
        // Each bubble names the partner's position as a key code: D's 21 is R, A's 9 is F.
        QCOMPARE(rig.bubble(kA), (QStringList{"A", "SnapKey:\nR"}));
        QCOMPARE(rig.bubble(kD), (QStringList{"D", "SnapKey:\nF"}));

        // Cleared from the popup: A is reset, and the mode of the key whose code is the stored
        // 21 (R), not D, is written back to 0.
        QCOMPARE(rig.rightClick(kA), QString("清除设置"));
        rig.confirmPopup();
        const QStringList cleared = rig.wire();
        QVERIFY(cleared.contains(QStringLiteral("mag 07 @%1 =0 commit").arg(kPosR)));
        QCOMPARE(cleared.last(), QStringLiteral("key @9 L0 00000400 last"));
        QCOMPARE(rig.fw().magnetValue(0x07, kPosA), 0u);
        QCOMPARE(rig.fw().magnetValue(0x07, kPosD), 7u);
        QVERIFY(!rig.key(kA)->hasBinding());
        QVERIFY(rig.key(kD)->hasBinding());
    }

    // ---- shared

    void savesWithoutAKeyDoNothing_data()
    {
        QTest::addColumn<int>("tab");
        QTest::addColumn<QString>("control");

        // SnapKey with only its first key is in the SnapKey case.
        QTest::newRow("DKS") << int(ModuleAdvancedKeys::DksTab) << "pushButton_OKDKS";
        QTest::newRow("MT") << int(ModuleAdvancedKeys::MtTab) << "pushButton_OKMT";
        QTest::newRow("TGL") << int(ModuleAdvancedKeys::TglTab) << "pushButton_OKTGL";
        QTest::newRow("TGL kind") << int(ModuleAdvancedKeys::TglTab) << "radioButton_TGL2";
    }
    void savesWithoutAKeyDoNothing()
    {
        QFETCH(int, tab);
        QFETCH(QString, control);

        AdvancedRig rig;
        rig.tab(tab);
        rig.press(qPrintable(control));
        QVERIFY(rig.wire().isEmpty());
        QCOMPARE(rig.fw().magnetValue(0x07, kPosA), 0u);
    }

    // Keys written elsewhere and read from the keyboard load into their tabs; saved again, each
    // writes what it held.
    void keysLoadBackIntoTheirTabs()
    {
        AdvancedRig rig;
        const auto setKey = [&](quint8 code, int layer, const char* hex, bool last) {
            const QByteArray entry = bytes(hex);
            rig.link->DoSetKey(code, reinterpret_cast<const quint8*>(entry.constData()),
                               quint8(layer), last);
        };
        setKey(kQ, 0, "00050000", false);
        setKey(kQ, 1, "00E00000", false);
        setKey(kQ, 2, "00000000", false);
        setKey(kQ, 3, "00070000", true);
        rig.link->DoSetMagnetism(0x07, kQ, 2, 0);
        rig.link->DoSetMagnetism(0x04, kQ, 200, 1); // 1.00 mm
        setKey(kD, 0, "00060000", false);
        setKey(kD, 1, "00E10000", true);
        rig.link->DoSetMagnetism(0x07, kD, 3, 1);
        setKey(kF5, 0, "00040000", true);
        rig.link->DoSetMagnetism(0x07, kF5, 5, 1);
        rig.link->DoSetMagnetism(0x07, kA, 7, 0);
        rig.link->DoSetMagnetism(0x09, kA, kSPosition, 1);
        rig.settle();
        rig.link->DoReadAll();
        QVERIFY(rig.settle());
        rig.wire();

        // Q, clicked with the MT tab open: the DKS tab is filled, but Q becomes the MT key.
        rig.tab(ModuleAdvancedKeys::MtTab);
        rig.click(kQ);
        QCOMPARE(rig.row(2)->keyText(), QString("L-Ctrl"));
        QCOMPARE(rig.row(3)->keyText(), QString("未设置功能"));
        QCOMPARE(rig.label("labelPress1"), QString("1.00 mm"));
        QCOMPARE(rig.label("labelRelease2"), QString("1.00 mm"));
        QCOMPARE(rig.text("pushButton_DKS"), QString("Q"));
        QCOMPARE(rig.text("pushButton_MT"), QString("Q"));
        rig.press("pushButton_OKDKS");
        QVERIFY(rig.wire().isEmpty());
        rig.tab(ModuleAdvancedKeys::DksTab);
        rig.click(kQ);
        rig.press("pushButton_OKDKS");
        QCOMPARE(rig.wire(),
                 (QStringList{"key @8 L0 00050000", "key @8 L1 00E00000", "key @8 L2 00000000",
                              "key @8 L3 00070000 last", "mag 07 @8 =2", "mag 04 @8 =200",
                              "mag 08 @8 =" + kDksWord + " commit"}));

        // The hold time is not read back: the slider stays where it is.
        rig.tab(ModuleAdvancedKeys::MtTab);
        rig.click(kD);
        QCOMPARE(rig.text("pushButton_MT1"), QString("C"));
        QCOMPARE(rig.text("pushButton_MT2"), QString("L-Shift"));
        rig.press("pushButton_OKMT");
        QCOMPARE(rig.wire(), (QStringList{"key @21 L0 00060000", "key @21 L1 00E10000 last",
                                          "mag 07 @21 =3", "mag 05 @21 =0 commit"}));

        rig.tab(ModuleAdvancedKeys::TglTab);
        QVERIFY(rig.widget<QRadioButton>("radioButton_TGL1")->isChecked());
        rig.click(kF5);
        QVERIFY(rig.widget<QRadioButton>("radioButton_TGL2")->isChecked());
        QCOMPARE(rig.text("pushButton_TGL1"), QString("A"));
        QCOMPARE(rig.text("pushButton_TGL"), QString("F5"));
        QVERIFY(rig.wire().isEmpty()); // loading the kind doesn't save it
        rig.press("pushButton_OKTGL");
        QCOMPARE(rig.wire(), (QStringList{"key @30 L0 00040000 last", "mag 07 @30 =5 commit"}));

        // A's partner is stored as S's position, 15, which is L's code: so it is named and
        // saved from here on (L is @57).
        rig.tab(ModuleAdvancedKeys::SnapTab);
        rig.click(kA);
        QCOMPARE(rig.text("pushButton_Snap1"), QString("A"));
        QCOMPARE(rig.text("pushButton_Snap2"), QString("L"));
        rig.press("pushButton_OKSnap");
        QCOMPARE(rig.wire(), (QStringList{"mag 07 @9 =7", "mag 07 @57 =7", "mag 09 @9 =57",
                                          "mag 09 @57 =9 commit"}));
    }
};

QTEST_MAIN(TestAdvancedKeys)
#include "tst_advkeys.moc"
