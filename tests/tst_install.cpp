// Where the programs read what they ship and write what the user changes, in a build tree and in
// an installed tree; the built command-line tool run from an installed tree; its manual page
// against its own usage text.

#include "CliOptions.h"
#include "InstallLayout.h"
#include "TestSupport.h"

#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSettings>
#include <QStandardPaths>
#include <unistd.h>

namespace {

const QString kDataFromBin = QStringLiteral(ORBE_DATA_FROM_BIN);

// Every file under root, relative to it.
QStringList filesUnder(const QString& root)
{
    QStringList files;
    QDirIterator it(root, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << QDir(root).relativeFilePath(it.next());
    files.sort();
    return files;
}

} // namespace

class TestInstall : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void layout_data()
    {
        QTest::addColumn<QStringList>("folders"); // made under the root
        QTest::addColumn<bool>("readOnlyProgram");
        QTest::addColumn<bool>("installed");
        QTest::addColumn<QString>("data");     // relative to the root
        QTest::addColumn<QString>("settings"); // relative to the root; "user": the user's folder

        const QString shared = QDir::cleanPath(QStringLiteral("bin/") + kDataFromBin);
        QTest::newRow("build tree")
            << QStringList{"bin/config", "bin/images"} << false << false << "bin"
            << "bin/config";
        QTest::newRow("build tree, config not made yet")
            << QStringList{"bin"} << false << false << "bin"
            << "bin/config";
        // A writable prefix (a test install, a home folder) still keeps the user's files apart.
        QTest::newRow("installed") << QStringList{"bin", shared + "/config", shared + "/images"}
                                   << false << true << shared << "user";
        QTest::newRow("data folder without its config is not an install")
            << QStringList{"bin/config", shared + "/images"} << false << false << "bin"
            << "bin/config";
        QTest::newRow("program folder read-only")
            << QStringList{"bin/config", "bin/images"} << true << false << "bin"
            << "user";
    }
    void layout()
    {
        QFETCH(QStringList, folders);
        QFETCH(bool, readOnlyProgram);
        QFETCH(bool, installed);
        QFETCH(QString, data);
        QFETCH(QString, settings);

        QTemporaryDir root;
        for (const QString& folder : folders)
            QVERIFY(QDir().mkpath(root.filePath(folder)));
        const QString program = root.filePath("bin");
        const QStringList locked{program + "/config", program};
        const auto unlock = qScopeGuard([&] {
            for (const QString& dir : locked)
                QFile::setPermissions(dir, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        });
        if (readOnlyProgram) {
            if (geteuid() == 0) QSKIP("root may write to any folder");
            for (const QString& dir : locked)
                QVERIFY(QFile::setPermissions(dir, QFile::ReadOwner | QFile::ExeOwner));
        }

        const InstallLayout layout(program);
        QCOMPARE(layout.isInstalled(), installed);
        QCOMPARE(layout.dataDir(), QDir::cleanPath(root.filePath(data)));
        const QString expected = settings == "user" ? InstallLayout::userSettingsDir()
                                                    : QDir::cleanPath(root.filePath(settings));
        QCOMPARE(layout.settingsDir(), expected);
        QCOMPARE(layout.settingsFile("device.ini"), expected + "/device.ini");
    }

    // The built tool copied into an installed tree: it reads the catalogues from the data
    // folder, writes device.ini to the user's config folder and nothing into the tree.
    void installedToolKeepsItsTreeUntouched()
    {
        QTemporaryDir prefix;
        QTemporaryDir home;
        const QString bin = prefix.filePath("bin");
        const QString data = QDir::cleanPath(bin + '/' + kDataFromBin);
        QVERIFY(QDir().mkpath(bin));
        QVERIFY(QFile::copy(QStringLiteral(ORBEHUB_CLI), bin + "/orbehub-cli"));
        const QString source = QStringLiteral(ORBE_SOURCE_DIR "/config/");
        QVERIFY(QDir().mkpath(data + "/config"));
        for (const QString& name : QDir(source).entryList(QDir::Files))
            QVERIFY(QFile::copy(source + name, data + "/config/" + name));
        const QStringList shipped = filesUnder(prefix.path());

        auto run = [&](const QStringList& args) {
            QProcess process;
            QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
            env.insert("HOME", home.path());
            env.insert("XDG_CONFIG_HOME", home.filePath("config"));
            process.setProcessEnvironment(env);
            process.start(bin + "/orbehub-cli", args);
            if (!process.waitForFinished(60000)) process.kill();
            return std::pair{process.exitCode(), process.readAllStandardOutput()};
        };

        const auto [listStatus, listed] = run({"--simulate", "list"});
        QCOMPARE(listStatus, 0);
        // Names only the shipped catalogues give: the native keyboard and a custom-list device.
        QVERIFY2(listed.contains("\tORBE HE75\t"), listed.constData());
        QVERIFY2(listed.contains("\tWS Virtual 2.4G\t"), listed.constData());

        const auto [infoStatus, info] = run({"--simulate", "info"});
        QCOMPARE(infoStatus, 0);
        const QString ini = home.filePath("config/orbehub/device.ini");
        QVERIFY2(QFile::exists(ini), qPrintable(filesUnder(home.path()).join(' ')));
        QSettings written(ini, QSettings::IniFormat);
        QCOMPARE(written.value("lastVID").toString(), QString("3151"));
        QCOMPARE(written.value("lastPID").toString(), QString("502F"));
        QCOMPARE(filesUnder(prefix.path()), shipped);
    }

    // The manual page names every option, command and exit status the tool's usage text has.
    void manualPageCoversTheUsage()
    {
        const QString page = QString::fromUtf8(
            readFile(QStringLiteral(ORBE_SOURCE_DIR "/packaging/linux/orbehub-cli.1")));
        QVERIFY(!page.isEmpty());
        // troff writes a literal minus as \- .
        const QString plain = QString(page).replace(QLatin1String("\\-"), QLatin1String("-"));
        const QString usage = CliOptions::usage();

        QStringList wanted;
        static const QRegularExpression option(QStringLiteral("(?:^|[\\s,])(--?[a-z][a-z-]*)"));
        for (auto it = option.globalMatch(usage.section("Options:", 1, 1).section("\n\n", 0, 0));
             it.hasNext();)
            wanted << it.next().captured(1);
        QVERIFY(wanted.contains("--sim-silent") && wanted.contains("-h"));
        for (const char* command : {"info", "dump", "call", "list", "backup", "restore"})
            wanted << QStringLiteral(".B %1").arg(QLatin1String(command));
        for (int status = 0; status <= 6; ++status)
            wanted << QStringLiteral(".B %1\n").arg(status);
        for (const QString& word : std::as_const(wanted))
            QVERIFY2(plain.contains(word), qPrintable(word));
    }
};

QTEST_GUILESS_MAIN(TestInstall)
#include "tst_install.moc"
