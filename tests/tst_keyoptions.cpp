// The key page's options panel over the virtual keyboard: the wheels write at once, the line
// edits write what their text says (slider or not), the panel shows the cache as the page
// refreshes, and nothing goes out from the line edits while the page counts as refreshing.

#include "CommandCatalogue.h"
#include "KeyPageRig.h"
#include "ModuleScrollValue.h"

#include <QLineEdit>
#include <QSlider>
#include <QWheelEvent>
#include <QtTest>

namespace {

using namespace CommandCatalogue;

// One notch of the wheel: up (towards the previous value) or down.
void turn(QWidget* target, bool up)
{
    const QPointF at(target->width() / 2.0, target->height() / 2.0);
    QWheelEvent wheel(at, target->mapToGlobal(at), QPoint(), QPoint(0, up ? 120 : -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target, &wheel);
}

struct OptionsRig : KeyPageRig
{
    OptionsRig()
    {
        mode(FrameKeySetting::Options);
        settle();
        keyboard->model().clearReceivedFrames();
    }
    QLineEdit* edit(const char* name) const { return widget<QLineEdit>(name); }
    // What a control shows: a wheel its centre, a slider its value, a line edit its text.
    QString shown(const QString& name) const
    {
        QWidget* control = widget(qPrintable(name));
        if (auto* wheel = qobject_cast<ModuleScrollValue*>(control))
            return wheel->findChild<QLabel*>("labelTitle1")->text();
        if (auto* slider = qobject_cast<QSlider*>(control)) return QString::number(slider->value());
        return qobject_cast<QLineEdit*>(control)->text();
    }
    // The sleep times as the firmware keeps them, in seconds.
    QList<int> sleep() const
    {
        QList<int> out;
        for (int slot = 0; slot < 4; ++slot)
            out << fw().sleepTime(slot);
        return out;
    }
};

} // namespace

class TestKeyOptions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    // Each control writes at once, one command per step: a wheel's notch, a line edit's text
    // (whatever its slider can hold), the wheel over the text past the slider, a slider's
    // every value as it is dragged.
    void controlsWrite_data()
    {
        // Steps: "wheel NAME up|down", "text NAME TEXT", "drag NAME" (a step right); then what
        // one control shows ("NAME TEXT") and what the keyboard holds.
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("rate");
        QTest::addColumn<QList<int>>("sleep");    // seconds, slots 0 to 3
        QTest::addColumn<QList<int>>("debounce"); // each value written, in order

        // The keyboard starts at 1000 Hz and 300 s on the backlight slots (shown on "45 min",
        // index 5, not "5 min"), 1800 s of deep sleep, a debounce of 2.
        const QList<int> sleep{300, 300, 1800, 1800};
        QTest::newRow("rate down a step") << QStringList{"wheel frameSV1 down"} << "frameSV1 500 hz"
                                          << 4 << sleep << QList<int>{};
        QTest::newRow("rate up a step")
            << QStringList{"wheel frameSV1 up"} << "frameSV1 2000 hz" << 2 << sleep << QList<int>{};
        QTest::newRow("2.4G backlight: index 6 is 60 min")
            << QStringList{"wheel frameSV2 down"} << "frameSV2 60 min" << 3
            << QList<int>{300, 3600, 1800, 1800} << QList<int>{};
        QTest::newRow("Bluetooth backlight: index 4 is 30 min")
            << QStringList{"wheel frameSV3 up"} << "frameSV3 30 min" << 3
            << QList<int>{1800, 300, 1800, 1800} << QList<int>{};
        QTest::newRow("1085 typed: slider at its end, 1085 written")
            << QStringList{"text lineEditV1 1085"} << "horizontalSlider24Deep 1080" << 3
            << QList<int>{300, 300, 1800, 1085 * 60} << QList<int>{};
        QTest::newRow("Bluetooth deep sleep, a unit after the number")
            << QStringList{"text lineEditV2 15 min"} << "horizontalSliderBTDeep 15" << 3
            << QList<int>{300, 300, 900, 1800} << QList<int>{};
        QTest::newRow("debounce") << QStringList{"text lineEditV3 7"}
                                  << "horizontalSliderDebounce 7" << 3 << sleep << QList<int>{7};
        QTest::newRow("the wheel over the text is not held by the slider")
            << QStringList{"text lineEditV3 10", "wheel lineEditV3 up"}
            << "horizontalSliderDebounce 10" << 3 << sleep << QList<int>{10, 11};
        QTest::newRow("the wheel down over deep sleep")
            << QStringList{"text lineEditV1 100", "wheel lineEditV1 down"}
            << "horizontalSlider24Deep 99" << 3 << QList<int>{300, 300, 1800, 99 * 60}
            << QList<int>{};
        QTest::newRow("a drag writes every value")
            << QStringList(3, "drag horizontalSliderDebounce") << "lineEditV3 5" << 3 << sleep
            << QList<int>{3, 4, 5};
    }
    void controlsWrite()
    {
        QFETCH(QStringList, steps);
        QFETCH(QString, shown);
        QFETCH(int, rate);
        QFETCH(QList<int>, sleep);
        QFETCH(QList<int>, debounce);

        OptionsRig rig;
        for (const QString& step : steps) {
            QWidget* control = rig.widget(qPrintable(step.section(u' ', 1, 1)));
            const QString arg = step.section(u' ', 2);
            if (step.startsWith(QLatin1String("wheel ")))
                turn(control, arg == QLatin1String("up"));
            else if (step.startsWith(QLatin1String("text ")))
                qobject_cast<QLineEdit*>(control)->setText(arg);
            else
                QTest::keyClick(control, Qt::Key_Right);
        }
        rig.settle();
        QCOMPARE(rig.shown(shown.section(u' ', 0, 0)), shown.section(u' ', 1));
        QCOMPARE(int(rig.fw().reportRate()), rate);
        QCOMPARE(rig.sleep(), sleep);
        QList<int> debounced;
        for (const QByteArray& f : rig.frames(CMD_SET_DEBOUNCE))
            debounced << quint8(f[1]);
        QCOMPARE(debounced, debounce);
        QCOMPARE(int(rig.fw().debounce()), debounce.isEmpty() ? 2 : debounce.last());
        QCOMPARE(rig.frameCount(), steps.size());
    }

    void panelShowsTheCache_data()
    {
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("backlightMinutes"); // written to slot 1
        QTest::addColumn<int>("deepMinutes");      // written to slot 3
        QTest::addColumn<int>("debounce");
        QTest::addColumn<QString>("rateShown");
        QTest::addColumn<QString>("backlightShown");

        QTest::newRow("8000 Hz, 30 min stands on index 30, which wraps to 10 min")
            << 0 << 30 << 1085 << 4 << "8000 hz"
            << "10 min";
        QTest::newRow("125 Hz, 5 min stands on 45 min") << 6 << 5 << 0 << 0 << "125 hz"
                                                        << "45 min";
    }
    void panelShowsTheCache()
    {
        QFETCH(int, rate);
        QFETCH(int, backlightMinutes);
        QFETCH(int, deepMinutes);
        QFETCH(int, debounce);
        QFETCH(QString, rateShown);
        QFETCH(QString, backlightShown);

        OptionsRig rig;
        rig.link->DoSetReportRate(quint8(rate));
        rig.link->DoSetSleepTime(backlightMinutes, 1);
        rig.link->DoSetSleepTime(deepMinutes, 3);
        rig.link->DoSetDebounce(quint8(debounce));
        rig.settle();
        rig.keyboard->model().clearReceivedFrames();
        // The keyboard read again; its end redraws the page.
        rig.mode(FrameKeySetting::Custom);
        rig.link->DoReadAll();
        QVERIFY(rig.settle());
        QCOMPARE(rig.shown("frameSV1"), rateShown);
        QCOMPARE(rig.shown("frameSV2"), backlightShown);
        QCOMPARE(rig.shown("lineEditV1"), QString::number(deepMinutes));
        QCOMPARE(rig.shown("horizontalSlider24Deep"), QString::number(std::min(deepMinutes, 1080)));
        QCOMPARE(rig.shown("lineEditV3"), QString::number(debounce));
        // Showing it wrote nothing back.
        QVERIFY(rig.frames(CMD_SET_SLEEPTIME).isEmpty());
        QVERIFY(rig.frames(CMD_SET_DEBOUNCE).isEmpty());
        QVERIFY(rig.frames(CMD_SET_REPORT).isEmpty());
    }

    void lineEditsWaitOutTheRefresh_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("hold");
        QTest::newRow("custom layer") << int(FrameKeySetting::Custom) << 500;
        QTest::newRow("Fn layer") << int(FrameKeySetting::FnLayer) << 800;
    }
    void lineEditsWaitOutTheRefresh()
    {
        QFETCH(int, mode);
        QFETCH(int, hold);
        OptionsRig rig;
        QLineEdit* field = rig.edit("lineEditV1");
        rig.mode(mode); // entering a mode refreshes it
        QVERIFY(rig.page->isRefreshing());
        field->setText("200");
        rig.clock.advance(hold - 1);
        field->setText("300");
        QVERIFY(rig.link->isIdle());
        QCOMPARE(rig.link->GetSleepTimes()[3], quint16(1800));
        // The wheels don't wait.
        turn(rig.widget<ModuleScrollValue>("frameSV1"), false);
        QCOMPARE(rig.link->GetReportRate(), quint8(4));
        QVERIFY(!rig.link->isIdle());

        rig.clock.advance(1);
        QVERIFY(!rig.page->isRefreshing());
        field->setText("400");
        rig.settle();
        QCOMPARE(rig.frames(CMD_SET_SLEEPTIME).size(), 1);
        QCOMPARE(int(rig.fw().sleepTime(3)), 400 * 60);
    }
};

QTEST_MAIN(TestKeyOptions)
#include "tst_keyoptions.moc"
