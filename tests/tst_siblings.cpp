// The sibling drivers: started and found at start-up, the device handed over in the order the
// drivers expect, their windows shown inside the hub or in its place, the way back, and a missing
// driver; over the recording platform in virtual time. Then once end to end under a virtual X
// display: a stand-in sibling started, found by title, embedded, and its return value bringing
// the hub back.

#include "Clock.h"
#include "DeviceEnumInfo.h"
#include "FakePlatform.h"
#include "FrameDeviceShow.h"
#ifdef Q_OS_LINUX
#include "LinuxPlatform.h"
#endif
#include "MainWindow.h"
#include "ManualClock.h"
#include "SiblingHost.h"
#include "VirtualHidBackend.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QSettings>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#ifdef ORBE_TEST_XCB
#include <xcb/xcb.h>
#endif

namespace {

constexpr Platform::WindowId kRyWindow = 0x10;
constexpr Platform::WindowId kWsWindow = 0x20;

// A folder the hub runs in: the shipped config and images, and the sibling programs asked for.
struct Root
{
    QTemporaryDir dir;
    explicit Root(const QStringList& programs, const QString& programFile = QString())
    {
        for (const char* sub : {"config", "images"})
            QFile::link(QStringLiteral(ORBE_BIN_DIR "/") + sub, dir.filePath(sub));
        for (const QString& program : programs) {
            const QString path = dir.filePath(program);
            QDir().mkpath(QFileInfo(path).absolutePath());
            if (!programFile.isEmpty()) {
                QFile::copy(programFile, path);
            } else {
                QFile file(path);
                file.open(QIODevice::WriteOnly);
            }
        }
    }
    QString path() const { return dir.path(); }
};

QString program(int slot)
{
    return SiblingHost::nativeName(QLatin1String(SiblingHost::kSiblings[slot].program)).mid(1);
}

DeviceEnumInfo device(int family, quint64 id, const QString& path)
{
    DeviceEnumInfo d;
    d.vendorId = 0x3151;
    d.productId = 0x4011;
    d.deviceId = id;
    d.family = quint8(family);
    d.online = true;
    d.displayName = QStringLiteral("Test %1").arg(family);
    d.vendorPath = QStringLiteral("vendor-") + path;
    d.devicePath = path;
    return d;
}

// The hub on the recording platform and a manual clock.
struct Hub
{
    ManualClock clock;
    Root root;
    FakePlatform& platform = FakePlatform::shared();
    std::unique_ptr<MainWindow> window;

    explicit Hub(const QStringList& programs) : root(programs)
    {
        platform.windowRects.insert(kWsWindow, QRect(0, 0, 400, 300));
        window = std::make_unique<MainWindow>(std::make_unique<VirtualHidBackend>(&clock), platform,
                                              &clock, root.path());
        clock.advance(20); // the saved language
    }
    SiblingHost& host() const { return *window->siblingHost(); }
    int page() const { return window->findChild<QStackedWidget*>("stackedWidget")->currentIndex(); }
    QString frame() const
    {
        return QStringLiteral("0x%1").arg(window->findChild<QWidget*>("frameEmb")->winId(), 0, 16);
    }
    void click(const DeviceEnumInfo& d)
    {
        window->refreshCards({d});
        platform.operations.clear();
        QTest::mouseClick(window->card(0), Qt::LeftButton);
        clock.advance(FrameDeviceShow::kClickDelayMs);
    }
    QStringList values() const { return platform.operationsNamed({"setUserValue"}); }
};

} // namespace

class TestSiblings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init() { FakePlatform::shared().reset(); }

    // Stale siblings end, the installed ones start hidden in their order, and the watch finds
    // their windows: RY goes into the hub's frame, WS is hidden. The watch runs only while there
    // is something to look for.
    void startUpFindsTheInstalledSiblings()
    {
        {
            Hub hub({program(SiblingHost::RY), program(SiblingHost::WS)});
            FakePlatform& p = hub.platform;
            QCOMPARE(
                p.operationsNamed({"endProcess", "startProcess"}),
                QStringList({R"(endProcess("Orbe-WS"))", R"(endProcess("Orbe-BY"))",
                             R"(endProcess("Orbe-Gaming-Bub"))", R"(endProcess("OrbeCloudDriver"))",
                             "startProcess(\"" + hub.root.path() + "/WsExe/Orbe-WS\")",
                             "startProcess(\"" + hub.root.path() + "/RyExe/OrbeCloudDriver\")"}));
            QVERIFY(hub.host().isWatching());

            p.operations.clear();
            p.windowsByTitle.insert("Orbe Cloud Driver", kRyWindow);
            p.windowsByTitle.insert("Orbe", kWsWindow);
            hub.clock.advance(SiblingHost::kWatchMs);
            QCOMPARE(p.operationsNamed({"setWindowStyle", "setWindowPos", "setWindowParent",
                                        "hideWindow", "setUserValue"}),
                     QStringList({"setWindowStyle(0x10, 0xd60a0000, 0x80000)",
                                  "setWindowPos(0x10, Bottom, 0,0 0x0, 0x81)",
                                  "setWindowParent(0x10, " + hub.frame() + ")",
                                  R"(setUserValue("ParentHwnd", 16))", "hideWindow(0x20)"}));
            QCOMPARE(hub.host().window(SiblingHost::RY), kRyWindow);
            QCOMPARE(hub.host().window(SiblingHost::WS), kWsWindow);
            // WS is started again when it dies, so the watch stays.
            p.runningProcesses.removeAll("Orbe-WS");
            p.operations.clear();
            hub.clock.advance(SiblingHost::kWatchMs);
            QCOMPARE(p.operationsNamed({"startProcess", "setUserValue"}),
                     QStringList({R"(setUserValue("OrbeWnd", 0))",
                                  "startProcess(\"" + hub.root.path() + "/WsExe/Orbe-WS\")"}));
        }
        // RY alone: once found there is nothing left to watch; nothing installed, no watch. (One
        // hub at a time: a second one in the process leaves.)
        FakePlatform::shared().reset();
        {
            Hub ryOnly({program(SiblingHost::RY)});
            ryOnly.platform.windowsByTitle.insert("Orbe Cloud Driver", kRyWindow);
            ryOnly.clock.advance(SiblingHost::kWatchMs);
            QVERIFY(!ryOnly.host().isWatching());
        }
        FakePlatform::shared().reset();
        Hub none({});
        QVERIFY(!none.host().isWatching());
        QVERIFY(none.platform.operationsNamed({"startProcess"}).isEmpty());
    }

    void handOverValues_data()
    {
        QTest::addColumn<int>("family");
        QTest::addColumn<QStringList>("values"); // as written, in order
        const QString lang = R"(setUserValue("%1Locale", "en-US"))";
        QTest::newRow("RY") << int(SiblingHost::RY)
                            << QStringList({R"(setUserValue("DeviceId", 0))",
                                            R"(setUserValue("DevicePath", ""))",
                                            R"(setUserValue("PageLoaded", "false"))",
                                            R"(setUserValue("VendorDevicePath", ""))",
                                            R"(setUserValue("DeviceId", 2833))",
                                            R"(setUserValue("VendorDevicePath", "vendor-p"))",
                                            R"(setUserValue("DevicePath", "p"))"});
        QTest::newRow("WS") << int(SiblingHost::WS)
                            << QStringList({R"(setUserValue("OrbeDeviceIndex", 2833))"});
        QTest::newRow("BY") << int(SiblingHost::BY)
                            << QStringList({lang.arg("By"),
                                            R"(setUserValue("ByDeviceUuid", "0xvendor-p"))"});
        QTest::newRow("JM") << int(SiblingHost::JM)
                            << QStringList(
                                   {lang.arg("Jm"), R"(setUserValue("JmDevicePath", "p"))"});
    }
    // Each family's values in order; RY's real values 100 ms after the cleared ones, and the same
    // RY device clicked again writes nothing.
    void handOverValues()
    {
        QFETCH(int, family);
        QFETCH(QStringList, values);
        FakePlatform::shared().values.insert("lastlang", 1); // English
        Hub hub({});
        hub.click(device(family, 0x0B11, "p"));
        hub.clock.advance(SiblingHost::kRyValuesDelayMs);
        QCOMPARE(hub.values(), values);
        QCOMPARE(hub.window->width(),
                 family == SiblingHost::RY ? MainWindow::kWideWidth : MainWindow::kNarrowWidth);
        if (family != SiblingHost::RY) return;
        hub.click(device(family, 0x0B11, "p"));
        hub.clock.advance(SiblingHost::kRyValuesDelayMs);
        QCOMPARE(hub.values(), QStringList());
    }

    // RY inside the hub's frame with round bottom corners and the return button 2 s later; WS in
    // place of the hidden hub, where a return value left from before can't pull the hub back in
    // the first second; then the sibling's return value brings the cards back.
    void showsTheSiblingAndComesBack_data()
    {
        QTest::addColumn<int>("family");
        QTest::newRow("RY embedded") << int(SiblingHost::RY);
        QTest::newRow("WS on its own") << int(SiblingHost::WS);
    }
    void showsTheSiblingAndComesBack()
    {
        QFETCH(int, family);
        Hub hub({program(SiblingHost::RY), program(SiblingHost::WS)});
        FakePlatform& p = hub.platform;
        p.windowsByTitle.insert("Orbe Cloud Driver", kRyWindow);
        p.windowsByTitle.insert("Orbe", kWsWindow);
        hub.window->show();
        hub.clock.advance(SiblingHost::kWatchMs);
        const Platform::WindowId id = family == SiblingHost::RY ? kRyWindow : kWsWindow;
        const QString w = QStringLiteral("0x%1").arg(id, 0, 16);
        hub.click(device(family, 0x0B11, "p"));
        if (family == SiblingHost::WS) p.values.insert("OrbeReturn", 1); // left from before
        hub.clock.advance(100);
        auto* floatReturn = hub.window->findChild<QDialog*>("floatReturn");
        if (family == SiblingHost::RY) {
            QCOMPARE(hub.page(), int(MainWindow::SiblingPage));
            QStringList shown = p.operationsNamed({"setWindowPos", "setBottomRoundedRegion"});
            // Hidden at the click, then shown in the frame's size.
            QCOMPARE(shown.size(), 3);
            QCOMPARE(shown.takeFirst(), "setWindowPos(0x10, Bottom, 0,0 0x0, 0x82)");
            QVERIFY(shown[0].startsWith("setWindowPos(0x10, Bottom, 0,0 "));
            QVERIFY(shown[0].endsWith(", 0x40)"));
            QVERIFY(shown[1].startsWith("setBottomRoundedRegion(0x10, ") &&
                    shown[1].endsWith(", 32)"));
            QVERIFY(!floatReturn->isVisible());
            hub.clock.advance(2000);
            QVERIFY(floatReturn->isVisible());
        } else {
            const QSize screen = QGuiApplication::primaryScreen()->size() *
                                 QGuiApplication::primaryScreen()->devicePixelRatio();
            const QString centred = QStringLiteral("%1,%2")
                                        .arg((screen.width() - 400) / 2)
                                        .arg((screen.height() - 300) / 2);
            QVERIFY(!hub.window->isVisible());
            QCOMPARE(p.operationsNamed({"showWindow", "bringWindowToTop", "moveWindow"}).mid(0, 3),
                     QStringList({"showWindow(" + w + ")", "bringWindowToTop(" + w + ")",
                                  "moveWindow(" + w + ", " + centred + " 400x300, true)"}));
            hub.clock.advance(900);
            QVERIFY(!hub.window->isVisible()); // not armed yet
            p.operations.clear();
            hub.clock.advance(100);
            QCOMPARE(
                p.operationsNamed(
                    {"setUserValue", "showWindow", "setForegroundWindow", "redrawWindow"}),
                QStringList({R"(setUserValue("OrbeReturn", 0))",
                             R"(setUserValue("TarnwickReturn", 0))", "showWindow(" + w + ")",
                             "setForegroundWindow(" + w + ")", "redrawWindow(" + w + ", 0x300)"}));
            hub.clock.advance(500);
            QVERIFY(!hub.window->isVisible()); // the stale value was cleared, not taken
        }
        QVERIFY(hub.window->isWatchingReturn());

        p.values.insert("OrbeReturn", 1); // the sibling asks
        hub.clock.advance(100 + 200);
        QCOMPARE(hub.page(), int(MainWindow::CardPage));
        QVERIFY(hub.window->isVisible());
        QCOMPARE(p.values.value("OrbeReturn").toInt(), 0);
        QVERIFY(p.operations.contains("hideWindow(" + w + ")"));
        hub.clock.advance(100);
        QVERIFY(!hub.window->isWatchingReturn());
    }

    // A sibling whose program isn't there: the page says so at once, nothing waits for it, and
    // the return button brings the cards back.
    void missingSiblingIsToldInThePage()
    {
        Hub hub({program(SiblingHost::RY)});
        hub.click(device(SiblingHost::JM, 0x0B11, "p"));
        hub.clock.advance(100);
        QCOMPARE(hub.page(), int(MainWindow::SiblingPage));
        auto* status = hub.window->findChild<QLabel*>("labelSiblingStatus");
        QVERIFY(status->isVisibleTo(hub.window.get()));
        QVERIFY(status->text().contains("Test 3"));
        QVERIFY(!hub.platform.operations.join(' ').contains("Gaming"));
        auto* floatReturn = hub.window->findChild<QDialog*>("floatReturn");
        QVERIFY(floatReturn->isVisible());
        QTest::mouseClick(floatReturn, Qt::LeftButton);
        QCOMPARE(hub.page(), int(MainWindow::CardPage));
        hub.clock.advance(200);
        QVERIFY(!hub.window->isWatchingReturn());
    }

    // In real time on X11: the stand-in sibling, installed as the RY driver, is started, found
    // by its title and put into the hub's frame; clicking an RY keyboard shows it, it presses its
    // return button once it is shown with the device, and the hub comes back to the cards.
    void hostsTheStandInEndToEnd()
    {
#ifndef Q_OS_LINUX
        QSKIP("the end-to-end run is for X11");
#else
        if (QGuiApplication::platformName() != QLatin1String("xcb"))
            QSKIP("needs an X display (run as tst_siblings_x11)");
        qputenv("ORBE_STANDIN_TEST_MODE", "1");
        qputenv("ORBE_STANDIN_PRESS_MS", "300");
        Root root({program(SiblingHost::RY)}, QStringLiteral(ORBE_STANDIN));
        LinuxPlatform platform;
        auto window = std::make_unique<MainWindow>(
            std::make_unique<VirtualHidBackend>(QtClock::shared()), platform, nullptr, root.path());
        window->show();
        SiblingHost& host = *window->siblingHost();
        QVERIFY(QTest::qWaitFor([&] { return host.window(SiblingHost::RY) != 0; }, 20000));
        const Platform::WindowId sibling = host.window(SiblingHost::RY);

        window->refreshCards({device(SiblingHost::RY, 0x0B11, "ry-path")});
        QTest::mouseClick(window->card(0), Qt::LeftButton);
        auto* stack = window->findChild<QStackedWidget*>("stackedWidget");
        QVERIFY(QTest::qWaitFor([&] { return stack->currentIndex() == MainWindow::SiblingPage; }));
#ifdef ORBE_TEST_XCB
        auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
        xcb_query_tree_reply_t* tree = xcb_query_tree_reply(
            x11->connection(), xcb_query_tree(x11->connection(), xcb_window_t(sibling)), nullptr);
        QVERIFY(tree);
        const xcb_window_t parent = tree->parent;
        std::free(tree);
        QCOMPARE(Platform::WindowId(parent), window->findChild<QWidget*>("frameEmb")->winId());
#endif
        QVERIFY(
            QTest::qWaitFor([&] { return stack->currentIndex() == MainWindow::CardPage; }, 20000));
        QTRY_VERIFY(window->isVisible());
        QCOMPARE(platform.userValue("OrbeReturn").toInt(), 0);
        QCOMPARE(platform.userValue("DevicePath").toString(), "ry-path");
        window.reset();
        QVERIFY(platform.endProcess(SiblingHost::nativeName("OrbeCloudDriver.exe")));
#endif
    }
};

QTEST_MAIN(TestSiblings)
#include "tst_siblings.moc"
