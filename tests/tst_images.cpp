// Every picture the program names exists: the ":/images/" paths written in the sources and
// forms (scanned, so that a new path without its picture fails here), the names the device
// page and the cards put together at run time, and the pictures beside the program.

#include "WidgetResources.h"

#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

namespace {

const QString kSourceRoot = QStringLiteral(ORBE_SOURCE_DIR);
const QString kBesideImages = QStringLiteral(ORBE_IMAGES_DIR);

struct NamedPath
{
    QString path;
    QString where; // file:line
};

// The ":/images/..." literals of the program's sources and forms. A path may be whole, a
// folder (ending in "/", completed at run time) or hold a %-placeholder.
QList<NamedPath> scanSources()
{
    static const QRegularExpression literal(QStringLiteral(":/images/[^\"<>()\\s']*"));
    QList<NamedPath> found;
    for (const char* folder : {"src", "forms"}) {
        QDirIterator it(kSourceRoot + u'/' + QLatin1String(folder),
                        {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.ui")},
                        QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString file = it.next();
            QFile source(file);
            if (!source.open(QIODevice::ReadOnly | QIODevice::Text)) continue;
            int line = 0;
            while (!source.atEnd()) {
                const QString text = QString::fromUtf8(source.readLine());
                ++line;
                auto matches = literal.globalMatch(text);
                while (matches.hasNext()) {
                    const QString where =
                        QStringLiteral("%1:%2").arg(file.mid(kSourceRoot.size() + 1)).arg(line);
                    found.append({matches.next().captured(), where});
                }
            }
        }
    }
    return found;
}

// What must exist for a path: the file itself, or for a folder or a template the folder that
// the run time completes, holding at least one picture.
bool pictureExists(const QString& path, QString* why)
{
    const bool partial = path.endsWith(u'/') || path.contains(u'%');
    if (!partial) {
        if (!QFile::exists(path)) {
            *why = QStringLiteral("no such picture");
            return false;
        }
        if (QImage(path).isNull()) {
            *why = QStringLiteral("not a readable picture");
            return false;
        }
        return true;
    }
    const QString folder = path.left(path.lastIndexOf(u'/'));
    if (QDir(folder).entryList(QDir::Files).isEmpty()) {
        *why = QStringLiteral("no pictures in ") + folder;
        return false;
    }
    return true;
}

QString dashed(QString name)
{
    return name.replace(u' ', u'-');
}

} // namespace

class TestImages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The shared controls keep their pictures in their own library.
        WidgetResources::ensureLoaded();
    }

    void theScanFindsTheForms()
    {
        // Guards the scan itself: a broken pattern would find nothing and pass everything.
        QStringList paths;
        for (const NamedPath& p : scanSources())
            paths << p.path;
        QVERIFY(paths.contains(":/images/Orbe-Kb3.png"));
        QVERIFY(paths.contains(":/images/ic-check.png"));
    }

    void everyPathInTheSourcesExists_data()
    {
        QTest::addColumn<QString>("path");
        for (const NamedPath& p : scanSources())
            QTest::newRow(qPrintable(p.where + u' ' + p.path)) << p.path;
    }
    void everyPathInTheSourcesExists()
    {
        QFETCH(QString, path);
        QString why;
        QVERIFY2(pictureExists(path, &why), qPrintable(why));
    }

    void namesPutTogetherAtRunTime_data()
    {
        QTest::addColumn<QString>("path");
        // The device page's navigation, normal and selected.
        for (const char* name :
             {"shouye", "jianweishezhi", "cizhoushezhi", "hongshezhi", "dengxiaoshezhi", "guanyu"})
            for (int state : {0, 1}) {
                const QString path =
                    QStringLiteral(":/images/leftbtns/%1/%2.png").arg(state).arg(name);
                QTest::newRow(qPrintable(path)) << path;
            }
        // The cards' battery and connection pictures.
        for (const char* name :
             {"batt-low", "batt-25", "batt-50", "batt-75", "batt-full", "usb", "2.4g", "ble"}) {
            const QString path = QStringLiteral(":/images/dev/%1.png").arg(name);
            QTest::newRow(qPrintable(path)) << path;
        }
        // The window's and the two brands' pictures.
        for (const char* name : {"OrbeFlag", "Trwlogo", "logo", "a-left", "a-right", "btn-return",
                                 "User", "General_NG4", "General_OK4"}) {
            const QString path = QStringLiteral(":/images/%1.png").arg(name);
            QTest::newRow(qPrintable(path)) << path;
        }
    }
    void namesPutTogetherAtRunTime()
    {
        QFETCH(QString, path);
        QString why;
        QVERIFY2(pictureExists(path, &why), qPrintable(why));
    }

    void picturesBesideTheProgram_data()
    {
        QTest::addColumn<QString>("file");
        // The start-up pictures of both brands and each device type's default.
        for (const char* name : {"MainPicture", "trgear", "default0", "default1", "default2",
                                 "default3", "default255"})
            QTest::newRow(name) << QString::fromLatin1(name) + ".png";
        // A picture for every device of both catalogues, under the name the cards look up.
        for (const char* catalogue : {"OrbeHubDevices.json", "TRWHubDevices.json"}) {
            QFile file(kSourceRoot + "/config/" + QLatin1String(catalogue));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QJsonObject kinds = QJsonDocument::fromJson(file.readAll()).object();
            QVERIFY(!kinds.isEmpty());
            for (const QJsonValue& list : kinds) {
                for (const QJsonValue& device : list.toArray()) {
                    const QString name = device.toObject().value("displayName").toString();
                    QTest::newRow(qPrintable(name)) << dashed(name) + ".png";
                }
            }
        }
    }
    void picturesBesideTheProgram()
    {
        QFETCH(QString, file);
        const QImage image(kBesideImages + u'/' + file);
        QVERIFY2(!image.isNull(), qPrintable(kBesideImages + u'/' + file));
    }
};

QTEST_MAIN(TestImages)
#include "tst_images.moc"
