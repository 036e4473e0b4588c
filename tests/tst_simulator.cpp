// The virtual devices: the firmware model's quirks and edges that the round trips through the
// connection (tst_operations) don't reach, its table widths, the wired and wireless transports,
// the faults, unplugging and the key test stream.

#include "DefaultKeyMaps.h"
#include "Frame.h"
#include "ManualClock.h"
#include "NativeKeyboardModel.h"
#include "TestSupport.h"
#include "VirtualHidBackend.h"

#include <QtTest>

namespace {

// A frame with the given head and a payload from offset 8.
QByteArray frame(const char* head, const QByteArray& payload = {})
{
    QByteArray f = hex(head).leftJustified(8, '\0');
    return (f + payload).leftJustified(64, '\0');
}

QByteArray pattern(int size, int seed)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char((seed + i * 7) & 0xFF);
    return bytes;
}

// The pages a read command returns, concatenated.
QByteArray readPages(NativeKeyboardModel& model, QByteArray command, int pageOffset, int pages)
{
    QByteArray all;
    for (int page = 0; page < pages; ++page) {
        command[pageOffset] = char(page);
        const QByteArray reply = model.handle(command.leftJustified(64, '\0'));
        if (reply.size() != 64) return {};
        all += reply;
    }
    return all;
}

// One keyboard of the default set with its command interface open.
struct Link
{
    explicit Link(bool isWireless)
        : kb(isWireless ? hid->wirelessKeyboard() : hid->wiredKeyboard()),
          h(hid->openPath(kb->commandPath())), wireless(isWireless)
    {
    }

    int send(const QByteArray& logical)
    {
        const QByteArray closed = Frame::close(logical);
        const QByteArray r = wireless ? Frame::wrapWireless(closed) : Frame::wrapWired(closed);
        const auto* data = reinterpret_cast<const quint8*>(r.constData());
        return wireless ? hid->write(h, data, r.size()) : hid->sendFeatureReport(h, data, r.size());
    }

    // The report as the transport hands it over, report id or prefix included.
    QByteArray take(int* result, HidHandle* handle = nullptr)
    {
        quint8 buffer[Frame::kReplyBufferSize] = {};
        handle = handle ? handle : h;
        *result = wireless ? hid->readTimeout(handle, buffer, Frame::kWirelessLength, 400)
                           : hid->getFeatureReport(handle, buffer, Frame::kWiredLength);
        return QByteArray(reinterpret_cast<const char*>(buffer), qMax(0, *result));
    }

    ManualClock clock;
    std::unique_ptr<VirtualHidBackend> hid = VirtualHidBackend::createDefaultSet(&clock, {});
    VirtualKeyboard* kb;
    HidHandle* h;
    bool wireless;
};

} // namespace

class TestSimulator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    // ---- firmware model
    void factoryState()
    {
        NativeKeyboardModel model(0x0EC3, 0x0512);
        QCOMPARE(model.handle(frame("8F")).left(9), hex("8F C3 0E 00 00 00 00 12 05"));
        const QByteArray keys = DefaultKeyMaps::factoryKeyMap();
        for (int profile = 0; profile < 4; ++profile) {
            QCOMPARE(model.keyMap(profile, 0), keys);
            for (int layer = 1; layer < 4; ++layer)
                QCOMPARE(model.keyMap(profile, layer), QByteArray(512, '\0'));
        }
        QCOMPARE(model.fnMap().size(), 640);
        QCOMPARE(model.fnMap().left(512), DefaultKeyMaps::factoryFnMap());
        const QList<QPair<quint8, quint32>> defaults{{0x00, 400}, {0x01, 560}, {0x06, 60},
                                                     {0xFB, 60},  {0xFC, 2},   {0x07, 0}};
        for (const auto& [table, value] : defaults)
            for (int position : {0, 64, 127})
                QCOMPARE(model.magnetValue(table, position), value);
    }
    void readsReflectWrites_data()
    {
        QTest::addColumn<QByteArray>("write");
        QTest::addColumn<QByteArray>("read");
        QTest::addColumn<int>("offset");
        QTest::addColumn<QByteArray>("expected");

        // Every write below changes what the read returns, but for the refused profile. The values
        // that the connection writes and reads back itself are in tst_operations' round trips.
        QTest::newRow("profile") << frame("04 02") << frame("84") << 0 << hex("84 02");
        QTest::newRow("profile 4 refused") << frame("04 04") << frame("84") << 0 << hex("84 00");
        QTest::newRow("led on/off") << frame("05 00 00") << frame("85") << 0 << hex("85 00 00");
        QTest::newRow("side led params") << frame("08 03 02 04 08 AA BB CC") << frame("88") << 0
                                         << hex("88 03 02 04 08 AA BB CC");
        // Offset 7 is the checksum on the wire: the block keeps what it had there.
        QTest::newRow("options") << frame("09 01 02 03 04 05 06 77", hex("08 09")) << frame("89")
                                 << 0 << hex("89 01 02 03 04 05 06 00 08 09");
        QTest::newRow("key entry, last position")
            << frame("0A 03 7F 00 00 01 03", hex("09 02 03 00")) << frame("8A 03 FF 07 03") << 60
            << hex("09 02 03 00");
        QTest::newRow("fn entry in the tenth page")
            << frame("10 00 00 9F", hex("0D 08 01 00")) << frame("90 00 00 FF 09") << 60
            << hex("0D 08 01 00");
    }
    void readsReflectWrites()
    {
        QFETCH(QByteArray, write);
        QFETCH(QByteArray, read);
        QFETCH(int, offset);
        QFETCH(QByteArray, expected);

        NativeKeyboardModel model;
        const QByteArray before = model.handle(read);
        model.handle(write);
        const QByteArray after = model.handle(read);
        QCOMPARE(after.size(), 64);
        QCOMPARE(after.mid(offset, expected.size()), expected);
        QCOMPARE(before != after, !QByteArray(QTest::currentDataTag()).contains("refused"));
        QCOMPARE(model.receivedFrames().size(), 3);
        QCOMPARE(model.receivedFrames().at(1), write);
    }
    void writesAndUnknownCommandsEcho()
    {
        NativeKeyboardModel model;
        for (const QByteArray& f :
             {frame("06 03"), frame("65 00 00 01 01", hex("10")), frame("0D", pattern(22, 1)),
              frame("1D 01 02"), frame("D0 07")}) {
            const QByteArray longer = f + pattern(64, 9); // only the first 64 come back
            QCOMPARE(model.handle(longer), f);
        }
        QCOMPARE(model.musicLevels(), pattern(22, 1));
        QCOMPARE(model.debounce(), quint8(3));
    }
    void tableWidthsCutValues_data()
    {
        QTest::addColumn<quint8>("table");
        QTest::addColumn<int>("width");
        QTest::addColumn<quint32>("value");
        QTest::addColumn<quint32>("stored");

        QTest::newRow("05 u8") << quint8(0x05) << 1 << 0x12345678u << 0x78u;
        QTest::newRow("0A u32") << quint8(0x0A) << 4 << 0x12345678u << 0x12345678u;
        QTest::newRow("FF u16") << quint8(0xFF) << 2 << 0xABCDEFu << 0xCDEFu;
        QTest::newRow("FE u16") << quint8(0xFE) << 2 << 700u << 700u;
        QTest::newRow("FB u8") << quint8(0xFB) << 1 << 0x1FFu << 0xFFu;
    }
    void tableWidthsCutValues()
    {
        QFETCH(quint8, table);
        QFETCH(int, width);
        QFETCH(quint32, value);
        QFETCH(quint32, stored);

        NativeKeyboardModel model;
        const quint32 neighbour = model.magnetValue(table, 34);
        QByteArray write = frame("65");
        write[1] = char(table);
        write[3] = char(33);
        for (int i = 0; i < 4; ++i)
            write[8 + i] = char((value >> (8 * i)) & 0xFF);
        model.handle(write);

        QCOMPARE(model.magnetValue(table, 33), stored);
        QCOMPARE(model.magnetValue(table, 34), neighbour);
        QCOMPARE(model.magnetTable(table).size(), 128 * width);

        // On the wire the value sits at position * width of the packed table, little-endian.
        const int offset = 33 * width;
        QByteArray read = frame("E5");
        read[1] = char(table);
        read[2] = 1;
        read[3] = char(offset / 64);
        const QByteArray page = model.handle(read);
        quint32 onWire = 0;
        for (int i = width - 1; i >= 0; --i)
            onWire = (onWire << 8) | quint8(page.at(offset % 64 + i));
        QCOMPARE(onWire, stored);
    }
    void allKeysAndOutOfRangePositions()
    {
        NativeKeyboardModel model;
        model.handle(frame("65 01 00 FF 01", hex("2C 01 00 00")));
        for (int p = 0; p < 128; ++p)
            QCOMPARE(model.magnetValue(0x01, p), 300u);

        const QByteArray keysBefore = model.keyMap(0, 0);
        const QByteArray table00 = model.magnetTable(0x00);
        model.handle(frame("65 00 00 80 01", hex("01 00 00 00")));       // no position 128
        model.handle(frame("0A 00 80 00 00 01 00", hex("00 00 04 00"))); // nor here
        model.handle(frame("0A 04 00 00 00 01 00", hex("00 00 04 00"))); // no profile 4
        model.handle(frame("65 0B 00 01 01", hex("01 00 00 00")));       // no table 0B
        QCOMPARE(model.magnetTable(0x00), table00);
        QCOMPARE(model.keyMap(0, 0), keysBefore);
        QCOMPARE(model.magnetValue(0x0B, 1), 0u);
        QCOMPARE(model.handle(frame("E5 0B 01 00")), frame("E5 0B 01 00")); // unknown: echoed
        // Past the end of a store a page reads as zeros.
        QCOMPARE(model.handle(frame("8A 02 FF 08 01")), QByteArray(64, '\0'));
        QCOMPARE(model.handle(frame("E5 05 01 02")), QByteArray(64, '\0'));
    }
    void macroBlobs()
    {
        NativeKeyboardModel model;
        const QByteArray longBlob = pattern(112, 2);
        const QByteArray shortBlob = pattern(56, 40);
        for (int page = 0; page < 2; ++page) {
            QByteArray f = frame("0B 31 00 38", longBlob.mid(page * 56, 56));
            f[2] = char(page);
            f[4] = char(page == 1);
            model.handle(f);
        }
        QCOMPARE(model.macro(49), longBlob);
        // A later, shorter macro in the same slot ends with its last page.
        model.handle(frame("0B 31 00 38 01", shortBlob));
        QCOMPARE(model.macro(49), shortBlob);
        model.handle(frame("0B 32 00 38 01", shortBlob)); // slot 50 doesn't exist
        QCOMPARE(model.macro(50), QByteArray());
    }
    void factoryResetCommand()
    {
        NativeKeyboardModel model(0x0AF7, 0x0301);
        model.handle(frame("0A 00 00 00 00 01 00", hex("00 00 3A 00")));
        model.handle(frame("65 00 00 FF 01", hex("10 00 00 00")));
        model.handle(frame("06 05"));
        model.handle(frame("01"));
        QCOMPARE(model.keyMap(0, 0), DefaultKeyMaps::factoryKeyMap());
        QCOMPARE(model.magnetValue(0x00, 5), 400u);
        QCOMPARE(model.debounce(), NativeKeyboardModel().debounce());
        QCOMPARE(model.firmwareVersion(), quint16(0x0301));
        QCOMPARE(model.receivedFrames().size(), 4);
    }
    void calibrationScanGrows()
    {
        NativeKeyboardModel model;
        model.setNow(1000);
        model.handle(frame("1E 01"));
        QVERIFY(model.calibrating());
        QCOMPARE(readPages(model, hex("E5 FE 01 00"), 3, 4), QByteArray(256, '\0'));

        QByteArray previous = model.magnetTable(0xFE);
        int calibratedBefore = 0;
        for (qint64 t = 1000; t <= 60000; t += 480) {
            model.setNow(t);
            int calibrated = 0;
            for (int p = 0; p < 128; ++p) {
                const quint32 v = model.magnetValue(0xFE, p);
                const quint32 old = quint8(previous.at(2 * p)) | quint8(previous.at(2 * p + 1))
                                                                     << 8;
                QVERIFY2(v >= old, "a reading never falls back");
                calibrated += (p == 92 ? v > 63 : v > 699);
            }
            QVERIFY(calibrated >= calibratedBefore);
            calibratedBefore = calibrated;
            previous = model.magnetTable(0xFE);
        }
        // One after another: by now every key of the matrix has been pressed, and no hole has.
        const QByteArray keys = DefaultKeyMaps::factoryKeyMap();
        for (int p = 0; p < 128; ++p) {
            const bool hasKey = keys.mid(p * 4, 4) != QByteArray(4, '\0');
            QCOMPARE(model.magnetValue(0xFE, p) > (p == 92 ? 63u : 699u), hasKey);
        }
        model.handle(frame("1E 00"));
        QVERIFY(!model.calibrating());
    }

    // ---- transports and faults
    void transports_data()
    {
        QTest::addColumn<bool>("isWireless");
        QTest::newRow("wired") << false;
        QTest::newRow("wireless") << true;
    }
    void transports()
    {
        QFETCH(bool, isWireless);
        Link link(isWireless);
        QVERIFY(link.h);
        const int full = isWireless ? 66 : 65;
        const QByteArray prefix = isWireless ? hex("06 55") : hex("00");

        QCOMPARE(link.send(hex("8F")), full);
        int result = 0;
        const QByteArray reply = link.take(&result);
        QCOMPARE(result, full);
        QCOMPARE(reply, prefix + link.kb->model().infoBlock());
        QCOMPARE(reply.mid(prefix.size(), 9), hex("8F F7 0A 00 00 00 00 00 03"));
        QCOMPARE(link.kb->model().receivedFrames().at(0).left(8), hex("8F 00 00 00 00 00 00 70"));

        // Asked again with no command: the wired feature buffer gives the same reply; the wireless
        // queue is empty, and the read waits out its timeout on the clock.
        const qint64 before = link.clock.elapsedMs();
        QCOMPARE(link.take(&result), isWireless ? QByteArray() : reply);
        QCOMPARE(link.clock.elapsedMs() - before, qint64(isWireless ? 400 : 0));

        // Two commands before a read: the air queues both answers, the feature buffer keeps one.
        link.send(hex("04 03"));
        link.send(hex("84"));
        QCOMPARE(link.take(&result).left(prefix.size() + 2),
                 prefix + hex(isWireless ? "04 03" : "84 03"));
        QCOMPARE(link.take(&result).left(prefix.size() + 2), prefix + hex("84 03"));

        // Each transport refuses the other's report, and the wired input interface takes none.
        const QByteArray other = Frame::wrapWired(Frame::close(hex("8F")));
        const auto* data = reinterpret_cast<const quint8*>(other.constData());
        QCOMPARE(isWireless ? link.hid->sendFeatureReport(link.h, data, other.size())
                            : link.hid->write(link.h, data, other.size()),
                 -1);
        if (!isWireless) {
            HidHandle* input = link.hid->openPath(link.kb->inputPath());
            QCOMPARE(link.hid->sendFeatureReport(input, data, other.size()), -1);
        }
        link.hid->close(link.h);
        QCOMPARE(link.send(hex("8F")), -1);
    }
    void faults_data()
    {
        QTest::addColumn<bool>("isWireless");
        QTest::addColumn<QString>("fault");
        QTest::addColumn<int>("firstResult");
        QTest::addColumn<QByteArray>("firstHead");
        QTest::addColumn<QByteArray>("secondHead");

        // Each row: the fault, then 86 sent and read, then 84 sent and read.
        QTest::newRow("wired drop") << false << "drop" << -1 << QByteArray() << hex("00 84 00");
        // The lost answer doesn't turn up later either.
        QTest::newRow("wireless drop") << true << "drop" << 0 << QByteArray() << hex("06 55 84 00");
        QTest::newRow("wired short") << false << "short" << 3 << hex("00 86 02") << hex("00 84 00");
        QTest::newRow("wireless short")
            << true << "short" << 3 << hex("06 55 86") << hex("06 55 84 00");
        // After the stale report the real answer is still the one to 86.
        QTest::newRow("wireless stale")
            << true << "stale" << 66 << hex("06 77 00") << hex("06 55 86 02");
    }
    void faults()
    {
        QFETCH(bool, isWireless);
        QFETCH(QString, fault);
        QFETCH(int, firstResult);
        QFETCH(QByteArray, firstHead);
        QFETCH(QByteArray, secondHead);

        Link link(isWireless);
        if (fault == "drop")
            link.kb->dropNextReplies(1);
        else if (fault == "short")
            link.kb->shortNextReply(3);
        else
            link.kb->staleReportNext();

        int result = 0;
        link.send(hex("86"));
        QCOMPARE(link.take(&result).left(firstHead.size()), firstHead);
        QCOMPARE(result, firstResult);
        link.send(hex("84"));
        QCOMPARE(link.take(&result).left(secondHead.size()), secondHead);
        QCOMPARE(result, isWireless ? 66 : 65);
        QCOMPARE(link.kb->model().receivedFrames().size(), 2);
    }
    void unplugAndReplug()
    {
        Link link(false);
        VirtualKeyboard* kb = link.kb;
        VirtualHidBackend& hid = *link.hid;
        HidHandle* input = hid.openPath(kb->inputPath());
        QCOMPARE(hid.enumerate(0, 0).size(), 13); // three keyboard interfaces, ten of the others

        kb->unplug();
        QVERIFY(!kb->isPlugged());
        QCOMPARE(hid.enumerate(0x3151, 0x502F).size(), 0);
        QCOMPARE(hid.enumerate(0x3151, 0).size(), 1); // the wireless one stays
        QVERIFY(!hid.openPath(kb->commandPath()));
        QCOMPARE(link.send(hex("8F")), -1);
        int result = 0;
        link.take(&result);
        QCOMPARE(result, -1);
        quint8 buffer[64] = {};
        QCOMPARE(hid.read(input, buffer, 64), -1);

        kb->replug();
        QCOMPARE(hid.enumerate(0x3151, 0x502F).size(), 2);
        QCOMPARE(link.send(hex("8F")), -1); // a handle from before stays dead
        HidHandle* fresh = hid.openPath(kb->commandPath());
        QVERIFY(fresh);
        link.take(&result, fresh);
        QCOMPARE(result, 65);
        QCOMPARE(hid.openHandleCount(), 3);
        hid.close(link.h);
        hid.close(input);
        QCOMPARE(hid.openHandleCount(), 1);

        // A twin of the same model has paths of its own; the set still names the first.
        VirtualKeyboard* twin = hid.addWiredKeyboard(0x0EC3);
        QVERIFY(twin->commandPath() != kb->commandPath());
        QVERIFY(twin->inputPath() != kb->inputPath());
        QCOMPARE(hid.enumerate(0x3151, 0x502F).size(), 4);
        QCOMPARE(hid.wiredKeyboard(), kb);
    }
    void keyTestStream()
    {
        Link link(false);
        VirtualHidBackend& hid = *link.hid;
        HidHandle* input = hid.openPath(link.kb->inputPath());
        hid.setNonblocking(input, true);
        quint8 buffer[64] = {};
        QCOMPARE(hid.read(input, buffer, 64), 0); // no test, no stream

        link.send(hex("1B 01"));
        QVERIFY(link.kb->model().keyTestOn());
        quint16 deepest = 0;
        quint16 shallowest = 0xFFFF;
        int reports = 0;
        for (int step = 0; step < 200; ++step) {
            for (int poll = 0; poll < 3; ++poll) { // polled faster than the stream runs
                if (hid.read(input, buffer, 64) <= 0) continue;
                ++reports;
                QCOMPARE(buffer[0], quint8(0x05));
                QCOMPARE(buffer[1], quint8(0x1B));
                const quint16 travel = quint16(buffer[2] | buffer[3] << 8);
                deepest = qMax(deepest, travel);
                shallowest = qMin(shallowest, travel);
            }
            link.clock.advance(10);
        }
        QCOMPARE(reports, 100); // one per 20 ms over 2 s
        QVERIFY(deepest >= 700 && deepest <= 740);
        QVERIFY(shallowest < 50);

        link.send(hex("1B 00"));
        link.clock.advance(100);
        QCOMPARE(hid.read(input, buffer, 64), 0);
    }
};

QTEST_GUILESS_MAIN(TestSimulator)
#include "tst_simulator.moc"
