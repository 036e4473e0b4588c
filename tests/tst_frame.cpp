// Framing, checksum, transports and the command catalogue.

#include "CommandCatalogue.h"
#include "CommandLayouts.h"
#include "ConsoleModel.h"
#include "FakeHidBackend.h"
#include "Frame.h"
#include "ManualClock.h"

#include <QtTest>

namespace {

// The frame cut after its last non-zero byte, for comparing with written-out examples.
QByteArray trimmed(QByteArray bytes)
{
    while (!bytes.isEmpty() && bytes.back() == '\0')
        bytes.chop(1);
    return bytes;
}

} // namespace

class TestFrame : public QObject
{
    Q_OBJECT

private slots:
    void workedExamples_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<QByteArray>("logical");
        QTest::addColumn<QByteArray>("wired");
        QTest::addColumn<QByteArray>("wireless");
        QTest::newRow("CMD_GET_INFOR")
            << hex("8F") << hex("8F 00 00 00 00 00 00 70") << hex("00 8F 00 00 00 00 00 00 70")
            << hex("06 55 8F 00 00 00 00 00 00 70");
        QTest::newRow("CMD_GET_KEYMATRIX")
            << hex("8A 00 FF 00 00 00 00 00") << hex("8A 00 FF 00 00 00 00 76")
            << hex("00 8A 00 FF 00 00 00 00 76") << hex("06 55 8A 00 FF 00 00 00 00 76");
        QTest::newRow("CMD_SET_LEDPARAM")
            << hex("07 01 03 03 07 FF FF FF") << hex("07 01 03 03 07 FF FF FF ED")
            << hex("00 07 01 03 03 07 FF FF FF ED") << hex("06 55 07 01 03 03 07 FF FF FF ED");
        QTest::newRow("key test on")
            << hex("1B 01") << hex("1B 01 00 00 00 00 00 E3") << hex("00 1B 01 00 00 00 00 00 E3")
            << hex("06 55 1B 01 00 00 00 00 00 E3");
        QTest::newRow("calibration page")
            << hex("E5 FE 01 02") << hex("E5 FE 01 02 00 00 00 19")
            << hex("00 E5 FE 01 02 00 00 00 19") << hex("06 55 E5 FE 01 02 00 00 00 19");
    }
    void workedExamples()
    {
        QFETCH(QByteArray, command);
        QFETCH(QByteArray, logical);
        QFETCH(QByteArray, wired);
        QFETCH(QByteArray, wireless);
        const QByteArray closed = Frame::close(command);
        QCOMPARE(closed.size(), command.size() + 128);
        QCOMPARE(trimmed(closed), trimmed(logical));
        const QByteArray w = Frame::wrapWired(closed);
        QCOMPARE(w.size(), 65);
        QCOMPARE(trimmed(w), trimmed(wired));
        const QByteArray wl = Frame::wrapWireless(closed);
        QCOMPARE(wl.size(), 66);
        QCOMPARE(trimmed(wl), trimmed(wireless));
    }

    void checksumPlacement()
    {
        // Commands 07 and 08 keep byte 7 (blue) and carry the checksum at 8.
        QByteArray led = Frame::close(hex("08 01 03 03 07 FF FF FF"));
        QCOMPARE(quint8(led.at(7)), quint8(0xFF));
        QCOMPARE(quint8(led.at(8)), quint8(0xEC));
        // Any other command loses a byte written at offset 7.
        QByteArray c = Frame::close(hex("06 03 00 00 00 00 00 AA"));
        QCOMPARE(quint8(c.at(7)), quint8(0xF6));
        // The payload is not covered.
        QByteArray withPayload = hex("65 00 00 00 01 00 00 00 90 01 00 00");
        QCOMPARE(Frame::close(withPayload).at(7), Frame::close(withPayload.left(8)).at(7));
        QCOMPARE(quint8(Frame::close(withPayload).at(7)), quint8(0x99));
        // Bytes 0 to n and the checksum sum to FF.
        QByteArray any = Frame::close(hex("8A 03 FF 07 03"));
        quint8 sum = 0;
        for (int i = 0; i <= 7; ++i)
            sum = quint8(sum + quint8(any.at(i)));
        QCOMPARE(sum, quint8(0xFF));
        // A bare command is never longer than a frame, whatever length is asked (the console's
        // and the tool's DoSendCommand take any int).
        QCOMPARE(CommandLayouts::plain(0x8F, std::numeric_limits<int>::max()).size(), 64);
        QCOMPARE(CommandLayouts::plain(0x8F, -5).size(), 1);
    }

    void wiredReply()
    {
        ManualClock clock;
        FakeHidBackend hid(&clock);
        hid.responder = [](const QByteArray&) { return hex("8F F7 0A 00 00 00 00 00 03"); };
        HidHandle* h = hid.openPath("cmd");
        Frame::sendWired(hid, h, Frame::close(hex("8F")));
        QByteArray reply;
        QVERIFY(Frame::takeReplyWired(hid, h, &reply));
        QCOMPARE(reply, hex("8F F7 0A 00 00 00 00 00 03")); // report id stripped
        hid.failReplies = 1;
        QVERIFY(!Frame::takeReplyWired(hid, h, &reply));
        hid.close(h);
    }

    void wirelessStaleReport_data()
    {
        QTest::addColumn<QList<QByteArray>>("reads");
        QTest::addColumn<bool>("got");
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<int>("readCalls");
        const QByteArray stale = hex("06 77 11 22");
        const QByteArray real = hex("06 55 8F 01 02");
        QTest::newRow("plain") << QList<QByteArray>{real} << true << hex("8F 01 02") << 1;
        QTest::newRow("stale then real")
            << QList<QByteArray>{stale, real} << true << hex("8F 01 02") << 2;
        // There is no third read: a second stale report is taken as the reply.
        QTest::newRow("stale twice")
            << QList<QByteArray>{stale, stale, real} << true << hex("11 22") << 2;
        QTest::newRow("stale then nothing")
            << QList<QByteArray>{stale, QByteArray()} << false << QByteArray() << 2;
        QTest::newRow("nothing") << QList<QByteArray>{QByteArray()} << false << QByteArray() << 1;
    }
    void wirelessStaleReport()
    {
        QFETCH(QList<QByteArray>, reads);
        QFETCH(bool, got);
        QFETCH(QByteArray, reply);
        QFETCH(int, readCalls);
        ManualClock clock;
        FakeHidBackend hid(&clock);
        for (const QByteArray& r : reads)
            hid.scriptedReads.push_back(r);
        HidHandle* h = hid.openPath("bt");
        QByteArray out;
        QCOMPARE(Frame::takeReplyWireless(hid, h, &out), got);
        if (got) QCOMPARE(out, reply);
        QCOMPARE(hid.count("read"), readCalls);
        hid.close(h);
    }

    void catalogue()
    {
        const auto rows = CommandCatalogue::rows();
        QCOMPARE(int(rows.size()), 39);
        QCOMPARE(QByteArray(rows.front().name), QByteArray("CMD_SET_INFOR"));
        QCOMPARE(rows[1].command, quint8(0x8F));
        QCOMPARE(QByteArray(rows.back().name), QByteArray("CMD_GET_MAGNETISM"));
        QCOMPARE(rows.back().command, quint8(0x9D));
        QSet<quint8> seen;
        for (const CommandRow& r : rows) {
            QVERIFY2(!QByteArray(r.name).isEmpty(), "no empty names");
            QVERIFY2(!seen.contains(r.command), r.name);
            seen.insert(r.command);
            const bool led = r.command == 0x07 || r.command == 0x08;
            QCOMPARE(r.dataLength, quint8(led ? 9 : 8));
        }
        QVERIFY(!seen.contains(0x0F));
        QVERIFY(!seen.contains(0x80));
        ConsoleRows console;
        QCOMPARE(console.bytes(console.rowOf(0x07)), hex("07 01 03 03 07 FF FF FF"));
        QCOMPARE(console.bytes(console.rowOf(0x05)), hex("05 01 01 00 00 00 00 00"));
        QCOMPARE(console.rowOf(0x65), -1);
    }

    void logGroups_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("eight") << hex("8F 00 00 00 00 00 00 70")
                               << QString("8F 00 00 00  00 00 00 70");
        QTest::newRow("five") << hex("01 02 03 04 05") << QString("01  02 03 04 05");
        QTest::newRow("four") << hex("01 02 03 04") << QString("01 02 03 04");
        QTest::newRow("nine") << hex("01 02 03 04 05 06 07 08 09")
                              << QString("01  02 03 04 05  06 07 08 09");
    }
    void logGroups()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QCOMPARE(ConsoleModel::logText(bytes), text);
    }
};

QTEST_GUILESS_MAIN(TestFrame)
#include "tst_frame.moc"
