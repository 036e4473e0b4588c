// The platform layer: what the Linux implementation keeps on disk (autostart entry, per-user
// values), what it reads from the system (processes, key state), and the shared timing of
// keeping a window on top, seen through the recording fake.

#include "FakePlatform.h"
#include "Platform.h"

#include <QFile>
#include <QKeyEvent>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

#ifdef Q_OS_LINUX
#include "LinuxPlatform.h"
#include "XdgAutostart.h"
#endif

class TestPlatform : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void autostartRoundTrip_data()
    {
        QTest::addColumn<QString>("program");
        QTest::newRow("plain") << QStringLiteral("/opt/orbe/orbehub");
        QTest::newRow("blanks") << QStringLiteral("/home/a user/Orbe Hub/orbehub");
        QTest::newRow("shell characters") << QStringLiteral("/tmp/q\"uo`te$HOME\\back/orbehub");
        QTest::newRow("percent") << QStringLiteral("/tmp/100%/orbe%%hub %f");
        QTest::newRow("non-latin") << QStringLiteral("/home/用户/驱动/orbehub");
    }
    void autostartRoundTrip()
    {
#ifdef Q_OS_LINUX
        QFETCH(QString, program);
        LinuxPlatform platform;
        const QString file = QStandardPaths::writableLocation(QStandardPaths::ConfigLocation) +
                             QStringLiteral("/autostart/orbehub.desktop");

        QVERIFY(platform.clearAutostart());
        QVERIFY(!QFile::exists(file));
        QCOMPARE(platform.autostartProgram(), QString());

        QVERIFY(platform.setAutostart(program));
        QVERIFY(QFile::exists(file));
        QCOMPARE(platform.autostartProgram(), program);

        QVERIFY(platform.setAutostart(QStringLiteral("/usr/bin/other")));
        QCOMPARE(platform.autostartProgram(), QStringLiteral("/usr/bin/other"));

        QVERIFY(platform.clearAutostart());
        QVERIFY(!QFile::exists(file));
        QCOMPARE(platform.autostartProgram(), QString());
        QVERIFY(platform.clearAutostart()); // clearing twice is no failure
#else
        QSKIP("the desktop entry is the Linux autostart");
#endif
    }
    void autostartReadsOtherWriters_data()
    {
        QTest::addColumn<QByteArray>("entry");
        QTest::addColumn<QString>("program");
        QTest::newRow("unquoted with arguments")
            << QByteArray("[Desktop Entry]\nType=Application\nExec=/usr/bin/orbehub --tray\n")
            << QStringLiteral("/usr/bin/orbehub");
        QTest::newRow("hidden means off")
            << QByteArray("[Desktop Entry]\nExec=/usr/bin/orbehub\nHidden=true\n") << QString();
        QTest::newRow("other groups ignored")
            << QByteArray("[Desktop Action x]\nExec=/bin/false\n[Desktop Entry]\nExec=\"/a b/c\"\n")
            << QStringLiteral("/a b/c");
        QTest::newRow("no Exec") << QByteArray("[Desktop Entry]\nType=Application\n") << QString();
        QTest::newRow("not a desktop entry") << QByteArray("\x01\x02garbage\n=\n[") << QString();
    }
    void autostartReadsOtherWriters()
    {
#ifdef Q_OS_LINUX
        QFETCH(QByteArray, entry);
        QFETCH(QString, program);
        LinuxPlatform platform;
        QVERIFY(platform.setAutostart(QStringLiteral("/x"))); // makes the folder
        QFile file(XdgAutostart::filePath());
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(entry);
        file.close();
        QCOMPARE(platform.autostartProgram(), program);
        QVERIFY(platform.clearAutostart());
#else
        QSKIP("the desktop entry is the Linux autostart");
#endif
    }
    void userValuesRoundTrip()
    {
#ifdef Q_OS_LINUX
        {
            LinuxPlatform writer;
            writer.setUserValue(QStringLiteral("OrbeReturn"), 1);
            writer.setUserValue(QStringLiteral("DevicePath"), QStringLiteral("/dev/hidraw3"));
            writer.setUserValue(QStringLiteral("PageLoaded"), QStringLiteral("false"));
            writer.setUserValue(QStringLiteral("lastlang"), 5);
            writer.removeUserValue(QStringLiteral("lastlang"));
        }
        LinuxPlatform reader;
        QCOMPARE(reader.userValue(QStringLiteral("OrbeReturn")).toInt(), 1);
        QCOMPARE(reader.userValue(QStringLiteral("DevicePath")).toString(),
                 QStringLiteral("/dev/hidraw3"));
        QCOMPARE(reader.userValue(QStringLiteral("PageLoaded")).toString(),
                 QStringLiteral("false"));
        QVERIFY(!reader.userValue(QStringLiteral("lastlang")).isValid());

        // The native format, under the user's config folder, in the organisation's own file.
        const QString file =
            QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
            QStringLiteral("/Orbe.conf");
        QVERIFY2(QFile::exists(file), qPrintable(file));
        QCOMPARE(QSettings(file, QSettings::IniFormat).value(QStringLiteral("OrbeReturn")).toInt(),
                 1);

        LinuxPlatform otherBrand(QStringLiteral("Tarnwick"));
        QVERIFY(!otherBrand.userValue(QStringLiteral("OrbeReturn")).isValid());

        reader.removeUserValue(QStringLiteral("OrbeReturn"));
        reader.removeUserValue(QStringLiteral("DevicePath"));
        reader.removeUserValue(QStringLiteral("PageLoaded"));
        QVERIFY(!LinuxPlatform().userValue(QStringLiteral("OrbeReturn")).isValid());
#else
        QSKIP("the registry is checked on Windows itself");
#endif
    }
    void processesByName()
    {
#ifdef Q_OS_LINUX
        // A sleeper under a name of our own, so nothing but our own child can be ended.
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString name = QStringLiteral("orbe-tst-%1").arg(QCoreApplication::applicationPid());
        const QString program = dir.filePath(name);
        QVERIFY(QFile::copy(QStringLiteral("/bin/sleep"), program));
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));

        LinuxPlatform platform;
        QVERIFY(!platform.isProcessRunning(name));
        QVERIFY(!platform.endProcess(name));

        QProcess sleeper;
        sleeper.start(program, {QStringLiteral("60")});
        QVERIFY(sleeper.waitForStarted());
        QVERIFY(platform.isProcessRunning(name));
        QVERIFY(platform.isProcessRunning(name.toUpper()));
        QVERIFY(!platform.isProcessRunning(name.left(name.size() - 1)));

        QVERIFY(platform.endProcess(name.toUpper()));
        QVERIFY(sleeper.waitForFinished(10000));
        QCOMPARE(sleeper.exitStatus(), QProcess::CrashExit);
        QVERIFY(!platform.isProcessRunning(name));
#else
        QSKIP("the process table is /proc");
#endif
    }
    void keyStateFollowsKeyEvents()
    {
#ifdef Q_OS_LINUX
        LinuxPlatform platform;
        QWindow window;
        QCOMPARE(platform.keyState(Platform::KeyEscape), qint16(0));

        QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &press);
        QVERIFY(platform.keyState(Platform::KeyEscape) < 0);
        QCOMPARE(platform.keyState(Platform::KeyEscape) & 1, 1);
        QCOMPARE(platform.keyState(Platform::KeyD), qint16(0));

        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &release);
        QCOMPARE(platform.keyState(Platform::KeyEscape), qint16(1)); // up, toggled once

        QKeyEvent pressD(QEvent::KeyPress, Qt::Key_D, Qt::ControlModifier);
        QCoreApplication::sendEvent(&window, &pressD);
        QVERIFY(platform.keyState(Platform::KeyD) < 0);
        QCoreApplication::sendEvent(&window, &press);
        QCoreApplication::sendEvent(&window, &release);
        QCOMPARE(platform.keyState(Platform::KeyEscape), qint16(0)); // toggled back

        QEvent deactivate(QEvent::ApplicationDeactivate);
        QCoreApplication::sendEvent(qApp, &deactivate);
        QVERIFY(platform.keyState(Platform::KeyD) >= 0);
#else
        QSKIP("GetKeyState itself on Windows");
#endif
    }

    void keepOnTopForAWhile()
    {
        FakePlatform fake;
        QObject context;
        fake.keepOnTopForAWhile(&context, 0x51, 5, 20);
        QTRY_COMPARE(fake.operations.size(), 2);
        QCOMPARE(fake.operations, (QStringList{
                                      QStringLiteral("setWindowPos(0x51, TopMost, 0,0 0x0, 0x3)"),
                                      QStringLiteral("setWindowPos(0x51, NoTopMost, 0,0 0x0, 0x3)"),
                                  }));

        // The timers die with their context: nothing happens after it is gone.
        auto* shortLived = new QObject;
        fake.keepOnTopForAWhile(shortLived, 0x52, 5, 10);
        delete shortLived;
        QTest::qWait(30);
        QCOMPARE(fake.operations.size(), 2);
    }
};

QTEST_MAIN(TestPlatform)
#include "tst_platform.moc"
