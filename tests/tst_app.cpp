#include "AppStartup.h"
#include "DialogDeviceConnect.h"
#include "ManualClock.h"
#include "ModuleGenKeymapping.h"
#include "VirtualHidBackend.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

namespace {

// A command line as main() gets it, and what is left of it.
struct Argv
{
    explicit Argv(const QStringList& args) : argc(int(args.size()))
    {
        for (const QString& a : args)
            storage.append(a.toLocal8Bit());
        for (QByteArray& a : storage)
            pointers.push_back(a.data());
        pointers.push_back(nullptr);
    }
    char** data() { return pointers.data(); }
    QStringList left() const
    {
        QStringList out;
        for (int i = 0; i < argc; ++i)
            out.append(QString::fromLocal8Bit(pointers[i]));
        if (pointers[argc] != nullptr) out.append(QStringLiteral("<not ended>"));
        return out;
    }

    int argc;
    QList<QByteArray> storage;
    std::vector<char*> pointers;
};

} // namespace

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
                                             << "Meine Geräte";
        QTest::newRow("first not shipped, second is")
            << QStringList{"fr-CA", "en-US"} << "ORBEStudio_en_US"
            << "My devices";
        QTest::newRow("bare language takes its default country")
            << QStringList{"en"} << "ORBEStudio_en_US"
            << "My devices";
        QTest::newRow("script tag") << QStringList{"zh-Hant-TW"} << "ORBEStudio_zh_TW"
                                    << "我的裝置";
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
        Argv argv(args);
        QCOMPARE(AppStartup::takeSimulateFlag(argv.argc, argv.data()), found);
        QCOMPARE(argv.left(), rest);
    }

    void traceOptionIsTakenOut_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("rest");
        QTest::newRow("file after it")
            << QStringList{"orbehub", "--simulate", "--trace", "t.txt", "-style", "fusion"}
            << "t.txt" << QStringList{"orbehub", "--simulate", "-style", "fusion"};
        QTest::newRow("joined") << QStringList{"orbehub", "--trace=/tmp/a b.txt"} << "/tmp/a b.txt"
                                << QStringList{"orbehub"};
        QTest::newRow("no file: dropped, not traced")
            << QStringList{"orbehub", "--trace"} << QString() << QStringList{"orbehub"};
        QTest::newRow("none") << QStringList{"orbehub", "-style", "fusion"} << QString()
                              << QStringList{"orbehub", "-style", "fusion"};
    }
    void traceOptionIsTakenOut()
    {
        QFETCH(QStringList, args);
        QFETCH(QString, file);
        QFETCH(QStringList, rest);
        Argv argv(args);
        QCOMPARE(AppStartup::takeTraceOption(argv.argc, argv.data()), file);
        QCOMPARE(argv.left(), rest);
    }

    // The hub's trace: what the connection sends and gets, one line per transfer in the
    // command-line tool's format; the virtual devices stay reachable behind it for hot-plug.
    void traceWritesEveryTransfer()
    {
        QTemporaryDir dir;
        ManualClock clock;
        auto devices = std::make_unique<VirtualHidBackend>(&clock);
        VirtualHidBackend* virtualSet = devices.get();
        virtualSet->addWiredKeyboard();
        const QString path = dir.filePath("trace.txt");
        std::unique_ptr<HidBackend> hid = AppStartup::traceTo(std::move(devices), path);
        // Behind the trace the virtual devices' plugs still reach whoever listens for hot-plug.
        QSignalSpy plugged(hid.get(), &HidBackend::devicePluggined);
        virtualSet->wiredKeyboard()->unplug();
        virtualSet->wiredKeyboard()->replug();
        QCOMPARE(plugged.count(), 2);
        {
            ModuleGenKeymapping keys;
            DialogDeviceConnect link(hid.get(), &clock, keys, dir.filePath("device.ini"),
                                     std::make_unique<InlineHidExecutor>());
            link.connectStep();
            QVERIFY(clock.advanceUntil([&] { return link.isIdle(); }, 10000, 5));
        }
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        const QStringList lines =
            QString::fromLatin1(file.readAll()).split('\n', Qt::SkipEmptyParts);
        // The first chain: identity, options, profile, each asked and answered.
        QVERIFY2(lines.size() >= 6, qPrintable(lines.join('\n')));
        static const QRegularExpression form("^\\d+ [<>] (feature|write|read)( [0-9A-F]{2})*$");
        for (const QString& line : lines)
            QVERIFY2(form.match(line).hasMatch(), qPrintable(line));
        const auto firstWith = [&](const char* text) {
            for (int i = 0; i < lines.size(); ++i)
                if (lines[i].contains(QLatin1String(text))) return i;
            return -1;
        };
        const int asked = firstWith("> feature 00 8F");
        QVERIFY(asked >= 0);
        QVERIFY(firstWith("< feature 00 8F") > asked);
    }

    void traceToAFileThatCantBeWrittenRunsUntraced()
    {
        ManualClock clock;
        auto devices = std::make_unique<VirtualHidBackend>(&clock);
        HidBackend* before = devices.get();
        QString error;
        std::unique_ptr<HidBackend> hid =
            AppStartup::traceTo(std::move(devices), "/nonexistent-folder/trace.txt", &error);
        QCOMPARE(hid.get(), before);
        QVERIFY(error.contains("/nonexistent-folder/trace.txt"));
    }
};

QTEST_MAIN(TestApp)
#include "tst_app.moc"
