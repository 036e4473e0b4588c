#include "CallRegistry.h"
#include "CliOptions.h"
#include "CliSession.h"
#include "DeviceListCommand.h"
#include "ManualClock.h"
#include "TestSupport.h"
#include "VirtualHidBackend.h"
#include "VirtualReceiver.h"
#include "VirtualSilentKeyboard.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

// Runs the built tool against the virtual keyboards and checks what it prints.
class TestCli : public QObject
{
    Q_OBJECT

    struct Run
    {
        int status = -1;
        QByteArray out;
        QByteArray err;
    };

    static Run run(const QStringList& args, int limitMs = 60000)
    {
        QProcess process;
        process.start(QStringLiteral(ORBEHUB_CLI), args);
        Run r;
        if (!process.waitForFinished(limitMs)) {
            process.kill();
            process.waitForFinished();
            return r;
        }
        r.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        r.out = process.readAllStandardOutput();
        r.err = process.readAllStandardError();
        return r;
    }

private slots:
    // What the options and calls mean is checked by running the tool below; here, what it
    // refuses before it touches a device, and why.
    void parseErrors_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("error"); // its beginning

        QTest::newRow("no command") << QStringList{"--simulate"} << "a command";
        QTest::newRow("unknown command") << QStringList{"read"} << "unknown command";
        QTest::newRow("list takes no arguments")
            << QStringList{"list", "all"} << "list takes no arguments";
        QTest::newRow("unknown option") << QStringList{"--fast", "info"} << "unknown option";
        QTest::newRow("option value missing") << QStringList{"--vid"} << "--vid needs";
        QTest::newRow("vid too large") << QStringList{"--vid", "0x10000", "info"} << "--vid:";
        QTest::newRow("unknown operation")
            << QStringList{"call", "DoFly"} << "call: unknown operation";
        QTest::newRow("too few arguments") << QStringList{"call", "DoSendCommand", "1"}
                                           << "call: usage: DoSendCommand u8 int bool";
        QTest::newRow("empty group")
            << QStringList{"call", "DoReadAll", "--"} << "call: an operation name";
        QTest::newRow("u8 out of range") << QStringList{"call", "DoSetProfile", "256"}
                                         << "call: DoSetProfile: \"256\" is not a u8";
        QTest::newRow("odd hex") << QStringList{"call", "DoSendHex", "E5001", "0"}
                                 << "call: DoSendHex:";
        QTest::newRow("blank in hex")
            << QStringList{"call", "DoSendHex", "E5 00", "0"} << "call: DoSendHex:";
        QTest::newRow("backup without a file") << QStringList{"backup"} << "backup needs a FILE";
        QTest::newRow("backup with two files")
            << QStringList{"backup", "a", "b"} << "usage: backup FILE";
        QTest::newRow("restore, unknown option")
            << QStringList{"restore", "a", "--fast"} << "usage: restore FILE [--dry-run]";
        QTest::newRow("flag not 0 or 1")
            << QStringList{"call", "DoSendHex", "E500", "2"} << "call: DoSendHex:";
    }
    void parseErrors()
    {
        QFETCH(QStringList, args);
        QFETCH(QString, error);
        CliOptions o;
        QString why;
        QVERIFY(!CliOptions::parse(args, &o, &why));
        QVERIFY2(why.startsWith(error), qPrintable(why));
    }

    void argumentKinds_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<quint64>("number");
        QTest::addColumn<QByteArray>("bytes");
        const int u16 = int(ArgKind::U16), u32 = int(ArgKind::U32), key = int(ArgKind::KeyEntry),
                  colour = int(ArgKind::Colour), integer = int(ArgKind::Int);
        QTest::newRow("u16 hex") << u16 << "0xFFFF" << true << quint64(0xFFFF) << QByteArray();
        QTest::newRow("u16 too big") << u16 << "65536" << false << quint64(0) << QByteArray();
        QTest::newRow("u32 upper X")
            << u32 << "0XDEADBEEF" << true << quint64(0xDEADBEEF) << QByteArray();
        QTest::newRow("negative") << integer << "-1" << false << quint64(0) << QByteArray();
        QTest::newRow("not a number") << integer << "12ab" << false << quint64(0) << QByteArray();
        QTest::newRow("key entry")
            << key << "02000400" << true << quint64(0) << QByteArray::fromHex("02000400");
        QTest::newRow("key entry short") << key << "020004" << false << quint64(0) << QByteArray();
        QTest::newRow("key entry empty") << key << "" << false << quint64(0) << QByteArray();
        QTest::newRow("no bytes") << int(ArgKind::Bytes) << "" << true << quint64(0)
                                  << QByteArray();
        QTest::newRow("colour") << colour << "#6329B6" << true << quint64(0x6329B6)
                                << QByteArray::fromHex("6329B6");
        QTest::newRow("colour without #")
            << colour << "6329B6" << false << quint64(0) << QByteArray();
        QTest::newRow("colour not hex")
            << colour << "#6329BG" << false << quint64(0) << QByteArray();
    }
    void argumentKinds()
    {
        QFETCH(int, kind);
        QFETCH(QString, text);
        QFETCH(bool, ok);
        QFETCH(quint64, number);
        QFETCH(QByteArray, bytes);
        CallArg arg;
        QString error;
        QCOMPARE(CallRegistry::parseArg(ArgKind(kind), text, &arg, &error), ok);
        if (!ok) {
            QVERIFY(error.contains(text));
            return;
        }
        QCOMPARE(arg.number, number);
        QCOMPARE(arg.bytes, bytes);
    }

    void info_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("versionText");
        QTest::newRow("wired default") << QStringList{} << "0x300"
                                       << "Ver:0x300 Id:2807[AF7]";
        QTest::newRow("wired, other firmware")
            << QStringList{"--sim-version", "0x500", "--sim-id", "0x123"} << "0x500"
            << "Ver:0x500 Id:291[123]";
        QTest::newRow("wireless") << QStringList{"--wireless", "--sim-version", "1023"} << "0x3FF"
                                  << "Ver:0x3FF Id:2807[AF7]";
    }
    void info()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, version);
        QFETCH(QString, versionText);
        const Run r = run(QStringList{"--simulate"} + options + QStringList{"info"});
        QCOMPARE(r.status, 0);
        const QString out = QString::fromUtf8(r.out);
        QVERIFY2(out.contains("firmware version: " + version + "\n"), qPrintable(out));
        QVERIFY2(out.contains("version text: " + versionText + "\n"), qPrintable(out));
    }

    void dumpPrintsTheWholeCache_data()
    {
        QTest::addColumn<QString>("version");
        QTest::newRow("0x300") << "0x300";
        QTest::newRow("0x500") << "0x500";
    }
    void dumpPrintsTheWholeCache()
    {
        QFETCH(QString, version);
        const Run r = run({"--simulate", "--sim-version", version, "--timing", "dump"});
        QCOMPARE(r.status, 0);
        QJsonParseError error;
        const QJsonObject cache = QJsonDocument::fromJson(r.out, &error).object();
        QCOMPARE(error.error, QJsonParseError::NoError);
        // The read sequence set the version field to 0 and the scale to 10 until the next
        // connect; the identity block and the label keep what the keyboard said.
        QCOMPARE(cache.value("firmwareVersion").toInt(), 0);
        QCOMPARE(cache.value("travelScale").toInt(), 10);
        QCOMPARE(cache.value("identityVersion").toInt(), version.toInt(nullptr, 16));
        QVERIFY(cache.value("versionText").toString().startsWith("Ver:" + version));
        QCOMPARE(cache.value("deviceId").toInt(), 0xAF7);
        QCOMPARE(cache.value("currentProfile").toInt(), 0);
        QCOMPARE(cache.value("keyMatrix").toArray().at(0).toArray().size(), 128);
        QCOMPARE(cache.value("keyMatrix").toArray().at(3).toArray().size(), 128);
        QCOMPARE(cache.value("fnMatrix").toArray().at(0).toArray().size(), 160);
        const QJsonObject tables = cache.value("magnetTables").toObject();
        QCOMPARE(tables.size(), 15);
        for (const QString& name : tables.keys())
            QCOMPARE(tables.value(name).toArray().size(), 128);
        QCOMPARE(cache.value("sleepTimes").toArray().size(), 4);
        QVERIFY(!cache.value("kbOptions").toString().isEmpty());
        QVERIFY(!cache.value("ledParams").toObject().isEmpty());
        QVERIFY2(QRegularExpression("^read sequence: \\d+ ms$", QRegularExpression::MultilineOption)
                     .match(QString::fromUtf8(r.err))
                     .hasMatch(),
                 r.err.constData());
    }

    void callSelectsAProfileAndTracesTheWire()
    {
        QTemporaryDir dir;
        const QString trace = dir.filePath("trace.txt");
        const Run r = run({"--simulate", "--trace", trace, "call", "DoSetProfile", "2"});
        QCOMPARE(r.status, 0);
        const QJsonObject cache = QJsonDocument::fromJson(r.out).object();
        QCOMPARE(cache.value("currentProfile").toInt(), 2);

        QFile file(trace);
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        const QStringList lines =
            QString::fromLatin1(file.readAll()).split('\n', Qt::SkipEmptyParts);
        QVERIFY(!lines.isEmpty());
        const QRegularExpression format("^(\\d+) ([<>]) (feature|write|read)((?: [0-9A-F]{2})*)$");
        QVERIFY2(lines.first().section(' ', 1).startsWith("> feature 00 1B 01"),
                 qPrintable(lines.first()));
        qint64 last = 0;
        int setProfile = -1;
        int profileTwoReads = 0;
        for (int i = 0; i < lines.size(); ++i) {
            const auto m = format.match(lines.at(i));
            QVERIFY2(m.hasMatch(), qPrintable(lines.at(i)));
            QVERIFY(m.captured(1).toLongLong() >= last); // times never go back
            last = m.captured(1).toLongLong();
            if (m.captured(2) == ">" && m.captured(4).startsWith(" 00 04 02")) setProfile = i;
            if (m.captured(2) == ">" && m.captured(4).startsWith(" 00 8A 02 FF")) {
                QVERIFY(setProfile >= 0 && setProfile < i);
                ++profileTwoReads;
            }
        }
        // The first sequence reads profile 0; after the call, the four layers of profile 2.
        QCOMPARE(profileTwoReads, 4 * 8);
    }

    void callChainsOperationsAndDumpsWhatTheyWrote()
    {
        // An empty macro is a valid transfer too: its blob is the repeat count alone.
        const Run r = run(QString("--simulate call DoSetKey 0x04 00E00400 1 1 -- DoSetMagnetism 0 "
                                  "0x04 300 1 -- DoSetSleepTime 10 2 -- DoSetKbOption 3 4 -- "
                                  "DoSetMacro 0x05 2 0 7 04B20432 -- DoWriteUserPic 1 %1 -- "
                                  "DoReadAll -- DoSetMacro 0x06 1 0 9")
                              .arg(QString("AB").repeated(392))
                              .split(' ') +
                          QStringList{QString()});
        QCOMPARE(r.status, 0);
        const QJsonObject cache = QJsonDocument::fromJson(r.out).object();
        // Read back from the keyboard by the last read sequence.
        QCOMPARE(cache.value("keyMatrix").toArray().at(1).toArray().at(9).toString(),
                 QString("00E00400"));
        QCOMPARE(
            cache.value("magnetTables").toObject().value("00 actuation").toArray().at(9).toInt(),
            300);
        QCOMPARE(cache.value("sleepTimes").toArray().at(2).toInt(), 600);
        QCOMPARE(cache.value("kbOptionValues").toObject().value("3").toInt(), 4);
        // The macro's key entry on layer 0, its blob and the picture in the keyboard's slots.
        QCOMPARE(cache.value("keyMatrix").toArray().at(0).toArray().at(40).toString(),
                 QString("09000700"));
        const QJsonObject keyboard = cache.value("virtualKeyboard").toObject();
        QVERIFY(
            keyboard.value("macros").toObject().value("7").toString().startsWith("020004B20432"));
        QCOMPARE(keyboard.value("macros").toObject().value("9").toString(),
                 "0100" + QString("00").repeated(54));
        QCOMPARE(keyboard.value("pictures").toObject().keys(), QStringList{"1"});
        QVERIFY(keyboard.value("pictures").toObject().value("1").toString().startsWith("ABABAB"));
    }

    // The one run of backup and restore in real time, with the pacing of a wired keyboard: a
    // backup, the file changed by hand in a profile that isn't the active one and in a sleep
    // time, and a restore on a fresh virtual keyboard that writes those two and reads back.
    void backupAndRestoreInRealTime()
    {
        QTemporaryDir dir;
        const QString file = dir.filePath("kb.json");
        const Run backup = run({"--simulate", "backup", file}, 120000);
        QCOMPARE(backup.status, 0);
        QJsonObject o = QJsonDocument::fromJson(readFile(file)).object();
        QCOMPARE(o.value("formatVersion").toInt(), 1);
        QCOMPARE(o.value("deviceId").toInt(), 0xAF7);
        setBackupKeyEntry(o, 1, 0, 9, "00000500");
        QJsonArray sleep = o.value("sleepTimes").toArray();
        sleep[2] = 600;
        o.insert("sleepTimes", sleep);
        writeFile(file, QJsonDocument(o).toJson());

        const Run restore = run({"--simulate", "restore", file}, 180000);
        const QString out = QString::fromUtf8(restore.out);
        QVERIFY2(restore.status == 0, qPrintable(out + restore.err));
        const QStringList lines = out.split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 5);
        QVERIFY(lines.at(0).startsWith("WHAT "));
        QVERIFY(
            QRegularExpression("^profile 1 layer 0 key 04 \\(position 9\\) +00000400 +00000500$")
                .match(lines.at(1))
                .hasMatch());
        QVERIFY(
            QRegularExpression("^sleep time 2 \\(s\\) +1800 +600$").match(lines.at(2)).hasMatch());
        QCOMPARE(lines.at(3), QString("2 differences, 2 operations to write"));
        QCOMPARE(lines.at(4), QString("read back: the keyboard matches the backup"));
    }

    void failuresExitWithAReason_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message");
        QTest::newRow("absent vid") << QStringList{"--simulate", "--vid", "0x1234", "info"} << 3
                                    << "no keyboard 1234:502F found";
        QTest::newRow("wireless pid without its interface")
            << QStringList{"--simulate", "--wireless", "--pid", "0x502F", "info"} << 3
            << "no wireless keyboard 3151:502F found";
        // A keyboard that lists one of its two interfaces is no permission problem; an open
        // that fails is, and says which path and why.
        QTest::newRow("command interface not listed")
            << QStringList{"--simulate", "--sim-missing", "2", "info"} << 3
            << "keyboard 3151:502F lists its input interface (sim:3151:502F:1) but no command "
               "interface (usage page FFFF, usage 2)";
        QTest::newRow("input interface not listed")
            << QStringList{"--simulate", "--sim-missing", "1", "call", "DoReadAll"} << 3
            << "keyboard 3151:502F lists its command interface (sim:3151:502F:2) but no input "
               "interface (usage page FFFF, usage 1)";
        QTest::newRow("command interface refused")
            << QStringList{"--simulate", "--sim-denied", "2", "info"} << 4
            << "keyboard 3151:502F is present but cannot be opened: sim:3151:502F:2 (Permission "
               "denied); on Linux install";
        QTest::newRow("bad call") << QStringList{"--simulate", "call", "DoSetProfile"} << 2
                                  << "call: usage: DoSetProfile u8";
        QTest::newRow("trace not writable")
            << QStringList{"--simulate", "--trace", "/nonexistent/dir/t.txt", "info"} << 1
            << "cannot write the trace file";
    }
    void failuresExitWithAReason()
    {
        QFETCH(QStringList, args);
        QFETCH(int, status);
        QFETCH(QString, message);
        const Run r = run(args);
        QCOMPARE(r.status, status);
        QVERIFY(r.out.isEmpty());
        const QString err = QString::fromUtf8(r.err);
        QVERIFY2(err.startsWith("orbehub-cli: " + message), qPrintable(err));
    }

    // The list gives up after 30 s and says why: a device that never answers, or a pass that was
    // only long. Virtual time, the tool's own command over the virtual devices.
    void listSaysWhyItGaveUp_data()
    {
        QTest::addColumn<int>("silent");    // keyboards that never answer 8F
        QTest::addColumn<int>("receivers"); // receivers with nothing paired, over 1 s each
        QTest::addColumn<QString>("reason");
        QTest::newRow("a silent keyboard")
            << 1 << 0
            << "the device at sim:silent:2 never answered its identity request (it holds the "
               "pass for as long as it is plugged in)";
        QTest::newRow("only many devices")
            << 0 << 30 << "no device held it, there were only too many to ask in that time";
        QTest::newRow("both: the silent one is named") << 1 << 3 << "the device at sim:silent";
    }
    void listSaysWhyItGaveUp()
    {
        QFETCH(int, silent);
        QFETCH(int, receivers);
        QFETCH(QString, reason);
        ManualClock clock;
        VirtualHidBackend hid(&clock);
        for (int i = 0; i < receivers; ++i)
            hid.add<VirtualReceiver>(VirtualReceiver::Identity{}, 0u,
                                     QByteArray("sim:rx") + QByteArray::number(i));
        if (silent) hid.add<VirtualSilentKeyboard>(quint16(0x3151), quint16(0x5041), "sim:silent");

        QString out;
        QString err;
        QTextStream outStream(&out);
        QTextStream errStream(&err);
        QCOMPARE(DeviceListCommand::run(hid, clock, outStream, errStream),
                 int(CliSession::TimedOut));
        QVERIFY(out.isEmpty());
        QVERIFY2(
            err.startsWith("orbehub-cli: the discovery pass did not end within 30 s: " + reason),
            qPrintable(err));
    }
};

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
