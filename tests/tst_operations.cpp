// The connection's operations: the frames they build, what the read sequence blocks, and round
// trips through the virtual keyboard, wired and wireless (write, read everything back, compare
// cache and firmware).

#include "ConnectionRig.h"
#include "KeyPositions.h"
#include "MagnetTables.h"
#include "SimRig.h"

#include <QSignalSpy>
#include <QtTest>
#include <functional>

namespace {

using Op = std::function<void(DialogDeviceConnect&)>;

const quint8 kEntryEsc[4] = {0x00, 0x00, 0x29, 0x00};

// A connection on the scripted backend with the first chain done and nothing queued.
struct FakeRig : ConnectionRig
{
    FakeRig()
    {
        connectWired();
        clock.advance(1000);
        hid.log.clear();
    }
    // The logical frames an operation sent, whole (the frame as closed, 64 bytes).
    QList<QByteArray> framesOf(const Op& op)
    {
        hid.log.clear();
        op(*conn);
        clock.advance(2000);
        return hid.sentFrames(64);
    }
};

} // namespace

class TestOperations : public QObject
{
    Q_OBJECT

private slots:
    void frames_data()
    {
        QTest::addColumn<Op>("op");
        QTest::addColumn<QList<QByteArray>>("heads"); // the first bytes of each frame sent
        QTest::newRow("report rate") << Op([](auto& c) { c.DoSetReportRate(3); })
                                     << QList<QByteArray>{hex("03 00 03 00 00 00 00 F9")};
        QTest::newRow("debounce") << Op([](auto& c) { c.DoSetDebounce(3); })
                                  << QList<QByteArray>{hex("06 03 00 00 00 00 00 F6")};
        QTest::newRow("led off") << Op([](auto& c) { c.DoSetLedOnOff(true); })
                                 << QList<QByteArray>{hex("05 00 00 00 00 00 00 FA")};
        QTest::newRow("effect picture") << Op([](auto& c) { c.DoSetLedEffect(13, 2); })
                                        << QList<QByteArray>{hex("07 0D 03 03 20 FF FF FF")};
        QTest::newRow("effect colour") << Op([](auto& c) { c.DoSetLedEffect(5, 2); })
                                       << QList<QByteArray>{hex("07 05 03 03 27 FF FF FF")};
        QTest::newRow("speed 4") << Op([](auto& c) { c.DoSetLedSpeed(4); })
                                 << QList<QByteArray>{hex("07 01 00 03 07 FF FF FF")};
        QTest::newRow("speed 0") << Op([](auto& c) { c.DoSetLedSpeed(0); })
                                 << QList<QByteArray>{hex("07 01 04 03 07 FF FF FF")};
        QTest::newRow("colour kept") << Op([](auto& c) { c.DoSetLedColor(0x102030, 6); })
                                     << QList<QByteArray>{hex("07 01 03 03 06 FF FF FF")};
        QTest::newRow("colour sent") << Op([](auto& c) { c.DoSetLedColor(0x102030, 7); })
                                     << QList<QByteArray>{hex("07 01 03 03 07 10 20 30 8A")};
        QTest::newRow("side light")
            << Op([](auto& c) { c.DoSetSideLed(hex("00 02 01 04 08 0A 0B 0C")); })
            << QList<QByteArray>{hex("08 02 01 04 08 0A 0B 0C")};
        QTest::newRow("sleep overflow")
            << Op([](auto& c) { c.DoSetSleepTime(1100, 1); })
            << QList<QByteArray>{hex("11 00 00 00 00 00 00 EE 00 00 D0 01")};
        // 35791395 minutes are 2147483700 s, past a signed 32-bit count: still the low 16 bits.
        QTest::newRow("sleep past 32 bits")
            << Op([](auto& c) { c.DoSetSleepTime(35791395, 0); })
            << QList<QByteArray>{hex("11 00 00 00 00 00 00 EE 34 00 00 00")};
        QTest::newRow("magnetism 2.0 mm") << Op([](auto& c) {
            c.DoSetMagnetism(0x00, 0x29, MagnetTables::rawFromMillimetres(2.0f), 1);
        }) << QList<QByteArray>{hex("65 00 00 00 01 00 00 99 90 01 00 00")};
        QTest::newRow("magnetism all keys, whole value")
            << Op([](auto& c) { c.DoSetMagnetism(0xFB, 0xFF, 0x1234, 0); })
            << QList<QByteArray>{hex("65 FB 00 FF 00 00 00 A0 34 12 00 00")};
        QTest::newRow("fn code off")
            << Op([](auto& c) { c.DoSetFnCode(0x29, false); })
            << QList<QByteArray>{hex("10 00 00 00 00 00 00 EF 00 00 00 01")};
        QTest::newRow("key test") << Op([](auto& c) {
            c.DoStartKeyTest();
            c.DoStopKeyTest();
        }) << QList<QByteArray>{hex("1B 01 00 00 00 00 00 E3"), hex("1B 00 00 00 00 00 00 E4")};
        QTest::newRow("user picture read") << Op([](auto& c) { c.DoReadUserPic(1); })
                                           << QList<QByteArray>{hex("8C 01 FF 00 00 00 00 73"),
                                                                hex("8C 01 FF 01"),
                                                                hex("8C 01 FF 02"),
                                                                hex("8C 01 FF 03"),
                                                                hex("8C 01 FF 04"),
                                                                hex("8C 01 FF 05 00 00 00 6E")};
    }
    void frames()
    {
        QFETCH(Op, op);
        QFETCH(QList<QByteArray>, heads);
        FakeRig rig;
        const QList<QByteArray> sent = rig.framesOf(op);
        QCOMPARE(sent.size(), heads.size());
        for (int i = 0; i < heads.size(); ++i)
            QCOMPARE(sent[i].left(heads[i].size()), heads[i]);
    }

    void keyFrameOnProfileAndLayer()
    {
        FakeRig rig;
        rig.conn->DoSetProfile(1);
        rig.clock.advanceUntil([&] { return rig.conn->isIdle(); }, 20000);
        const QList<QByteArray> sent =
            rig.framesOf([](auto& c) { c.DoSetKey(0x29, kEntryEsc, 2, 1); });
        QCOMPARE(sent.size(), 1);
        QCOMPARE(sent[0].left(12), hex("0A 01 00 00 00 01 02 F1 00 00 29 00"));
        quint8 e[4];
        rig.conn->GetKeyEntry(e, 0, 2);
        QCOMPARE(QByteArray(reinterpret_cast<char*>(e), 4), hex("00 00 29 00"));
    }

    void resetKeySendsTenFrames()
    {
        FakeRig rig;
        const QList<QByteArray> sent = rig.framesOf([](auto& c) { c.DoResetKey(0xFA); });
        QCOMPARE(sent.size(), 10);
        const QList<QByteArray> expected{hex("0A 00 41 00 00 00 00"), hex("0A 00 41 00 00 00 01"),
                                         hex("0A 00 41 00 00 00 02"), hex("0A 00 41 00 00 01 03"),
                                         hex("65 07 00 41 00"),       hex("65 00 00 41 00"),
                                         hex("65 01 00 41 00"),       hex("65 06 00 41 00"),
                                         hex("65 FB 00 41 00"),       hex("65 FC 00 41 01")};
        for (int i = 0; i < 10; ++i)
            QCOMPARE(sent[i].left(expected[i].size()), expected[i]);
        QCOMPARE(sent[0].mid(8, 4), hex("00 00 FA 00"));
        QCOMPARE(sent[5].mid(8, 4), hex("90 01 00 00"));
        QCOMPARE(rig.conn->GetMagnetism(0x01, 65), 560u);
        QCOMPARE(rig.conn->GetMagnetism(0xFC, 65), 2u);
    }

    void macroPages()
    {
        FakeRig rig;
        const QByteArray stream(55, '\x11');
        const QList<QByteArray> sent =
            rig.framesOf([&](auto& c) { c.DoSetMacro(0x04, 3, 2, 3, stream); });
        QCOMPARE(sent.size(), 3);
        QCOMPARE(sent[0].left(8), hex("0B 03 00 38 00 00 00 B9"));
        QCOMPARE(sent[0].mid(8, 3), hex("03 00 11"));
        QCOMPARE(sent[1].left(5), hex("0B 03 01 38 01"));
        QCOMPARE(sent[1].mid(8, 2), hex("11 00")); // 2 + 55 = 57: one byte on page 1
        QCOMPARE(sent[2].left(7), hex("0A 00 09 00 00 01 00"));
        QCOMPARE(sent[2].mid(8, 4), hex("09 02 03 00"));
    }

    void userPictureWrite()
    {
        FakeRig rig;
        QByteArray map(392, '\0');
        for (int i = 0; i < map.size(); ++i)
            map[i] = char(i % 251);
        const QList<QByteArray> sent = rig.framesOf([&](auto& c) { c.DoWriteUserPic(2, map); });
        QCOMPARE(sent.size(), 8);
        // The effect switches to the slot's picture first.
        QCOMPARE(sent[0].left(5), hex("07 0D 03 03 20"));
        for (int page = 0; page < 7; ++page) {
            QCOMPARE(sent[page + 1].left(7), QByteArray(hex("0C 02 FF")) + char(page) + char(0x38) +
                                                 char(page == 6 ? 1 : 0) + char(0));
            QCOMPARE(sent[page + 1].mid(8, 56), map.mid(page * 56, 56));
        }
        QVERIFY(!rig.conn->IsMusicOn());
    }

    void musicFlag()
    {
        FakeRig rig;
        rig.conn->DoSetLedEffect(22, 0);
        QVERIFY(rig.conn->IsMusicOn());
        rig.conn->DoSetLedEffect(3, 0);
        QVERIFY(!rig.conn->IsMusicOn());
        rig.conn->DoSetLedEffect(22, 0);
        rig.conn->DoReadAll();
        QVERIFY(!rig.conn->IsMusicOn());
    }

    void blockedWhileReading_data()
    {
        QTest::addColumn<Op>("op");
        QTest::addColumn<bool>("blocked");
        QTest::newRow("DoSetKey") << Op([](auto& c) { c.DoSetKey(0x29, kEntryEsc, 0, 1); }) << true;
        QTest::newRow("DoSetFn") << Op([](auto& c) { c.DoSetFn(0x29, kEntryEsc); }) << true;
        QTest::newRow("DoSetKeyCode") << Op([](auto& c) { c.DoSetKeyCode(0x29, true, 0); }) << true;
        QTest::newRow("DoSetFnCode") << Op([](auto& c) { c.DoSetFnCode(0x29, true); }) << true;
        QTest::newRow("DoResetKey") << Op([](auto& c) { c.DoResetKey(0x29); }) << true;
        QTest::newRow("DoSetMagnetism")
            << Op([](auto& c) { c.DoSetMagnetism(0, 0x29, 1, 1); }) << true;
        QTest::newRow("DoWriteUserPic")
            << Op([](auto& c) { c.DoWriteUserPic(0, QByteArray(392, 1)); }) << true;
        QTest::newRow("DoReadUserPic") << Op([](auto& c) { c.DoReadUserPic(0); }) << true;
        QTest::newRow("DoSetSleepTime") << Op([](auto& c) { c.DoSetSleepTime(5, 0); }) << true;
        QTest::newRow("DoStartKeyTest") << Op([](auto& c) { c.DoStartKeyTest(); }) << true;
        QTest::newRow("DoStopKeyTest") << Op([](auto& c) { c.DoStopKeyTest(); }) << true;
        QTest::newRow("DoStartCalibration") << Op([](auto& c) { c.DoStartCalibration(); }) << true;
        QTest::newRow("DoSetDebounce row") << Op([](auto& c) { c.DoSetDebounce(2); }) << true;
        QTest::newRow("DoSetLedEffect row") << Op([](auto& c) { c.DoSetLedEffect(3, 1); }) << true;
        QTest::newRow("DoSetProfile") << Op([](auto& c) { c.DoSetProfile(1); }) << false;
        QTest::newRow("DoSetKbOption") << Op([](auto& c) { c.DoSetKbOption(2, 1); }) << false;
        QTest::newRow("DoSetSideLed")
            << Op([](auto& c) { c.DoSetSideLed(QByteArray(10, 0)); }) << false;
        QTest::newRow("DoSetMacro pages")
            << Op([](auto& c) { c.DoSetMacro(0x29, 1, 0, 1, QByteArray()); }) << false;
        QTest::newRow("DoStopCalibration") << Op([](auto& c) { c.DoStopCalibration(); }) << false;
    }
    void blockedWhileReading()
    {
        QFETCH(Op, op);
        QFETCH(bool, blocked);
        FakeRig rig;
        rig.hid.failReplies = 1000; // the sequence stalls on its first reply
        rig.conn->DoReadAll();
        rig.clock.advance(100);
        QVERIFY(rig.conn->isReadingAll());
        const QByteArray matrixBefore = rig.conn->GetKeyMatrix(0);
        const int before = rig.conn->queuedCount() + rig.hid.sentFrames().size();
        op(*rig.conn);
        const int after = rig.conn->queuedCount() + rig.hid.sentFrames().size();
        QCOMPARE(after == before, blocked);
        if (blocked) QCOMPARE(rig.conn->GetKeyMatrix(0), matrixBefore);
    }

    void magnetismCache_data()
    {
        QTest::addColumn<int>("table");
        QTest::addColumn<int>("position");
        QTest::addColumn<quint32>("value");
        QTest::addColumn<quint32>("cached");
        QTest::newRow("2-byte table") << 0x00 << 3 << 400u << 400u;
        QTest::newRow("4-byte table") << 0x0A << 127 << 0x12345678u << 0x12345678u;
        QTest::newRow("1-byte table keeps its low byte") << 0xFB << 4 << 300u << 44u;
        QTest::newRow("unknown table") << 0x0B << 0 << 7u << 0u;
        QTest::newRow("past the matrix") << 0x00 << 128 << 7u << 0u;
    }
    void magnetismCache()
    {
        QFETCH(int, table);
        QFETCH(int, position);
        QFETCH(quint32, value);
        QFETCH(quint32, cached);
        FakeRig rig;
        rig.conn->SetMagnetism(quint8(table), quint8(position), value);
        QCOMPARE(rig.conn->GetMagnetism(quint8(table), quint8(position)), cached);
    }

    void millimetres_data()
    {
        QTest::addColumn<float>("mm");
        QTest::addColumn<quint32>("raw");
        QTest::newRow("2.0") << 2.0f << 400u;
        QTest::newRow("0.005") << 0.005f << 1u;
        QTest::newRow("0.004") << 0.004f << 0u;
        QTest::newRow("0.3") << 0.3f << 60u;
        QTest::newRow("3.995") << 3.995f << 799u;
    }
    void millimetres()
    {
        QFETCH(float, mm);
        QFETCH(quint32, raw);
        QCOMPARE(MagnetTables::rawFromMillimetres(mm), raw);
    }

    void keyFlagAndAllKeys()
    {
        FakeRig rig;
        rig.conn->SetMagnetism(0x07, 0, 3);
        rig.conn->DoSetKeyFlag(0x29, true);
        QCOMPARE(rig.conn->GetKeyMode(0x29), 0x83u);
        QCOMPARE(rig.hid.sentFrames(12).last(), hex("65 07 00 00 01 00 00 92 83 00 00 00"));
        rig.conn->DoSetKeyFlag(0x29, false);
        QCOMPARE(rig.conn->GetKeyMode(0x29), 0x03u);
        // All keys: the frame says so and the cache is left as it was.
        rig.conn->DoSetMagnetism(0x07, 0xFF, 2, 1);
        QCOMPARE(rig.conn->GetKeyMode(0x29), 0x03u);
    }

    void calibration()
    {
        FakeRig rig;
        QSignalSpy scans(rig.conn.get(), &DialogDeviceConnect::onCalibration);
        rig.hid.responder = [](const QByteArray& f) {
            QByteArray r(64, char(quint8(f.at(3)) + 1));
            return quint8(f.at(0)) == 0xE5 ? r : f.left(64);
        };
        rig.conn->DoStartCalibration();
        QCOMPARE(rig.hid.sentFrames().last(), hex("1E 01 00 00 00 00 00 E0"));
        rig.clock.advance(120 * 8 + 100);
        QCOMPARE(scans.count(), 2);
        const QByteArray scan = scans.first().first().toByteArray();
        QCOMPARE(scan.size(), 256);
        QCOMPARE(quint8(scan.at(0)), quint8(1));
        QCOMPARE(quint8(scan.at(255)), quint8(4));
        // The FE pages went to the scan, not to the table's cache.
        QCOMPARE(rig.conn->GetMagnetTable(MagnetTables::indexOf(0xFE)).size(), 0);
        rig.conn->DoStopCalibration();
        QCOMPARE(rig.conn->queuedCount(), 0);
        QCOMPARE(rig.hid.sentFrames().last(), hex("1E 00 00 00 00 00 00 E1"));
        const int sent = rig.hid.sentFrames().size();
        rig.clock.advance(1000);
        QCOMPARE(rig.hid.sentFrames().size(), sent);
        // The page counter carries on: a new start begins mid-scan, so its first scan is short.
        rig.conn->DoStartCalibration();
        rig.clock.advance(120 * 2 + 50);
        rig.conn->DoStopCalibration();
        rig.clock.advance(200);
    }

    void roundTrips_data()
    {
        QTest::addColumn<bool>("wireless");
        QTest::newRow("wired") << false;
        QTest::newRow("wireless") << true;
    }
    void roundTrips()
    {
        QFETCH(bool, wireless);
        SimRig rig(wireless);
        QCOMPARE(rig.conn->isWirelessConnection(), wireless);
        rig.conn->DoSetReportRate(2);
        rig.conn->DoSetDebounce(5);
        rig.conn->DoSetLedEffect(4, 1);
        rig.conn->DoSetLedSpeed(1);
        rig.conn->DoSetLedBrightness(2);
        rig.conn->DoSetLedColor(0x0080FF, 7);
        rig.conn->DoSetSleepTime(10, 2);
        rig.conn->DoSetKbOption(2, 1);
        rig.conn->DoSetKbOption(3, 4);
        const quint8 entry[4] = {0x00, 0xE0, 0x04, 0x00};
        rig.conn->DoSetKey(0x04, entry, 1, 1);
        rig.conn->DoSetFnCode(0x1E, false);
        rig.conn->DoSetMagnetism(0x00, 0x04, 300, 0);
        rig.conn->DoSetMagnetism(0xFB, 0x04, 0x1FF, 1);
        rig.conn->DoSetKeyFlag(0x05, true);
        rig.conn->DoSetMacro(0x06, 2, 0, 7, hex("04 B2 04 32 F0 80 2C 01"));
        QVERIFY(rig.settle());

        // The firmware holds what was written.
        const NativeKeyboardModel& fw = rig.fw();
        QCOMPARE(fw.reportRate(), quint8(2));
        QCOMPARE(fw.debounce(), quint8(5));
        QCOMPARE(fw.ledEffect(), quint8(4));
        QCOMPARE(fw.ledParams(4).speed, quint8(3));
        QCOMPARE(fw.ledParams(4).brightness, quint8(2));
        QCOMPARE(fw.ledParams(4).blue, quint8(0xFF));
        QCOMPARE(fw.sleepTime(2), quint16(600));
        QCOMPARE(quint8(fw.optionBlock().at(3)), quint8(1));
        QCOMPARE(quint8(fw.optionBlock().at(4)), quint8(4));
        const int posA = PositionOfCode(0x04);
        QCOMPARE(fw.keyEntry(0, 1, posA), QByteArray(reinterpret_cast<const char*>(entry), 4));
        QCOMPARE(fw.fnEntry(PositionOfCode(0x1E)), hex("00 00 00 01"));
        QCOMPARE(fw.magnetValue(0x00, posA), 300u);
        QCOMPARE(fw.magnetValue(0xFB, posA), 0xFFu);
        QCOMPARE(fw.magnetValue(0x07, PositionOfCode(0x05)), 0x80u);
        QCOMPARE(fw.macro(7).left(10), hex("02 00 04 B2 04 32 F0 80 2C 01"));
        QCOMPARE(fw.keyEntry(0, 0, PositionOfCode(0x06)), hex("09 00 07 00"));

        // A new read sequence brings the same back into the cache.
        const QByteArray cachedKeys = rig.conn->GetKeyMatrix(1);
        QVERIFY(rig.readAgain());
        QCOMPARE(rig.conn->GetKeyMatrix(1), cachedKeys);
        rig.compareCacheWithFirmware();
        QCOMPARE(rig.conn->GetReportRate(), quint8(2));
        QCOMPARE(rig.conn->GetDebounce(), quint8(5));
        QCOMPARE(rig.conn->GetSleepTimes()[2], quint16(600));
        QCOMPARE(rig.conn->GetKbOption(3), quint8(4));
        QCOMPARE(rig.conn->GetMagnetism(0x00, posA), 300u);
        QCOMPARE(rig.conn->GetMagnetism(0xFB, posA), 0xFFu);
        QCOMPARE(rig.conn->GetKeyMode(0x05), 0x80u);
        const QByteArray led = rig.conn->GetLedParams(4);
        QCOMPARE(led.left(8), hex("87 04 03 02 07 00 80 FF"));
    }

    void userPictureRoundTrip()
    {
        SimRig rig;
        QByteArray map(392, '\0');
        for (int i = 0; i < 384; ++i)
            map[i] = char((i * 7) & 0xFF);
        rig.conn->DoWriteUserPic(3, map);
        QVERIFY(rig.settle());
        QCOMPARE(rig.fw().ledEffect(), quint8(13));
        QCOMPARE(rig.fw().picture(3).left(384), map.left(384));
        QSignalSpy picture(rig.conn.get(), &DialogDeviceConnect::onGetPictrue);
        rig.conn->DoReadUserPic(3);
        QVERIFY(rig.settle());
        QCOMPARE(picture.count(), 1);
        QCOMPARE(picture.first().first().toByteArray(), map.left(384));
        QCOMPARE(rig.conn->GetUserPicture(), map.left(384));
    }

    // The same road once on real timers and the connection's own I/O thread: connect, first
    // chain, profile, read sequence.
    void connectToReadDoneInRealTime()
    {
        QtClock clock;
        VirtualHidBackend hid(&clock);
        VirtualKeyboard* keyboard = hid.addWiredKeyboard(0x0EC3, 0x0500);
        QTemporaryDir dir;
        ModuleGenKeymapping keys;
        DialogDeviceConnect conn(&hid, &clock, keys, dir.filePath("device.ini"));
        QObject::connect(&conn, &DialogDeviceConnect::onUpdataLayer, &conn,
                         [&](int layer) { conn.DoSetProfile(quint8(layer)); });
        QSignalSpy done(&conn, &DialogDeviceConnect::onReadDone);
        conn.connectStep();
        QVERIFY(done.wait(20000));
        QCOMPARE(conn.console().versionText(), QString("Ver:0x500 Id:3779[EC3]"));
        QCOMPARE(conn.GetKeyMatrix(0), keyboard->model().keyMap(0, 0));
        QCOMPARE(conn.GetMagnetTable(MagnetTables::indexOf(0x00)),
                 keyboard->model().magnetTable(0x00));
    }

    void keyTestStream()
    {
        SimRig rig;
        QSignalSpy testing(rig.conn.get(), &DialogDeviceConnect::onKeyTesting);
        QSignalSpy samples(rig.conn.get(), &DialogDeviceConnect::onKeyTest);
        rig.conn->DoStartKeyTest();
        rig.clock.advance(2000);
        QVERIFY(rig.fw().keyTestOn());
        QVERIFY(samples.count() > 10);
        float top = 0;
        QObject::connect(rig.conn.get(), &DialogDeviceConnect::onKeyTest, rig.conn.get(),
                         [&] { top = std::max(top, rig.conn->GetKeyTravel()); });
        rig.clock.advance(3000);
        QVERIFY(top > 0.5f);
        rig.conn->DoStopKeyTest();
        QVERIFY(rig.settle());
        QVERIFY(!rig.fw().keyTestOn());
        QCOMPARE(testing.count(), 2);
    }
};

QTEST_GUILESS_MAIN(TestOperations)
#include "tst_operations.moc"
