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

QString centre(const KeyPageRig& rig, const char* wheel)
{
    return rig.widget<ModuleScrollValue>(wheel)->findChild<QLabel*>("labelTitle1")->text();
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
    QSlider* slider(const char* name) const { return widget<QSlider>(name); }
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

    void wheelsWriteAtOnce_data()
    {
        QTest::addColumn<QString>("wheel");
        QTest::addColumn<bool>("up");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("rate");
        QTest::addColumn<QList<int>>("sleep"); // seconds, slots 0 to 3

        // The keyboard starts at 1000 Hz and 300 s on the backlight slots (shown on "45 min",
        // index 5, not "5 min"), 1800 s of deep sleep.
        QTest::newRow("rate down a step")
            << "frameSV1" << false << "500 hz" << 4 << QList<int>{300, 300, 1800, 1800};
        QTest::newRow("rate up a step")
            << "frameSV1" << true << "2000 hz" << 2 << QList<int>{300, 300, 1800, 1800};
        QTest::newRow("2.4G backlight: index 6 is 60 min")
            << "frameSV2" << false << "60 min" << 3 << QList<int>{300, 3600, 1800, 1800};
        QTest::newRow("Bluetooth backlight: index 4 is 30 min")
            << "frameSV3" << true << "30 min" << 3 << QList<int>{1800, 300, 1800, 1800};
    }
    void wheelsWriteAtOnce()
    {
        QFETCH(QString, wheel);
        QFETCH(bool, up);
        QFETCH(QString, shown);
        QFETCH(int, rate);
        QFETCH(QList<int>, sleep);

        OptionsRig rig;
        turn(rig.widget<ModuleScrollValue>(qPrintable(wheel)), up);
        rig.settle();
        QCOMPARE(centre(rig, qPrintable(wheel)), shown);
        QCOMPARE(int(rig.fw().reportRate()), rate);
        QCOMPARE(rig.sleep(), sleep);
        QCOMPARE(rig.frameCount(), 1); // one command per notch
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
        QCOMPARE(centre(rig, "frameSV1"), rateShown);
        QCOMPARE(centre(rig, "frameSV2"), backlightShown);
        QCOMPARE(rig.edit("lineEditV1")->text(), QString::number(deepMinutes));
        QCOMPARE(rig.slider("horizontalSlider24Deep")->value(), std::min(deepMinutes, 1080));
        QCOMPARE(rig.edit("lineEditV3")->text(), QString::number(debounce));
        // Showing it wrote nothing back.
        QVERIFY(rig.frames(CMD_SET_SLEEPTIME).isEmpty());
        QVERIFY(rig.frames(CMD_SET_DEBOUNCE).isEmpty());
        QVERIFY(rig.frames(CMD_SET_REPORT).isEmpty());
    }

    void lineEditsWriteTheirText_data()
    {
        QTest::addColumn<QString>("edit");
        QTest::addColumn<QString>("slider");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("notch"); // then the wheel over the text: 1 up, -1 down, 0 none
        QTest::addColumn<int>("sliderValue");
        QTest::addColumn<QList<int>>("sleep");
        QTest::addColumn<int>("debounce");

        QTest::newRow("1085 typed: slider at its end, 1085 written")
            << "lineEditV1"
            << "horizontalSlider24Deep"
            << "1085" << 0 << 1080 << QList<int>{300, 300, 1800, 1085 * 60} << 2;
        QTest::newRow("Bluetooth deep sleep, a unit after the number")
            << "lineEditV2"
            << "horizontalSliderBTDeep"
            << "15 min" << 0 << 15 << QList<int>{300, 300, 900, 1800} << 2;
        QTest::newRow("debounce") << "lineEditV3"
                                  << "horizontalSliderDebounce"
                                  << "7" << 0 << 7 << QList<int>{300, 300, 1800, 1800} << 7;
        QTest::newRow("the wheel over the text is not held by the slider")
            << "lineEditV3"
            << "horizontalSliderDebounce"
            << "10" << 1 << 10 << QList<int>{300, 300, 1800, 1800} << 11;
        QTest::newRow("the wheel down over deep sleep")
            << "lineEditV1"
            << "horizontalSlider24Deep"
            << "100" << -1 << 99 << QList<int>{300, 300, 1800, 99 * 60} << 2;
    }
    void lineEditsWriteTheirText()
    {
        QFETCH(QString, edit);
        QFETCH(QString, slider);
        QFETCH(QString, text);
        QFETCH(int, notch);
        QFETCH(int, sliderValue);
        QFETCH(QList<int>, sleep);
        QFETCH(int, debounce);

        OptionsRig rig;
        QLineEdit* field = rig.edit(qPrintable(edit));
        field->setText(text);
        if (notch != 0) turn(field, notch > 0);
        rig.settle();
        QCOMPARE(rig.slider(qPrintable(slider))->value(), sliderValue);
        QCOMPARE(rig.sleep(), sleep);
        QCOMPARE(int(rig.fw().debounce()), debounce);
        QCOMPARE(rig.frameCount(), notch == 0 ? 1 : 2);
    }

    void aDragWritesEveryValue()
    {
        OptionsRig rig;
        QSlider* slider = rig.slider("horizontalSliderDebounce");
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(slider, Qt::Key_Right);
        rig.settle();
        QCOMPARE(rig.edit("lineEditV3")->text(), QString("5"));
        const QList<QByteArray> writes = rig.frames(CMD_SET_DEBOUNCE);
        QCOMPARE(writes.size(), 3);
        QCOMPARE(quint8(writes[0][1]), 3);
        QCOMPARE(quint8(writes[2][1]), 5);
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
