// The connection: connect step, queue and pump, reply dispatch, input poll and hot-plug path,
// against a strict scripted backend in virtual time.

#include "ConnectionRig.h"
#include "DeviceLink.h"
#include "Frame.h"
#include "HidIoThread.h"

#include <QSettings>
#include <QSignalSpy>
#include <QtTest>
#include <atomic>

namespace {

// The scripted backend, with a count of feature sends that another thread may read.
struct CountingHid : FakeHidBackend
{
    using FakeHidBackend::FakeHidBackend;
    std::atomic<int> sends{0};
    int sendFeatureReport(HidHandle* h, const quint8* data, size_t length) override
    {
        const int n = FakeHidBackend::sendFeatureReport(h, data, length);
        ++sends;
        return n;
    }
};

// A keyboard that names itself, firmware 0x300, and echoes every other command.
struct Rig : ConnectionRig
{
    Rig()
    {
        hid.responder = [](const QByteArray& frame) {
            return quint8(frame.at(0)) == 0x8F ? identity(0x0300) : frame.left(64);
        };
    }
    // The keyboard answers this command with this reply, and the others as before.
    void answer(quint8 command, const QByteArray& reply)
    {
        hid.responder = [next = hid.responder, command, reply](const QByteArray& f) {
            return quint8(f.at(0)) == command ? reply : next(f);
        };
    }
    // Connected, with the first command chain done.
    void connectAndSettle()
    {
        connectWired();
        clock.advance(1000);
    }
};

} // namespace

class TestConnection : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void noDeviceDropsCommands()
    {
        Rig rig;
        rig.conn->DoSendCommand(0x8F, 1, true);
        rig.conn->DoSendHex("1B 01", false);
        rig.conn->DoSetProfile(1);
        QCOMPARE(rig.conn->queuedCount(), 0);
        rig.clock.advance(2000);
        QCOMPARE(rig.hid.sentFrames().size(), 0);
        // The read sequence still rises and, with no pump step ever running, stays up.
        QVERIFY(rig.conn->isReadingAll());
    }

    void wiredConnectOpensThreeHandles()
    {
        Rig rig;
        QSignalSpy connected(rig.conn.get(), &DialogDeviceConnect::onConnect);
        QSignalSpy lost(rig.conn.get(), &DialogDeviceConnect::onDisconnect);
        rig.connectWired();
        QCOMPARE(connected.count(), 1);
        QCOMPARE(lost.count(), 0);
        QCOMPARE(rig.hid.openHandles(), 3);
        QVERIFY(rig.conn->console().inputLampOk() && rig.conn->console().commandLampOk());
        // The input handle is non-blocking; the command handles are left as opened.
        QCOMPARE(rig.hid.count("nonblock"), 1);
        // "1B 01" goes out at once, 8F five milliseconds later.
        QCOMPARE(rig.hid.sentFrames().size(), 1);
        QCOMPARE(rig.hid.sentFrames().at(0), hex("1B 01 00 00 00 00 00 E3"));
        rig.clock.advance(5);
        QCOMPARE(rig.hid.sentFrames().size(), 2);
        QCOMPARE(rig.hid.sentFrames().at(1), hex("8F 00 00 00 00 00 00 70"));
        QCOMPARE(rig.hid.log.last().bytes.size(), 65);
        QSettings ini(rig.iniPath(), QSettings::IniFormat);
        QCOMPARE(ini.value("lastVID").toString(), QString("3151"));
        QCOMPARE(ini.value("lastPID").toString(), QString("502F"));
    }

    void wiredConnectFailures_data()
    {
        QTest::addColumn<bool>("withInput");
        QTest::addColumn<bool>("inputOpens");
        QTest::addColumn<int>("connects");
        QTest::addColumn<int>("disconnects");
        QTest::newRow("no input interface") << false << true << 0 << 1;
        QTest::newRow("input interface refuses") << true << false << 0 << 1;
        QTest::newRow("complete") << true << true << 1 << 0;
    }
    void wiredConnectFailures()
    {
        QFETCH(bool, withInput);
        QFETCH(bool, inputOpens);
        QFETCH(int, connects);
        QFETCH(int, disconnects);
        Rig rig;
        if (withInput) rig.hid.addEntry(0x3151, 0x502F, 0xFFFF, 1, "in");
        rig.hid.addEntry(0x3151, 0x502F, 0xFFFF, 2, "cmd");
        if (!inputOpens) rig.hid.failingPaths.append("in");
        QSignalSpy connected(rig.conn.get(), &DialogDeviceConnect::onConnect);
        QSignalSpy lost(rig.conn.get(), &DialogDeviceConnect::onDisconnect);
        rig.conn->DoConnectDevice(0x3151, 0x502F, false, "x", "p");
        QCOMPARE(connected.count(), connects);
        QCOMPARE(lost.count(), disconnects);
        // hid_set_nonblocking is never called on a failed open.
        QCOMPARE(rig.hid.count("nonblock"), (withInput && inputOpens) ? 1 : 0);
        rig.clock.advance(100);
        QCOMPARE(rig.hid.sentFrames().isEmpty(), connects == 0);
        QCOMPARE(QFile::exists(rig.iniPath()), connects == 1);
    }

    void failedOpenWalksOn()
    {
        Rig rig;
        rig.hid.addEntry(0x3151, 0x502F, 0xFFFF, 1, "in-a");
        rig.hid.addEntry(0x3151, 0x502F, 0xFFFF, 1, "in-b");
        rig.hid.addEntry(0x3151, 0x502F, 0xFFFF, 2, "cmd");
        rig.hid.failingPaths.append("in-a");
        QSignalSpy connected(rig.conn.get(), &DialogDeviceConnect::onConnect);
        rig.conn->DoConnectDevice(0x3151, 0x502F, false, "x", "p");
        QCOMPARE(connected.count(), 1);
        QCOMPARE(rig.hid.openHandles(), 3);
    }

    void connectingTwice()
    {
        Rig rig;
        rig.hid.addWiredKeyboard();
        QSignalSpy connected(rig.conn.get(), &DialogDeviceConnect::onConnect);
        rig.conn->DoConnectDevice(0x3151, 0x502F, false, "0AF7", "path");
        rig.conn->DoConnectDevice(0x3151, 0x502F, false, "0AF7", "path");
        QCOMPARE(connected.count(), 1);
        rig.conn->DoConnectDevice(0x3151, 0x502F, false, "0EC3", "path");
        QCOMPARE(connected.count(), 2);
        // Reconnecting closes the old handles first.
        QCOMPARE(rig.hid.openHandles(), 3);
    }

    void wirelessConnect()
    {
        Rig rig;
        rig.hid.addEntry(0x3151, 0x5030, 0xFF55, 0x0202, "bt");
        QSignalSpy connected(rig.conn.get(), &DialogDeviceConnect::onConnect);
        QSignalSpy lost(rig.conn.get(), &DialogDeviceConnect::onDisconnect);
        rig.conn->DoConnectDevice(0x3151, 0x5030, true, "0AF7", "bt");
        QCOMPARE(connected.count(), 1);
        QCOMPARE(rig.hid.openHandles(), 1);
        QCOMPARE(rig.hid.log.at(1).kind, QString("nonblock"));
        QCOMPARE(rig.hid.log.at(1).bytes, QByteArray(1, 0)); // blocking reads
        rig.clock.advance(5);
        QCOMPARE(rig.hid.log.last().kind, QString("write"));
        QCOMPARE(rig.hid.log.last().bytes.size(), 66);
        QCOMPARE(rig.hid.log.last().bytes.left(10), hex("06 55 8F 00 00 00 00 00 00 70"));
        // The read step runs 100 ms after the write, and the chain goes on with 89.
        rig.clock.advance(99);
        QCOMPARE(rig.hid.count("read"), 0);
        rig.clock.advance(1);
        QCOMPARE(rig.hid.count("read"), 1);
        QCOMPARE(rig.conn->GetFirmwareVersion(), quint16(0x300));
        rig.clock.advance(15);
        QCOMPARE(rig.hid.sentFrames().last(), hex("89 00 00 00 00 00 00 76"));
        QCOMPARE(lost.count(), 0);
        QVERIFY(!QFile::exists(rig.iniPath()));
    }

    void wirelessOpenFails()
    {
        Rig rig;
        rig.hid.failingPaths.append("bt");
        QSignalSpy connected(rig.conn.get(), &DialogDeviceConnect::onConnect);
        QSignalSpy lost(rig.conn.get(), &DialogDeviceConnect::onDisconnect);
        rig.conn->DoConnectDevice(0x3151, 0x5030, true, "0AF7", "bt");
        QCOMPARE(connected.count(), 1);
        QCOMPARE(lost.count(), 0);
        QCOMPARE(rig.conn->queuedCount(), 0);
        QCOMPARE(rig.hid.count("nonblock"), 0);
    }

    void firstCommandChain()
    {
        Rig rig;
        QSignalSpy layer(rig.conn.get(), &DialogDeviceConnect::onUpdataLayer);
        rig.answer(0x84, hex("84 FF"));
        rig.connectWired();
        QVERIFY(rig.clock.advanceUntil([&] { return layer.count() > 0; }, 1000));
        // The profile byte is sign-extended.
        QCOMPARE(layer.first().first().toInt(), -1);
        QCOMPARE(rig.conn->console().versionText(), QString("Ver:0x300 Id:2807[AF7]"));
        QList<quint8> order;
        for (const QByteArray& f : rig.hid.sentFrames())
            if (order.isEmpty() || order.last() != quint8(f.at(0))) order.append(quint8(f.at(0)));
        QCOMPARE(order.mid(0, 4), (QList<quint8>{0x1B, 0x8F, 0x89, 0x84}));
    }

    void twoImmediateKicks()
    {
        Rig rig;
        rig.connectWired();
        rig.clock.advance(200);
        QSignalSpy back(rig.conn.get(), &DialogDeviceConnect::onReadBack);
        rig.hid.log.clear();
        rig.conn->DoSendHex("06 03", true);
        rig.conn->DoSendHex("03 00 05", true);
        // Both frames go out back to back; no command is ever "in flight".
        QCOMPARE(rig.hid.sentFrames().size(), 2);
        QCOMPARE(rig.hid.log.at(0).at, rig.hid.log.at(1).at);
        rig.clock.advance(20);
        QCOMPARE(back.count(), 2);
        // Both reads answer for the frame sent last.
        QCOMPARE(back.at(0).first().toByteArray().left(3), hex("03 00 05"));
        QCOMPARE(back.at(1).first().toByteArray().left(3), hex("03 00 05"));
        QCOMPARE(rig.conn->LastCommand().left(3), hex("03 00 05"));
    }

    void missingReplyStopsThePump()
    {
        Rig rig;
        rig.connectAndSettle();
        rig.hid.log.clear();
        rig.hid.failReplies = 1;
        rig.conn->DoSendHex("86", false);
        rig.conn->DoSendHex("83", false);
        rig.clock.advance(1000);
        // The first reply failed: the pump stopped with 83 still waiting.
        QCOMPARE(rig.hid.sentFrames().size(), 1);
        QCOMPARE(rig.conn->queuedCount(), 1);
        // The next kick sends the front of the queue, not the new command.
        rig.conn->DoSendHex("06 02", true);
        QCOMPARE(rig.hid.sentFrames().last().at(0), char(0x83));
        rig.clock.advance(100);
        QCOMPARE(rig.hid.sentFrames().last().at(0), char(0x06));
        QCOMPARE(rig.conn->queuedCount(), 0);
    }

    void dispatchFollowsLastCommand()
    {
        Rig rig;
        // The keyboard answers 86 with a reply that doesn't even start with 86.
        rig.answer(0x86, hex("05 04 00 00 00 00 00 00"));
        rig.connectAndSettle();
        const int row = rig.conn->console().rowOfCommand(0x05);
        const QByteArray before = rig.conn->console().rows().bytes(row);
        rig.conn->DoSendHex("86", true);
        rig.clock.advance(20);
        QCOMPARE(rig.conn->GetDebounce(), quint8(4));
        // Without bit 7 in its first byte the reply doesn't touch the console's rows.
        QCOMPARE(rig.conn->console().rows().bytes(row), before);
    }

    void readRepliesFillConsoleRows()
    {
        Rig rig;
        rig.answer(0x87, hex("87 05 01 02 27 10 20 30"));
        rig.connectAndSettle();
        rig.conn->DoSendHex("87", true);
        rig.clock.advance(20);
        QCOMPARE(rig.conn->GetLedParams(5).left(8), hex("87 05 01 02 27 10 20 30"));
        // The row of 07 shows effect, 4 minus speed and brightness; the 87 row shows 1..7.
        const ConsoleRows& rows = rig.conn->console().rows();
        QCOMPARE(rows.cell(rows.rowOf(0x07), 1), 5);
        QCOMPARE(rows.cell(rows.rowOf(0x07), 2), 3);
        QCOMPARE(rows.cell(rows.rowOf(0x07), 3), 2);
        QCOMPARE(rows.cell(rows.rowOf(0x07), 4), 7); // untouched
        QCOMPARE(rows.bytes(rows.rowOf(0x87)), hex("87 05 01 02 27 10 20 30"));
    }

    void inputPoll_data()
    {
        QTest::addColumn<QByteArray>("report");
        QTest::addColumn<bool>("sample");
        QTest::addColumn<float>("travel");
        QTest::newRow("report 05") << hex("05 00 68 01") << true << float(360 / 720.0);
        QTest::newRow("stream 1B") << hex("07 1B D0 02") << true << 1.0f;
        QTest::newRow("other") << hex("01 02 03 04") << false << 0.0f;
    }
    void inputPoll()
    {
        QFETCH(QByteArray, report);
        QFETCH(bool, sample);
        QFETCH(float, travel);
        Rig rig;
        rig.connectAndSettle();
        QSignalSpy tested(rig.conn.get(), &DialogDeviceConnect::onKeyTest);
        rig.hid.inputReports.push_back(report);
        rig.clock.advance(20);
        QCOMPARE(tested.count(), sample ? 1 : 0);
        QCOMPARE(rig.conn->GetKeyTravel(), travel);
    }

    void inputPollPausesDuringReadAll()
    {
        Rig rig;
        rig.connectAndSettle();
        rig.hid.inputReports.push_back(hex("05 1B 10 00"));
        rig.conn->DoReadAll();
        rig.clock.advance(200);
        QCOMPARE(rig.hid.inputReports.size(), size_t(1));
        QVERIFY(rig.clock.advanceUntil([&] { return !rig.conn->isReadingAll(); }, 10000));
        rig.clock.advance(40);
        QCOMPARE(rig.hid.inputReports.size(), size_t(0));
    }

    // The poll reads every 20 ms while the input handle is open, and wakes nothing without it:
    // before the first connect, and after the keyboard is gone. Nor does the music timer, with
    // the music effect not chosen: an unconnected connection arms nothing at all.
    void inputPollOnlyWithAnInputHandle()
    {
        Rig rig;
        const int unconnected = 0;
        QCOMPARE(rig.clock.pendingCount(), unconnected);
        rig.connectAndSettle();
        QCOMPARE(rig.clock.pendingCount(), unconnected + 1);
        for (int i = 0; i < 20; ++i)
            rig.hid.inputReports.push_back(hex("01 02 03 04"));
        rig.clock.advance(200);
        QCOMPARE(rig.hid.inputReports.size(), size_t(10));
        rig.hid.entries.clear();
        rig.conn->connectStep();
        rig.clock.advance(1000);
        QCOMPARE(rig.clock.pendingCount(), unconnected);
        QCOMPARE(rig.hid.inputReports.size(), size_t(10));
    }

    void stepArmedBeforeDisconnectDoesNothing()
    {
        Rig rig;
        rig.connectWired();
        rig.clock.advance(5); // 8F sent; its read step is armed
        rig.hid.entries.clear();
        rig.conn->connectStep(); // the keyboard is gone
        QVERIFY(!rig.conn->isConnected());
        const int calls = rig.hid.log.size();
        rig.clock.advance(100);
        QCOMPARE(rig.hid.log.size(), calls);
    }

    void hotplugRefresh()
    {
        Rig rig;
        rig.connectWired();
        rig.hid.addWiredKeyboard(0x5030);
        rig.clock.advance(3000);
        QSignalSpy connected(rig.conn.get(), &DialogDeviceConnect::onConnect);
        const int enumerations = rig.hid.enumerateCalls;
        // Twenty changes 100 ms apart give one refresh, 800 ms after the last.
        for (int i = 0; i < 20; ++i) {
            rig.conn->onDevicePluggined();
            rig.clock.advance(100);
        }
        QCOMPARE(rig.hid.enumerateCalls, enumerations);
        rig.clock.advance(699);
        QCOMPARE(rig.hid.enumerateCalls, enumerations);
        rig.clock.advance(1);
        // Refresh enumerates the vendor, then the connect step enumerates vid and pid.
        QCOMPARE(rig.hid.enumerateCalls, enumerations + 2);
        QCOMPARE(connected.count(), 1);
        QCOMPARE(rig.conn->console().pidList(), (QStringList{"502F", "5030"}));
        QCOMPARE(rig.conn->console().pidListIndex(), 0);
        QCOMPARE(rig.conn->console().pidText(), QString("502F"));
        // Choosing another product id by hand connects to it.
        rig.hid.log.clear();
        rig.conn->selectPid("5030");
        QCOMPARE(connected.count(), 2);
        QList<QByteArray> opened;
        for (const auto& t : rig.hid.log)
            if (t.kind == "open") opened.append(t.path);
        QCOMPARE(opened, (QList<QByteArray>{"in:5030", "cmd:5030", "cmd:5030"}));
    }

    // The music report's round on the link's third handle: ten sends 20 ms apart, each followed
    // by a read that is dropped; none without that handle.
    void musicRoundOnItsOwnHandle()
    {
        ManualClock clock;
        FakeHidBackend hid(&clock);
        InlineHidExecutor io;
        DeviceLink link(hid, clock, io);
        bool done = false;
        link.sendMusicRound(hex("00 0D 05"), 10, 20, [&] { done = true; });
        QVERIFY(!done);
        QVERIFY(hid.log.isEmpty());

        hid.addWiredKeyboard();
        link.openWired(0x3151, 0x502F,
                       [](DeviceLink::WiredOpen opened) { QVERIFY(opened.complete()); });
        QList<const HidHandle*> opened;
        for (const auto& t : hid.log)
            if (t.kind == "open") opened.append(t.handle);
        QCOMPARE(opened.size(), 3); // input, command, music
        hid.log.clear();
        const qint64 start = clock.elapsedMs();
        link.sendMusicRound(hex("00 0D 05"), 10, 20, [&] { done = true; });
        QVERIFY(done);
        QCOMPARE(hid.log.size(), 20);
        for (int i = 0; i < 10; ++i) {
            const auto& send = hid.log.at(2 * i);
            const auto& read = hid.log.at(2 * i + 1);
            QCOMPARE(send.kind, QString("feature>"));
            QCOMPARE(send.bytes, hex("00 0D 05"));
            QCOMPARE(send.at, start + 20 * i);
            QCOMPARE(read.kind, QString("feature<"));
            QCOMPARE(send.handle, opened.at(2));
            QCOMPARE(read.handle, opened.at(2));
        }
        QCOMPARE(clock.elapsedMs(), start + 200);
    }

    // On the I/O thread a round waits out its pauses there. The effect going off, or the
    // handles closing, cuts it after the read it is at; either way it reports its end, so that
    // the music timer goes on.
    void musicRoundCut_data()
    {
        QTest::addColumn<bool>("closeHandles");
        QTest::newRow("effect off") << false;
        QTest::newRow("handles closed") << true;
    }
    void musicRoundCut()
    {
        QFETCH(bool, closeHandles);
        ManualClock clock;
        CountingHid hid(&clock);
        hid.addWiredKeyboard();
        HidIoThread io;
        DeviceLink link(hid, clock, io);
        bool opened = false;
        link.openWired(0x3151, 0x502F, [&](DeviceLink::WiredOpen o) { opened = o.complete(); });
        QTRY_VERIFY(opened);

        bool done = false;
        link.sendMusicRound(hex("00 0D 05"), 10, 20, [&] { done = true; });
        QTRY_COMPARE(hid.sends.load(), 1); // and now waiting on the clock
        if (closeHandles)
            link.closeHandles();
        else
            link.stopMusicRound();
        for (int i = 0; i < 100 && !done; ++i) {
            clock.advance(20);
            QTest::qWait(2);
        }
        QVERIFY(done);
        bool drained = false; // the handles' close too, before the log is read here
        io.submit([] {}, [&] { drained = true; });
        QTRY_VERIFY(drained);
        QCOMPARE(hid.sends.load(), 1);
        QCOMPARE(hid.count("feature<"), 1);
        QVERIFY(link.isIdle());
    }

    void consoleWrite()
    {
        Rig rig;
        rig.connectWired();
        rig.clock.advance(3000);
        rig.hid.log.clear();
        ConsoleRows& rows = rig.conn->console().rows();
        const int row = rows.rowOf(0x07);
        rows.setCell(row, 3, 9);
        rig.conn->BuildRowCommand(row, false);
        QCOMPARE(rig.conn->console().commandLine(), QString("07 01 03 09 07 FF FF FF"));
        QCOMPARE(rig.hid.sentFrames().size(), 0);
        rig.conn->BuildRowCommand(row, true);
        QCOMPARE(rig.hid.sentFrames(9).last(),
                 Frame::close(hex("07 01 03 09 07 FF FF FF")).left(9));
        // Hex that stops making sense is sent as far as it parses.
        rig.conn->console().setCommandLine(" 06 02 zz");
        rig.conn->writeCommandLine();
        QCOMPARE(rig.hid.sentFrames().last().left(2), hex("06 02"));
    }
};

QTEST_GUILESS_MAIN(TestConnection)
#include "tst_connection.moc"
