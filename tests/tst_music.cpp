// The music report: levels from the captured block, quirks included; the report's bytes; the
// block's fixed copy; the virtual keyboard taking the report on a second handle of its command
// interface; the connection's rounds while the music effect is chosen, their pacing, and what
// stops them.

#include "AudioCapture.h"
#include "AudioSampleBlock.h"
#include "ConnectionRig.h"
#include "Frame.h"
#include "ManualClock.h"
#include "MusicReport.h"
#include "SimRig.h"
#include "TestSupport.h"
#include "VirtualHidBackend.h"

#include <QtTest>
#include <cmath>
#include <functional>
#include <limits>
#include <vector>

namespace {

constexpr int kMusicEffect = 22;
constexpr quint8 kMusicCommand = 0x0D;

// A capture the test fills by hand.
class FedCapture : public AudioCapture
{
public:
    void start() override {}
    void feed(const std::vector<float>& block) { samples.write(block.data(), block.size()); }
};

// A block whose first 22 samples give the levels 0 to 6 over and over, with both signs.
std::vector<float> steps()
{
    const float values[7] = {0.0f, 0.2f, 0.4f, 0.5f, 0.7f, 0.9f, 1.0f};
    std::vector<float> block(AudioSampleBlock::kSamples, 0.25f);
    for (int i = 0; i < MusicReport::kLevelCount; ++i)
        block[std::size_t(i)] = values[i % 7] * (i % 2 ? -1.0f : 1.0f);
    return block;
}
const char* const kStepLevels = "00 01 02 03 04 05 06 00 01 02 03 04 05 06 00 01 02 03 04 05 06 00";

using RigAction = std::function<void(SimRig&)>;

MusicReport::Levels levelsOf(std::initializer_list<int> values)
{
    MusicReport::Levels out{};
    int i = 0;
    for (int v : values)
        out[std::size_t(i++)] = quint8(v);
    return out;
}

QByteArray bytesOf(const MusicReport::Levels& levels)
{
    return QByteArray(reinterpret_cast<const char*>(levels.data()), int(levels.size()));
}

std::vector<float> ramp(int count, float first, float step)
{
    std::vector<float> v(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        v[std::size_t(i)] = first + step * float(i);
    return v;
}

} // namespace

Q_DECLARE_METATYPE(RigAction)

class TestMusic : public QObject
{
    Q_OBJECT

private slots:
    void level_data()
    {
        QTest::addColumn<float>("sample");
        QTest::addColumn<int>("level");

        const float fiveSixths = 5.0f / 6.0f; // the float nearest 5/6 lies just below it
        QTest::newRow("silence") << 0.0f << 0;
        QTest::newRow("-0.5: the sign doesn't count") << -0.5f << 3;
        QTest::newRow("0.5") << 0.5f << 3;
        QTest::newRow("just below 1/6") << std::nextafter(1.0f / 6.0f, 0.0f) << 0;
        QTest::newRow("just above 1/6") << std::nextafter(1.0f / 6.0f, 1.0f) << 1;
        QTest::newRow("float nearest 5/6") << fiveSixths << 4;
        QTest::newRow("just above 5/6") << std::nextafter(fiveSixths, 1.0f) << 5;
        QTest::newRow("1.0") << 1.0f << 6;
        QTest::newRow("-1.0") << -1.0f << 6;
        QTest::newRow("2.0 is capped at 6") << 2.0f << 6;
        QTest::newRow("42.4: 254 is capped") << 42.4f << 6;
        QTest::newRow("42.5: 255 wraps to 0") << 42.5f << 0;
        QTest::newRow("43.0: 258's low byte is 2") << 43.0f << 2;
        QTest::newRow("-43.0") << -43.0f << 2;
        QTest::newRow("85.0: 510 is 254 in its low byte") << 85.0f << 6;
        QTest::newRow("85.1667: 511's low byte 255 wraps") << 85.1667f << 0;
        QTest::newRow("NaN") << std::numeric_limits<float>::quiet_NaN() << 0;
        QTest::newRow("infinity") << std::numeric_limits<float>::infinity() << 0;
        QTest::newRow("huge: 6e30's low byte is 0") << 1e30f << 0;
    }
    void level()
    {
        QFETCH(float, sample);
        QFETCH(int, level);
        QCOMPARE(int(MusicReport::level(sample)), level);
    }

    // The levels are the first 22 samples as they stand, left and right interleaved; nothing
    // after them counts, and no averaging happens.
    void levelsAreTheFirst22Samples()
    {
        AudioSampleBlock block;
        QCOMPARE(bytesOf(MusicReport::levels(block)), QByteArray(22, '\0'));

        std::vector<float> samples(AudioSampleBlock::kSamples, 1.0f);
        const float pattern[22] = {0.0f, -0.2f, 0.34f, -0.5f, 0.67f,  -0.84f, 1.0f, 0.1f,
                                   0.9f, -0.9f, 43.0f, 42.5f, -0.17f, 0.16f,  0.0f, 0.0f,
                                   0.5f, 0.5f,  -1.5f, 0.3f,  0.7f,   -0.01f};
        std::copy(std::begin(pattern), std::end(pattern), samples.begin());
        block.write(samples.data(), samples.size());
        QCOMPARE(MusicReport::levels(block),
                 levelsOf({0, 1, 2, 3, 4, 5, 6, 0, 5, 5, 2, 0, 1, 0, 0, 0, 3, 3, 6, 1, 4, 0}));
    }

    // What a capture period leaves in the block: the smaller of the period and the block, from
    // the front; the rest stays as it was.
    void blockTakesTheSmallerOfPeriodAndBlock()
    {
        AudioSampleBlock block;
        const std::vector<float> full = ramp(AudioSampleBlock::kSamples + 40, 1.0f, 1.0f);
        block.write(full.data(), full.size());
        QCOMPARE(block.at(0), 1.0f);
        QCOMPARE(block.at(959), 960.0f);
        QCOMPARE(block.at(960), 0.0f); // outside the block

        const std::vector<float> shortPeriod = ramp(10, -1.0f, -1.0f);
        block.write(shortPeriod.data(), shortPeriod.size());
        QCOMPARE(block.at(0), -1.0f);
        QCOMPARE(block.at(9), -10.0f);
        QCOMPARE(block.at(10), 11.0f); // from the earlier period
        QCOMPARE(block.at(959), 960.0f);

        block.write(nullptr, 100);
        block.write(shortPeriod.data(), 0);
        QCOMPARE(block.at(0), -1.0f);
        QCOMPARE(block.at(-1), 0.0f);
    }

    // The report as it leaves: report id, 0D, zero arguments, the constant checksum F2, the
    // levels from byte 9, zeros to 65 bytes; silence still makes a full report.
    void wiredReport_data()
    {
        QTest::addColumn<QByteArray>("levels");
        QTest::addColumn<QByteArray>("expected");

        const QByteArray head = hex("00 0D 00 00 00 00 00 00 F2");
        QTest::newRow("silence") << QByteArray(22, '\0')
                                 << (head + QByteArray(22, '\0')).leftJustified(65, '\0');
        const QByteArray levels = hex("06 05 04 03 02 01 00 01 02 03 04 05 06 00 00 06 06 01 "
                                      "01 02 02 03");
        QTest::newRow("levels") << levels << (head + levels).leftJustified(65, '\0');
    }
    void wiredReport()
    {
        QFETCH(QByteArray, levels);
        QFETCH(QByteArray, expected);

        MusicReport::Levels l{};
        std::copy(levels.begin(), levels.end(), l.begin());
        const QByteArray report = MusicReport::wiredReport(l);
        QCOMPARE(report.size(), Frame::kWiredLength);
        QCOMPARE(report.toHex(' '), expected.toHex(' '));
    }

    // The keyboard takes the report on a second open of its command interface, keeps the last
    // levels, and the reply waiting for the queue's read is still the command's.
    void keyboardKeepsLevelsApartFromReplies()
    {
        ManualClock clock;
        VirtualHidBackend hid(&clock);
        VirtualKeyboard* kb = hid.addWiredKeyboard();
        HidHandle* command = hid.openPath(kb->commandPath());
        HidHandle* music = hid.openPath(kb->commandPath());
        QVERIFY(command && music);

        const QByteArray debounceRead = Frame::wrapWired(Frame::close(hex("86")));
        QCOMPARE(hid.sendFeatureReport(command,
                                       reinterpret_cast<const quint8*>(debounceRead.constData()),
                                       debounceRead.size()),
                 65);
        const MusicReport::Levels levels =
            levelsOf({1, 2, 3, 4, 5, 6, 0, 1, 2, 3, 4, 5, 6, 0, 1, 2, 3, 4, 5, 6, 0, 6});
        const QByteArray report = MusicReport::wiredReport(levels);
        for (int i = 0; i < MusicReport::kReportsPerRound; ++i) {
            QCOMPARE(hid.sendFeatureReport(
                         music, reinterpret_cast<const quint8*>(report.constData()), report.size()),
                     65);
            quint8 thrownAway[65] = {};
            QVERIFY(hid.getFeatureReport(music, thrownAway, sizeof thrownAway) > 0);
        }
        QCOMPARE(kb->model().musicLevels(), bytesOf(levels));

        quint8 reply[65] = {};
        QCOMPARE(hid.getFeatureReport(command, reply, sizeof reply), 65);
        QCOMPARE(reply[1], quint8(0x86));
        QCOMPARE(reply[2], kb->model().debounce());
        QCOMPARE(kb->model().receivedFrames().size(), 1 + MusicReport::kReportsPerRound);
    }

    // With the effect chosen, a round starts within one tick of the timer: ten alike reports on
    // the music handle, 20 ms apart, each followed by its read there, the next round 20 ms
    // after the last read. Each round carries the block as it was when it began, silence too.
    void roundsPacedOnTheMusicHandle()
    {
        ConnectionRig rig;
        FedCapture capture;
        rig.conn->setAudioCapture(&capture);
        rig.connectWired();
        rig.clock.advance(3000);
        rig.hid.log.clear();
        const qint64 chosen = rig.clock.elapsedMs();
        rig.conn->DoSetLedEffect(kMusicEffect, 0);
        rig.clock.advance(MusicReport::kRoundPauseMs + 200);
        capture.feed(steps());
        rig.clock.advance(440);

        const HidHandle* commandHandle = rig.hid.log.first().handle; // the effect's 07 frame
        QCOMPARE(rig.hid.log.first().bytes.at(1), char(0x07));
        QList<FakeHidBackend::Transfer> music;
        for (const auto& t : rig.hid.log)
            if (t.handle != commandHandle && t.kind.startsWith("feature")) music.append(t);
        QCOMPARE(music.size(), 3 * 2 * MusicReport::kReportsPerRound);
        const qint64 first = music.first().at;
        QVERIFY(first >= chosen && first <= chosen + MusicReport::kRoundPauseMs);
        const QByteArray head = hex("00 0D 00 00 00 00 00 00 F2");
        for (int round = 0; round < 3; ++round) {
            const QByteArray levels = round == 0 ? QByteArray(22, '\0') : hex(kStepLevels);
            for (int i = 0; i < MusicReport::kReportsPerRound; ++i) {
                const auto& send = music.at((round * MusicReport::kReportsPerRound + i) * 2);
                const auto& read = music.at((round * MusicReport::kReportsPerRound + i) * 2 + 1);
                QCOMPARE(send.kind, QString("feature>"));
                QCOMPARE(send.bytes.toHex(' '), (head + levels).leftJustified(65, '\0').toHex(' '));
                QCOMPARE(send.at, first + round * 220 + i * MusicReport::kReportPauseMs);
                QCOMPARE(read.kind, QString("feature<"));
                QCOMPARE(read.handle, send.handle);
                QCOMPARE(read.at, send.at + MusicReport::kReportPauseMs);
            }
        }
    }

    // The rounds reach the keyboard's music levels until the effect changes, the keyboard is
    // read again (its effect stays music) or a picture is written; a wireless connection has no
    // music handle and sends none, while the effect itself goes out.
    void whatStopsTheRounds_data()
    {
        QTest::addColumn<bool>("wireless");
        QTest::addColumn<RigAction>("action");
        QTest::addColumn<int>("effectAfter");
        QTest::addColumn<bool>("musicOnAfter");
        QTest::newRow("another effect")
            << false << RigAction([](SimRig& r) { r.conn->DoSetLedEffect(5, 0); }) << 5 << false;
        QTest::newRow("read again")
            << false << RigAction([](SimRig& r) { r.conn->DoReadAll(); }) << kMusicEffect << false;
        QTest::newRow("picture written") << false << RigAction([](SimRig& r) {
            r.conn->DoWriteUserPic(2, QByteArray(384, '\x40'));
        }) << 13 << false;
        QTest::newRow("wireless") << true << RigAction([](SimRig&) {}) << kMusicEffect << true;
    }
    void whatStopsTheRounds()
    {
        QFETCH(bool, wireless);
        QFETCH(RigAction, action);
        QFETCH(int, effectAfter);
        QFETCH(bool, musicOnAfter);
        SimRig rig(wireless);
        FedCapture capture;
        capture.feed(steps());
        rig.conn->setAudioCapture(&capture);
        rig.conn->DoSetLedEffect(kMusicEffect, 0);
        rig.clock.advance(500);
        QCOMPARE(rig.fw().ledEffect(), quint8(kMusicEffect));
        QCOMPARE(framesOf(rig.fw(), kMusicCommand).size(),
                 wireless ? 0 : 3 * MusicReport::kReportsPerRound);
        QCOMPARE(rig.fw().musicLevels().toHex(' '),
                 wireless ? QByteArray(22, '\0').toHex(' ') : hex(kStepLevels).toHex(' '));

        action(rig);
        QVERIFY(rig.settle());
        rig.keyboard->model().clearReceivedFrames();
        rig.clock.advance(1000);
        QCOMPARE(framesOf(rig.fw(), kMusicCommand).size(), 0);
        QCOMPARE(rig.fw().ledEffect(), quint8(effectAfter));
        QCOMPARE(rig.conn->IsMusicOn(), musicOnAfter);
    }
};

QTEST_GUILESS_MAIN(TestMusic)
#include "tst_music.moc"
