// The magnetic page's tests and the travel calibration over the virtual keyboard: the depth
// stream drawn on the ruler and the pictured key, the keys the page receives listed by name, and
// a calibration from the shell's button to every key orange and the stop on either button.

#include "CommandLayouts.h"
#include "LinearFixing1.h"
#include "LinearFixing2.h"
#include "MagicPageRig.h"
#include "ShellRig.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QScrollArea>
#include <QtTest>

namespace {

constexpr qint64 kStrokeMs = 1200; // the virtual key goes down and up once in this time
const QColor kBar(0x63, 0x29, 0xB6);

// The visible labels of a layout in the order they stand (rows, then columns).
QStringList labelsOf(const QLayout* layout)
{
    QStringList names;
    for (int i = 0; i < layout->count(); ++i)
        if (auto* label = qobject_cast<QLabel*>(layout->itemAt(i)->widget()))
            names << label->text();
    return names;
}

struct KeyDef
{
    int key;
    const char* text;
};
const QHash<QString, KeyDef>& keyDefs()
{
    static const QHash<QString, KeyDef> defs{
        {"a", {Qt::Key_A, "a"}},           {"b", {Qt::Key_B, "b"}},
        {"Shift", {Qt::Key_Shift, ""}},    {"Ctrl", {Qt::Key_Control, ""}},
        {"F5", {Qt::Key_F5, ""}},          {"Back", {Qt::Key_Backspace, "\b"}},
        {"Enter", {Qt::Key_Return, "\r"}}, {"Left", {Qt::Key_Left, ""}},
    };
    return defs;
}

bool isMarked(const KeyboardButton* key)
{
    return key->styleSheet().contains(QLatin1String("#FF9052"));
}

} // namespace

class TestMagneticTests : public QObject
{
    Q_OBJECT

    // The page's two pictures once the ruler has been painted.
    static QImage paintRuler(MagicRig& rig)
    {
        return rig.find<QLabel>("labelPress")->grab().toImage();
    }
    static QImage pressPicture(int frame)
    {
        return QImage(QStringLiteral(":/images/press/press%1.png").arg(frame, 2, 10, QChar(u'0')))
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    static QImage shownKey(MagicRig& rig)
    {
        return rig.find<QLabel>("labelKeymt")
            ->pixmap()
            .toImage()
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    // Runs the clock to the given moment of the virtual key's stroke (0 at rest, 600 at the
    // bottom), a little past it so that a sample of that moment has come in.
    static void toStroke(MagicRig& rig, qint64 phase)
    {
        const qint64 now = rig.clock.elapsedMs();
        qint64 target = now - now % kStrokeMs + phase + 10;
        if (target <= now) target += kStrokeMs;
        rig.clock.advance(target - now);
    }

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    // The travel test starts the stream; at the bottom of the stroke the bar reaches down and
    // the pictured key is at its last frame, at rest at its first. The stream goes on while
    // another page shows, and stops with the switch.
    void travelTest()
    {
        MagicRig rig;
        rig.click("pushButtonSet4");
        QVERIFY(!rig.page.keyboard()->isEnabled());
        rig.click("checkBoxKeytest0");
        QCOMPARE(framesOf(rig.fw(), 0x1B, 2), QList<QByteArray>{hex("1B 01")});
        QVERIFY(rig.fw().keyTestOn());

        toStroke(rig, 600);
        QImage ruler = paintRuler(rig);
        QCOMPARE(shownKey(rig), pressPicture(0));
        QCOMPARE(ruler.pixelColor(62, 150), kBar);
        toStroke(rig, 0);
        ruler = paintRuler(rig);
        QCOMPARE(shownKey(rig), pressPicture(9));
        QVERIFY(ruler.pixelColor(62, 150) != kBar);
        QVERIFY(ruler.pixelColor(62, 100) != kBar);

        rig.click("pushButtonSet0");
        QVERIFY(rig.fw().keyTestOn());
        rig.click("pushButtonSet4");
        rig.click("checkBoxKeytest0");
        QVERIFY(rig.settle());
        QCOMPARE(framesOf(rig.fw(), 0x1B, 2), (QList<QByteArray>{hex("1B 01"), hex("1B 00")}));
        QVERIFY(!rig.fw().keyTestOn());
    }

    // Key events that reach the page while the key test is on: "+k" a press, "-k" a release,
    // "+k*" an auto-repeat, "+k@N" with the native X11 code N, "edit+k" a press while a text
    // box has the focus, "toggle" the key test's switch.
    void keyTest_data()
    {
        QTest::addColumn<QStringList>("events");
        QTest::addColumn<QStringList>("held");
        QTest::addColumn<QStringList>("seen");
        QTest::newRow("a modifier held") << QStringList{"+a", "+Shift", "-a"}
                                         << QStringList{"L-Shift"} << QStringList{"A", "L-Shift"};
        QTest::newRow("twice with a release between")
            << QStringList{"+a", "-a", "+a", "-a"} << QStringList{} << QStringList{"A", "A"};
        QTest::newRow("auto-repeat adds nothing")
            << QStringList{"+a", "+a*", "+a*"} << QStringList{"A"} << QStringList{"A"};
        QTest::newRow("release never pressed")
            << QStringList{"-b"} << QStringList{} << QStringList{};
        QTest::newRow("texts that are no names")
            << QStringList{"+Back", "-Back", "+Enter"} << QStringList{"Enter"}
            << QStringList{"BackSpace", "Enter"};
        QTest::newRow("the switch clears the list, not the held")
            << QStringList{"+a", "+b", "-b", "toggle", "toggle", "-a"} << QStringList{}
            << QStringList{};
        QTest::newRow("switched off")
            << QStringList{"toggle", "+a"} << QStringList{} << QStringList{};
        QTest::newRow("a text box keeps its keys")
            << QStringList{"edit+a", "+b"} << QStringList{"B"} << QStringList{"B"};
#ifndef Q_OS_WIN
        // X11 key codes (evdev + 8) named as Windows names their keys: the native code wins
        // over Qt's key, which can't tell the right Ctrl from the left.
        QTest::newRow("X11 key codes")
            << QStringList{"+F5@71", "+Ctrl@105", "+Left@113"} << QStringList{"F5", "R-Ctrl", "←"}
            << QStringList{"F5", "R-Ctrl", "←"};
#endif
    }
    void keyTest()
    {
        QFETCH(QStringList, events);
        QFETCH(QStringList, held);
        QFETCH(QStringList, seen);
        MagicRig rig;
        rig.click("pushButtonSet4");
        rig.click("checkBoxKeytest1");
        QWidget* edit = rig.find<QLineEdit>("lineEditValue1", "frameLinear");
        for (const QString& step : events) {
            if (step == QLatin1String("toggle")) {
                rig.click("checkBoxKeytest1");
                continue;
            }
            const bool inEdit = step.startsWith(QLatin1String("edit"));
            const QString e = inEdit ? step.mid(4) : step;
            const bool repeat = e.endsWith(u'*');
            const QString name = e.mid(1).section(u'@', 0, 0).remove(u'*');
            const quint32 native = e.section(u'@', 1).toUInt();
            const KeyDef def = keyDefs().value(name);
            QKeyEvent event(e.startsWith(u'+') ? QEvent::KeyPress : QEvent::KeyRelease, def.key,
                            Qt::NoModifier, native, 0, 0, QString::fromLatin1(def.text), repeat);
            // Sent where the focus is: the page, once the key test is on, or a text box, which
            // keeps what it takes.
            QCoreApplication::sendEvent(inEdit ? edit : static_cast<QWidget*>(&rig.page), &event);
        }
        QCOMPARE(labelsOf(rig.find("scrollAreaWidgetContents0")->layout()), held);
        auto* grid = rig.find<QWidget>("scrollAreaWidgetContents1")->findChild<QGridLayout*>();
        QCOMPARE(labelsOf(grid), seen);
        for (int i = 0; i < grid->count(); ++i) {
            const QWidget* label = grid->itemAt(i)->widget();
            const int width = qobject_cast<const QLabel*>(label)->text().size() >= 4 ? 80 : 42;
            QCOMPARE(label->width(), width);
            int row = -1, column = -1, rows = 0, columns = 0;
            grid->getItemPosition(i, &row, &column, &rows, &columns);
            QCOMPARE(row * 10 + column, i); // ten to a row
        }
    }

    // From the shell's button: cancelling the guide sends nothing; starting it scans until every
    // key is orange, a key turning orange only once the keyboard has seen it at the bottom;
    // either button of the progress view stops the scan and closes both dialogs.
    void calibration_data()
    {
        QTest::addColumn<QString>("close");
        QTest::newRow("finish") << "pushButtonFinish";
        QTest::newRow("cancel") << "pushButtonCancel";
    }
    void calibration()
    {
        QFETCH(QString, close);
        ShellRig rig;
        rig.holder.show();
        NativeKeyboardModel& fw = rig.keyboard->model();
        fw.clearReceivedFrames();
        auto* fixline = rig.holder.findChild<QPushButton*>("pushButtonFixline");

        QTest::mouseClick(fixline, Qt::LeftButton);
        QPointer<LinearFixing1> guide = rig.holder.findChild<LinearFixing1*>();
        QVERIFY(guide && guide->isVisible());
        QTest::mouseClick(widget<QPushButton>(guide, "pushButtonCancel"), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!guide);
        rig.clock.advance(1000);
        QVERIFY(fw.receivedFrames().isEmpty());

        QTest::mouseClick(fixline, Qt::LeftButton);
        guide = rig.holder.findChild<LinearFixing1*>();
        QTest::mouseClick(widget<QPushButton>(guide, "pushButtonStart"), Qt::LeftButton);
        QPointer<LinearFixing2> progress = guide->progress();
        QVERIFY(progress && progress->isVisible());
        QCOMPARE(framesOf(fw, 0x1E, 2), QList<QByteArray>{hex("1E 01")});
        rig.clock.advance(10); // the keyboard locks itself
        QList<KeyboardButton*> keys;
        for (KeyboardButton* key : progress->keyboard()->buttons())
            if (!key->isHidden()) keys << key;
        QCOMPARE(keys.size(), 82); // the knob's halves are hidden

        int marked = 0;
        for (int second = 0; second < 60 && marked < keys.size(); ++second) {
            rig.clock.advance(1000);
            const QByteArray readings = fw.magnetTable(0xFE);
            marked = 0;
            for (KeyboardButton* key : keys) {
                const int p = PositionOfCode(key->code());
                const quint16 reading =
                    quint16(CommandLayouts::leAt(readings, std::size_t(2 * p), 2));
                if (isMarked(key)) {
                    ++marked;
                    QVERIFY2(reading > 699, qPrintable(key->objectName()));
                }
                QVERIFY(!key->isEnabled());
            }
            if (second == 4) QVERIFY(marked > 0 && marked < keys.size()); // part-way
        }
        QCOMPARE(marked, keys.size());

        QTest::mouseClick(widget<QPushButton>(progress, qPrintable(close)), Qt::LeftButton);
        QVERIFY(rig.settle());
        QCOMPARE(framesOf(fw, 0x1E, 2), (QList<QByteArray>{hex("1E 01"), hex("1E 00")}));
        QCOMPARE(quint8(fw.receivedFrames().last().at(0)), quint8(0x1E));
        QVERIFY(!fw.calibrating());
        QVERIFY(!rig.holder.connection()->IsCalibrating());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!guide && !progress);
        const int scans = framesOf(fw, 0xE5).size();
        rig.clock.advance(1000);
        QCOMPARE(framesOf(fw, 0xE5).size(), scans); // no more page reads
    }

    // The progress view's reading of one scan: above 699 marks, 699 doesn't, and a short scan
    // is read as far as it reaches.
    void calibrationThresholds()
    {
        SimRig rig;
        LinearFixing2 view(rig.conn.get(), &rig.clock, QRect(0, 0, 1100, 700));
        ModuleKeyboard* board = view.keyboard();
        const quint8 dot = 55, slash = 56, fn = 250; // positions 64, 70 and 65
        const quint8 a = 4, s = 22;
        QByteArray scan(131, '\0'); // 65 values and a stray byte
        auto put = [&](quint8 code, quint16 value) {
            const int p = PositionOfCode(code);
            if (2 * p + 1 < scan.size()) {
                scan[2 * p] = char(value & 0xFF);
                scan[2 * p + 1] = char(value >> 8);
            }
        };
        put(a, 699);
        put(s, 700);
        put(dot, 64000);
        scan[130] = char(0xFF); // half of the Fn key's value
        emit rig.conn->onCalibration(scan);
        QVERIFY(!isMarked(board->button(a)));
        QVERIFY(isMarked(board->button(s)));
        QVERIFY(isMarked(board->button(dot)));
        QVERIFY(!isMarked(board->button(fn)));
        QVERIFY(!isMarked(board->button(slash)));
        put(a, 700);
        emit rig.conn->onCalibration(scan);
        QVERIFY(isMarked(board->button(a)));
    }
};

QTEST_MAIN(TestMagneticTests)
#include "tst_magnetictests.moc"
