// The discovery pass: what it refuses, the exact probe frames against a scripted backend, the
// record and ageing rules, enumsetting.ini, the gate, the pass on its own thread in lockstep
// virtual time, and every family and route in one real-time pass of the tool.

#include "DeviceRegistry.h"
#include "FakeHidBackend.h"
#include "ManualClock.h"
#include "OrbeDeviceEnum.h"
#include "SteppedClock.h"
#include "TestSupport.h"
#include "UserSettings.h"
#include "VirtualByDevice.h"
#include "VirtualHidBackend.h"
#include "VirtualReceiver.h"
#include "VirtualSilentKeyboard.h"
#include "VirtualWsDevice.h"

#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QThread>
#include <optional>

namespace {

// Virtual devices and a registry over them; passes run on the test's thread.
struct Rig
{
    AppDir app;
    ManualClock clock;
    VirtualHidBackend hid{&clock};
    DeviceRegistry registry{&hid, &clock, app.path()};

    bool pass() { return registry.enumerateDevices(); }
    std::optional<DeviceEnumInfo> find(const QByteArray& path) const
    {
        for (const DeviceEnumInfo& r : registry.records())
            if (r.devicePath == QString::fromLatin1(path)) return r;
        return std::nullopt;
    }
};

// The scripted backend under a registry, for the exact frames of the probes.
struct ScriptRig
{
    AppDir app;
    ManualClock clock;
    FakeHidBackend hid{&clock};
    DeviceRegistry registry{&hid, &clock, app.path()};

    QByteArrayList opened() const
    {
        QByteArrayList paths;
        for (const FakeHidBackend::Transfer& t : hid.log)
            if (t.kind == "open") paths.append(t.path);
        return paths;
    }
};

// A registry whose passes run on the discovery thread, in lockstep virtual time.
struct ThreadRig
{
    AppDir app;
    SteppedClock clock;
    VirtualHidBackend hid{&clock};
    DeviceRegistry registry{&hid, &clock, app.path()};
    std::atomic<int> passes{0};
    OrbeDeviceEnum thread;

    ThreadRig()
    {
        QObject::connect(
            &registry, &DeviceRegistry::oEnumDeiceDone, &registry, [this] { ++passes; },
            Qt::DirectConnection);
        thread.setOwner(&registry);
    }
};

int identifyCount(const NativeKeyboardModel& model)
{
    int n = 0;
    for (const QByteArray& f : model.receivedFrames())
        n += quint8(f.at(0)) == 0x8F;
    return n;
}

QByteArray reply(const char* hex, quint32 id = 0)
{
    QByteArray r = QByteArray::fromHex(hex).leftJustified(64, '\0');
    for (int i = 0; i < 4; ++i)
        r[1 + i] = char((id >> (8 * i)) & 0xFF);
    return r;
}

} // namespace

class TestDiscovery : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void unsupportedDevicesAreNotListed()
    {
        Rig rig;
        VirtualKeyboard* unknown = rig.hid.addWiredKeyboard(0x0999, 0x300, 0x0461, 0x4E6B);
        auto* empty = rig.hid.add<VirtualReceiver>(VirtualReceiver::Identity{}, 0u, "sim:rx");
        rig.hid.add<VirtualByDevice>(VirtualByDevice::Identity{.serial = "20240115a042"}, "sim:by");
        // A WS product id outside the exclusion set is not a WS device.
        auto* ws = rig.hid.add<VirtualWsDevice>(
            VirtualWsDevice::Identity{.probeId = 0x21, .vendorId = 0x38EE, .productId = 0x0060},
            "sim:ws");
        for (int pass = 1; pass <= 2; ++pass) {
            QVERIFY(rig.pass());
            QCOMPARE(identifyCount(unknown->model()), pass); // asked at every pass
        }
        QVERIFY(rig.registry.records().isEmpty());
        QVERIFY(empty->receivedCommands().contains(0xFC));
        QCOMPARE(ws->writeCount(), 0);
    }

    void wiredProbeFrames()
    {
        ScriptRig rig;
        FakeHidBackend& hid = rig.hid;
        hid.addEntry(0x3151, 0x502F, 0xFFFF, 2, "cmd");
        // Three rounds without 8F (not counted), then six rounds of 8F with id 0: a receiver that
        // names no keyboard. Everything else is echoed.
        int identifyRounds = 0;
        hid.responder = [&](const QByteArray& f) {
            if (quint8(f.at(0)) != 0x8F) return f.left(64);
            return ++identifyRounds <= 3 ? QByteArray(64, '\0') : reply("8F");
        };
        QVERIFY(rig.registry.enumerateDevices());
        QVERIFY(rig.registry.records().isEmpty());

        QList<QByteArray> sent;
        QList<qint64> at;
        for (const FakeHidBackend::Transfer& t : hid.log) {
            if (t.kind != "feature>") continue;
            QCOMPARE(t.bytes.size(), 65);
            sent.append(t.bytes.left(9));
            at.append(t.at);
        }
        QByteArrayList expected;
        for (int i = 0; i < 9; ++i)
            expected.append(QByteArray::fromHex("008F000000000000 70"));
        expected.append(QByteArray::fromHex("00F60A0000000000 FF"));
        for (int i = 0; i < 5; ++i) // echoed F7: byte 6 never 1
            expected.append(QByteArray::fromHex("00F7000000000000 08"));
        expected.append(QByteArray::fromHex("008F000000000000 70"));
        for (int i = 0; i < 5; ++i) // echoed F7: byte 1 never 0
            expected.append(QByteArray::fromHex("00F7000000000000 08"));
        expected.append(QByteArray::fromHex("00FC000000000000 03"));
        QCOMPARE(sent, expected);
        // 150 ms to the answer, 50 ms to the next round; the receiver's steps 100 and 50.
        for (int i = 1; i < 9; ++i)
            QCOMPARE(at[i] - at[i - 1], 200);
        QCOMPARE(at[9] - at[8], 150);
        QCOMPARE(at[10] - at[9], 100);
        QCOMPARE(at[11] - at[10], 150);
        QCOMPARE(hid.openHandles(), 0);
    }
    void receiverStopsWhenLinkedAndIdle()
    {
        Rig rig;
        auto* receiver =
            rig.hid.add<VirtualReceiver>(VirtualReceiver::Identity{}, 0x0EC3u, "sim:rx");
        QVERIFY(rig.pass());
        // Link up after two polls, the relayed 8F done after two more.
        QCOMPARE(receiver->receivedCommands(),
                 (QList<quint8>{0x8F, 0xF6, 0xF7, 0xF7, 0x8F, 0xF7, 0xF7, 0xF7, 0xFC}));
        QCOMPARE(rig.hid.openHandleCount(), 0);
    }
    void bluetoothTries_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<int>("writes");
        QTest::addColumn<bool>("listed");
        QTest::newRow("8F") << reply("8F", 0x0AF7) << 1 << true;
        QTest::newRow("88 ends the tries too") << reply("88", 0x0AF7) << 1 << true;
        QTest::newRow("other replies: five tries") << reply("00") << 5 << false;
    }
    void bluetoothTries()
    {
        QFETCH(QByteArray, answer);
        QFETCH(int, writes);
        QFETCH(bool, listed);
        ScriptRig rig;
        FakeHidBackend& hid = rig.hid;
        hid.addEntry(0x3151, 0x5030, 0xFF55, 0x0202, "bt");
        hid.responder = [&](const QByteArray&) { return answer; };
        QVERIFY(rig.registry.enumerateDevices());

        QCOMPARE(hid.count("write"), writes);
        const FakeHidBackend::Transfer& first = *std::find_if(
            hid.log.begin(), hid.log.end(), [](const auto& t) { return t.kind == "write"; });
        QCOMPARE(first.bytes, QByteArray::fromHex("06558F00000000000070").leftJustified(66, '\0'));
        QCOMPARE(hid.log.at(1).kind, QStringLiteral("nonblock"));
        QCOMPARE(hid.log.at(1).bytes, QByteArray(1, '\0'));
        QCOMPARE(rig.registry.records().size(), listed ? 1 : 0);
        // The handle stays open after the probe; the next pass replaces it.
        QCOMPARE(hid.openHandles(), 1);
        QVERIFY(rig.registry.enumerateDevices());
        QCOMPARE(hid.openHandles(), 1);
    }
    void hitScreenAndPendingPaths()
    {
        ScriptRig rig;
        FakeHidBackend& hid = rig.hid;
        hid.addEntry(0x3151, 0x504B, 0xFF01, 1, "not-a-screen");
        hid.addEntry(0x3151, 0x0020, 0xFFFF, 2, "excluded");
        hid.addEntry(0x3151, 0x502F, 0xFFFF, 2, "refuses");
        hid.addEntry(0x3151, 0x502F, 0xFF55, 0x0001, "other-ff55"); // retries the pending path
        hid.addEntry(0x3151, 0x504A, 0xFF01, 1, "screen");
        hid.failingPaths = {"refuses"};
        hid.responder = [](const QByteArray& f) {
            return quint8(f.at(0)) == 0x8F ? reply("8F", 0x0D02) : f.left(64);
        };
        QVERIFY(rig.registry.enumerateDevices());

        QCOMPARE(rig.opened(), (QByteArrayList{"refuses", "refuses", "screen"}));
        const QList<DeviceEnumInfo> records = rig.registry.records();
        QCOMPARE(records.size(), 1);
        QCOMPARE(records[0].vendorPath, QStringLiteral("HitScreen"));
        QCOMPARE(records[0].devicePath, QStringLiteral("screen"));
        QCOMPARE(int(records[0].deviceType), 3);
        QCOMPARE(records[0].displayName, QStringLiteral("ORBE Hit Box Screen"));
    }

    void newIdKeepsNameAndType()
    {
        Rig rig;
        VirtualKeyboard* kb = rig.hid.addWiredKeyboard();
        QVERIFY(rig.pass());
        kb->model().setDeviceId(0x0C01); // a mouse's id in the catalogue
        QVERIFY(rig.pass());
        QCOMPARE(rig.registry.records().size(), 1);
        const std::optional<DeviceEnumInfo> r = rig.find(kb->commandPath());
        QVERIFY(r);
        QCOMPARE(r->deviceId, 0x0C01ull);
        QCOMPARE(r->displayName, QStringLiteral("ORBE HE75"));
        QCOMPARE(int(r->deviceType), 0);
    }
    void ageing()
    {
        Rig rig;
        VirtualKeyboard* kb = rig.hid.addWiredKeyboard();
        QVERIFY(rig.pass());
        auto online = [&] { return rig.find(kb->commandPath()).value_or(DeviceEnumInfo{}).online; };
        const quint32 firstSeen = rig.find(kb->commandPath())->lastSeen;
        QCOMPARE(firstSeen, rig.registry.nowSeconds());

        // Seen but answering id 0: online until the sighting is 60 s old.
        kb->model().setDeviceId(0);
        rig.clock.advance(30000);
        QVERIFY(rig.pass());
        QVERIFY(online());
        QCOMPARE(rig.find(kb->commandPath())->lastSeen, firstSeen);
        rig.clock.advance(31000);
        QVERIFY(rig.pass());
        QVERIFY(!online());

        // Answering again brings it back.
        kb->model().setDeviceId(0x0AF7);
        QVERIFY(rig.pass());
        QVERIFY(online());
        QCOMPARE(rig.registry.onlineCount(), 1);

        // Gone from the machine: offline at the next pass.
        kb->unplug();
        QVERIFY(rig.pass());
        QVERIFY(!online());
        QCOMPARE(rig.registry.onlineCount(), 0);

        // The scan button empties the list.
        rig.registry.clear();
        QVERIFY(rig.registry.records().isEmpty());
    }
    void lostCurrentDeviceRaisesReturn()
    {
        Rig rig;
        VirtualKeyboard* current = rig.hid.addWiredKeyboard();
        VirtualKeyboard* other = rig.hid.addWirelessKeyboard();
        QVERIFY(rig.pass());
        rig.registry.setCurrentDevice(rig.registry.records().first().devicePath);
        QCOMPARE(rig.registry.current(), QString::fromLatin1(current->commandPath()));
        auto settings = UserSettings::open(false);
        settings->setValue(UserSettings::kReturnKey, 0);
        settings->sync();

        other->unplug();
        QVERIFY(rig.pass());
        QCOMPARE(UserSettings::open(false)->value(UserSettings::kReturnKey).toInt(), 0);
        current->unplug();
        QVERIFY(rig.pass());
        QCOMPARE(UserSettings::open(false)->value(UserSettings::kReturnKey).toInt(), 1);
    }
    void enumSettings_data()
    {
        QTest::addColumn<QByteArray>("ini");
        QTest::addColumn<int>("wiredProbes");
        QTest::addColumn<bool>("wsFound");
        QTest::newRow("no file: defaults") << QByteArray() << 1 << true;
        QTest::newRow("a vendor twice is probed twice")
            << QByteArray("[General]\nVIDset0=\"0x3151, 0x3151\"\n") << 2 << true;
        QTest::newRow("unquoted list")
            << QByteArray("[General]\nVIDset0=0x3151, 12625, 0x0461\n") << 2 << true;
        QTest::newRow("vendor not listed")
            << QByteArray("[General]\nVIDset0=\"0x0461\"\n") << 0 << true;
        QTest::newRow("VIDset1 changes nothing")
            << QByteArray("[General]\nVIDset1=\"0x1234\"\n") << 1 << true;
        // Taken as 0, a typo would have the pass ask every device on the machine.
        QTest::newRow("a typo is skipped, not every vendor")
            << QByteArray("[General]\nVIDset0=\"0x3151, 0x38EG, , 0x0461\"\n") << 1 << true;
    }
    void enumSettings()
    {
        QFETCH(QByteArray, ini);
        QFETCH(int, wiredProbes);
        QFETCH(bool, wsFound);
        Rig rig;
        const QString file = rig.app.path() + "/config/enumsetting.ini";
        if (ini.isEmpty())
            QFile::remove(file);
        else
            writeFile(file, ini);
        VirtualKeyboard* kb = rig.hid.addWiredKeyboard();
        auto* ws = rig.hid.add<VirtualWsDevice>(VirtualWsDevice::Identity{}, "sim:ws");
        QTest::failOnWarning(QRegularExpression(".*"));
        if (ini.contains("0x38EG")) {
            for (const char* item : {"0x38EG", ""})
                QTest::ignoreMessage(QtWarningMsg,
                                     qPrintable(file + QStringLiteral(": VIDset0 item \"%1\" is "
                                                                      "not a vendor id; skipped")
                                                           .arg(QLatin1String(item))));
        }
        QVERIFY(rig.pass());
        QCOMPARE(identifyCount(kb->model()), wiredProbes);
        QCOMPARE(rig.find(ws->path()).has_value(), wsFound);
        QCOMPARE(rig.find(kb->commandPath()).has_value(), wiredProbes > 0);
    }
    void gate_data()
    {
        QTest::addColumn<bool>("suspended");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<bool>("hosting");
        QTest::addColumn<bool>("runs");
        QTest::newRow("shown") << false << true << false << true;
        QTest::newRow("suspended for the full read") << true << true << false << false;
        QTest::newRow("hidden or minimised") << false << false << false << false;
        QTest::newRow("hidden, hosting a sibling") << false << false << true << true;
        QTest::newRow("suspended, hosting") << true << false << true << false;
    }
    void gate()
    {
        QFETCH(bool, suspended);
        QFETCH(bool, shown);
        QFETCH(bool, hosting);
        QFETCH(bool, runs);
        Rig rig;
        VirtualKeyboard* kb = rig.hid.addWiredKeyboard();
        rig.registry.setScanSuspended(suspended);
        rig.registry.setWindowShown(shown);
        rig.registry.setHostedWindow(hosting);
        QSignalSpy done(&rig.registry, &DeviceRegistry::oEnumDeiceDone);
        QCOMPARE(rig.pass(), runs);
        QCOMPARE(done.count(), runs ? 1 : 0);
        QCOMPARE(identifyCount(kb->model()), runs ? 1 : 0);
        QVERIFY(!rig.registry.isScanning());
    }

    void threadRunsRequestedPasses()
    {
        ThreadRig rig;
        VirtualKeyboard* kb = rig.hid.addWiredKeyboard();
        rig.hid.add<VirtualReceiver>(VirtualReceiver::Identity{}, 0x0EC3u, "sim:rx");
        QObject mainSide;
        QList<QThread*> deliveredOn;
        QList<DeviceEnumInfo> delivered;
        connect(
            &rig.registry, &DeviceRegistry::oEnumDeiceDone, &mainSide,
            [&](const QList<DeviceEnumInfo>& snapshot) {
                deliveredOn.append(QThread::currentThread());
                delivered = snapshot;
            },
            Qt::QueuedConnection);

        rig.thread.requestScan();
        QVERIFY(rig.clock.runUntil([&] { return rig.passes == 1; }, 60000));
        QTRY_COMPARE(deliveredOn.size(), 1);
        QCOMPARE(deliveredOn.first(), QThread::currentThread());
        // The records come over with the signal, as copies keyed by path.
        QCOMPARE(delivered.size(), 2);
        QCOMPARE(delivered.first().devicePath, QString::fromLatin1(kb->commandPath()));
        QCOMPARE(rig.registry.records().size(), 2);

        // A request while a pass runs gives one more pass after it.
        rig.thread.requestScan();
        QVERIFY(rig.clock.runUntil([&] { return rig.registry.isScanning(); }, 60000));
        rig.thread.requestScan();
        QVERIFY(rig.clock.runUntil([&] { return rig.passes == 3; }, 60000));
        QCOMPARE(identifyCount(kb->model()), 3);
    }
    void silentDeviceHoldsThePassUntilStopped()
    {
        ThreadRig rig;
        auto* silent =
            rig.hid.add<VirtualSilentKeyboard>(quint16(0x3151), quint16(0x5041), "sim:silent");
        VirtualKeyboard* kb = rig.hid.addWiredKeyboard();

        rig.thread.requestScan();
        QVERIFY(!rig.clock.runUntil([] { return false; }, 60000));
        // One round every 200 ms, none of them counted.
        QVERIFY2(silent->requestCount() >= 299 && silent->requestCount() <= 301,
                 qPrintable(QString::number(silent->requestCount())));
        QVERIFY(rig.registry.isScanning());
        QCOMPARE(rig.passes, 0);
        QCOMPARE(identifyCount(kb->model()), 0);

        rig.thread.stop();
        QVERIFY(rig.clock.runUntil([&] { return rig.thread.isFinished(); }, 1000));
        QVERIFY(rig.thread.wait(10000));
        QVERIFY(!rig.registry.isScanning());
        QCOMPARE(rig.passes, 0);
        QCOMPARE(rig.hid.openHandleCount(), 0);
    }
    void unpluggingTheSilentDeviceFreesThePass()
    {
        ThreadRig rig;
        auto* silent =
            rig.hid.add<VirtualSilentKeyboard>(quint16(0x3151), quint16(0x5041), "sim:silent");
        VirtualKeyboard* kb = rig.hid.addWiredKeyboard();

        rig.thread.requestScan();
        QVERIFY(!rig.clock.runUntil([&] { return rig.passes > 0; }, 5000));
        silent->unplug();
        QVERIFY(rig.clock.runUntil([&] { return rig.passes == 1; }, 60000));
        QCOMPARE(rig.registry.records().size(), 1);
        QCOMPARE(rig.registry.records().first().devicePath, QString::fromLatin1(kb->commandPath()));
    }

    // The one pass in real time, over every family and route of the --simulate set: the tool's list
    // prints each record's family, connection, id, online flag, name, vendor path and device path.
    void cliListsOnePass()
    {
        QProcess cli;
        cli.start(QStringLiteral(ORBEHUB_CLI), {"--simulate", "list"});
        QVERIFY(cli.waitForFinished(60000));
        QCOMPARE(cli.exitCode(), 0);
        QCOMPARE(QString::fromUtf8(cli.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts),
                 QStringList({
                     "0\t0\t0x0AF7\t1\tORBE HE75\tsim:3151:502F:2\tsim:3151:502F:2",
                     "0\t2\t0x0AF7\t1\tORBE HE75\tnull\tsim:3151:5030:FF55",
                     "0\t1\t0x0EC3\t1\tORBE HE98\tsim:25A7:FA70:2\tsim:25A7:FA70:2",
                     "1\t1\t0x1101\t1\tWS Virtual 2.4G\tnull\tsim:38EE:0030:FF1C",
                     "2\t0\t0x2201\t1\tBY Virtual 65\t202401150042\t202401150042",
                     "3\t2\t0x3301\t1\tJM Virtual BT\tnull\tsim:3554:F5D5:FF02",
                 }));
    }
};

QTEST_GUILESS_MAIN(TestDiscovery)
#include "tst_discovery.moc"
