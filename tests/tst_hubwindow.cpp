// The hub's window: cards in order of sighting, the pool's end, the battery badges and their
// query, the native-or-sibling decision on a click, the device page's navigation guard and
// onboard profiles, the logo's console, the single-instance guard, and the real program's
// start-up and second start.

#include "BatteryPoller.h"
#include "BatteryReader.h"
#include "Clock.h"
#include "DeviceEnumInfo.h"
#include "DeviceRegistry.h"
#include "DialogDeviceConnect.h"
#include "DialogDeviceConsole.h"
#include "FakePlatform.h"
#include "FrameDeviceHolder.h"
#include "FrameDeviceShow.h"
#include "HubRig.h"
#include "MainWindow.h"
#include "ManualClock.h"
#include "SingleInstance.h"
#include "SuperLabel.h"
#include "VirtualHidBackend.h"
#include "VirtualReceiver.h"
#include "VirtualWsDevice.h"

#include <QButtonGroup>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <functional>

namespace {

QString waitForLine(QProcess& process, QString& seen, const QString& line)
{
    for (int i = 0; i < 200 && !seen.contains(line); ++i) {
        process.waitForReadyRead(100);
        seen += QString::fromUtf8(process.readAllStandardError());
    }
    return seen;
}

} // namespace

class TestHubWindow : public QObject
{
    Q_OBJECT

    FakePlatform* platform = nullptr;

private slots:
    void initTestCase() { platform = startWindowTests(); }
    void init() { platform->reset(); }

    // ---- cards

    void cardsKeepTheOrderOfFirstSighting_data()
    {
        QTest::addColumn<QStringList>("sightings"); // paths, in the order the passes saw them
        QTest::addColumn<QStringList>("offline");
        QTest::addColumn<QStringList>("names");
        const QStringList all{"pro68", "he75", "he98"};
        QTest::newRow("all online")
            << all << QStringList{} << QStringList{"ORBE Pro68", "ORBE HE75", "ORBE HE98"};
        QTest::newRow("middle one gone: the rest close up")
            << all << QStringList{"he75"} << QStringList{"ORBE Pro68", "ORBE HE98"};
        QTest::newRow("first one gone")
            << all << QStringList{"pro68"} << QStringList{"ORBE HE75", "ORBE HE98"};
        QTest::newRow("seen again keeps its first place")
            << QStringList{"he98", "pro68", "he98", "he75"} << QStringList{}
            << QStringList{"ORBE HE98", "ORBE Pro68", "ORBE HE75"};
        QTest::newRow("all gone") << all << all << QStringList{};
    }
    void cardsKeepTheOrderOfFirstSighting()
    {
        QFETCH(QStringList, sightings);
        QFETCH(QStringList, offline);
        QFETCH(QStringList, names);
        const QHash<QString, quint64> ids{{"pro68", 0x0B11}, {"he75", 0x0AF7}, {"he98", 0x0EC3}};

        Hub hub;
        for (const QString& path : sightings)
            hub.sight(ids.value(path), path);
        hub.refresh();
        QList<DeviceEnumInfo> snapshot = hub.registry()->records();
        for (DeviceEnumInfo& record : snapshot)
            record.online = !offline.contains(record.devicePath);
        hub.window->refreshCards(snapshot);

        QCOMPARE(hub.cardNames(), names);
        QCOMPARE(hub.window->findChild<QLabel*>("labelInfo0")->text(),
                 QStringLiteral("我的设备(%1)").arg(names.size()));
    }

    void the257thDeviceHasNoCard()
    {
        Hub hub;
        for (int i = 0; i <= FrameDeviceShow::kPoolSize; ++i)
            hub.sight(0x0AF7, QStringLiteral("kb%1").arg(i));
        hub.refresh();

        const QStringList names = hub.cardNames();
        QCOMPARE(names.size(), FrameDeviceShow::kPoolSize);
        QCOMPARE(hub.window->card(FrameDeviceShow::kPoolSize), nullptr);
        QCOMPARE(hub.window->findChild<QLabel*>("labelInfo0")->text(), "我的设备(257)");
    }

    void pictureSizing_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<int>("cardWidth");
        QTest::addColumn<QSize>("shown");
        QTest::newRow("wide keyboard: held at 210 high")
            << QSize(1077, 501) << 970 << QSize(451, 210);
        QTest::newRow("very wide: the card's width decides")
            << QSize(2000, 100) << 970 << QSize(930, 46);
        QTest::newRow("square") << QSize(500, 500) << 280 << QSize(210, 210);
        QTest::newRow("tall") << QSize(300, 600) << 280 << QSize(105, 210);
        QTest::newRow("tall on a narrow card: the width decides")
            << QSize(500, 500) << 200 << QSize(160, 160);
    }
    void pictureSizing()
    {
        QFETCH(QSize, picture);
        QFETCH(int, cardWidth);
        QFETCH(QSize, shown);
        QCOMPARE(FrameDeviceShow::imageSize(picture, cardWidth), shown);
    }

    // The card sizes itself to the picture beside the program, or to the type's default one.
    void cardPictures_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("width");
        QTest::newRow("name with blanks finds the dashed file")
            << "ORBE HE75" << 0 << "ORBE-HE75.png" << 451 + 80;
        QTest::newRow("keyboard without a picture") << "Nobody's Board" << 0 << "default0.png" << 0;
        QTest::newRow("mouse") << "ORBE Glide M1" << 1 << "ORBE-Glide-M1.png" << 0;
    }
    void cardPictures()
    {
        QFETCH(QString, name);
        QFETCH(int, type);
        QFETCH(QString, file);
        QFETCH(int, width);

        QWidget page;
        FrameDeviceShow card({.clock = nullptr, .poller = nullptr, .appDir = ORBE_BIN_DIR}, &page);
        DeviceEnumInfo device;
        device.displayName = name;
        device.deviceType = quint8(type);
        card.setDevice(device);

        QCOMPARE(card.deviceImage(), QStringLiteral(ORBE_BIN_DIR "/images/") + file);
        QVERIFY(!QPixmap(card.deviceImage()).isNull());
        if (width) QCOMPARE(card.width(), width);
    }

    void batteryBadges_data()
    {
        QTest::addColumn<int>("percent");
        QTest::addColumn<QString>("image");
        QTest::newRow("0") << 0 << "batt-low.png";
        QTest::newRow("20") << 20 << "batt-low.png";
        QTest::newRow("21") << 21 << "batt-25.png";
        QTest::newRow("40") << 40 << "batt-25.png";
        QTest::newRow("41") << 41 << "batt-50.png";
        QTest::newRow("60") << 60 << "batt-50.png";
        QTest::newRow("61") << 61 << "batt-75.png";
        QTest::newRow("80") << 80 << "batt-75.png";
        QTest::newRow("81") << 81 << "batt-full.png";
        QTest::newRow("100") << 100 << "batt-full.png";
        QTest::newRow("above 100") << 200 << "batt-full.png";
    }
    void batteryBadges()
    {
        QFETCH(int, percent);
        QFETCH(QString, image);
        QCOMPARE(FrameDeviceShow::batteryImage(percent), ":/images/dev/" + image);
    }

    // What the battery query reads off each kind of device.
    void batteryQuery_data()
    {
        QTest::addColumn<int>("family");
        QTest::addColumn<QString>("device"); // "wireless", "wired", "receiver", "ws", "missing"
        QTest::addColumn<int>("charge");     // the device's
        QTest::addColumn<int>("read");       // -1: nothing (not opened)
        QTest::newRow("cloud wireless") << 0 << "wireless" << 57 << 57;
        QTest::newRow("cloud wireless, empty") << 0 << "wireless" << 0 << 0;
        QTest::newRow("cloud receiver") << 0 << "receiver" << 42 << 42;
        QTest::newRow("wired: the status request finds no answer") << 0 << "wired" << 57 << 0;
        QTest::newRow("cannot be opened") << 0 << "missing" << 57 << -1;
        QTest::newRow("WS") << 1 << "ws" << 42 << 42;
        QTest::newRow("WS above 100: five tries, the last kept") << 1 << "ws" << 150 << 150;
        QTest::newRow("BY tells no charge") << 2 << "missing" << 57 << 0;
        QTest::newRow("JM tells no charge") << 3 << "wireless" << 57 << 0;
    }
    void batteryQuery()
    {
        QFETCH(int, family);
        QFETCH(QString, device);
        QFETCH(int, charge);
        QFETCH(int, read);

        ManualClock clock;
        VirtualHidBackend backend(&clock);
        VirtualKeyboard* wireless = backend.addWirelessKeyboard();
        VirtualKeyboard* wired = backend.addWiredKeyboard();
        auto* receiver =
            backend.add<VirtualReceiver>(VirtualReceiver::Identity{}, 0x0EC3u, "sim:rx");
        auto* ws = backend.add<VirtualWsDevice>(VirtualWsDevice::Identity{}, "sim:ws");
        wireless->setBattery(quint8(charge));
        receiver->setBattery(quint8(charge));
        ws->setBattery(quint8(charge));
        const QHash<QString, QByteArray> paths{{"wireless", wireless->commandPath()},
                                               {"wired", wired->commandPath()},
                                               {"receiver", receiver->commandPath()},
                                               {"ws", ws->path()}};
        const std::optional<int> got = BatteryReader::read(
            backend, clock, quint8(family), QString::fromUtf8(paths.value(device, "sim:none")));
        QCOMPARE(got.value_or(-1), read);
        if (device == "ws") QCOMPARE(ws->writeCount(), charge > 100 ? 5 : 1);
        QCOMPARE(backend.openHandleCount(), 0);
    }

    // The card asks on the poller's thread, 2 s after it shows its device, and reports back.
    void cardReportsTheBattery()
    {
        const int charge = 33; // the badges' thresholds are in batteryBadges
        VirtualKeyboard* keyboard = nullptr;
        Hub hub([&](VirtualHidBackend& b) { keyboard = b.addWirelessKeyboard(); });
        keyboard->setBattery(quint8(charge));
        const QString path = QString::fromUtf8(keyboard->commandPath());
        hub.sight(0x0AF7, path, DeviceEnumInfo::Bluetooth, 0x3151, 0x5030);
        hub.refresh();
        FrameDeviceShow* card = hub.window->card(0);
        QSignalSpy reports(card, &FrameDeviceShow::onReport);

        hub.clock.advance(FrameDeviceShow::kFirstReportMs - kStepMs);
        QCoreApplication::processEvents();
        QCOMPARE(reports.size(), 0);
        QVERIFY(hub.runUntil([&] { return reports.size() == 1; }, 2000));

        const QString tip = QStringLiteral("剩余电量: %1%").arg(charge);
        QCOMPARE(reports.at(0).at(0).toString(), path);
        QCOMPARE(reports.at(0).at(1).toString(), ":/images/dev/batt-25.png");
        QCOMPARE(reports.at(0).at(2).toString(), ":/images/dev/ble.png");
        QCOMPARE(reports.at(0).at(3).toString(), tip);
        auto* power = card->findChild<QLabel*>("labelPower");
        QCOMPARE(power->toolTip(), tip);
        QVERIFY(!power->isHidden());
        // The page of another device ignores it.
        QVERIFY(hub.holder()->findChild<QLabel*>("labelBatt")->isHidden());
    }

    // Wired devices are never asked; BY and JM are shown empty without being asked.
    void cardsThatAskNothing_data()
    {
        QTest::addColumn<int>("family");
        QTest::addColumn<int>("connection");
        QTest::addColumn<int>("reports");
        QTest::newRow("wired") << 0 << 0 << 0;
        QTest::newRow("BY wireless") << 2 << 1 << 1;
        QTest::newRow("JM Bluetooth") << 3 << 2 << 1;
    }
    void cardsThatAskNothing()
    {
        QFETCH(int, family);
        QFETCH(int, connection);
        QFETCH(int, reports);
        ManualClock clock;
        VirtualHidBackend backend(&clock);
        BatteryPoller poller(&backend, &clock);
        QWidget page;
        auto* card = new FrameDeviceShow({.clock = &clock, .poller = &poller, .appDir = {}}, &page);
        DeviceEnumInfo device;
        device.family = quint8(family);
        device.connectionType = quint8(connection);
        device.devicePath = QStringLiteral("sim:none");
        card->setDevice(device);
        QSignalSpy spy(card, &FrameDeviceShow::onReport);

        card->report();
        QCOMPARE(poller.pendingCount(), 0);
        QCOMPARE(spy.size(), reports);
        QCOMPARE(card->findChild<QLabel*>("labelPower")->isHidden(), connection == 0);
        if (reports) QCOMPARE(spy.at(0).at(1).toString(), ":/images/dev/batt-low.png");
    }

    // ---- a click on a card

    void clickOpensNativeKeyboards_data()
    {
        QTest::addColumn<quint64>("id");
        QTest::addColumn<bool>("native");
        QTest::newRow("0x0AF7") << quint64(0x0AF7) << true;
        QTest::newRow("0x0EC3") << quint64(0x0EC3) << true;
        QTest::newRow("7090 in the name") << quint64(0x0B70) << true;
        QTest::newRow("other cloud keyboard: its sibling's") << quint64(0x0B11) << false;
    }
    void clickOpensNativeKeyboards()
    {
        QFETCH(quint64, id);
        QFETCH(bool, native);
        Hub hub;
        VirtualKeyboard* keyboard = hub.showKeyboard(quint32(id));
        const QString path = QString::fromUtf8(keyboard->commandPath());
        hub.clickCard(0);
        hub.clock.advance(FrameDeviceShow::kClickDelayMs - 1);
        QCOMPARE(hub.page(), int(MainWindow::CardPage)); // the click waits 50 ms
        if (!native) {
            hub.runUntil([] { return false; }, 1000);
            // No RY driver beside the test programs: the page says so at once.
            QCOMPARE(hub.page(), int(MainWindow::SiblingPage));
            auto* status = hub.window->findChild<QLabel*>("labelSiblingStatus");
            QVERIFY(status->isVisibleTo(hub.window.get()));
            QVERIFY(status->text().contains(hub.record(path).displayName));
            QVERIFY(!hub.link()->isConnected());
            QVERIFY(keyboard->model().receivedFrames().isEmpty());
            return;
        }
        QVERIFY(hub.runUntil([&] { return hub.page() == MainWindow::DevicePage; }, 100));
        QCOMPARE(hub.holder()->currentDevice().devicePath, path);
        QCOMPARE(hub.holder()->findChild<QLabel*>("labelName")->text(),
                 hub.record(path).displayName);
        QVERIFY(hub.readDone());
        // The keyboard told its profile; the page pressed that button, which read it whole.
        const int profile = keyboard->model().profile();
        QVERIFY(hub.holder()
                    ->findChild<QPushButton*>(QStringLiteral("pushButtonLayer%1").arg(profile))
                    ->isChecked());
        QVERIFY(!hub.link()->GetKeyMatrix(3).isEmpty());
        QCOMPARE(hub.registry()->current(), path);
    }

    // While the connection reads the keyboard whole the navigation stays where it is.
    void navigationWaitsForTheRead()
    {
        Hub hub;
        hub.showKeyboard();
        hub.clickCard(0);
        QVERIFY(hub.runUntil([&] { return hub.link()->isReadingAll(); }, 5000));

        auto release = [&](const char* label) {
            QTest::mouseClick(hub.holder()->findChild<SuperLabel*>(label), Qt::LeftButton);
        };
        release("label3");
        release("label8");
        QCOMPARE(hub.holder()->currentPage(), 0);
        QCOMPARE(hub.page(), int(MainWindow::DevicePage));

        QVERIFY(hub.readDone());
        release("label3");
        QCOMPARE(hub.holder()->currentPage(), 2);
        QVERIFY(hub.holder()->page(2)->isVisibleTo(hub.holder()));
        QVERIFY(!hub.holder()->page(0)->isVisibleTo(hub.holder()));
        auto* layers = hub.holder()->findChild<QWidget*>("horizontalFrame");
        QVERIFY(!layers->isVisibleTo(hub.holder()));
        release("label2");
        QVERIFY(layers->isVisibleTo(hub.holder()));
        release("label8");
        QCOMPARE(hub.page(), int(MainWindow::CardPage));
    }

    void layerButtonsSelectTheProfile()
    {
        Hub hub;
        VirtualKeyboard* keyboard = hub.openKeyboard();
        QVERIFY(keyboard);
        auto* group = hub.holder()->findChild<QButtonGroup*>("buttonGroupLayer");
        for (int button : {1, 3, 2, 0}) {
            keyboard->model().clearReceivedFrames();
            auto* target = hub.holder()->findChild<QPushButton*>(
                QStringLiteral("pushButtonLayer%1").arg(button));
            QCOMPARE(group->id(target), -2 - button);
            QTest::mouseClick(target, Qt::LeftButton);
            QVERIFY(hub.readDone());

            QCOMPARE(int(hub.link()->GetCurrentProfile()), button);
            QCOMPARE(int(keyboard->model().profile()), button);
            int profileFrames = 0;
            for (const QByteArray& frame : keyboard->model().receivedFrames())
                profileFrames += quint8(frame.at(0)) == 0x04;
            QCOMPARE(profileFrames, 1); // one press, one selection
        }
    }

    void resetRestoresAndReadsAgain()
    {
        Hub hub;
        VirtualKeyboard* keyboard = hub.openKeyboard();
        QVERIFY(keyboard);
        QSignalSpy reads(hub.link(), &DialogDeviceConnect::onReadAll);
        QTest::mouseClick(hub.holder()->findChild<QPushButton*>("pushButtonReset"), Qt::LeftButton);
        QVERIFY(hub.readDone());
        QCOMPARE(reads.size(), 1);
        QVERIFY(!keyboard->model().receivedFrames().isEmpty());
        QCOMPARE(quint8(keyboard->model().receivedFrames().first().at(0)), quint8(0x01));
    }

    // ---- the window

    void logoOpensTheConsoleOnlyWithCtrlAndD_data()
    {
        QTest::addColumn<bool>("ctrl");
        QTest::addColumn<bool>("d");
        QTest::addColumn<int>("clicks");
        QTest::addColumn<bool>("opens");
        QTest::newRow("plain double click") << false << false << 2 << false;
        QTest::newRow("Ctrl alone") << true << false << 2 << false;
        QTest::newRow("Ctrl+D, one click") << true << true << 1 << false;
        QTest::newRow("Ctrl+D, double click") << true << true << 2 << true;
    }
    void logoOpensTheConsoleOnlyWithCtrlAndD()
    {
        QFETCH(bool, ctrl);
        QFETCH(bool, d);
        QFETCH(int, clicks);
        QFETCH(bool, opens);
        if (ctrl) platform->keyStates.insert(Platform::KeyControl, qint16(0x8000));
        if (d) platform->keyStates.insert(Platform::KeyD, qint16(0x8000));

        Hub hub;
        for (int i = 0; i < clicks; ++i)
            QTest::mouseClick(hub.window.get(), Qt::LeftButton, {}, QPoint(60, 45));
        QCOMPARE(hub.window->console() != nullptr, opens);
        if (opens) QVERIFY(hub.window->console()->isVisible());
    }

    void arrowsNeedThreeCards_data()
    {
        QTest::addColumn<int>("cards");
        QTest::addColumn<bool>("shown");
        QTest::newRow("2") << 2 << false;
        QTest::newRow("3") << 3 << true;
    }
    void arrowsNeedThreeCards()
    {
        QFETCH(int, cards);
        QFETCH(bool, shown);
        Hub hub;
        for (int i = 0; i < cards; ++i)
            hub.sight(0x0AF7, QStringLiteral("kb%1").arg(i));
        hub.refresh();
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(
            hub.cardPage()->findChild<QScrollArea*>("scrollArea")->viewport(), &enter);
        QCOMPARE(hub.window->findChild<QDialog*>("floatPrev")->isVisible(), shown);
        QCOMPARE(hub.window->findChild<QDialog*>("floatNext")->isVisible(), shown);
    }

    void searchingUntilTheFirstCard()
    {
        Hub hub;
        auto* stack = hub.window->findChild<QStackedWidget*>("stackedWidget");
        hub.clock.advance(200);
        QVERIFY(stack->isHidden()); // the start-up picture and "searching"
        hub.sight(0x0AF7, "kb");
        hub.refresh();
        hub.clock.advance(200);
        QVERIFY(!stack->isHidden());
    }

    // The whole road in real time: the window shown, the discovery thread's passes, and an
    // unplugged keyboard's card gone after the hot-plug notice.
    void unpluggedKeyboardLeavesTheCards()
    {
        auto devices = std::make_unique<VirtualHidBackend>(QtClock::shared());
        VirtualKeyboard* wired = devices->addWiredKeyboard();
        VirtualKeyboard* wireless = devices->addWirelessKeyboard(0x0EC3);
        MainWindow window(std::move(devices), *platform, nullptr, QStringLiteral(ORBE_BIN_DIR));
        auto names = [&] {
            QStringList shown;
            auto* page = window.findChild<QWidget*>("page00");
            for (auto* label : page->findChildren<QLabel*>("labelDeviceName"))
                if (!label->parentWidget()->isHidden()) shown << label->text();
            shown.sort();
            return shown;
        };
        window.show();
        QTRY_COMPARE_WITH_TIMEOUT(names(), QStringList({"ORBE HE75", "ORBE HE98"}), 20000);

        wireless->unplug();
        QTRY_COMPARE_WITH_TIMEOUT(names(), QStringList({"ORBE HE75"}), 20000);
        QCOMPARE(window.findChild<QLabel*>("labelInfo0")->text(), "我的设备(1)");
        wired->unplug();
        QTRY_COMPARE_WITH_TIMEOUT(names(), QStringList(), 20000);
    }

    // ---- one hub at a time

    void secondStartAsksTheFirstToComeForward()
    {
        const QString key = QStringLiteral("orbe-test-%1").arg(QCoreApplication::applicationPid());
        SingleInstance first(key);
        QVERIFY(first.claim());
        QVERIFY(!first.takeRaiseRequest());
        {
            SingleInstance second(key);
            QVERIFY(!second.claim());
            QVERIFY(!second.isClaimed());
        }
        QVERIFY(first.takeRaiseRequest());
        QVERIFY(!first.takeRaiseRequest()); // the request is taken once
    }

    // The real program: start-up in its order, a second start that raises the first and exits
    // 0, and a crashed hub's segment that doesn't keep the next one from starting.
    void programStartsOncePerSession()
    {
        QTemporaryDir config;
        QVERIFY(config.isValid());
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("QT_LOGGING_RULES", "orbe.app.debug=true");
        env.insert("XDG_CONFIG_HOME", config.path()); // keeps the user's own values out of it
        auto start = [&](QProcess& process) {
            process.setProcessEnvironment(env);
            process.start(QStringLiteral(ORBEHUB), {QStringLiteral("--simulate")});
            QVERIFY(process.waitForStarted());
        };

        QProcess first;
        QString firstLog;
        start(first);
        waitForLine(first, firstLog, "single instance segment made");
        const qsizetype translation = firstLog.indexOf("ORBEStudio_");
        const qsizetype sheet = firstLog.indexOf("style sheet set");
        const qsizetype window = firstLog.indexOf("single instance segment made");
        QVERIFY2(translation >= 0 && translation < sheet && sheet < window, qPrintable(firstLog));

        QProcess second;
        start(second);
        QVERIFY(second.waitForFinished(20000));
        QCOMPARE(second.exitStatus(), QProcess::NormalExit);
        QCOMPARE(second.exitCode(), 0);
        QVERIFY(QString::fromUtf8(second.readAllStandardError()).contains("another hub runs"));
        waitForLine(first, firstLog, "a second start asks this hub to come forward");
        QVERIFY2(firstLog.contains("a second start asks this hub to come forward"),
                 qPrintable(firstLog));

        // A crash leaves the segment behind; the next start clears it and runs.
        first.kill();
        QVERIFY(first.waitForFinished());
        QProcess third;
        QString thirdLog;
        start(third);
        waitForLine(third, thirdLog, "single instance segment made");
        QVERIFY2(thirdLog.contains("single instance segment made"), qPrintable(thirdLog));
        QCOMPARE(third.state(), QProcess::Running);
        third.kill();
        QVERIFY(third.waitForFinished());
        SingleInstance cleaner(QLatin1String(SingleInstance::kOrbeKey));
        QVERIFY(cleaner.claim()); // and clears what the killed one left
    }
};

QTEST_MAIN(TestHubWindow)
#include "tst_hubwindow.moc"
