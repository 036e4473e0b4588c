// The shared controls: the wheel's turning rules, the tab bar's slide, hover and painting, the
// switch, the picture label's states and tooltip, and the slider's jump-to-pointer mapping.

#include "CustomTabBar.h"
#include "CustomTooltip.h"
#include "CustumSlider.h"
#include "ModuleScrollValue.h"
#include "NewTabWidget.h"
#include "SuperLabel.h"
#include "ToggleButton.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPropertyAnimation>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

namespace {

const char* const slotNames[] = {"labelValue1", "labelTitleL2", "labelTitle1", "labelTitleL1",
                                 "labelValue5"};

QStringList slotTexts(const ModuleScrollValue& wheel)
{
    QStringList texts;
    for (const char* name : slotNames)
        texts << wheel.findChild<QLabel*>(QLatin1String(name))->text();
    return texts;
}

void turn(ModuleScrollValue& wheel, int delta)
{
    QWheelEvent event(QPointF(10, 10), QPointF(10, 10), QPoint(), QPoint(0, delta), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&wheel, &event);
}

void sendMouse(QWidget* target, QEvent::Type type, const QPoint& pos,
               Qt::MouseButton button = Qt::LeftButton)
{
    QMouseEvent event(type, QPointF(pos), target->mapToGlobal(QPointF(pos)), button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button),
                      Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

// The colour of a widget's own painting at a point.
QString pixelAt(QWidget& widget, int x, int y)
{
    const QImage image = widget.grab().toImage();
    return image.pixelColor(QPoint(x, y) * image.devicePixelRatio()).name();
}

QPropertyAnimation* animationOf(const CustomTabBar& bar, const char* property)
{
    const QList<QPropertyAnimation*> animations = bar.findChildren<QPropertyAnimation*>();
    for (QPropertyAnimation* animation : animations) {
        if (animation->propertyName() == property) return animation;
    }
    return nullptr;
}

} // namespace

class TestWidgets : public QObject
{
    Q_OBJECT

private slots:
    // ---- ModuleScrollValue

    void scrollValueSlots_data()
    {
        QTest::addColumn<QStringList>("values");
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("shown");
        QTest::addColumn<int>("signalled"); // by setValues

        const QStringList five{"a", "b", "c", "d", "e"};
        const QStringList seven{"1", "2", "3", "4", "5", "6", "7"};
        QTest::newRow("five, index 0") << five << 0 << QStringList{"d", "e", "a", "b", "c"} << 2;
        QTest::newRow("seven, index 6") << seven << 6 << QStringList{"5", "6", "7", "1", "2"} << 2;
        QTest::newRow("two alternate")
            << QStringList{"x", "y"} << 1 << QStringList{"y", "x", "y", "x", "y"} << 0;
        QTest::newRow("one everywhere") << QStringList{"only"} << 0 << QStringList(5, "only") << 0;
    }
    void scrollValueSlots()
    {
        QFETCH(QStringList, values);
        QFETCH(int, index);
        QFETCH(QStringList, shown);
        QFETCH(int, signalled);

        ModuleScrollValue wheel;
        QSignalSpy changed(&wheel, &ModuleScrollValue::onIndexChanged);
        wheel.setValues(values);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.takeFirst().at(0).toInt(), signalled);
        // setValues puts the first entry at the top, two above the centre.
        QCOMPARE(slotTexts(wheel).constFirst(), values.constFirst());

        wheel.setIndex(index);
        QCOMPARE(slotTexts(wheel), shown);
        QCOMPARE(wheel.currentIndex(), index);
        QCOMPARE(changed.size(), 0);
    }
    void scrollValueWheel()
    {
        ModuleScrollValue wheel;
        wheel.setValues({"a", "b", "c", "d"});
        wheel.setIndex(0);
        QSignalSpy changed(&wheel, &ModuleScrollValue::onIndexChanged);

        turn(wheel, 120); // away from the user: back one
        QCOMPARE(wheel.currentIndex(), 3);
        turn(wheel, -120);
        turn(wheel, -120);
        QCOMPARE(wheel.currentIndex(), 1);
        QCOMPARE(slotTexts(wheel), (QStringList{"d", "a", "b", "c", "d"}));
        QCOMPARE(changed.size(), 3);
        QCOMPARE(changed.at(0).at(0).toInt(), 3);
        QCOMPARE(changed.at(2).at(0).toInt(), 1);

        // Far back past zero still names entries of the list.
        for (int i = 0; i < 41; ++i)
            turn(wheel, 120);
        QCOMPARE(wheel.currentIndex(), 0);
    }
    void scrollValueRelease_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<int>("index"); // after a release, starting from index 3 of 7
        QTest::addColumn<bool>("signalled");
        QTest::newRow("top") << "labelValue1" << 1 << true;
        QTest::newRow("above centre") << "labelTitleL2" << 2 << true;
        QTest::newRow("centre") << "labelTitle1" << 3 << false;
        QTest::newRow("below centre") << "labelTitleL1" << 4 << true;
        QTest::newRow("bottom") << "labelValue5" << 5 << true;
    }
    void scrollValueRelease()
    {
        QFETCH(QString, label);
        QFETCH(int, index);
        QFETCH(bool, signalled);

        ModuleScrollValue wheel;
        wheel.setValues({"0", "1", "2", "3", "4", "5", "6"});
        wheel.setIndex(3);
        QSignalSpy changed(&wheel, &ModuleScrollValue::onIndexChanged);
        sendMouse(wheel.findChild<QLabel*>(label), QEvent::MouseButtonRelease, {2, 2});
        QCOMPARE(wheel.currentIndex(), index);
        QCOMPARE(slotTexts(wheel).at(2), QString::number(index));
        QCOMPARE(changed.size(), signalled ? 1 : 0);
        if (signalled) QCOMPARE(changed.at(0).at(0).toInt(), index);
    }
    void scrollValueEmptyList()
    {
        ModuleScrollValue wheel;
        QSignalSpy changed(&wheel, &ModuleScrollValue::onIndexChanged);
        wheel.setValues({});
        turn(wheel, 120);
        sendMouse(wheel.findChild<QLabel*>("labelValue1"), QEvent::MouseButtonRelease, {2, 2});
        wheel.setIndex(4);
        QCOMPARE(changed.size(), 0);
        QCOMPARE(wheel.currentIndex(), -1);
        QCOMPARE(slotTexts(wheel), QStringList(5, QString()));
    }

    // ---- CustomTabBar

    void tabBarSlidesToCurrent()
    {
        NewTabWidget tabs;
        tabs.setStyleSheet("QTabBar::tab { width: 120px; height: 40px; }");
        for (const char* title : {"one", "two", "three"})
            tabs.addTab(new QWidget, title);
        tabs.resize(480, 200);
        tabs.show();
        CustomTabBar* bar = tabs.customTabBar();
        QVERIFY(bar);
        QPropertyAnimation* xSlide = animationOf(*bar, "currentX");
        QPropertyAnimation* widthSlide = animationOf(*bar, "currentWidth");
        QVERIFY(xSlide && widthSlide);
        QCOMPARE(xSlide->duration(), 300);
        QCOMPARE(xSlide->easingCurve().type(), QEasingCurve::OutQuart);
        QTRY_COMPARE(xSlide->state(), QAbstractAnimation::Stopped);

        const QRect third = bar->tabRect(2);
        bar->setCurrentWidth(7);
        QTest::mouseClick(bar, Qt::LeftButton, {}, third.center());
        QCOMPARE(tabs.currentIndex(), 2);
        QCOMPARE(xSlide->state(), QAbstractAnimation::Running);
        QCOMPARE(widthSlide->state(), QAbstractAnimation::Running);
        QCOMPARE(widthSlide->startValue().toInt(), 7);
        QCOMPARE(xSlide->endValue().toInt(), third.x());
        QCOMPARE(widthSlide->endValue().toInt(), third.width());
        QTRY_COMPARE(bar->getCurrentX(), third.x());
        QTRY_COMPARE(bar->getCurrentWidth(), third.width());
        QTRY_COMPARE(xSlide->state(), QAbstractAnimation::Stopped);

        // A click on the tab that is already current starts nothing.
        QTest::mouseClick(bar, Qt::LeftButton, {}, third.center());
        QCOMPARE(xSlide->state(), QAbstractAnimation::Stopped);
        QCOMPARE(widthSlide->state(), QAbstractAnimation::Stopped);
    }
    void tabBarHoverAndPainting()
    {
        CustomTabBar bar;
        bar.setStyleSheet("QTabBar::tab { width: 120px; height: 40px; }");
        bar.addTab("one");
        bar.addTab("two");
        bar.addTab("three");
        bar.setCurrentIndex(1);
        bar.resize(360, 40);
        bar.show();
        QCOMPARE(bar.hoveredTab(), -1);
        sendMouse(&bar, QEvent::MouseMove, bar.tabRect(0).center(), Qt::NoButton);
        QCOMPARE(bar.hoveredTab(), 0);
        sendMouse(&bar, QEvent::MouseMove, bar.tabRect(2).center(), Qt::NoButton);
        QCOMPARE(bar.hoveredTab(), 2);

        const QRect normal = bar.tabRect(0);
        const QRect selected = bar.tabRect(1);
        const QRect hovered = bar.tabRect(2);
        QCOMPARE(pixelAt(bar, normal.left() + 3, normal.top() + 3), QString("#f0f0f0"));
        QCOMPARE(pixelAt(bar, selected.left() + 3, selected.top() + 3), QString("#ffffff"));
        QCOMPARE(pixelAt(bar, hovered.left() + 3, hovered.top() + 3), QString("#dcdcdc"));
        // The selected tab's underline, inset 20, 6 above the bottom.
        const int underlineY = selected.bottom() + 1 - 6 + 1;
        QCOMPARE(pixelAt(bar, selected.center().x(), underlineY), QString("#6329b6"));
        QCOMPARE(pixelAt(bar, selected.left() + 10, underlineY), QString("#ffffff"));
        QCOMPARE(pixelAt(bar, normal.center().x(), underlineY), QString("#f0f0f0"));

        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&bar, &leave);
        QCOMPARE(bar.hoveredTab(), -1);
        QCOMPARE(pixelAt(bar, hovered.left() + 3, hovered.top() + 3), QString("#f0f0f0"));
    }

    // ---- ToggleButton

    // A click flips an enabled switch (a disabled one stays), and it paints the state it ends
    // in: the knob 18 across at one end of the pill (x 3 to 49), the pill's colour elsewhere.
    void toggleButton_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("checkedBefore");
        QTest::addColumn<bool>("checkedAfter");
        QTest::addColumn<QString>("pill");
        QTest::addColumn<QString>("knob");
        QTest::newRow("off to on") << true << false << true << "#6329b6"
                                   << "#ffffff";
        QTest::newRow("on to off") << true << true << false << QColor(Qt::gray).name() << "#e0e0e0";
        QTest::newRow("disabled stays")
            << false << true << true << QColor(Qt::lightGray).name() << "#ffffff";
    }
    void toggleButton()
    {
        QFETCH(bool, enabled);
        QFETCH(bool, checkedBefore);
        QFETCH(bool, checkedAfter);
        QFETCH(QString, pill);
        QFETCH(QString, knob);

        ToggleButton toggle;
        toggle.setChecked(checkedBefore);
        toggle.setEnabled(enabled);
        toggle.show();
        QVERIFY(toggle.width() >= 52 && toggle.height() >= 24);
        toggle.resize(52, 24);
        QSignalSpy toggled(&toggle, &QAbstractButton::toggled);
        QSignalSpy clicked(&toggle, &QAbstractButton::clicked);
        QTest::mouseClick(&toggle, Qt::LeftButton, {}, {45, 12});
        QCOMPARE(toggle.isChecked(), checkedAfter);
        QCOMPARE(toggled.size(), checkedAfter != checkedBefore ? 1 : 0);
        QCOMPARE(clicked.size(), enabled ? 1 : 0);
        QVERIFY(!toggle.isDown());

        const int knobCentre = checkedAfter ? 49 - 9 : 3 + 9;
        const int otherSide = checkedAfter ? 3 + 9 : 49 - 9;
        QCOMPARE(pixelAt(toggle, knobCentre, 12), knob);
        QCOMPARE(pixelAt(toggle, otherSide, 12), pill);
        QCOMPARE(pixelAt(toggle, 26, 2), pill);
    }

    // ---- SuperLabel and CustomTooltip

    void superLabelStates()
    {
        QWidget parent;
        QWidget otherParent;
        const QString on = "QLabel { background-color: #6329B6; border-radius: 16px;}";
        const QString off = "QLabel { background-color: transparent; }";
        auto make = [&](QWidget* p) {
            auto* label = new SuperLabel(p);
            label->setStyles(on, off);
            return label;
        };
        SuperLabel* a = make(&parent);
        SuperLabel* b = make(&parent);
        SuperLabel* elsewhere = make(&otherParent);

        a->setSelected(true);
        elsewhere->setSelected(true);
        QVERIFY(a->isSelected());
        QCOMPARE(a->styleSheet(), on);

        b->setSelected(true);
        QVERIFY(b->isSelected());
        QVERIFY(!a->isSelected());
        QCOMPARE(a->styleSheet(), off);
        QVERIFY(elsewhere->isSelected()); // another parent, another choice

        b->setSelected(true); // twice: stays selected
        QVERIFY(b->isSelected());
        QCOMPARE(b->styleSheet(), on);

        // A selected label that goes away leaves no dangling choice behind.
        delete b;
        a->setSelected(true);
        QVERIFY(a->isSelected());

        // Pictures: the off one at once, then each state's own.
        QPixmap red(4, 4);
        red.fill(Qt::red);
        QPixmap blue(6, 6);
        blue.fill(Qt::blue);
        const QString dir = QDir::tempPath();
        const QString onPath = dir + "/tst_widgets_on.png";
        const QString offPath = dir + "/tst_widgets_off.png";
        QVERIFY(red.save(onPath) && blue.save(offPath));
        SuperLabel pictured;
        pictured.setPictures(onPath, offPath);
        QCOMPARE(pictured.pixmap().size(), QSize(6, 6));
        pictured.setSelected(true);
        QCOMPARE(pictured.pixmap().size(), QSize(4, 4));
        pictured.setSelected(false);
        QCOMPARE(pictured.pixmap().size(), QSize(6, 6));
        QFile::remove(onPath);
        QFile::remove(offPath);
    }
    // setTip replaces the label's text and native tip with its own tooltip; without it the
    // tooltip is built a moment later from the native tip. It shows 100 ms after the pointer
    // comes, beside the label, not when the pointer leaves first, and a press hides it.
    void superLabelTip()
    {
        QWidget window;
        window.resize(200, 100);
        auto* label = new SuperLabel(&window);
        label->setGeometry(10, 10, 40, 40);
        label->setText("text");
        label->setToolTip("native tip");
        label->setTip("清除设置");
        window.show();
        QVERIFY(label->text().isEmpty());
        QVERIFY(label->toolTip().isEmpty());
        QVERIFY(label->tooltip());
        QCOMPARE(label->tooltip()->text(), QString("清除设置"));

        SuperLabel formLabel;
        formLabel.setToolTip("from the form");
        QVERIFY(!formLabel.tooltip());
        QTRY_VERIFY(formLabel.tooltip());
        QCOMPARE(formLabel.tooltip()->text(), QString("from the form"));
        QCOMPARE(formLabel.toolTipDuration(), 2000000);
        // The shot that builds it later does not undo setTip.
        QTRY_COMPARE(label->toolTipDuration(), 2000000);
        QCOMPARE(label->tooltip()->text(), QString("清除设置"));

        QEvent enter(QEvent::Enter);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(label, &enter);
        QVERIFY(label->isTipPending());
        QCoreApplication::sendEvent(label, &leave); // before the 100 ms
        QVERIFY(!label->isTipPending());
        QVERIFY(!label->tooltip()->isVisible());

        QCoreApplication::sendEvent(label, &enter);
        QTRY_VERIFY(label->tooltip()->isVisible());
        CustomTooltip* tip = label->tooltip();
        const QPoint expected =
            label->mapToGlobal(QPoint(label->width() + 5, (label->height() - tip->height()) / 2));
        QCOMPARE(tip->pos(), expected);

        sendMouse(label, QEvent::MouseButtonPress, {5, 5});
        QVERIFY(!tip->isVisible());
    }
    void customTooltip()
    {
        CustomTooltip tip;
        tip.setText("禁用按键");
        QVERIFY(tip.windowFlags().testFlag(Qt::Tool));
        QVERIFY(tip.windowFlags().testFlag(Qt::FramelessWindowHint));
        tip.show();
        QSignalSpy clicked(&tip, &CustomTooltip::onClicked);

        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&tip, &leave);
        QVERIFY(tip.isHidePending());
        QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QCoreApplication::sendEvent(&tip, &enter);
        QVERIFY(!tip.isHidePending());

        QCoreApplication::sendEvent(&tip, &leave);
        sendMouse(&tip, QEvent::MouseButtonPress, {3, 3});
        QCOMPARE(clicked.size(), 1);
        QVERIFY(!tip.isVisible());
        QVERIFY(!tip.isHidePending());
    }

    // ---- CustumSlider

    void sliderMapping_data()
    {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<QPoint>("point");
        QTest::addColumn<int>("value");
        const int h = Qt::Horizontal;
        const int v = Qt::Vertical;
        // The widget is 200 by 100.
        QTest::newRow("left edge") << h << 0 << 100 << QPoint(0, 50) << 0;
        QTest::newRow("quarter") << h << 0 << 100 << QPoint(50, 50) << 25;
        QTest::newRow("truncates") << h << 0 << 10 << QPoint(39, 50) << 1;
        QTest::newRow("offset range") << h << 100 << 4000 << QPoint(100, 0) << 2050;
        QTest::newRow("past the right clamps") << h << 0 << 100 << QPoint(260, 50) << 100;
        QTest::newRow("bottom is minimum") << v << 0 << 100 << QPoint(10, 100) << 0;
        QTest::newRow("top is maximum") << v << 0 << 100 << QPoint(10, 0) << 100;
        QTest::newRow("vertical thousandths") << v << 100 << 3300 << QPoint(0, 75) << 900;
        QTest::newRow("above the top clamps") << v << 0 << 100 << QPoint(10, -30) << 100;
    }
    void sliderMapping()
    {
        QFETCH(int, orientation);
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(QPoint, point);
        QFETCH(int, value);

        CustumSlider slider{Qt::Orientation(orientation)};
        slider.setRange(minimum, maximum);
        slider.resize(200, 100);
        sendMouse(&slider, QEvent::MouseButtonPress, point);
        QCOMPARE(slider.value(), value);
    }
    void sliderDrag()
    {
        CustumSlider slider(Qt::Horizontal);
        slider.setRange(0, 1000);
        slider.resize(100, 20);
        QSignalSpy changed(&slider, &QSlider::valueChanged);

        sendMouse(&slider, QEvent::MouseButtonPress, {10, 5});
        QCOMPARE(slider.value(), 100);
        sendMouse(&slider, QEvent::MouseMove, {35, 9});
        QCOMPARE(slider.value(), 350);
        sendMouse(&slider, QEvent::MouseButtonRelease, {35, 9});
        sendMouse(&slider, QEvent::MouseMove, {80, 9}, Qt::NoButton);
        QCOMPARE(slider.value(), 350); // the drag ended with the release
        QCOMPARE(changed.size(), 2);
    }
};

QTEST_MAIN(TestWidgets)
#include "tst_widgets.moc"
