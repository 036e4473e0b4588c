// The read sequence: its frames and their order, version gates, the end of the sequence, the
// profile switch, failures in the middle, factory reset and the cache accessors.

#include "ConnectionRig.h"
#include "DefaultKeyMaps.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

// The 99 frames of a read sequence on a given profile, as the keyboard must see them, up to the
// checksum (which the frame tests check for every sender).
QList<QByteArray> expectedSequence(quint8 profile, bool withTables)
{
    QList<QByteArray> out;
    for (const char* c : {"83", "87", "88", "86", "91"})
        out.append(hex(c) + QByteArray(6, '\0'));
    for (int layer = 0; layer < 4; ++layer)
        for (int page = 0; page < 8; ++page)
            out.append(QByteArray::fromRawData("\x8A", 1) + char(profile) + char(0xFF) +
                       char(page) + char(layer) + QByteArray(2, '\0'));
    for (int page = 0; page < 10; ++page)
        out.append(hex("90 00 00 FF") + char(page) + QByteArray(2, '\0'));
    if (withTables) {
        const QList<QPair<int, int>> tables{{0x00, 4}, {0x01, 4}, {0x02, 4}, {0x03, 4}, {0x04, 4},
                                            {0x05, 2}, {0x06, 4}, {0x07, 2}, {0x08, 2}, {0x09, 2},
                                            {0x0A, 8}, {0xFF, 4}, {0xFE, 4}, {0xFC, 2}, {0xFB, 2}};
        for (const auto& [table, pages] : tables)
            for (int page = 0; page < pages; ++page)
                out.append(hex("E5") + char(table) + char(1) + char(page) + QByteArray(3, '\0'));
    }
    return out;
}

// Page replies carry a marker of their page, so that a test can see where each one went.
struct Rig : ConnectionRig
{
    quint16 version = 0x300;

    Rig()
    {
        followLayer();
        hid.responder = [this](const QByteArray& f) {
            QByteArray r(64, '\0');
            switch (quint8(f.at(0))) {
            case 0x8F:
                return identity(version);
            case 0x8A:
                r.fill(char(0x10 * quint8(f.at(4)) + quint8(f.at(3))));
                return r;
            case 0x90:
                r.fill(char(0xA0 + quint8(f.at(4))));
                return r;
            case 0xE5:
                r.fill(char(quint8(f.at(1)) ^ quint8(f.at(3))));
                return r;
            case 0x91:
                return hex("91 00 00 00 00 00 00 00 3C 00 2C 01 10 0E 00 00");
            default:
                return f.left(64);
            }
        };
    }
    QSignalSpy done{conn.get(), &DialogDeviceConnect::onReadDone};

    bool runUntilDone(int count = 1)
    {
        return clock.advanceUntil([&] { return done.count() >= count; }, 60000);
    }
    // Connected, with the first read sequence done.
    bool connectAndRead()
    {
        connectWired();
        return runUntilDone();
    }
    // The heads of the frames sent since the given time, up to the checksum.
    QList<QByteArray> lastSequence(qint64 since) const
    {
        QList<QByteArray> out;
        for (const auto& t : hid.log)
            if (t.kind == "feature>" && t.at >= since) out.append(t.bytes.mid(1, 7));
        return out;
    }
};

} // namespace

class TestReadSequence : public QObject
{
    Q_OBJECT

private slots:
    void framesByVersion_data()
    {
        QTest::addColumn<int>("version");
        QTest::addColumn<bool>("tables");
        QTest::addColumn<int>("scale");
        QTest::newRow("0x2FF") << 0x2FF << false << 10;
        QTest::newRow("0x300") << 0x300 << true << 100;
        QTest::newRow("0x4FF") << 0x4FF << true << 100;
        QTest::newRow("0x500") << 0x500 << true << 200;
    }
    void framesByVersion()
    {
        QFETCH(int, version);
        QFETCH(bool, tables);
        QFETCH(int, scale);
        Rig rig;
        rig.version = quint16(version);
        qint64 started = -1;
        QObject::connect(rig.conn.get(), &DialogDeviceConnect::onReadAll, rig.conn.get(),
                         [&] { started = rig.clock.elapsedMs(); });
        rig.connectWired();
        QVERIFY(rig.clock.advanceUntil([&] { return rig.conn->GetTravelScale() == scale; }, 500));
        QCOMPARE(rig.conn->VersionAtLeast300(), version >= 0x300);
        QCOMPARE(rig.conn->VersionAtLeast400(), version >= 0x400);
        QVERIFY(rig.runUntilDone());
        // The last sequence that ran is the one to compare (the first chain may start two).
        const QList<QByteArray> sent = rig.lastSequence(started);
        QCOMPARE(sent, expectedSequence(0, tables));
        QCOMPARE(sent.size(), tables ? 99 : 47);
        // The version is not asked again; the field reads 0 while the label keeps it.
        QCOMPARE(rig.conn->GetFirmwareVersion(), quint16(0));
        QCOMPARE(rig.conn->GetTravelScale(), quint16(10));
        QVERIFY(
            rig.conn->console().versionText().startsWith(QString::asprintf("Ver:0x%03X", version)));
        // The cache holds what came: four layers of eight pages in page order.
        for (int layer = 0; layer < 4; ++layer) {
            const QByteArray m = rig.conn->GetKeyMatrix(layer);
            QCOMPARE(m.size(), 512);
            for (int page = 0; page < 8; ++page)
                QCOMPARE(quint8(m.at(page * 64)), quint8(0x10 * layer + page));
        }
        QCOMPARE(rig.conn->GetFnMatrix(0).size(), 640);
        QCOMPARE(quint8(rig.conn->GetFnMatrix(0).at(639)), quint8(0xA9));
        QCOMPARE(rig.conn->GetMagnetTable(MagnetTables::indexOf(0x0A)).size(), tables ? 512 : 0);
        QCOMPARE(rig.conn->GetSleepTimes()[1], quint16(300));
        QCOMPARE(rig.conn->GetSleepTimes()[2], quint16(3600));
    }

    void readDoneComesFiftyMillisecondsAfterTheEnd()
    {
        Rig rig;
        rig.connectWired();
        QVERIFY(rig.clock.advanceUntil([&] { return rig.conn->isReadingAll(); }, 2000));
        QVERIFY(rig.clock.advanceUntil([&] { return !rig.conn->isReadingAll(); }, 20000));
        const qint64 ended = rig.clock.elapsedMs();
        const qint64 lastReply = rig.hid.log.last().at;
        QVERIFY(ended - lastReply >= 10); // the pump step after the last reply ends it
        QCOMPARE(rig.done.count(), 0);
        // The pages are in place at the end, before the signal.
        QCOMPARE(rig.conn->GetKeyMatrix(0).size(), 512);
        rig.clock.advance(49);
        QCOMPARE(rig.done.count(), 0);
        rig.clock.advance(1);
        QCOMPARE(rig.done.count(), 1);
    }

    void profileDecidesTheKeyFrames()
    {
        Rig rig;
        QVERIFY(rig.connectAndRead());
        rig.clock.advance(2000);
        const qint64 since = rig.clock.elapsedMs();
        rig.done.clear();
        rig.conn->DoSetProfile(2);
        // 04 goes out at once as a 12-byte command; the read starts 500 ms later.
        QCOMPARE(rig.hid.sentFrames(12).last(), hex("04 02 00 00 00 00 00 F9 00 00 00 00"));
        QVERIFY(rig.runUntilDone());
        const QList<QByteArray> sent = rig.lastSequence(since + 500);
        QCOMPARE(sent, expectedSequence(2, true));
    }

    void setProfileTwiceReadsTwice()
    {
        Rig rig;
        QVERIFY(rig.connectAndRead());
        rig.clock.advance(2000);
        QSignalSpy readAll(rig.conn.get(), &DialogDeviceConnect::onReadAll);
        rig.done.clear();
        rig.conn->DoSetProfile(1);
        rig.clock.advance(200);
        rig.conn->DoSetProfile(3);
        QVERIFY(rig.runUntilDone());
        rig.clock.advance(500);
        QCOMPARE(readAll.count(), 2);
        QCOMPARE(rig.done.count(), 1);
        QCOMPARE(rig.conn->GetCurrentProfile(), quint8(3));
    }

    void readAllDropsWaitingFrames()
    {
        Rig rig;
        QVERIFY(rig.connectAndRead());
        rig.hid.failReplies = 1;
        rig.conn->DoSendHex("06 01", false);
        rig.conn->DoSendHex("06 02", false);
        rig.clock.advance(100);
        QCOMPARE(rig.conn->queuedCount(), 1);
        const qint64 since = rig.clock.elapsedMs();
        rig.conn->DoReadAll();
        QVERIFY(rig.runUntilDone(2));
        QCOMPARE(rig.lastSequence(since), expectedSequence(0, true));
    }

    void missingReplyInTheMiddle()
    {
        Rig rig;
        QVERIFY(rig.connectAndRead());
        rig.conn->DoReadAll();
        rig.clock.advance(600);
        rig.hid.failReplies = 1;
        rig.clock.advance(10000);
        // The pump stopped: the flag stays up, no signal, and writes stay blocked.
        QVERIFY(rig.conn->isReadingAll());
        QCOMPARE(rig.done.count(), 1);
        QVERIFY(rig.conn->queuedCount() > 0);
        const int sent = rig.hid.sentFrames().size();
        rig.conn->console().rows().setCell(rig.conn->console().rowOfCommand(0x06), 1, 3);
        rig.conn->BuildRowCommand(rig.conn->console().rowOfCommand(0x06), true);
        QCOMPARE(rig.hid.sentFrames().size(), sent);
        // A kick restarts the pump and the sequence runs out.
        rig.conn->DoSendCommand(0x86, 8, false);
        QVERIFY(rig.runUntilDone(2));
        QVERIFY(!rig.conn->isReadingAll());
    }

    void deviceGoneThenBack()
    {
        Rig rig;
        QSignalSpy lost(rig.conn.get(), &DialogDeviceConnect::onDisconnect);
        QVERIFY(rig.connectAndRead());
        rig.conn->DoReadAll();
        rig.clock.advance(300);
        // Unplugged: reads fail, then the hot-plug path finds nothing.
        const QList<HidDeviceInfo> saved = rig.hid.entries;
        rig.hid.entries.clear();
        rig.hid.failReplies = 1000;
        rig.conn->onDevicePluggined();
        rig.clock.advance(1000);
        QCOMPARE(lost.count(), 1);
        QVERIFY(!rig.conn->isConnected());
        QVERIFY(rig.conn->isReadingAll());
        QCOMPARE(rig.hid.openHandles(), 0);
        // Plugged in again: the connect runs the chain and a new sequence ends the old one.
        rig.hid.entries = saved;
        rig.hid.failReplies = 0;
        rig.conn->onDevicePluggined();
        QVERIFY(rig.runUntilDone(2));
        QVERIFY(!rig.conn->isReadingAll());
        QCOMPARE(rig.conn->GetKeyMatrix(3).size(), 512);
        QCOMPARE(rig.hid.openHandles(), 3);
    }

    void factoryReset()
    {
        Rig rig;
        QVERIFY(rig.connectAndRead());
        QVERIFY(rig.conn->GetKeyMatrix(0) != DefaultKeyMaps::DefaultKeyMap());
        const qint64 since = rig.clock.elapsedMs();
        rig.conn->DoFactoryReset();
        // The defaults are in place at once; the reset row goes out before the reads.
        QCOMPARE(rig.conn->GetKeyMatrix(0), DefaultKeyMaps::DefaultKeyMap());
        QCOMPARE(rig.conn->GetFnMatrix(0), DefaultKeyMaps::DefaultFnMap());
        QVERIFY(rig.runUntilDone(2));
        const QList<QByteArray> sent = rig.lastSequence(since);
        QCOMPARE(sent.first(), hex("01 00 00 00 00 00 00"));
        QCOMPARE(sent.mid(1), expectedSequence(0, true));
    }

    void getKeyEntry()
    {
        Rig rig;
        quint8 e[4];
        rig.conn->GetKeyEntry(e, 0, 0);
        QCOMPARE(QByteArray(reinterpret_cast<char*>(e), 4), hex("00 00 29 00"));
        rig.conn->GetKeyEntry(e, 65, 0);
        QCOMPARE(QByteArray(reinterpret_cast<char*>(e), 4), hex("0A 01 00 00"));
        rig.conn->GetKeyEntry(e, 1, 0xF0);
        QCOMPARE(QByteArray(reinterpret_cast<char*>(e), 4), hex("0A 02 00 00"));
        // Layers the cache doesn't hold read as zeros.
        rig.conn->GetKeyEntry(e, 0, 2);
        QCOMPARE(QByteArray(reinterpret_cast<char*>(e), 4), QByteArray(4, '\0'));
        rig.conn->GetKeyEntry(e, 127, 0xF9);
        QCOMPARE(QByteArray(reinterpret_cast<char*>(e), 4), QByteArray(4, '\0'));
    }
};

QTEST_GUILESS_MAIN(TestReadSequence)
#include "tst_readsequence.moc"
