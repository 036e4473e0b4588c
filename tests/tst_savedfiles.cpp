// Every file the hub saves, its writer killed at random moments, many times: what is left on disk
// is always one whole version, the one before or the one after, never a mix, a cut or nothing.
// The writer is orbe_file_writer, which saves through the hub's own code in a loop.

#include "TestSupport.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

namespace {

struct Target
{
    const char* kind;
    QStringList files; // relative to the test's folder
};

const QList<Target> kTargets{
    {"macro", {"macro/macroheader.txt", "macro/macroevent0.txt"}},
    {"works", {"work/ledwork.json"}},
    {"settings", {"config/Orbe.conf"}},
    {"autostart", {"config/autostart/orbehub.desktop"}},
    {"device", {"config/device.ini"}},
};

// Kills go on until this many landed inside a save (the rest fell between two saves).
constexpr int kCutsWanted = 20;
constexpr int kMostKills = 200;
constexpr int kLongestWaitMs = 40;
constexpr quint32 kLongestInsideUs = 3000;

// A writer in its own folder; XDG_CONFIG_HOME points into it.
struct Writer
{
    QProcess process;

    void start(const Target& target, const QString& root, const QStringList& extra = {})
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("XDG_CONFIG_HOME", root + "/config");
        process.setProcessEnvironment(env);
        QStringList args{QString::fromLatin1(target.kind)};
        const QLatin1String kind(target.kind);
        if (kind == QLatin1String("macro") || kind == QLatin1String("works") ||
            kind == QLatin1String("device"))
            args << root;
        process.start(QStringLiteral(ORBE_FILE_WRITER), args + extra);
    }
};

// The files of both versions, each written whole by a writer that ended by itself.
QList<QByteArrayList> expectedVersions(const Target& target)
{
    QList<QByteArrayList> versions; // by file, then version
    for (int i = 0; i < target.files.size(); ++i)
        versions.append(QByteArrayList());
    for (int version = 0; version < 2; ++version) {
        QTemporaryDir root;
        Writer writer;
        writer.start(target, root.path(), {"--once", QString::number(version)});
        if (!writer.process.waitForFinished(60000) || writer.process.exitCode() != 0) return {};
        for (int i = 0; i < target.files.size(); ++i)
            versions[i].append(readFile(root.filePath(target.files.at(i))));
    }
    return versions;
}

// Whether the process has a file open in the folder: it is inside a save (it reads nothing
// there after it said "ready"). Saves go through unnamed temporary files, so /proc is where they
// show.
bool savingNow(qint64 pid, const QString& root)
{
    const QDir fds(QStringLiteral("/proc/%1/fd").arg(pid));
    for (const QString& fd : fds.entryList(QDir::Files | QDir::System))
        if (QFileInfo(fds.filePath(fd)).symLinkTarget().startsWith(root)) return true;
    return false;
}

} // namespace

class TestSavedFiles : public QObject
{
    Q_OBJECT

private slots:
    void killedWriterLeavesAWholeVersion_data()
    {
        QTest::addColumn<int>("target");
        for (int i = 0; i < kTargets.size(); ++i)
            QTest::newRow(kTargets.at(i).kind) << i;
    }
    void killedWriterLeavesAWholeVersion()
    {
        QFETCH(int, target);
        const Target& t = kTargets.at(target);
        const QList<QByteArrayList> versions = expectedVersions(t);
        QCOMPARE(versions.size(), t.files.size());
        for (const QByteArrayList& file : versions) {
            QVERIFY(!file.at(0).isEmpty() && !file.at(1).isEmpty());
            QVERIFY(file.at(0) != file.at(1));
        }

        QTemporaryDir root;
        int cut = 0; // kills that landed inside a save
        int kill = 0;
        for (; cut < kCutsWanted && kill < kMostKills; ++kill) {
            Writer writer;
            writer.start(t, root.path());
            QVERIFY(writer.process.waitForReadyRead(60000));
            QCOMPARE(writer.process.readLine().trimmed(), QByteArray("ready"));
            // A random moment, then on to the next save, and a random point inside it.
            QRandomGenerator& random = *QRandomGenerator::global();
            QTest::qSleep(int(random.bounded(1, kLongestWaitMs)));
            const qint64 pid = writer.process.processId();
            for (QDeadlineTimer deadline(2000);
                 !deadline.hasExpired() && !savingNow(pid, root.path());)
                ;
            QThread::usleep(random.bounded(kLongestInsideUs));
            const bool saving = savingNow(pid, root.path());
            writer.process.kill();
            QVERIFY(writer.process.waitForFinished(10000));

            for (int i = 0; i < t.files.size(); ++i) {
                const QByteArray content = readFile(root.filePath(t.files.at(i)));
                QVERIFY2(versions.at(i).contains(content),
                         qPrintable(QStringLiteral("kill %1: %2 holds %3 bytes, neither version")
                                        .arg(kill)
                                        .arg(t.files.at(i))
                                        .arg(content.size())));
            }
            cut += saving;
        }
        // Otherwise the kills fell between saves and little was tried.
        QVERIFY2(
            cut == kCutsWanted,
            qPrintable(QStringLiteral("%1 of %2 kills landed inside a save").arg(cut).arg(kill)));
        qInfo("%d of %d kills landed inside a save", cut, kill);
    }
};

QTEST_GUILESS_MAIN(TestSavedFiles)
#include "tst_savedfiles.moc"
