// The link when the keyboard goes away: unplugged at every frame of a read sequence in turn and
// plugged in again (virtual time), and, on the connection's real I/O thread, a reconnect while
// a wireless read is blocked.

#include "KeyPositions.h"
#include "SimRig.h"

#include <QMutex>
#include <QSet>
#include <QSignalSpy>
#include <QtTest>
#include <type_traits>

namespace {

constexpr int kReadSequenceFrames = 99; // firmware 0x300: settings, keys, Fn and the tables
constexpr int kRefreshMs = 2000;        // the hot-plug quiet time and a connect step, and more

// Passes every call on and notes what the connection does with its handles. A call on a handle
// after its close is the fault the I/O thread must never commit.
class HandleWatch : public HidBackend
{
public:
    explicit HandleWatch(HidBackend& devices) : inner(devices) {}

    int callsAfterClose() const
    {
        return locked([&] { return lateCalls; });
    }
    int readsStarted() const
    {
        return locked([&] { return reads; });
    }
    int closes() const
    {
        return locked([&] { return closeCount; });
    }

    QList<HidDeviceInfo> enumerate(quint16 vid, quint16 pid) override
    {
        return inner.enumerate(vid, pid);
    }
    HidHandle* openPath(const QByteArray& path) override
    {
        HidHandle* h = inner.openPath(path);
        locked([&] { return closed.remove(h); }); // a new handle may reuse an old address
        return h;
    }
    void close(HidHandle* h) override
    {
        use(h);
        locked([&] { return (closed.insert(h), ++closeCount); });
        inner.close(h);
    }
    int setNonblocking(HidHandle* h, bool on) override
    {
        use(h);
        return inner.setNonblocking(h, on);
    }
    int sendFeatureReport(HidHandle* h, const quint8* d, size_t n) override
    {
        use(h);
        return inner.sendFeatureReport(h, d, n);
    }
    int getFeatureReport(HidHandle* h, quint8* d, size_t n) override
    {
        use(h);
        return inner.getFeatureReport(h, d, n);
    }
    int write(HidHandle* h, const quint8* d, size_t n) override
    {
        use(h);
        return inner.write(h, d, n);
    }
    int read(HidHandle* h, quint8* d, size_t n) override
    {
        use(h);
        return inner.read(h, d, n);
    }
    int readTimeout(HidHandle* h, quint8* d, size_t n, int ms) override
    {
        use(h);
        locked([&] { return ++reads; });
        return inner.readTimeout(h, d, n, ms);
    }

private:
    template <class F> std::invoke_result_t<F> locked(F f) const
    {
        QMutexLocker lock(&mutex);
        return f();
    }
    void use(HidHandle* h)
    {
        locked([&] { return lateCalls += closed.contains(h) ? 1 : 0; });
    }

    HidBackend& inner;
    mutable QMutex mutex;
    QSet<HidHandle*> closed;
    int lateCalls = 0;
    int closeCount = 0;
    int reads = 0;
};

} // namespace

class TestLinkFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void unplugAtEveryFrameOfTheReadSequence_data()
    {
        QTest::addColumn<bool>("wireless");
        QTest::newRow("wired") << false;
        QTest::newRow("wireless") << true;
    }
    // The reply to the frame in the air is lost with the cable: the pump stops with the rest of
    // the sequence queued. The hot-plug refresh finds nothing and closes the handles; plugged
    // in again, the first chain reads the keyboard whole once more.
    void unplugAtEveryFrameOfTheReadSequence()
    {
        QFETCH(bool, wireless);
        SimRig rig(wireless);
        QSignalSpy lost(rig.conn.get(), &DialogDeviceConnect::onDisconnect);
        for (int frame = 0; frame < kReadSequenceFrames; ++frame) {
            rig.keyboard->model().clearReceivedFrames();
            rig.conn->DoReadAll();
            QVERIFY(rig.clock.advanceUntil([&] { return rig.fw().receivedFrames().size() > frame; },
                                           20000));
            rig.keyboard->unplug();
            rig.clock.advance(kRefreshMs);
            QVERIFY(!rig.conn->isConnected());
            // The wired connect step tells of the loss; the wireless one never does.
            QCOMPARE(lost.count(), wireless ? 0 : frame + 1);
            QVERIFY(rig.conn->isReadingAll());
            QCOMPARE(rig.hid.openHandleCount(), 0);

            rig.keyboard->replug();
            QVERIFY2(rig.settle(), qPrintable(QStringLiteral("stuck after frame %1").arg(frame)));
            QVERIFY(rig.conn->isConnected());
            QCOMPARE(rig.conn->queuedCount(), 0);
            QCOMPARE(rig.hid.openHandleCount(), wireless ? 1 : 3);
            rig.compareCacheWithFirmware();
            if (QTest::currentTestFailed()) return;
        }
    }

    // Over the receiver, the answers to a burst of writes beyond the 64 reports the system keeps
    // are lost. The writes all land; the reads still armed for them then stop waiting once one
    // has waited in vain, so the link is free again within a second, not after minutes of reads
    // that each wait their 400 ms. A write after the burst goes out and is answered.
    void wirelessBurstBeyondTheKeptReplies()
    {
        SimRig rig(true);
        const quint8 keyA = 0x04;
        const int position = PositionOfCode(keyA);
        rig.keyboard->model().clearReceivedFrames();
        const qint64 start = rig.clock.elapsedMs();
        constexpr int kBurst = 200;
        for (int i = 1; i <= kBurst; ++i)
            rig.conn->DoSetMagnetism(0x00, keyA, quint32(i), i == kBurst ? 1 : 0);
        QVERIFY(rig.settle());
        QCOMPARE(rig.fw().receivedFrames().size(), kBurst);
        QCOMPARE(rig.fw().magnetValue(0x00, position), quint32(kBurst));
        QVERIFY2(rig.clock.elapsedMs() - start < 1500,
                 qPrintable(QString::number(rig.clock.elapsedMs() - start)));

        QSignalSpy readBack(rig.conn.get(), &DialogDeviceConnect::onReadBack);
        rig.conn->DoSetMagnetism(0x01, keyA, 77, 1);
        QVERIFY(rig.settle());
        QCOMPARE(rig.fw().magnetValue(0x01, position), 77u);
        QCOMPARE(readBack.count(), 1);
    }

    // A wireless reply that doesn't come holds the I/O thread for 400 ms. A command queued and a
    // reconnect asked for meanwhile: the command, armed for the old handle, never reaches the
    // wire; nothing touches the old handle after its close; the new connection answers.
    void reconnectWhileAReadBlocks()
    {
        QtClock clock;
        VirtualHidBackend devices(&clock);
        VirtualKeyboard* keyboard = devices.addWirelessKeyboard();
        HandleWatch watch(devices);
        QTemporaryDir dir;
        ModuleGenKeymapping keys;
        DialogDeviceConnect conn(&watch, &clock, keys, dir.filePath("device.ini"));
        QSignalSpy stepDone(&conn, &DialogDeviceConnect::connectStepDone);

        keyboard->dropNextReplies(1); // the identity request goes unanswered
        conn.DoConnectDevice(keyboard->vendorId(), keyboard->productId(), true, "0AF7",
                             QString::fromLatin1(keyboard->commandPath()));
        QTRY_COMPARE_WITH_TIMEOUT(watch.readsStarted(), 1, 5000);
        conn.DoSendHex("86", true);
        conn.connectStep();
        QTRY_COMPARE_WITH_TIMEOUT(stepDone.count(), 2, 5000);
        QTRY_COMPARE_WITH_TIMEOUT(conn.console().versionText(), QString("Ver:0x300 Id:2807[AF7]"),
                                  5000);
        QTRY_VERIFY_WITH_TIMEOUT(conn.isIdle(), 5000); // the chain ran out: the firmware rests

        QCOMPARE(watch.callsAfterClose(), 0);
        QCOMPARE(watch.closes(), 1);
        QVERIFY(framesOf(keyboard->model(), 0x86).isEmpty());
        QVERIFY(conn.isConnected());
    }
};

QTEST_GUILESS_MAIN(TestLinkFaults)
#include "tst_linkfaults.moc"
