// The window's watches: what an idle hub on its cards still asks of the system, what brings the
// user back from a page (Escape, a sibling's return flag, a lock) at the watches' intervals, and
// the card picture that a pass doesn't decode again.

#include "FakePlatform.h"
#include "HubRig.h"

#include <QDir>
#include <QFile>
#include <QPixmapCache>
#include <QStandardPaths>
#include <QTemporaryDir>

class TestHubWatches : public QObject
{
    Q_OBJECT

    FakePlatform* platform = nullptr;

    QStringList watchCalls() const { return platform->operationsNamed({"keyState", "userValue"}); }

private slots:
    void initTestCase() { platform = startWindowTests(); }
    void init() { platform->reset(); }

    // On the cards, with a device shown, a minute passes with nothing asked but the lock.
    void idleCardsAskOnlyForTheLock()
    {
        Hub hub;
        hub.showKeyboard();
        hub.clock.advance(1000);
        platform->operations.clear();
        hub.clock.advance(60000);
        QCOMPARE(watchCalls(), QStringList());
        QCOMPARE(platform->operationsNamed({"isSessionLocked"}).size(), 12);
    }

    void pagesWatchForTheWayBack_data()
    {
        QTest::addColumn<QString>("trigger");
        QTest::addColumn<int>("withinMs"); // 0: the page stays
        QTest::newRow("Escape") << "escape" << 30;
        QTest::newRow("Escape during a key test") << "escape, testing" << 0;
        QTest::newRow("OrbeReturn from a sibling") << "OrbeReturn" << 100;
        QTest::newRow("TarnwickReturn from a sibling") << "TarnwickReturn" << 100;
    }
    void pagesWatchForTheWayBack()
    {
        QFETCH(QString, trigger);
        QFETCH(int, withinMs);
        Hub hub;
        QVERIFY(hub.openKeyboard());
        QCOMPARE(hub.page(), int(MainWindow::DevicePage));

        if (trigger.startsWith("escape")) {
            if (trigger.endsWith("testing")) emit hub.link()->onKeyTesting(true);
            platform->keyStates.insert(Platform::KeyEscape, qint16(0x8000));
        } else {
            platform->values.insert(trigger, 1);
        }
        if (!withinMs) {
            QVERIFY(!hub.runUntil([&] { return hub.page() != MainWindow::DevicePage; }, 1000));
            return;
        }
        QVERIFY(hub.runUntil([&] { return hub.page() == MainWindow::CardPage; }, withinMs));
        platform->keyStates.clear();
        // The flag is taken, and the window comes forward 200 ms later.
        QVERIFY(hub.runUntil([&] { return hub.window->isVisible(); }, 300));
        QCOMPARE(platform->values.value("OrbeReturn").toInt(), 0);
        QCOMPARE(platform->values.value("TarnwickReturn").toInt(), 0);

        // Back on the cards the watches sleep again.
        hub.runUntil([] { return false; }, 500);
        platform->operations.clear();
        hub.clock.advance(10000);
        QCOMPARE(watchCalls(), QStringList());
    }

    // A flag raised while only the cards were shown is not taken for a request to leave the page
    // opened next.
    void staleFlagLeavesTheNextPageAlone()
    {
        Hub hub;
        hub.clock.advance(1000);
        platform->values.insert("OrbeReturn", 1);
        hub.clock.advance(1000);
        QVERIFY(hub.openKeyboard());
        QVERIFY(!hub.runUntil([&] { return hub.page() != MainWindow::DevicePage; }, 1000));
        QCOMPARE(platform->values.value("OrbeReturn").toInt(), 0);
    }

    // A machine locked and idle for five minutes raises the flag from the cards too; the window
    // takes it and comes forward, as from a page.
    void lockRaisesTheFlagFromTheCards()
    {
        Hub hub;
        hub.showKeyboard();
        platform->locked = true;
        platform->idleMilliseconds = 301000;
        platform->operations.clear();
        const QString raise = QStringLiteral("setUserValue(\"OrbeReturn\", 1)");
        QVERIFY(!hub.runUntil([&] { return platform->operations.contains(raise); }, 4990));
        QVERIFY(hub.runUntil([&] { return platform->operations.contains(raise); }, 10));
        QVERIFY(hub.runUntil([&] { return hub.window->isVisible(); }, 400));
        QCOMPARE(platform->values.value("OrbeReturn").toInt(), 0);
    }

    // Every pass shows the cards again; the picture is decoded once, and again only when its
    // file is replaced.
    void cardPictureDecodedOncePerFile()
    {
        QPixmapCache::setCacheLimit(0); // no help from Qt's own cache
        QTemporaryDir app;
        QVERIFY(QDir(app.path()).mkdir("images"));
        const QString file = app.filePath("images/ORBE-HE75.png");
        QVERIFY(QFile::copy(QStringLiteral(ORBE_BIN_DIR "/images/ORBE-HE75.png"), file));

        QWidget page;
        auto* card = new FrameDeviceShow({.clock = nullptr, .poller = nullptr, .appDir = app.path()},
                                         &page);
        auto* image = card->findChild<QLabel*>("labelImage");
        DeviceEnumInfo device;
        device.displayName = QStringLiteral("ORBE HE75");
        card->setDevice(device);
        const qint64 first = image->pixmap().cacheKey();
        QVERIFY(!image->pixmap().isNull());
        card->setDevice(device);
        card->setDevice(device);
        QCOMPARE(image->pixmap().cacheKey(), first);

        QFile replaced(file);
        QVERIFY(replaced.open(QIODevice::ReadWrite));
        QVERIFY(replaced.setFileTime(QDateTime::currentDateTime().addSecs(10),
                                     QFileDevice::FileModificationTime));
        replaced.close();
        card->setDevice(device);
        QVERIFY(image->pixmap().cacheKey() != first);
        QVERIFY(!image->pixmap().isNull());
        QPixmapCache::setCacheLimit(10240);
    }
};

QTEST_MAIN(TestHubWatches)
#include "tst_hubwatches.moc"
