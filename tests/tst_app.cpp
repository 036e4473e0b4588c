#include "AppStartup.h"
#include "DialogDeviceConnect.h"
#include "MainWindow.h"
#include "ManualClock.h"
#include "VirtualHidBackend.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
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
        QTest::addColumn<QString>("connected"); // what the window's "已连接" reads as

        QTest::newRow("first entry shipped") << QStringList{"de-DE", "en-US"} << "ORBEStudio_de_DE"
                                             << "已连接";
        QTest::newRow("first not shipped, second is")
            << QStringList{"fr-CA", "en-US"} << "ORBEStudio_en_US"
            << "Connected";
        QTest::newRow("bare language takes its default country")
            << QStringList{"en"} << "ORBEStudio_en_US"
            << "Connected";
        QTest::newRow("script tag") << QStringList{"zh-Hant-TW"} << "ORBEStudio_zh_TW"
                                    << "已连接";
        QTest::newRow("nothing shipped")
            << QStringList{"es-ES", "pt-BR", "en-GB"} << QString() << "已连接";
        QTest::newRow("empty list") << QStringList{} << QString() << "已连接";
    }
    void translationChoice()
    {
        QFETCH(QStringList, uiLanguages);
        QFETCH(QString, loaded);
        QFETCH(QString, connected);

        QTranslator translator;
        QCOMPARE(AppStartup::installAppTranslation(translator, uiLanguages), loaded);
        QCOMPARE(QCoreApplication::translate("MainWindow", "已连接"), connected);
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

    // The window selects the profile the keyboard reports, reads it and shows the values.
    void windowShowsTheReportedProfile_data()
    {
        QTest::addColumn<int>("profile");
        QTest::addColumn<int>("rateCode");
        QTest::addColumn<QString>("rateText");
        QTest::newRow("profile 0, 1000 hz") << 0 << 3 << "1000 hz";
        QTest::newRow("profile 2, 8000 hz") << 2 << 0 << "8000 hz";
        QTest::newRow("profile 3, 125 hz") << 3 << 6 << "125 hz";
    }
    void windowShowsTheReportedProfile()
    {
        QFETCH(int, profile);
        QFETCH(int, rateCode);
        QFETCH(QString, rateText);

        ManualClock clock;
        auto backend = std::make_unique<VirtualHidBackend>(&clock);
        VirtualKeyboard* keyboard = backend->addWiredKeyboard(0x123, 0x0500);
        QByteArray frame(64, '\0');
        frame[0] = 0x04;
        frame[1] = char(profile);
        keyboard->model().handle(frame);
        frame.fill('\0');
        frame[0] = 0x03;
        frame[2] = char(rateCode);
        keyboard->model().handle(frame);
        keyboard->model().clearReceivedFrames();

        MainWindow window(std::move(backend), &clock);
        DialogDeviceConnect* device = window.connection();
        bool done = false;
        connect(device, &DialogDeviceConnect::onReadDone, this, [&] { done = true; });
        QVERIFY(clock.advanceUntil([&] { return done; }, 20000));

        QCOMPARE(int(keyboard->model().profile()), profile);
        QCOMPARE(int(device->GetCurrentProfile()), profile);
        auto text = [&](const char* name) {
            auto* label = window.findChild<QLabel*>(QLatin1String(name));
            return label ? label->text() : QString();
        };
        QCOMPARE(text("profileValue"), QString::number(profile + 1));
        QCOMPARE(text("reportRateValue"), rateText);
        QCOMPARE(text("firmwareValue"), "0x500");
        QCOMPARE(text("deviceIdValue"), "291 (0x123)");
        QCOMPARE(text("versionLabel"), "Ver:0x500 Id:291[123]");
        QCOMPARE(text("stateLabel"), "已连接");
        QVERIFY(text("readDoneLabel").startsWith("读取完成："));
    }

    void windowWithoutKeyboardSaysSo()
    {
        ManualClock clock;
        MainWindow window(std::make_unique<VirtualHidBackend>(&clock), &clock);
        clock.advance(1000);
        QCOMPARE(window.findChild<QLabel*>("stateLabel")->text(), "未找到键盘");
        QVERIFY(!window.connection()->isConnected());
    }
};

QTEST_MAIN(TestApp)
#include "tst_app.moc"
