// The device catalogue: the shipped files, the brand catalogue's search order and roots, the
// custom list's marker, cleaning and split rules, and the number rule. The shipped custom list's
// records are found by the discovery tests, one family after another.

#include "DiscoveryTables.h"
#include "EnumerationPass.h"
#include "OrbeDeviceBase.h"
#include "TestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QSettings>

namespace {

const QString kSourceRoot = QStringLiteral(ORBE_SOURCE_DIR);

constexpr const char* kCatalogueKeys[] = {"keyboard", "mouse", "hitBoxKeyboard", "hitBoxScreen"};

} // namespace

class TestCatalogue : public QObject
{
    Q_OBJECT

    QTemporaryDir dir;
    QString catalogue(const char* file) const { return dir.path() + QLatin1String(file); }

private slots:
    // ---- what ships in config/
    void shippedBrandCatalogues_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("selector");
        QTest::newRow("first brand") << QString::fromLatin1(OrbeDeviceBase::kFirstBrandFile) << 0;
        QTest::newRow("second brand") << QString::fromLatin1(OrbeDeviceBase::kSecondBrandFile) << 1;
    }
    void shippedBrandCatalogues()
    {
        QFETCH(QString, file);
        QFETCH(int, selector);
        QFile f(kSourceRoot + file);
        QVERIFY2(f.open(QIODevice::ReadOnly), qPrintable(f.fileName()));
        QJsonParseError error;
        const QJsonDocument doc = QJsonDocument::fromJson(f.readAll(), &error);
        QVERIFY2(error.error == QJsonParseError::NoError, qPrintable(error.errorString()));
        QVERIFY(doc.isObject());

        QSet<int> ids;
        for (const char* key : kCatalogueKeys) {
            const QJsonValue array = doc.object().value(QLatin1String(key));
            QVERIFY2(array.isArray(), key);
            for (const QJsonValue& element : array.toArray()) {
                const QJsonValue id = element.toObject().value(QLatin1String("id"));
                QVERIFY2(id.isDouble() && id.toInt() > 0, key);
                QVERIFY2(!ids.contains(id.toInt()), qPrintable(QString::number(id.toInt(), 16)));
                ids.insert(id.toInt());
                QVERIFY(!element.toObject()
                             .value(QLatin1String("displayName"))
                             .toString()
                             .trimmed()
                             .isEmpty());
            }
        }
        // Both native keyboards are keyboards of both brands.
        for (quint32 native : {0x0AF7u, 0x0EC3u}) {
            quint16 type = 0xFFFF;
            QVERIFY(!OrbeDeviceBase::lookupName(native, type, selector, kSourceRoot).isEmpty());
            QCOMPARE(type, quint16(0));
        }
    }
    void shippedEnumSettings()
    {
        const QString path = kSourceRoot + QLatin1String(Discovery::kEnumSettingsFile);
        QSettings ini(path, QSettings::IniFormat);
        QCOMPARE(ini.status(), QSettings::NoError);
        QVERIFY(ini.contains(QLatin1String(Discovery::kVidSet0Key)));
        QVERIFY(ini.contains(QLatin1String(Discovery::kVidSet1Key)));
        // As shipped it says what the built-in defaults say.
        const auto shipped = EnumerationPass::readVidSets(kSourceRoot);
        const auto defaults = EnumerationPass::readVidSets(dir.path() + QLatin1String("/none"));
        QCOMPARE(shipped.set0, defaults.set0);
        QCOMPARE(shipped.set1, defaults.set1);
        QCOMPARE(defaults.set0, (QList<quint16>{0x3151, 0x38EE, 0x25A7, 0x05AC, 0x0461}));
    }

    // ---- the brand catalogues
    void lookupName_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<int>("selector");
        QTest::addColumn<quint32>("id");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("type");

        const QByteArray four = R"({
            "keyboard": [ {"id": 2807, "displayName": "  HE75  "}, {"id": 5, "displayName": "Both"} ],
            "mouse": [ {"id": 5, "displayName": "Mouse too"}, {"id": 3073, "displayName": "M1"} ],
            "hitBoxKeyboard": [ {"id": 3329, "displayName": "Box"} ],
            "hitBoxScreen": [ {"id": 3330, "displayName": "Screen", "extra": 1} ]
        })";
        QTest::newRow("keyboard, name trimmed") << four << 0 << 2807u << "HE75" << 0;
        QTest::newRow("mouse") << four << 0 << 3073u << "M1" << 1;
        QTest::newRow("hit box keyboard") << four << 0 << 3329u << "Box" << 3;
        QTest::newRow("hit box screen") << four << 0 << 3330u << "Screen" << 3;
        QTest::newRow("keyboard array wins") << four << 0 << 5u << "Both" << 0;
        QTest::newRow("unknown id") << four << 0 << 0x0999u << "" << 255;
        QTest::newRow("second brand file") << four << 1 << 3073u << "M1" << 1;
        QTest::newRow("any other selector is the second brand")
            << four << 7 << 2807u << "HE75" << 0;
        QTest::newRow("malformed")
            << QByteArray("{\"keyboard\": [ {\"id\": 2807,") << 0 << 2807u << "" << 255;
        QTest::newRow("element without id")
            << QByteArray(R"({"keyboard": [{"displayName": "X"}]})") << 0 << 1u << "" << 255;
    }
    void lookupName()
    {
        QFETCH(QByteArray, json);
        QFETCH(int, selector);
        QFETCH(quint32, id);
        QFETCH(QString, name);
        QFETCH(int, type);
        // The selected file holds the document; the other one holds something else entirely.
        const bool first = selector == 0;
        writeFile(
            catalogue(first ? OrbeDeviceBase::kFirstBrandFile : OrbeDeviceBase::kSecondBrandFile),
            json);
        writeFile(
            catalogue(first ? OrbeDeviceBase::kSecondBrandFile : OrbeDeviceBase::kFirstBrandFile),
            R"({"keyboard": [{"id": 2807, "displayName": "Other brand"}]})");
        quint16 deviceType = 0x1234;
        QCOMPARE(OrbeDeviceBase::lookupName(id, deviceType, selector, dir.path()), name);
        QCOMPARE(int(deviceType), type);
    }
    void arrayRootLeavesTheType()
    {
        writeFile(
            catalogue(OrbeDeviceBase::kFirstBrandFile),
            R"([ {"id": 2807, "displayName": "HE75"}, {"id": 3779, "displayName": "HE98"} ])");
        quint16 type = 0xFFFF;
        QCOMPARE(OrbeDeviceBase::lookupName(3779, type, 0, dir.path()), QStringLiteral("HE98"));
        QCOMPARE(type, quint16(0xFFFF)); // a record takes its low byte: 255
        QCOMPARE(OrbeDeviceBase::lookupName(1234, type, 0, dir.path()), QString());
        QCOMPARE(type, quint16(255));

        QFile::remove(catalogue(OrbeDeviceBase::kFirstBrandFile));
        type = 0;
        QCOMPARE(OrbeDeviceBase::lookupName(3779, type, 0, dir.path()), QString());
        QCOMPARE(type, quint16(255));
    }
    void filesAreReadAtEachQuestion()
    {
        quint16 type = 0;
        writeFile(catalogue(OrbeDeviceBase::kFirstBrandFile),
                  R"({"keyboard": [{"id": 2807, "displayName": "Before"}]})");
        QCOMPARE(OrbeDeviceBase::lookupName(2807, type, 0, dir.path()), QStringLiteral("Before"));
        writeFile(catalogue(OrbeDeviceBase::kFirstBrandFile),
                  R"({"mouse": [{"id": 2807, "displayName": "After"}]})");
        QCOMPARE(OrbeDeviceBase::lookupName(2807, type, 0, dir.path()), QStringLiteral("After"));
        QCOMPARE(type, quint16(1));

        QString name;
        quint16 connection = 0;
        writeFile(catalogue(OrbeDeviceBase::kCustomListFile), "////CustomDeviceList////\n");
        QCOMPARE(OrbeDeviceBase::lookupCustom(1, 2, 3, name, type, connection, dir.path()), 0u);
        writeFile(catalogue(OrbeDeviceBase::kCustomListFile),
                  "////CustomDeviceList////\n9, 1, 2, 3, 0, 0, Nine\n");
        QCOMPARE(OrbeDeviceBase::lookupCustom(1, 2, 3, name, type, connection, dir.path()), 9u);
    }

    // ---- the custom list
    void lookupCustom_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<quint64>("probeId");
        QTest::addColumn<quint64>("deviceId"); // 0: no match, outputs untouched
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("connection");

        const QByteArray marker = "////CustomDeviceList////\n";
        QTest::newRow("plain") << marker + "0x1101, 0x38EE, 0x0030, 0x21, 1, 2, WS 65\n"
                               << 0x21ull << 0x1101ull << "WS 65" << 1 << 2;
        QTest::newRow("braces, quotes and blanks")
            << marker + "  {\"0x1101\" , \"0x38EE\",\"0x0030\" ,  \"0x21\", \"1\", \"2\", \" WS 65 "
                        "\"},\n"
            << 0x21ull << 0x1101ull << "WS 65" << 1 << 2;
        QTest::newRow("hex either case and decimal alike")
            << marker + "4353, 0X38ee, 48, 0x1a, 0, 1, Mixed\n"
            << 26ull << 0x1101ull << "Mixed" << 0 << 1;
        QTest::newRow("no marker: nothing is read")
            << QByteArray("0x1101, 0x38EE, 0x0030, 0x21, 1, 2, WS 65\n") << 0x21ull << 0ull << ""
            << -1 << -1;
        QTest::newRow("lines before the marker are ignored")
            << "0x9999, 0x38EE, 0x0030, 0x21, 1, 2, Early\n" + marker +
                   "0x1101, 0x38EE, 0x0030, 0x21, 1, 2, Late\n"
            << 0x21ull << 0x1101ull << "Late" << 1 << 2;
        QTest::newRow("marker twice, records after both")
            << marker + "5, 1, 1, 1, 0, 0, A\n" + marker + "0x1101, 0x38EE, 0x0030, 0x21, 0, 0, B\n"
            << 0x21ull << 0x1101ull << "B" << 0 << 0;
        QTest::newRow("first match wins") << marker + "1, 0x38EE, 0x30, 0x21, 0, 0, First\n"
                                                      "2, 0x38EE, 0x30, 0x21, 1, 1, Second\n"
                                          << 0x21ull << 1ull << "First" << 0 << 0;
        QTest::newRow("five fields are skipped")
            << marker + "1, 0x38EE, 0x30, 0x21, 0\n2, 0x38EE, 0x30, 0x21, 3, 1, Second\n"
            << 0x21ull << 2ull << "Second" << 3 << 1;
        QTest::newRow("six fields: an empty name")
            << marker + "0x1101, 0x38EE, 0x0030, 0x21, 1, 2\n"
            << 0x21ull << 0x1101ull << "" << 1 << 2;
        QTest::newRow("ids and vendor compared in 16 bits, device id cut to 16")
            << marker + "0x21101, 0x138EE, 0x10030, 0x21, 0, 0, Wide\n"
            << 0x21ull << 0x1101ull << "Wide" << 0 << 0;
        QTest::newRow("probe id compared in full")
            << marker + "0x1101, 0x38EE, 0x0030, 0x100000021, 0, 0, Wide\n"
            << 0x21ull << 0ull << "" << -1 << -1;
        QTest::newRow("twelve-digit probe id")
            << marker + "0x2201, 0x38EE, 0x0030, 202401150042, 0, 0, BY\n"
            << 202401150042ull << 0x2201ull << "BY" << 0 << 0;
    }
    void lookupCustom()
    {
        QFETCH(QByteArray, list);
        QFETCH(quint64, probeId);
        QFETCH(quint64, deviceId);
        QFETCH(QString, name);
        QFETCH(int, type);
        QFETCH(int, connection);
        writeFile(catalogue(OrbeDeviceBase::kCustomListFile), list);

        QString outName = QStringLiteral("untouched");
        quint16 outType = 0xABCD;
        quint16 outConnection = 0xABCD;
        QCOMPARE(OrbeDeviceBase::lookupCustom(0x38EE, 0x0030, probeId, outName, outType,
                                              outConnection, dir.path()),
                 deviceId);
        if (deviceId == 0) {
            QCOMPARE(outName, QStringLiteral("untouched"));
            QCOMPARE(outType, quint16(0xABCD));
            QCOMPARE(outConnection, quint16(0xABCD));
            return;
        }
        QCOMPARE(outName, name);
        QCOMPARE(int(outType), type);
        QCOMPARE(int(outConnection), connection);
    }
    void customListBySelector255()
    {
        writeFile(catalogue(OrbeDeviceBase::kCustomListFile),
                  "header\n////CustomDeviceList////\n0x11101, 0x38EE, 0x30, 0x21, 1, 2, WS\n");
        quint16 type = 0;
        QCOMPARE(OrbeDeviceBase::lookupName(0x1101, type, 255, dir.path()), QStringLiteral("WS"));
        QCOMPARE(type, quint16(1));
        QCOMPARE(OrbeDeviceBase::lookupName(0x21, type, 255, dir.path()), QString());
        QCOMPARE(type, quint16(255));
    }

    // What can't match is named, once for each content of the file, and what can still be
    // trusted is found.
    void problemsAreNamedOncePerContent_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("warnings");
        QTest::addColumn<QString>(
            "found"); // the name of 0x0AF7 (custom list: of 0x21 on 38EE:0030)

        const QString brand = QLatin1String(OrbeDeviceBase::kFirstBrandFile);
        const QString custom = QLatin1String(OrbeDeviceBase::kCustomListFile);
        QTest::newRow("missing") << brand << QByteArray()
                                 << QStringList{"cannot be read \\(No such file or directory\\)"}
                                 << "";
        QTest::newRow("entries without a numeric id")
            << brand << QByteArray(R"({"keyboard": [{"id": "2807", "displayName": "Text id"}, 7,
                                           {"id": 2807, "displayName": "HE75"}]})")
            << QStringList{"entry 0 of \"keyboard\" has no numeric \"id\"",
                           "entry 1 of \"keyboard\" has no numeric \"id\""}
            << "HE75";
        QTest::newRow("an array that isn't one")
            << brand
            << QByteArray(
                   R"({"mouse": {"id": 1}, "keyboard": [{"id": 2807, "displayName": "HE75"}]})")
            << QStringList{"\"mouse\" is not an array"} << "HE75";
        QTest::newRow("custom list: ids that don't parse")
            << custom
            << QByteArray("////CustomDeviceList////\n"
                          "0x11O1, 0x38EE, 0x0030, 0x21, 0, 1, Letter O\n"
                          "0x1101, 0x38EE, 0x0030, , 0, 1, No probe id\n"
                          "0x1102, 0x38EE, 0x0030, 0x21, 0, 1, Good\n")
            << QStringList{"line 2: the device id \"0x11O1\" is not a number",
                           "line 3: the probe id \"\" is not a number"}
            << "Good";
    }
    void problemsAreNamedOncePerContent()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QFETCH(QStringList, warnings);
        QFETCH(QString, found);
        QTemporaryDir app; // told problems are remembered by path
        const QString path = app.path() + file;
        if (!content.isEmpty()) writeFile(path, content);
        const bool customList = file == QLatin1String(OrbeDeviceBase::kCustomListFile);
        auto lookUp = [&] {
            quint16 type = 0;
            QString name;
            quint16 connection = 0;
            if (!customList) return OrbeDeviceBase::lookupName(0x0AF7, type, 0, app.path());
            OrbeDeviceBase::lookupCustom(0x38EE, 0x0030, 0x21, name, type, connection, app.path());
            return name;
        };

        QTest::failOnWarning(QRegularExpression(".*"));
        for (const QString& warning : warnings)
            QTest::ignoreMessage(
                QtWarningMsg,
                QRegularExpression("^" + QRegularExpression::escape(path) + ": " + warning));
        for (int scan = 0; scan < 3; ++scan)
            QCOMPARE(lookUp(), found);

        // Another content is another problem; a file that read well in between is told anew.
        if (content.isEmpty()) return;
        writeFile(path, content + "\n");
        for (const QString& warning : warnings)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
        QCOMPARE(lookUp(), found);
        writeFile(path, customList ? "////CustomDeviceList////\n"
                                   : R"({"keyboard": [{"id": 2807, "displayName": "HE75"}]})");
        lookUp();
        writeFile(path, content);
        for (const QString& warning : warnings)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
        QCOMPARE(lookUp(), found);
    }

    void parseNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<quint64>("value");
        QTest::newRow("hex") << " 0x1A " << 26ull;
        QTest::newRow("hex upper prefix, lower digits") << "0X1a" << 26ull;
        QTest::newRow("decimal") << "26" << 26ull;
        QTest::newRow("hex digits without prefix") << "1A" << 0ull;
        QTest::newRow("word") << "abc" << 0ull;
        QTest::newRow("empty") << "" << 0ull;
        QTest::newRow("inner blank") << "12 34" << 0ull;
        QTest::newRow("twelve digits") << "202401150042" << 202401150042ull;
    }
    void parseNumber()
    {
        QFETCH(QString, text);
        QFETCH(quint64, value);
        QCOMPARE(OrbeDeviceBase::parseNumber(text), value);
    }
};

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
