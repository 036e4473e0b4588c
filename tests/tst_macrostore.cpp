#include "MacroBlob.h"
#include "ModuleMacroManager.h"
#include "TestSupport.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

namespace {

QList<int> ids(const ModuleMacroManager& store)
{
    QList<int> out;
    for (const Macro* m : store.macros())
        out.append(m->id);
    return out;
}

void addPair(Macro& m, quint8 type, quint16 value, bool down, quint16 delay)
{
    m.events.append(new MacroEvent{.type = type, .down = down, .value = value, .text = {}});
    m.events.append(new MacroEvent{.type = MacroEvent::Delay, .value = delay, .text = {}});
}

} // namespace

class TestMacroStore : public QObject
{
    Q_OBJECT

private slots:
    void packRecord_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("value");
        QTest::addColumn<bool>("down");
        QTest::addColumn<int>("delay");
        QTest::addColumn<QByteArray>("expected");

        QTest::newRow("key press 50") << 0 << 0x04 << true << 50 << QByteArray::fromHex("04 B2");
        QTest::newRow("key release 50") << 0 << 0x04 << false << 50 << QByteArray::fromHex("04 32");
        QTest::newRow("left press 300")
            << 1 << 0xF0 << true << 300 << QByteArray::fromHex("F0 80 2C 01");
        QTest::newRow("release D 0") << 0 << 0x04 << false << 0 << QByteArray::fromHex("04 00");
        QTest::newRow("press D 127") << 0 << 0x04 << true << 127 << QByteArray::fromHex("04 FF");
        QTest::newRow("press D 128")
            << 0 << 0x04 << true << 128 << QByteArray::fromHex("04 80 80 00");
        QTest::newRow("release D 128")
            << 1 << 0xF2 << false << 128 << QByteArray::fromHex("F2 00 80 00");
        QTest::newRow("release D 65535")
            << 0 << 0x29 << false << 65535 << QByteArray::fromHex("29 00 FF FF");
        QTest::newRow("key low byte only")
            << 0 << 0x01E4 << true << 5 << QByteArray::fromHex("E4 85");
        QTest::newRow("position 50")
            << 2 << (10 * 256 + 20) << false << 50 << QByteArray::fromHex("00 00");
        QTest::newRow("unknown type") << 7 << 0x04 << true << 50 << QByteArray::fromHex("00 00");
        QTest::newRow("F9 short") << 3 << 0x1234 << false << 50
                                  << QByteArray::fromHex("F9 32 34 12");
        QTest::newRow("F9 D 0") << 3 << 0x1234 << false << 0 << QByteArray::fromHex("F9 00 34 12");
        QTest::newRow("F9 D 128") << 3 << 0x1234 << false << 128
                                  << QByteArray::fromHex("F9 00 34 12 80 00");
        QTest::newRow("F9 long") << 3 << 0x00C8 << true << 0x1388
                                 << QByteArray::fromHex("F9 00 C8 00 88 13");
    }
    void packRecord()
    {
        QFETCH(int, type);
        QFETCH(int, value);
        QFETCH(bool, down);
        QFETCH(int, delay);
        QFETCH(QByteArray, expected);

        Macro m;
        addPair(m, quint8(type), quint16(value), down, quint16(delay));
        QCOMPARE(ModuleMacroManager::PackMacro(&m).toHex(' '), expected.toHex(' '));
    }
    void packStream()
    {
        QVERIFY(ModuleMacroManager::PackMacro(nullptr).isEmpty());
        Macro m;
        QVERIFY(ModuleMacroManager::PackMacro(&m).isEmpty());

        // Records follow each other with no count, separator or terminator.
        addPair(m, MacroEvent::Key, 0x04, true, 50);
        addPair(m, MacroEvent::MousePosition, 0x0A14, false, 50);
        addPair(m, MacroEvent::MouseButton, 0xF0, true, 300);
        addPair(m, MacroEvent::Key, 0x04, false, 50);
        QCOMPARE(ModuleMacroManager::PackMacro(&m).toHex(' '),
                 QByteArray::fromHex("04 B2 00 00 F0 80 2C 01 04 32").toHex(' '));

        // An action that lost its delay still goes out, with D 0.
        m.events.append(
            new MacroEvent{.type = MacroEvent::Key, .down = false, .value = 0x05, .text = {}});
        QCOMPARE(ModuleMacroManager::PackMacro(&m).right(2).toHex(' '), QByteArray("05 00"));
    }
    void blob_data()
    {
        QTest::addColumn<int>("streamSize");
        QTest::addColumn<int>("blobSize");
        QTest::addColumn<int>("pages");

        QTest::newRow("empty") << 0 << 56 << 1;
        QTest::newRow("54 fills one page") << 54 << 56 << 1;
        QTest::newRow("55 spills") << 55 << 112 << 2;
        QTest::newRow("110 fills two") << 110 << 112 << 2;
        QTest::newRow("111") << 111 << 168 << 3;
    }
    void blob()
    {
        QFETCH(int, streamSize);
        QFETCH(int, blobSize);
        QFETCH(int, pages);

        QByteArray stream;
        for (int i = 0; i < streamSize; ++i)
            stream.append(char(0x10 + i % 0x60));

        const QByteArray blob = MacroBlob::build(0x1234, stream);
        QCOMPARE(int(blob.size()), blobSize);
        QCOMPARE(MacroBlob::pageCount(blob), pages);
        QCOMPARE(quint8(blob[0]), quint8(0x34)); // little-endian repeat count
        QCOMPARE(quint8(blob[1]), quint8(0x12));
        QCOMPARE(blob.mid(2, streamSize), stream);
        QCOMPARE(blob.mid(2 + streamSize), QByteArray(blobSize - 2 - streamSize, '\0'));

        QByteArray joined;
        for (int p = 0; p < pages; ++p) {
            QCOMPARE(int(MacroBlob::page(blob, p).size()), MacroBlob::kPageSize);
            joined += MacroBlob::page(blob, p);
        }
        QCOMPARE(joined, blob);
        QCOMPARE(MacroBlob::page(blob, pages), QByteArray(MacroBlob::kPageSize, '\0'));
    }
    void firstStart()
    {
        QTemporaryDir dir;
        ModuleMacroManager store(dir.path());

        QCOMPARE(QDir(store.folderPath()).absolutePath(), dir.filePath("macro"));
        QCOMPARE(ids(store), QList<int>({0, 1, 2, 3, 4, 5, 6, 7}));
        for (const Macro* m : store.macros()) {
            QCOMPARE(m->name, QStringLiteral("新建宏") + QString::number(m->id));
            QCOMPARE(int(m->repeat), 1);
            QCOMPARE(int(m->mode), 0);
            QVERIFY(m->events.isEmpty());
        }
        // Only the header is written; the macros have no event files yet.
        QCOMPARE(QDir(store.folderPath()).entryList(QDir::Files), QStringList{"macroheader.txt"});
    }
    void addAndRemove()
    {
        QTemporaryDir dir;
        ModuleMacroManager store(dir.path());
        const QByteArray header = readFile(store.headerPath());

        // The lowest free id, from the head of the list again after each hit.
        store.RemoveMacro(store.FindMacro(2));
        store.RemoveMacro(store.FindMacro(5));
        QCOMPARE(int(store.AddMacro()->id), 2);
        QCOMPARE(int(store.AddMacro()->id), 5);
        Macro* eight = store.AddMacro();
        QCOMPARE(int(eight->id), 8);
        QCOMPARE(eight->name, QStringLiteral("新建宏8"));
        QVERIFY(store.FindMacro(9) == nullptr);

        // AddMacro doesn't save; RemoveMacro saves the header and keeps the event file.
        QVERIFY(readFile(store.headerPath()) != header);
        const QByteArray afterRemove = readFile(store.headerPath());
        QVERIFY(store.SaveEvents(eight));
        while (store.macros().size() < ModuleMacroManager::kMaxMacros)
            QVERIFY(store.AddMacro());
        QCOMPARE(readFile(store.headerPath()), afterRemove);
        QVERIFY(store.AddMacro() == nullptr);
        QCOMPARE(int(store.macros().size()), ModuleMacroManager::kMaxMacros);
        QCOMPARE(int(store.macros().last()->id), 49);

        store.RemoveMacro(eight);
        QVERIFY(QFile::exists(store.eventPath(8)));
        QVERIFY(store.FindMacro(8) == nullptr);

        Macro stranger;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("not a macro of this store"));
        store.RemoveMacro(&stranger);
        QCOMPARE(int(store.macros().size()), ModuleMacroManager::kMaxMacros - 1);

        // Deleting all leaves the list empty until the next start, which makes eight again.
        while (!store.macros().isEmpty())
            store.RemoveMacro(store.macros().first());
        QVERIFY(store.macros().isEmpty());
        ModuleMacroManager restarted(dir.path());
        QCOMPARE(ids(restarted), QList<int>({0, 1, 2, 3, 4, 5, 6, 7}));
    }
    void fileFormat();
    void roundTrip()
    {
        QTemporaryDir dir;
        {
            ModuleMacroManager store(dir.path());
            Macro* m = store.FindMacro(3);
            m->name = QStringLiteral("连招");
            m->repeat = 9;
            m->mode = 1;
            store.AddEvent(m, MacroEvent::Key, 0x04, true, QStringLiteral("A"));
            store.AddEvent(m, MacroEvent::Delay, 65535, false, QStringLiteral("延迟"));
            store.AddEvent(m, MacroEvent::MousePosition, 127 * 256 + 127, false, QString());
            store.AddEvent(m, MacroEvent::Delay, 50, false, QStringLiteral("延迟"));
            QVERIFY(store.SaveHeader());
            QVERIFY(store.SaveEvents(m));
            // An event file left over from a removed macro is found by the next macro 7.
            Macro old;
            old.id = 7;
            store.AddEvent(&old, MacroEvent::MouseButton, 0xF1, true, QStringLiteral("右键"));
            QVERIFY(store.SaveEvents(&old));
        }

        // The version is written, never checked.
        const QString header = dir.filePath("macro/macroheader.txt");
        QByteArray text = readFile(header);
        text.replace("20260109", "19990101");
        writeFile(header, text);

        ModuleMacroManager store(dir.path());
        QCOMPARE(ids(store), QList<int>({0, 1, 2, 3, 4, 5, 6, 7}));
        const Macro* m = store.FindMacro(3);
        QCOMPARE(m->name, QStringLiteral("连招"));
        QCOMPARE(int(m->repeat), 9);
        QCOMPARE(int(m->mode), 1);
        QCOMPARE(int(m->events.size()), 4);
        QCOMPARE(m->events[0]->down, true);
        QCOMPARE(m->events[0]->text, QStringLiteral("A"));
        QCOMPARE(int(m->events[1]->value), 65535);
        QCOMPARE(int(m->events[2]->type), int(MacroEvent::MousePosition));
        QCOMPARE(int(m->events[2]->value), 32639);
        QCOMPARE(m->events[3]->text, QStringLiteral("延迟"));
        QCOMPARE(int(store.FindMacro(7)->events.size()), 1);
        QVERIFY(store.FindMacro(6)->events.isEmpty());
    }
    void brokenHeader_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QList<int>>("expectedIds");
        QTest::addColumn<int>("warnings");

        const QList<int> defaults{0, 1, 2, 3, 4, 5, 6, 7};
        QTest::newRow("empty file") << QByteArray() << defaults << 1;
        QTest::newRow("truncated")
            << QByteArray("{\n    \"count\": 1,\n    \"macro\": [\n        {\"id\": 4") << defaults
            << 1;
        QTest::newRow("garbage") << QByteArray("\xff\xfe\x00garbage", 10) << defaults << 1;
        QTest::newRow("array document") << QByteArray("[1, 2]") << defaults << 1;
        QTest::newRow("macro not an array") << QByteArray(R"({"macro": 5})") << defaults << 1;
        QTest::newRow("no macros") << QByteArray(R"({"macro": [], "count": 3})") << defaults << 0;
        QTest::newRow("bad entries skipped")
            << QByteArray(R"({"macro": [7, {"id": "2"}, {"id": 60}, {"id": -1}, {"name": "x"},
                                        {"id": 4}, {"id": 4}, {"id": 9}]})")
            << QList<int>{4, 9} << 6;
    }
    void brokenHeader()
    {
        QFETCH(QByteArray, content);
        QFETCH(QList<int>, expectedIds);
        QFETCH(int, warnings);

        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkdir("macro"));
        writeFile(dir.filePath("macro/macroheader.txt"), content);

        for (int i = 0; i < warnings; ++i)
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression("^(broken file|unexpected content|skipping)"));
        QTest::failOnWarning(QRegularExpression(".*"));
        ModuleMacroManager store(dir.path());
        QCOMPARE(ids(store), expectedIds);
        // A header that fell back to the defaults has been overwritten with them.
        if (expectedIds.size() == ModuleMacroManager::kFirstStartMacros) {
            ModuleMacroManager again(dir.path());
            QCOMPARE(ids(again), expectedIds);
        }
    }
    void brokenEvents_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("events");
        QTest::addColumn<int>("warnings");

        QTest::newRow("empty file") << QByteArray() << 0 << 1;
        QTest::newRow("truncated") << QByteArray("{\"data\": [{\"type\": 0, \"val") << 0 << 1;
        QTest::newRow("data not an array") << QByteArray(R"({"data": {"type": 0}})") << 0 << 1;
        QTest::newRow("non-objects skipped")
            << QByteArray(R"({"data": [1, "x", null, {"type": 0, "value": 4, "down": true}]})") << 1
            << 3;
    }
    void brokenEvents()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, events);
        QFETCH(int, warnings);

        QTemporaryDir dir;
        {
            ModuleMacroManager first(dir.path());
        }
        writeFile(dir.filePath("macro/macroevent5.txt"), content);
        for (int i = 0; i < warnings; ++i)
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression("^(broken file|unexpected content|skipping)"));
        QTest::failOnWarning(QRegularExpression(".*"));
        ModuleMacroManager store(dir.path());
        QCOMPARE(int(store.macros().size()), ModuleMacroManager::kFirstStartMacros);
        QCOMPARE(int(store.FindMacro(5)->events.size()), events);
        QVERIFY(ModuleMacroManager::PackMacro(store.FindMacro(5)).size() <= 2);
    }
    void interruptedSaveKeepsPreviousFiles()
    {
#ifndef Q_OS_UNIX
        QSKIP("needs a file size limit to make writes fail");
#else
        QTemporaryDir dir;
        ModuleMacroManager store(dir.path());
        Macro* big = store.FindMacro(0);
        for (int i = 0; i < 4; ++i)
            store.AddEvent(big, MacroEvent::Key, 0x04 + i, true, QStringLiteral("K"));
        QVERIFY(store.SaveEvents(big));
        QVERIFY(store.SaveHeader());
        const QByteArray header = readFile(store.headerPath());
        const QByteArray events = readFile(store.eventPath(0));
        const QStringList files = QDir(store.folderPath()).entryList(QDir::Files);

        big->name = QStringLiteral("changed");
        store.AddEvent(big, MacroEvent::Delay, 300, false, QString());

        // Every write past 64 bytes fails part way, as on a full disk.
        rlimit saved{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &saved), 0);
        const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit small = saved;
        small.rlim_cur = 64;
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^(write failed|could not replace)"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^(write failed|could not replace)"));
        const bool headerSaved = store.SaveHeader();
        const bool eventsSaved = store.SaveEvents(big);
        const bool smallSaved = store.SaveEvents(store.FindMacro(1)); // fits under the limit

        setrlimit(RLIMIT_FSIZE, &saved);
        std::signal(SIGXFSZ, oldHandler);

        QVERIFY(!headerSaved);
        QVERIFY(!eventsSaved);
        QVERIFY(smallSaved);
        QCOMPARE(readFile(store.headerPath()), header);
        QCOMPARE(readFile(store.eventPath(0)), events);
        // No temporary file is left behind.
        QStringList expectedFiles = files;
        expectedFiles << QStringLiteral("macroevent1.txt");
        expectedFiles.sort();
        QCOMPARE(QDir(store.folderPath()).entryList(QDir::Files), expectedFiles);

        ModuleMacroManager reloaded(dir.path() + QStringLiteral("/"));
        QCOMPARE(reloaded.FindMacro(0)->name, QStringLiteral("新建宏0"));
        QCOMPARE(int(reloaded.FindMacro(0)->events.size()), 4);
#endif
    }
    // A picker listens for these to refresh its names; they come whether the disk took the
    // file or not, since the macros in memory changed either way.
    void savesAreAnnounced()
    {
        QTemporaryDir dir;
        ModuleMacroManager store(dir.path());
        QSignalSpy list(&store, &ModuleMacroManager::listSaved);
        QSignalSpy events(&store, &ModuleMacroManager::macroSaved);
        store.FindMacro(6)->name = QStringLiteral("连招");
        QVERIFY(store.SaveHeader());
        store.RemoveMacro(store.FindMacro(1));
        QCOMPARE(list.size(), 2);

        QVERIFY(QDir().mkpath(store.eventPath(6))); // a folder where the file should go
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot write"));
        QVERIFY(!store.SaveEvents(store.FindMacro(6)));
        QVERIFY(store.SaveEvents(store.FindMacro(3)));
        QCOMPARE(events.size(), 2);
        QCOMPARE(events.at(0).at(0).value<quint8>(), quint8(6));
        QCOMPARE(events.at(1).at(0).value<quint8>(), quint8(3));
        QCOMPARE(list.size(), 2);
    }
};

void TestMacroStore::fileFormat()
{
    QTemporaryDir dir;
    ModuleMacroManager store(dir.path());
    while (store.macros().size() > 1)
        store.RemoveMacro(store.macros().last());
    Macro* m = store.macros().first();
    m->name = QStringLiteral("宏 A");
    m->repeat = 3;
    m->mode = 2;
    store.AddEvent(m, MacroEvent::Key, 0x04, true, QStringLiteral("A"));
    store.AddEvent(m, MacroEvent::Delay, 50, false, QStringLiteral("延迟"));
    QVERIFY(store.SaveHeader());
    QVERIFY(store.SaveEvents(m));

    QCOMPARE(QString::fromUtf8(readFile(store.headerPath())), QStringLiteral(R"({
    "count": 1,
    "macro": [
        {
            "id": 0,
            "mode": 2,
            "name": "宏 A",
            "repeat": 3
        }
    ],
    "version": "20260109"
}
)"));
    QCOMPARE(QString::fromUtf8(readFile(dir.filePath("macro/macroevent0.txt"))), QStringLiteral(R"({
    "data": [
        {
            "down": true,
            "text": "A",
            "type": 0,
            "value": 4
        },
        {
            "down": false,
            "text": "延迟",
            "type": 3,
            "value": 50
        }
    ]
}
)"));
}

QTEST_GUILESS_MAIN(TestMacroStore)
#include "tst_macrostore.moc"
