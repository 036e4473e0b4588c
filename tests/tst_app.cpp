#include "AppStartup.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

class TestApp : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void translationChoice_data()
    {
        QTest::addColumn<QStringList>("uiLanguages");
        QTest::addColumn<QString>("loaded");
        QTest::addColumn<QString>("devices"); // what the window's "我的设备" reads as

        QTest::newRow("first entry shipped") << QStringList{"de-DE", "en-US"} << "ORBEStudio_de_DE"
                                             << "我的设备";
        QTest::newRow("first not shipped, second is")
            << QStringList{"fr-CA", "en-US"} << "ORBEStudio_en_US"
            << "My devices";
        QTest::newRow("bare language takes its default country")
            << QStringList{"en"} << "ORBEStudio_en_US"
            << "My devices";
        QTest::newRow("script tag") << QStringList{"zh-Hant-TW"} << "ORBEStudio_zh_TW"
                                    << "我的设备";
        QTest::newRow("nothing shipped")
            << QStringList{"es-ES", "pt-BR", "en-GB"} << QString() << "我的设备";
        QTest::newRow("empty list") << QStringList{} << QString() << "我的设备";
    }
    void translationChoice()
    {
        QFETCH(QStringList, uiLanguages);
        QFETCH(QString, loaded);
        QFETCH(QString, devices);

        QTranslator translator;
        QCOMPARE(AppStartup::installAppTranslation(translator, uiLanguages), loaded);
        QCOMPARE(QCoreApplication::translate("MainWindow", "我的设备"), devices);
        // Installed exactly when something loaded.
        QCOMPARE(QCoreApplication::removeTranslator(&translator), !loaded.isEmpty());
    }

    void everyLanguageIsShipped_data()
    {
        QTest::addColumn<QString>("locale");
        for (const char* locale : {"zh_CN", "en_US", "zh_TW", "ja_JP", "ko_KR", "ru_RU", "vi_VN",
                                   "pt_PT", "th_TH", "de_DE", "fr_FR", "sv_SE", "it_IT", "tr_TR"})
            QTest::newRow(locale) << QString::fromLatin1(locale);
    }
    void everyLanguageIsShipped()
    {
        QFETCH(QString, locale);
        QVERIFY(QFile::exists(":/i18n/ORBEStudio_" + locale + ".qm"));
        QTranslator translator;
        QVERIFY(translator.load(":/i18n/ORBEStudio_" + locale));
    }

    void siblingRoot_data()
    {
        QTest::addColumn<QString>("layout"); // "dir", "file" or "none": what RyExe is
        QTest::addColumn<bool>("parent");
        QTest::newRow("RyExe beside the program") << "dir" << false;
        QTest::newRow("no RyExe") << "none" << true;
        QTest::newRow("RyExe is a file") << "file" << true;
    }
    void siblingRoot()
    {
        QFETCH(QString, layout);
        QFETCH(bool, parent);
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        if (layout == "dir") QVERIFY(QDir(dir.path()).mkdir("RyExe"));
        if (layout == "file") {
            QFile file(dir.path() + "/RyExe");
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        const QString root = AppStartup::siblingRoot(dir.path());
        QCOMPARE(root, parent ? dir.path() + "/.." : dir.path());
    }

    void fontsComeFromTheSiblingFolderInOrder()
    {
        const QStringList expected{"MiSans-Bold.ttf",       "MiSans-Demibold.ttf",
                                   "MiSans-ExtraLight.ttf", "MiSans-Heavy.ttf",
                                   "MiSans-Light.ttf",      "MiSans-Medium.ttf",
                                   "MiSans-Normal.ttf",     "MiSans-Regular.ttf",
                                   "MiSans-Semibold.ttf",   "MiSans-Thin.ttf"};
        const QStringList paths = AppStartup::fontPaths("/opt/orbe/..");
        QCOMPARE(paths.size(), expected.size());
        for (int i = 0; i < expected.size(); ++i)
            QCOMPARE(paths.at(i), "/opt/orbe/../WsExe/font/" + expected.at(i));
        AppStartup::loadFonts("/nonexistent"); // missing fonts are skipped silently
    }

    void styleSheetBeginsWithTheFontAndLabelRules()
    {
        const QString sheet = AppStartup::applicationStyleSheet();
        QVERIFY(sheet.startsWith(
            "* { font-family: MiSans,MiSans;}QLabel { font-size: 14px; font-weight: 400 ;}"));
        QVERIFY(sheet.contains("QLabel:disabled { color: #B3B3B3; }"));
        QVERIFY(sheet.contains("QLineEdit {"));
    }

    void simulateFlagIsTakenOut_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<bool>("found");
        QTest::addColumn<QStringList>("rest");
        QTest::newRow("flag") << QStringList{"orbehub", "--simulate", "-style", "fusion"} << true
                              << QStringList{"orbehub", "-style", "fusion"};
        QTest::newRow("no flag") << QStringList{"orbehub", "-style", "fusion"} << false
                                 << QStringList{"orbehub", "-style", "fusion"};
        QTest::newRow("program name is not a flag")
            << QStringList{"--simulate"} << false << QStringList{"--simulate"};
    }
    void simulateFlagIsTakenOut()
    {
        QFETCH(QStringList, args);
        QFETCH(bool, found);
        QFETCH(QStringList, rest);
        QList<QByteArray> storage;
        for (const QString& a : args)
            storage.append(a.toLocal8Bit());
        std::vector<char*> argv;
        for (QByteArray& a : storage)
            argv.push_back(a.data());
        argv.push_back(nullptr);
        int argc = int(args.size());
        QCOMPARE(AppStartup::takeSimulateFlag(argc, argv.data()), found);
        QStringList after;
        for (int i = 0; i < argc; ++i)
            after.append(QString::fromLocal8Bit(argv[i]));
        QCOMPARE(after, rest);
        QCOMPARE(argv[argc], nullptr);
    }
};

QTEST_MAIN(TestApp)
#include "tst_app.moc"
