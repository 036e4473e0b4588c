// The light works library on disk and the folder the user's files go to: works round trip in
// order; foreign entries are left out; a failed write leaves nothing half done; the folder beside
// the program is used in a build tree that can be written, else the user's data folder. (Broken
// files are driven through the light page, tst_lightpage.)

#include "InstallLayout.h"
#include "LightWorkStore.h"
#include "TestSupport.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QList<LightWork> kTwoWorks{{"iVBORw0KGgo=", "Sunset", "ff000000ff00"}, {"", "", "0000ff"}};

} // namespace

class TestLightWorks : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void roundTrip()
    {
        QTemporaryDir dir;
        const QString folder = dir.filePath("work");
        {
            LightWorkStore store(folder);
            QVERIFY(QDir(folder).exists()); // made at once
            QVERIFY(store.load().isEmpty());
            QVERIFY(!store.loadedBroken()); // missing is not broken
            QVERIFY(store.save(kTwoWorks));
        }
        LightWorkStore again(folder);
        QCOMPARE(again.load(), kTwoWorks);
        const QJsonDocument doc = QJsonDocument::fromJson(readFile(again.filePath()));
        QCOMPARE(doc.array().size(), 2);
        QCOMPARE(doc.array().at(0).toObject().value("data").toString(),
                 QStringLiteral("ff000000ff00"));
        QVERIFY(readFile(again.filePath()).contains("\n    {")); // indented
        QVERIFY(again.keptBrokenFile().isEmpty());
    }

    // Entries that aren't works are left out; the rest load in order.
    void foreignEntries()
    {
        QTemporaryDir dir;
        writeFile(dir.filePath("ledwork.json"), R"([1, {"name": "A", "data": "01"}, "x", {}])");
        LightWorkStore store(dir.path());
        QCOMPARE(store.load(), (QList<LightWork>{{"", "A", "01"}, {"", "", ""}}));
        QVERIFY(!store.loadedBroken());
    }

    // A file that can't be replaced leaves the old one whole.
    void failedWrite()
    {
        QTemporaryDir dir;
        LightWorkStore store(dir.path());
        QVERIFY(store.save(kTwoWorks));
        QVERIFY(QFile::remove(store.filePath()));
        QVERIFY(QDir().mkpath(store.filePath())); // a folder where the file would go
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression("cannot write|could not replace|write failed"));
        QVERIFY(!store.save({}));
        QVERIFY(QFileInfo(store.filePath()).isDir());
        QVERIFY(QDir(store.filePath()).isEmpty());
    }

    void colourMapText()
    {
        const QByteArray map = QByteArray::fromHex("00dc00ff8000");
        QCOMPARE(LightWorkStore::toHex(map), QStringLiteral("00dc00ff8000"));
        QCOMPARE(LightWorkStore::fromHex("00DC00ff8000"), map);
        QCOMPARE(LightWorkStore::fromHex("00dcZZ").size(), 2); // bad text: a short map
    }

    // Beside the program in a build tree that can be written; in the user's data folder when
    // installed or when the program's folder can't hold one.
    void userFilesFolder_data()
    {
        QTest::addColumn<QStringList>("folders"); // made under the root
        QTest::addColumn<QString>("program");     // relative to the root
        QTest::addColumn<bool>("beside");
        const QString shared = QDir::cleanPath(QStringLiteral("bin/" ORBE_DATA_FROM_BIN));
        QTest::newRow("build tree") << QStringList{"bin/config"} << "bin" << true;
        QTest::newRow("installed") << QStringList{"bin", shared + "/config"} << "bin" << false;
        QTest::newRow("program folder is not a folder") << QStringList{} << "file" << false;
    }
    void userFilesFolder()
    {
        QFETCH(QStringList, folders);
        QFETCH(QString, program);
        QFETCH(bool, beside);
        QTemporaryDir root;
        for (const QString& folder : folders)
            QVERIFY(QDir().mkpath(root.filePath(folder)));
        writeFile(root.filePath("file"), "not a folder");

        const QString folder = InstallLayout(root.filePath(program)).userFilesDir("work");
        QCOMPARE(folder, beside ? root.filePath(program + "/work")
                                : InstallLayout::userDataDir() + "/work");
        LightWorkStore store(folder);
        const auto tidy = qScopeGuard([&] { QFile::remove(store.filePath()); });
        QVERIFY(store.save(kTwoWorks));
        QCOMPARE(LightWorkStore(folder).load(), kTwoWorks);
    }
};

QTEST_GUILESS_MAIN(TestLightWorks)
#include "tst_lightworks.moc"
