// The loopback capture on a real sound server: a private PulseAudio with a null sink, a tone
// played into it, the levels that come out of the capture and reach the virtual keyboard through
// the connection. Skipped, saying why, where PulseAudio, paplay or sox are missing or the daemon
// won't start. The one real-time test of the music path.

#include "AudioLog.h"
#include "Clock.h"
#include "DialogDeviceConnect.h"
#include "ModuleGenKeymapping.h"
#include "MusicReport.h"
#include "PulseLoopbackCapture.h"
#include "SimRig.h"
#include "VirtualHidBackend.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>
#include <algorithm>
#include <atomic>

namespace {

constexpr int kDaemonStartMs = 10000;
constexpr int kFirstLevelsMs = 15000; // the first read can take a few seconds
constexpr int kMusicEffect = 22;
constexpr int kStaticEffect = 1;
constexpr quint8 kMusicCommand = 0x0D;

std::atomic<int> startErrors{0};
QtMessageHandler previousHandler = nullptr;

void countStartErrors(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtCriticalMsg && text == QLatin1String(kCaptureStartError)) ++startErrors;
    previousHandler(type, context, text);
}

bool anyLevel(const AudioCapture& capture)
{
    const MusicReport::Levels levels = MusicReport::levels(capture.block());
    return std::any_of(levels.begin(), levels.end(), [](quint8 l) { return l != 0; });
}

} // namespace

class TestLoopback : public QObject
{
    Q_OBJECT

    QTemporaryDir dir;
    QProcess daemon;
    QByteArray server;
    QString tone;

    // A tool the test runs: pactl for the daemon's readiness, paplay and sox for the tone.
    QString tool(const char* name) { return QStandardPaths::findExecutable(name); }

    QProcessEnvironment clientEnvironment() const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("PULSE_SERVER", QString::fromLatin1(server));
        env.insert("HOME", dir.path());
        return env;
    }

    bool daemonAnswers()
    {
        QProcess pactl;
        pactl.setProcessEnvironment(clientEnvironment());
        pactl.start(tool("pactl"), {"info"});
        return pactl.waitForFinished(3000) && pactl.exitStatus() == QProcess::NormalExit &&
               pactl.exitCode() == 0;
    }

private slots:
    void initTestCase()
    {
        for (const char* name : {"pulseaudio", "pactl", "paplay", "sox"})
            if (tool(name).isEmpty())
                QSKIP(qPrintable(QStringLiteral("%1 is not installed (Debian: pulseaudio "
                                                "pulseaudio-utils sox); no sound server to capture")
                                     .arg(QLatin1String(name))));
        QVERIFY(dir.isValid());
        QDir(dir.path()).mkpath("run");
        QDir(dir.path()).mkpath("home");
        const QString socket = dir.filePath("run/native");
        server = "unix:" + socket.toLocal8Bit();

        // A daemon of our own: its own runtime folder and socket, one null sink, no cookie, no
        // other modules, so neither the machine's sound nor other tests are touched.
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("XDG_RUNTIME_DIR", dir.filePath("run"));
        env.insert("HOME", dir.filePath("home"));
        env.remove("PULSE_SERVER");
        daemon.setProcessEnvironment(env);
        daemon.setProcessChannelMode(QProcess::MergedChannels);
        daemon.start(tool("pulseaudio"),
                     {"-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
                      "--disable-shm=yes", "--log-target=stderr", "-L",
                      "module-null-sink sink_name=orbe_music_test", "-L",
                      "module-native-protocol-unix auth-anonymous=1 socket=" + socket});
        if (!daemon.waitForStarted(kDaemonStartMs))
            QSKIP(qPrintable("PulseAudio did not start: " + daemon.errorString()));
        QElapsedTimer waited;
        waited.start();
        while (!daemonAnswers()) {
            if (daemon.state() != QProcess::Running || waited.elapsed() > kDaemonStartMs)
                QSKIP(qPrintable("PulseAudio did not come up: " +
                                 QString::fromLocal8Bit(daemon.readAll().right(600))));
            QTest::qWait(100);
        }

        tone = dir.filePath("tone.wav");
        QProcess sox;
        sox.start(tool("sox"), {"-n", "-r", "48000", "-c", "2", "-b", "16", tone, "synth", "30",
                                "sine", "440", "vol", "0.9"});
        QVERIFY(sox.waitForFinished(10000));
        QCOMPARE(sox.exitCode(), 0);

        previousHandler = qInstallMessageHandler(countStartErrors);
    }

    void cleanupTestCase()
    {
        if (previousHandler) qInstallMessageHandler(previousHandler);
        if (daemon.state() == QProcess::NotRunning) return;
        daemon.terminate();
        if (!daemon.waitForFinished(5000)) daemon.kill();
        daemon.waitForFinished(2000);
    }

    // The whole road in real time: the idle sink's silence, then a tone, through the capture,
    // the connection's rounds on its I/O thread and the virtual keyboard's music levels. The
    // keyboard's state is read with the rounds stopped and the connection idle.
    void toneReachesTheKeyboard()
    {
        startErrors = 0;
        auto capture = std::make_unique<PulseLoopbackCapture>(server);
        capture->start();
        QTRY_VERIFY_WITH_TIMEOUT(capture->isStreaming(), kFirstLevelsMs);

        VirtualHidBackend hid(QtClock::shared());
        VirtualKeyboard* keyboard = hid.addWiredKeyboard();
        ModuleGenKeymapping keys;
        DialogDeviceConnect conn(&hid, QtClock::shared(), keys, dir.filePath("device.ini"));
        conn.setAudioCapture(capture.get());
        conn.connectStep();
        QTRY_VERIFY_WITH_TIMEOUT(conn.isConnected() && conn.isIdle(), 10000);
        auto playFor = [&](int ms) {
            keyboard->model().clearReceivedFrames();
            conn.DoSetLedEffect(kMusicEffect, 0);
            QTest::qWait(ms);
            conn.DoSetLedEffect(kStaticEffect, 0);
            QTRY_VERIFY_WITH_TIMEOUT(conn.isIdle(), 5000);
            QVERIFY(framesOf(keyboard->model(), kMusicCommand).size() >= 10);
        };
        QTest::qWait(300);
        QVERIFY2(!anyLevel(*capture), "an idle null sink's monitor is silent");
        playFor(700);
        QCOMPARE(keyboard->model().musicLevels(), QByteArray(22, '\0'));

        QProcess player;
        player.setProcessEnvironment(clientEnvironment());
        player.start(tool("paplay"), {tone});
        QVERIFY(player.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(anyLevel(*capture), kFirstLevelsMs);
        playFor(700);
        QVERIFY(keyboard->model().musicLevels().count('\0') < 22);
        QVERIFY(!capture->hasFailed());
        QCOMPARE(startErrors.load(), 0);

        capture.reset();
        player.kill();
        player.waitForFinished(2000);
    }

    // No server at the given place: the capture says so once, the block stays silent, and the
    // program goes on.
    void missingServerIsLoggedOnce()
    {
        startErrors = 0;
        PulseLoopbackCapture capture("unix:" + dir.filePath("run/nobody-here").toLocal8Bit());
        capture.start();
        capture.start();
        QTRY_VERIFY_WITH_TIMEOUT(capture.hasFailed(), 5000);
        QTest::qWait(200);
        QCOMPARE(startErrors.load(), 1);
        QVERIFY(!capture.isStreaming());
        QVERIFY(!anyLevel(capture));
    }
};

QTEST_GUILESS_MAIN(TestLoopback)
#include "tst_loopback.moc"
