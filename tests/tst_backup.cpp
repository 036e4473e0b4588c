#include "BackupFile.h"
#include "CliOptions.h"
#include "CliSession.h"
#include "ManualClock.h"
#include "TestSupport.h"
#include "VirtualHidBackend.h"
#include "VirtualKeyboard.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

// backup and restore through the tool's own session, on one virtual keyboard that outlives
// each run, in virtual time: what reached the firmware and what it holds afterwards.
class TestBackup : public QObject
{
    Q_OBJECT

    struct Run
    {
        int status = -1;
        QString out;
        QString err;
    };

    struct Rig
    {
        ManualClock clock;
        VirtualHidBackend hid{&clock};
        VirtualKeyboard* keyboard;
        CliHarness harness;
        QTemporaryDir dir;
        bool wireless;

        explicit Rig(bool overTheAir = false, quint16 version = 0x0300)
            : keyboard(overTheAir ? hid.addWirelessKeyboard(0x0AF7, version)
                                  : hid.addWiredKeyboard(0x0AF7, version)),
              harness{&clock, &hid, keyboard}, wireless(overTheAir)
        {
        }
        NativeKeyboardModel& fw() { return keyboard->model(); }
        QString file(const QString& name = QStringLiteral("kb.json")) const
        {
            return dir.filePath(name);
        }

        // during runs at every step of virtual time, for faults on cue.
        Run cli(const QStringList& args, const std::function<void()>& during = {})
        {
            QStringList all{"--simulate"};
            if (wireless) all << "--wireless";
            CliOptions options;
            Run r;
            if (!CliOptions::parse(all + args, &options, &r.err)) return r;
            QTextStream out(&r.out);
            QTextStream err(&r.err);
            {
                CliSession session(options, out, err, &harness);
                connect(&session, &CliSession::ended, [&r](int status) { r.status = status; });
                session.start();
                clock.advanceUntil(
                    [&] {
                        if (during) during();
                        return r.status >= 0;
                    },
                    10 * 60 * 1000, 5);
            }
            out.flush();
            err.flush();
            return r;
        }
        Run call(const QString& operations)
        {
            return cli(QStringList{"call"} + operations.split(' '));
        }
    };

    static QJsonObject load(const QString& path)
    {
        return QJsonDocument::fromJson(readFile(path)).object();
    }

    // The firmware holds what the backup holds.
    static void compareWithFirmware(const KeyboardSnapshot& s, const NativeKeyboardModel& fw)
    {
        QCOMPARE(fw.profile(), s.activeProfile);
        for (int p = 0; p < KeyboardSnapshot::kProfiles; ++p)
            for (int layer = 0; layer < KeyboardSnapshot::kLayers; ++layer)
                QCOMPARE(s.keyLayers[p][layer], fw.keyMap(p, layer));
        QCOMPARE(s.fnLayer, fw.fnMap());
        for (const MagnetTables::Table& t : MagnetTables::kTables)
            if (s.hasMagnetism && KeyboardSnapshot::keeps(t))
                QCOMPARE(s.magnetTables[MagnetTables::indexOf(t.number)], fw.magnetTable(t.number));
        QCOMPARE(s.options, fw.optionBlock().mid(1));
        QCOMPARE(s.reportRate, fw.reportRate());
        QCOMPARE(s.debounce, fw.debounce());
        for (int slot = 0; slot < KeyboardSnapshot::kSleepSlots; ++slot)
            QCOMPARE(s.sleepTimes[slot], fw.sleepTime(slot));
        for (int slot = 0; slot < KeyboardSnapshot::kPictureSlots; ++slot)
            QCOMPARE(s.pictures[slot], fw.picture(slot).left(KeyboardSnapshot::kPictureBytes));
        const LedParams led = fw.ledParams(fw.ledEffect());
        QCOMPARE(s.lighting, (KeyboardSnapshot::Light{fw.ledEffect(), led.speed, led.brightness,
                                                      led.option, led.red, led.green, led.blue}));
        const LedParams side = fw.sideLedParams(fw.sideLedEffect());
        QCOMPARE(s.sideLight,
                 (KeyboardSnapshot::Light{fw.sideLedEffect(), side.speed, side.brightness,
                                          side.option, side.red, side.green, side.blue}));
        QCOMPARE(s.ledOn, fw.ledOn());
    }

    // The WHAT column of the table a restore printed, without its header.
    static QStringList tableRows(const QString& out)
    {
        QStringList rows;
        bool inTable = false;
        for (const QString& line : out.split('\n')) {
            if (line.startsWith("WHAT ")) {
                inTable = true;
                continue;
            }
            if (inTable && line.contains("  "))
                rows << line.section("  ", 0, 0).trimmed();
            else
                inTable = false;
        }
        return rows;
    }

    // Commands of the frames the firmware got, in order.
    static QList<quint8> commands(const NativeKeyboardModel& fw)
    {
        QList<quint8> list;
        for (const QByteArray& f : fw.receivedFrames())
            list.append(quint8(f.at(0)));
        return list;
    }
    static int count(const QList<quint8>& list, quint8 command) { return int(list.count(command)); }
    static QList<QByteArray> framesOf(const NativeKeyboardModel& fw, quint8 command)
    {
        QList<QByteArray> out;
        for (const QByteArray& f : fw.receivedFrames())
            if (quint8(f.at(0)) == command) out.append(f);
        return out;
    }

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void backupChangeRestore_data()
    {
        QTest::addColumn<bool>("wireless");
        QTest::addColumn<int>("version");
        QTest::addColumn<int>("effect"); // the backup's light effect
        // The music effect's reports run once a restore has chosen it again.
        QTest::newRow("wired, music effect") << false << 0x300 << 22;
        QTest::newRow("wireless, firmware 0x500") << true << 0x500 << 4;
        QTest::newRow("firmware 0x2FF, no magnetism") << false << 0x2FF << 4;
    }
    void backupChangeRestore()
    {
        QFETCH(bool, wireless);
        QFETCH(int, version);
        QFETCH(int, effect);
        const bool magnetism = version >= 0x300;
        Rig rig(wireless, quint16(version));
        // Made the keyboard's own before the backup: profile 1 active, a key on profile 3.
        QCOMPARE(rig.call(QString("DoSetProfile 3 -- DoSetKey 0x05 00000600 2 1 -- DoSetProfile 1 "
                                  "-- DoSetLedEffect %1 3")
                              .arg(effect))
                     .status,
                 0);

        const Run backup = rig.cli({"backup", rig.file()});
        QCOMPARE(backup.status, 0);
        QVERIFY2(backup.out.contains("written to " + rig.file()), qPrintable(backup.out));
        QCOMPARE(rig.fw().profile(), quint8(1)); // back where it was
        QString why;
        const std::optional<KeyboardSnapshot> saved = BackupFile::read(rig.file(), &why);
        QVERIFY2(saved, qPrintable(why));
        QCOMPARE(saved->hasMagnetism, magnetism);
        QCOMPARE(load(rig.file()).value("magnetism").isNull(), !magnetism);
        compareWithFirmware(*saved, rig.fw());
        QCOMPARE(saved->entry(saved->keyLayers[3][2], 40), QByteArray::fromHex("00000600"));

        QString changes = "DoSetProfile 2 -- DoSetKey 0x04 00000500 1 1 -- DoSetFn 0x04 00000700 "
                          "-- DoSetSleepTime 10 2 -- DoSetKbOption 3 4 -- DoSetReportRate 1 -- "
                          "DoSetDebounce 5 -- DoWriteUserPic 1 " +
                          QString("AB").repeated(392) +
                          " -- DoSetLedEffect 5 2 -- DoSetSideLed 0003010208FF000000 -- "
                          "DoSetLedOnOff 1";
        if (magnetism) changes += " -- DoSetMagnetism 0 0x04 300 1 -- DoSetMagnetism 1 0xFF 100 1";
        QCOMPARE(rig.call(changes).status, 0);

        // A dry run reads (profile selects included) and writes nothing.
        QByteArray before = rig.fw().optionBlock();
        const quint16 sleepBefore = rig.fw().sleepTime(2);
        rig.fw().clearReceivedFrames();
        const Run dry = rig.cli({"restore", rig.file(), "--dry-run"});
        QCOMPARE(dry.status, 0);
        for (quint8 c : commands(rig.fw()))
            QVERIFY2((c & 0x80) || c == 0x04 || c == 0x1B, qPrintable(QString::number(c, 16)));
        QCOMPARE(rig.fw().profile(), quint8(2));
        QCOMPARE(rig.fw().optionBlock(), before);
        QCOMPARE(rig.fw().sleepTime(2), sleepBefore);
        QStringList expected{"active profile",
                             "profile 2 layer 1 key 04 (position 9)",
                             "Fn layer key 04 (position 9)",
                             "option 3",
                             "report rate",
                             "debounce",
                             "sleep time 2 (s)",
                             "user picture 1 (128 colours differ, first at key 29 (position 0))",
                             "light effect",
                             "light speed (keyboard's value)",
                             "light option",
                             "side light effect",
                             "side light speed (keyboard's value)",
                             "side light brightness",
                             "side light mode",
                             "side light colour",
                             "light"};
        if (magnetism)
            expected << "actuation, key 04 (position 9)"
                     << "release, every key (128 differ)";
        QStringList rows = tableRows(dry.out);
        rows.sort();
        expected.sort();
        QCOMPARE(rows, expected);
        QVERIFY(dry.out.contains("dry run: nothing was written"));

        rig.fw().clearReceivedFrames();
        const Run restore = rig.cli({"restore", rig.file()});
        QVERIFY2(restore.status == 0, qPrintable(restore.out + restore.err));
        QVERIFY2(restore.out.contains("read back: the keyboard matches the backup"),
                 qPrintable(restore.out));
        compareWithFirmware(*saved, rig.fw());
        // Only what differed went out: one key, one Fn entry, one key's and one table's values.
        const QList<quint8> sent = commands(rig.fw());
        QCOMPARE(count(sent, 0x0A), 1);
        QCOMPARE(count(sent, 0x10), 1);
        QCOMPARE(count(sent, 0x65), magnetism ? 2 : 0);
        QCOMPARE(count(sent, 0x0C), 7);
        QCOMPARE(count(sent, 0x11), 1);
        QCOMPARE(count(sent, 0x0D) > 0, effect == 22);

        // Once more: nothing differs, nothing is written.
        rig.fw().clearReceivedFrames();
        const Run again = rig.cli({"restore", rig.file()});
        QCOMPARE(again.status, 0);
        QVERIFY(again.out.contains("the keyboard matches the backup: nothing to write"));
        for (quint8 c : commands(rig.fw()))
            QVERIFY((c & 0x80) || c == 0x04 || c == 0x1B);
    }

    void refusedFilesSendNothing_data()
    {
        QTest::addColumn<QString>("edit");
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("connects"); // the id is known only once the keyboard answered
        QTest::newRow("another keyboard id")
            << "deviceId=4660"
            << "backup refused: the backup is of keyboard id 4660 (0x1234)" << true;
        QTest::newRow("truncated") << "cut"
                                   << "not a JSON document" << false;
        QTest::newRow("unknown key") << "extra=1"
                                     << "backup: unknown key \"extra\"" << false;
        QTest::newRow("unknown key inside") << "lighting.extra=1"
                                            << "lighting: unknown key \"extra\"" << false;
        QTest::newRow("missing key") << "-debounce"
                                     << "backup: \"debounce\" is missing" << false;
        QTest::newRow("newer format") << "formatVersion=2"
                                      << "written by a newer OrbeHub (format version 2" << false;
        QTest::newRow("value too large") << "reportRate=256"
                                         << "reportRate: not a whole number from 0 to 255" << false;
        QTest::newRow("no profiles") << "profiles=[]"
                                     << "profiles: not a list of 4" << false;
        QTest::newRow("not a backup") << "format=\"x\""
                                      << "not an OrbeHub keyboard backup" << false;
        QTest::newRow("missing file") << "delete"
                                      << "cannot read" << false;
    }
    void refusedFilesSendNothing()
    {
        QFETCH(QString, edit);
        QFETCH(QString, message);
        QFETCH(bool, connects);
        Rig rig;
        QCOMPARE(rig.cli({"backup", rig.file()}).status, 0);
        QCOMPARE(rig.call("DoSetKey 0x04 00000500 0 1 -- DoSetDebounce 7").status, 0);

        const QByteArray bytes = readFile(rig.file());
        QJsonObject o = QJsonDocument::fromJson(bytes).object();
        const QString key = edit.section('=', 0, 0);
        const QJsonValue value =
            QJsonDocument::fromJson("[" + edit.section('=', 1).toUtf8() + "]").array().at(0);
        if (edit == "cut") {
            writeFile(rig.file(), bytes.left(bytes.size() / 2));
        } else if (edit == "delete") {
            QVERIFY(QFile::remove(rig.file()));
        } else if (key.startsWith('-')) {
            o.remove(key.mid(1));
            writeFile(rig.file(), QJsonDocument(o).toJson());
        } else if (key.contains('.')) {
            QJsonObject inner = o.value(key.section('.', 0, 0)).toObject();
            inner.insert(key.section('.', 1), value);
            o.insert(key.section('.', 0, 0), inner);
            writeFile(rig.file(), QJsonDocument(o).toJson());
        } else {
            o.insert(key, value);
            writeFile(rig.file(), QJsonDocument(o).toJson());
        }

        const QByteArray keyMap = rig.fw().keyMap(0, 0);
        rig.fw().clearReceivedFrames();
        const Run r = rig.cli({"restore", rig.file()});
        QCOMPARE(r.status, int(CliSession::Refused));
        QVERIFY2(r.err.contains(message), qPrintable(r.err));
        QVERIFY(r.out.isEmpty());
        // Nothing at all, or only the identity questions of the connect.
        const QList<quint8> sent = commands(rig.fw());
        QCOMPARE(sent.isEmpty(), !connects);
        for (quint8 c : sent)
            QVERIFY2(QList<quint8>({0x1B, 0x8F, 0x89, 0x84}).contains(c),
                     qPrintable(QString::number(c, 16)));
        QCOMPARE(rig.fw().keyMap(0, 0), keyMap);
        QCOMPARE(rig.fw().debounce(), quint8(7));
    }

    void whatNoOperationReachesIsShownNotPretended()
    {
        Rig rig;
        QCOMPARE(rig.cli({"backup", rig.file()}).status, 0);
        QJsonObject o = load(rig.file());
        QJsonArray sleep = o.value("sleepTimes").toArray();
        sleep[0] = 90; // DoSetSleepTime takes whole minutes
        o.insert("sleepTimes", sleep);
        QString options = o.value("options").toString();
        options.replace(12, 2, "5A"); // option 6: the frame's checksum takes its place
        o.insert("options", options);
        setBackupKeyEntry(o, 0, 0, 9, "00000A00");
        writeFile(rig.file(), QJsonDocument(o).toJson());

        const Run r = rig.cli({"restore", rig.file()});
        QCOMPARE(r.status, int(CliSession::Failed));
        QVERIFY2(r.out.contains("2 marked * cannot be written"), qPrintable(r.out));
        QVERIFY(r.err.contains("2 differences remain after the restore"));
        QStringList remaining = r.out.section("still differs from the backup:", 1).split('\n');
        remaining.removeAll(QString());
        QCOMPARE(remaining.size(), 3); // header and the two
        QVERIFY(remaining.at(1).startsWith("option 6 *"));
        QVERIFY(remaining.at(2).startsWith("sleep time 0 (s) *"));
        // The one that could be written was.
        QCOMPARE(rig.fw().keyEntry(0, 0, 9), QByteArray::fromHex("00000A00"));
        QCOMPARE(rig.fw().sleepTime(0), quint16(300));
    }

    // A keyboard that goes away or stops answering part-way: a backup leaves the file it would
    // have replaced whole, a restore stops with the reason. (The tool has no hot-plug watch:
    // either fault shows as a step that isn't answered.)
    void faultsPartWay_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<int>("frame"); // the fault strikes after the nth frame of this command
        QTest::addColumn<int>("nth");
        QTest::addColumn<bool>("unplug"); // else the replies stop
        QTest::newRow("backup, unplugged in the third profile") << "backup" << 0x8A << 70 << true;
        QTest::newRow("backup, silent while reading pictures") << "backup" << 0x8C << 8 << false;
        QTest::newRow("restore, unplugged after the writes") << "restore" << 0x0A << 1 << true;
    }
    void faultsPartWay()
    {
        QFETCH(QString, command);
        QFETCH(int, frame);
        QFETCH(int, nth);
        QFETCH(bool, unplug);
        Rig rig;
        const QString old = rig.file("old.json");
        QCOMPARE(rig.cli({"backup", old}).status, 0);
        const QByteArray oldBytes = readFile(old);
        if (command == "restore")
            QCOMPARE(rig.call("DoSetKey 0x04 00000500 0 1 -- DoSetKey 0x05 00000600 0 1 -- "
                              "DoSetKey 0x06 00000700 0 1")
                         .status,
                     0);

        rig.fw().clearReceivedFrames();
        bool struck = false;
        const Run r = rig.cli({command, old}, [&] {
            if (struck || framesOf(rig.fw(), quint8(frame)).size() < nth) return;
            struck = true;
            if (unplug)
                rig.keyboard->unplug();
            else
                rig.keyboard->dropNextReplies(1000);
        });
        QVERIFY(struck);
        QCOMPARE(r.status, int(CliSession::TimedOut));
        QVERIFY2(r.err.contains("the keyboard did not answer within 30 s"), qPrintable(r.err));
        QCOMPARE(readFile(old), oldBytes);
        QVERIFY(!r.out.contains("matches the backup"));
    }

    // The parser takes any bytes: every cut of a real file is refused with a reason.
    void everyCutOfAFileIsRefused()
    {
        Rig rig;
        QCOMPARE(rig.cli({"backup", rig.file()}).status, 0);
        const QByteArray bytes = readFile(rig.file());
        QVERIFY(BackupFile::parse(bytes, nullptr));
        const qsizetype step = std::max<qsizetype>(1, bytes.size() / 997);
        for (qsizetype n = 0; n < bytes.size() - 1; n += step) {
            QString why;
            QVERIFY2(!BackupFile::parse(bytes.left(n), &why), qPrintable(QString::number(n)));
            QVERIFY(!why.isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(TestBackup)
#include "tst_backup.moc"
