// The controls of the lighting and home pages on their own: the colour square, the swatches,
// the picker with its numbers and its screen pipette (on a scripted screen and virtual time),
// the side light's answer from the keyboard, and the double travel control.

#include "ColorLabel.h"
#include "ColorPipette.h"
#include "ColorSquare.h"
#include "DialogColorPicker.h"
#include "ManualClock.h"
#include "ModuleEfColor.h"
#include "ModuleLinear.h"
#include "TestSupport.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QtTest>
#include <memory>

namespace {

// A screen for the pipette: the pointer and the colour under it, set by the test.
struct ScriptedScreen
{
    QPoint pointer{100, 100};
    QColor colour = Qt::red;
    bool refuses = false;

    void attach(DialogColorPicker& picker)
    {
        picker.setScreenSource([this] { return pointer; },
                               [this](const QPoint&) {
                                   if (refuses) return QImage();
                                   QImage pixel(1, 1, QImage::Format_RGB32);
                                   pixel.fill(colour);
                                   return pixel;
                               });
    }
};

QRgb rgbOf(const QList<QVariant>& signal)
{
    return signal.at(0).value<QColor>().rgb();
}

} // namespace

class TestPageControls : public QObject
{
    Q_OBJECT

private slots:
    void colourSquare()
    {
        ColorSquare square;
        square.setFixedSize(300, 200);
        square.show();
        QVERIFY(QTest::qWaitForWindowExposed(&square));
        QSignalSpy picked(&square, &ColorSquare::colorSelected);

        // A drag out of the square stops at its edge: top right is full saturation and value.
        QTest::mousePress(&square, Qt::LeftButton, {}, QPoint(10, 10));
        QTest::mouseMove(&square, QPoint(500, -40));
        QCOMPARE(square.pointer(), QPointF(300, 0));
        QCOMPARE(rgbOf(picked.last()), qRgb(255, 0, 0));

        // A new hue keeps the pointer and reports the new hue's colour there.
        square.setHue(240 / 360.0);
        square.repaint();
        QCOMPARE(square.pointer(), QPointF(300, 0));
        QCOMPARE(rgbOf(picked.last()), qRgb(0, 0, 255));

        square.setColor(QColor(128, 128, 128)); // grey has no hue: 0
        QCOMPARE(square.hue(), 0.0);
        QCOMPARE(square.saturation(), 0.0);
        QCOMPARE(qRound(square.value() * 255), 128);
    }

    // One selected swatch per parent; a swatch that goes takes its selection with it.
    void swatches()
    {
        QWidget first, second;
        auto* a = new ColorLabel(&first);
        auto* b = new ColorLabel(&first);
        auto* other = new ColorLabel(&second);
        QTest::mouseClick(a, Qt::LeftButton);
        QTest::mouseClick(other, Qt::LeftButton);
        QTest::mouseClick(b, Qt::LeftButton);
        QVERIFY(b->isSelected() && !a->isSelected() && other->isSelected());
        QCOMPARE(ColorLabel::selectedOf(&first), b);
        delete b;
        QCOMPARE(ColorLabel::selectedOf(&first), nullptr);
        QTest::mouseClick(a, Qt::LeftButton);
        QCOMPARE(ColorLabel::selectedOf(&first), a);
    }

    // The numbers: a box changes its channel alone and the square stays; every colour is told
    // twice; what isn't a number reads as 0 and too much as the most.
    void pickerNumbers()
    {
        DialogColorPicker picker;
        picker.setColor(QColor(10, 20, 30));
        auto* square = widget<ColorSquare>(&picker, "colorSquare");
        const QPointF pointer = square->pointer();
        QSignalSpy told(&picker, &DialogColorPicker::onPickupColor);

        auto* green = widget<QLineEdit>(&picker, "lineEditG");
        green->selectAll();
        QTest::keyClicks(green, "200");
        QCOMPARE(rgbOf(told.last()), qRgb(10, 200, 30));
        QCOMPARE(told.size(), 6); // three keys, two reports each
        QCOMPARE(square->pointer(), pointer);
        QCOMPARE(widget<QLineEdit>(&picker, "lineEditHex")->text(), QStringLiteral("#0AC81E"));

        auto* red = widget<QLineEdit>(&picker, "lineEditR");
        red->selectAll();
        QTest::keyClicks(red, "x");
        QCOMPARE(rgbOf(told.last()), qRgb(0, 200, 30));
        red->selectAll();
        QTest::keyClicks(red, "999");
        QCOMPARE(rgbOf(told.last()), qRgb(255, 200, 30));

        // The hue bar turns the square; the colour under the pointer is reported.
        picker.show();
        QVERIFY(QTest::qWaitForWindowExposed(&picker));
        widget<QSlider>(&picker, "horizontalSlider")->setValue(120);
        square->repaint();
        QCOMPARE(told.last().at(0).value<QColor>().hsvHue(), 120);
        QCOMPARE(widget<QLineEdit>(&picker, "lineEditG")->text().toInt(),
                 told.last().at(0).value<QColor>().green());
    }

    // The pipette follows the pointer while the left button is held on it and takes the
    // colour under it; a right click chooses nothing; a screen that can't be read leaves the
    // picker working without it.
    void pipette()
    {
        ManualClock clock;
        DialogColorPicker picker(nullptr, &clock);
        ScriptedScreen screen;
        screen.attach(picker);
        picker.showAt(-1, -1);
        QCOMPARE(picker.pos(), QPoint(100 - picker.width() / 2, 100));
        QVERIFY(picker.pipetteAvailable());
        auto* pick = widget<QLabel>(&picker, "labelPick");

        QTest::mousePress(pick, Qt::LeftButton);
        QVERIFY(picker.pipette()->isVisible());
        clock.advance(DialogColorPicker::kPipetteTickMs);
        QCOMPARE(picker.color().rgb(), qRgb(255, 0, 0));
        screen.pointer = QPoint(400, 300);
        screen.colour = QColor(1, 2, 3);
        clock.advance(DialogColorPicker::kPipetteTickMs);
        QCOMPARE(picker.color().rgb(), qRgb(1, 2, 3));
        QCOMPARE(widget<QLineEdit>(&picker, "lineEditB")->text(), QStringLiteral("3"));
        QCOMPARE(picker.pipette()->pos(), QPoint(400 - 32, 300 - 32));
        QTest::mouseRelease(pick, Qt::LeftButton);
        QVERIFY(!picker.pipette()->isVisible());

        QTest::mousePress(pick, Qt::LeftButton);
        screen.colour = QColor(9, 9, 9);
        screen.pointer = QPoint(10, 10);
        QTest::mousePress(pick, Qt::RightButton);
        QTest::mouseRelease(pick, Qt::RightButton);
        QVERIFY(!picker.pipette()->isVisible());
        clock.advance(5 * DialogColorPicker::kPipetteTickMs);
        QCOMPARE(picker.color().rgb(), qRgb(1, 2, 3));

        widget<QAbstractButton>(&picker, "pushButton")->click();
        QVERIFY(!picker.isVisible());

        screen.refuses = true;
        picker.show();
        QVERIFY(!picker.pipetteAvailable());
        QCOMPARE(pick->toolTip(), QStringLiteral("此桌面不允许程序读取屏幕，屏幕取色不可用"));
        QTest::mousePress(pick, Qt::LeftButton);
        QVERIFY(!picker.pipette()->isVisible());
        auto* square = widget<ColorSquare>(&picker, "colorSquare");
        QTest::mouseClick(square, Qt::LeftButton, {}, QPoint(290, 20));
        QCOMPARE(picker.color().rgb(), square->currentColor().rgb()); // the square still picks
    }

    // The keyboard's side light answer, short or with places past a group, changes what it
    // can and sends nothing.
    void sideLightAnswer_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QByteArray>("block");
        QTest::newRow("whole") << hex("88 05 04 03 08 0A 0B 0C")
                               << hex("00 05 04 03 08 0A 0B 0C 00 00");
        QTest::newRow("past the groups")
            << hex("88 09 C8 03 07 01 02 03") << hex("00 00 00 03 07 01 02 03 00 00");
        QTest::newRow("cut short") << hex("88 02") << hex("00 02 00 00 07 00 00 00 00 00");
    }
    void sideLightAnswer()
    {
        QFETCH(QByteArray, reply);
        QFETCH(QByteArray, block);
        ModuleEfColor colours;
        QSignalSpy sent(&colours, &ModuleEfColor::onSetSideLed);
        colours.setSideLed(reply);
        QCOMPARE(sent.size(), 0);
        QCOMPARE(colours.sideBlock(), block);
    }

    // The double travel control's own rules: the left pane counts down from its top, the
    // right pane's box is silent after the first move (deliberately), a release on a disabled
    // slider does nothing.
    void doubleTravel()
    {
        ModuleLinear linear;
        linear.resize(300, 280);
        linear.show();
        QSignalSpy values(&linear, &ModuleLinear::onSetValue);
        auto* left = widget<QSlider>(&linear, "verticalSlider1");
        auto* right = widget<QSlider>(&linear, "verticalSlider2");
        QCOMPARE(linear.paneValue(true), 0.3f);
        QCOMPARE(linear.paneValue(false), 0.4f);

        auto* leftBox = widget<QLineEdit>(&linear, "lineEditValue1");
        leftBox->selectAll();
        QTest::keyClicks(leftBox, "5 mm");
        QCOMPARE(left->value(), 0); // 5 mm is past the 4 mm cap
        QCOMPARE(values.size(), 0);

        auto* rightBox = widget<QLineEdit>(&linear, "lineEditValue2");
        rightBox->selectAll();
        QTest::keyClicks(rightBox, "1.5");
        QCOMPARE(right->value(), 400);

        QTest::mouseClick(widget<QAbstractButton>(&linear, "pushButtonP2"), Qt::LeftButton);
        QCOMPARE(right->value(), 405);
        QCOMPARE(values.last(), (QList<QVariant>{0.405f, 1}));

        linear.setPaneEnabled(false, false);
        QTest::mouseRelease(right, Qt::LeftButton, {}, QPoint(right->width() / 2, 0));
        QCOMPARE(right->value(), 405);

        linear.setPaneTitles("A", "B");
        QCOMPARE(widget<QLabel>(&linear, "labelTitleS1")->text(), QStringLiteral("A(mm)"));
    }
};

QTEST_MAIN(TestPageControls)
#include "tst_pagecontrols.moc"
