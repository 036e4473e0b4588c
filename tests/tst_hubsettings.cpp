// Settings, language and about: the language switch's values, translators and retranslation,
// the language menu, the start-up choice, the autostart dialog over the recording platform, and
// the about page's cards.

#include "FakePlatform.h"
#include "FrameAbout.h"
#include "FrameSystemInfo.h"
#include "LanguageSwitch.h"
#include "Languages.h"
#include "MainWindow.h"
#include "ManualClock.h"
#include "ModuleLangMenu.h"
#include "ModuleVideoItem.h"
#include "VirtualHidBackend.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>

namespace {

const char* const kAutostartText = "开机时自动开启本程序";

// Delivers the LanguageChange events that installing a translator posts to the windows.
void deliverLanguageChange()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
}

QPushButton* button(QWidget& parent, const char* name)
{
    return parent.findChild<QPushButton*>(QLatin1String(name));
}

} // namespace

class TestHubSettings : public QObject
{
    Q_OBJECT

    FakePlatform* platform = nullptr;
    QTranslator appTranslator, qtBaseTranslator, qtTranslator;

    LanguageSwitch makeSwitch()
    {
        LanguageSwitch language(*platform);
        language.setTranslators(&appTranslator, &qtBaseTranslator, &qtTranslator);
        return language;
    }

private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        platform = &FakePlatform::shared();
    }
    void init() { platform->reset(); }

    void cleanup()
    {
        // Back to the source language for the next case.
        for (QTranslator* t : {&appTranslator, &qtBaseTranslator, &qtTranslator})
            QCoreApplication::removeTranslator(t);
        deliverLanguageChange();
    }

    void languageSwitchWritesTheValues_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("code");
        QTest::addColumn<int>("id");
        struct Row
        {
            int index;
            const char *name, *locale, *code;
            int id;
        };
        // "jp", "kr" and 1046 for Portuguese are what the sibling drivers read, as they stand.
        for (const Row& r :
             {Row{0, "中文简体", "zh_CN", "cn", 2052}, Row{1, "English", "en_US", "en", 1033},
              Row{3, "日本語", "ja_JP", "jp", 1041}, Row{4, "한국어", "ko_KR", "kr", 1042},
              Row{7, "Português", "pt_PT", "pt", 1046}, Row{13, "Türkçe", "tr_TR", "tr", 1055}})
            QTest::newRow(r.locale) << r.index << QString::fromUtf8(r.name) << QString(r.locale)
                                    << QString(r.code) << r.id;
    }
    void languageSwitchWritesTheValues()
    {
        QFETCH(int, index);
        QFETCH(QString, name);
        QFETCH(QString, locale);
        QFETCH(QString, code);
        QFETCH(int, id);

        LanguageSwitch language = makeSwitch();
        QVERIFY(language.apply(index, name));

        // In this order: the choice, then the siblings' two values.
        QCOMPARE(platform->operationsNamed({"setUserValue"}),
                 QStringList({QStringLiteral("setUserValue(\"lastlang\", %1)").arg(index),
                              QStringLiteral("setUserValue(\"LanguageCode\", \"%1\")").arg(code),
                              QStringLiteral("setUserValue(\"LANGUAGE\", %1)").arg(id)}));
        QCOMPARE(language.languageText(), " " + name);
        QCOMPARE(language.localeTag(), QString(locale).replace('_', '-'));
        // The program's translation of that locale is the one loaded.
        QCOMPARE(appTranslator.language(), locale);
        QCOMPARE(ModuleLangMenu::languageNames().at(index), name);
    }

    void languageSwitchTellsTheShownByDriver_data()
    {
        QTest::addColumn<int>("family");
        QTest::addColumn<bool>("written");
        QTest::newRow("none shown") << -1 << false;
        QTest::newRow("RY") << 0 << false;
        QTest::newRow("BY") << 2 << true;
        QTest::newRow("JM") << 3 << false;
    }
    void languageSwitchTellsTheShownByDriver()
    {
        QFETCH(int, family);
        QFETCH(bool, written);
        LanguageSwitch language = makeSwitch();
        language.setHostedFamily(family);
        QVERIFY(language.apply(9, "Deutsch"));
        QCOMPARE(platform->values.contains("ByLocale"), written);
        if (written) {
            QCOMPARE(platform->values.value("ByLocale").toString(), "de-DE");
            // Before the two language values.
            QCOMPARE(platform->operationsNamed({"setUserValue"}).at(1),
                     "setUserValue(\"ByLocale\", \"de-DE\")");
        }
    }

    void languageSwitchRetranslatesAndRepeats()
    {
        FrameSystemInfo info(*platform);
        auto* box = info.findChild<QCheckBox*>("checkBox");
        QCOMPARE(box->text(), QString::fromUtf8(kAutostartText));

        LanguageSwitch language = makeSwitch();
        QVERIFY(language.apply(1, "English"));
        deliverLanguageChange();
        const QString english = box->text();
        QVERIFY(english != QString::fromUtf8(kAutostartText));
        QCOMPARE(english, QCoreApplication::translate("FrameSystemInfo", kAutostartText));

        // The same language again reloads and writes everything again.
        QVERIFY(language.apply(1, "English"));
        deliverLanguageChange();
        QCOMPARE(box->text(), english);
        QCOMPARE(platform->operationsNamed({"setUserValue"}).size(), 6);

        // The source language comes back when Chinese is chosen.
        QVERIFY(language.apply(0, "中文简体"));
        deliverLanguageChange();
        QCOMPARE(box->text(), QString::fromUtf8(kAutostartText));
    }

    void languageSwitchIgnoresUnknownIndexes()
    {
        LanguageSwitch language = makeSwitch();
        QVERIFY(!language.apply(-1, "x"));
        QVERIFY(!language.apply(int(kLanguages.size()), "x"));
        QVERIFY(platform->operations.isEmpty());
        QVERIFY(language.languageText().isEmpty());
    }

    void languageMenuAnnouncesAndHides()
    {
        ModuleLangMenu menu;
        const QList<QPushButton*> buttons = menu.findChildren<QPushButton*>();
        QCOMPARE(buttons.size(), int(kLanguages.size()));
        menu.show();
        QSignalSpy spy(&menu, &ModuleLangMenu::onLangChanged);

        menu.selectLanguage(4);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.at(0).at(0).toInt(), 4);
        QCOMPARE(spy.at(0).at(1).toString(), "한국어");
        QVERIFY(menu.isHidden());
        QVERIFY(button(menu, "pushButtonLang4")->isChecked());

        menu.selectLanguage(int(kLanguages.size())); // no such button
        menu.selectLanguage(-2);
        QCOMPARE(spy.size(), 1);
    }

    void startUpTakesTheSavedLanguage_data()
    {
        QTest::addColumn<QVariant>("saved");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("code");
        QTest::newRow("first run: language 0") << QVariant() << 0 << "cn";
        QTest::newRow("English saved") << QVariant(1) << 1 << "en";
        QTest::newRow("saved as text, as the registry may hold it") << QVariant("12") << 12 << "it";
    }
    void startUpTakesTheSavedLanguage()
    {
        QFETCH(QVariant, saved);
        QFETCH(int, index);
        QFETCH(QString, code);
        if (saved.isValid()) platform->values.insert("lastlang", saved);

        ManualClock clock;
        MainWindow window(std::make_unique<VirtualHidBackend>(&clock), *platform, &clock);
        window.appTranslator = &appTranslator;
        window.selectSavedLanguage();

        QCOMPARE(platform->values.value("lastlang").toInt(), index);
        QCOMPARE(platform->values.value("LanguageCode").toString(), code);
        QCOMPARE(button(window, "pushButtonLang")->text(),
                 " " + ModuleLangMenu::languageNames().at(index));
        QVERIFY(window.languageMenu()->isHidden());
    }

    void autostartChoice_data()
    {
        QTest::addColumn<QString>("before"); // the program set to start at log-in
        QTest::addColumn<bool>("checked");   // the box when the user decides
        QTest::addColumn<QString>("decision");
        QTest::addColumn<QString>("after"); // "self": this program
        QTest::addColumn<int>("result");
        const QString other = "/opt/orbe/orbehub", ok = "pushButtonOK", self = "self";
        QTest::newRow("OK with the box checked") << QString() << true << ok << self << 1;
        QTest::newRow("OK with the box unchecked removes it") << other << false << ok << "" << 1;
        QTest::newRow("OK keeping it checked writes this program")
            << other << true << ok << self << 1;
        QTest::newRow("cancel writes nothing") << QString() << true << "pushButtonCancel"
                                               << "" << 0;
        QTest::newRow("close writes nothing") << other << false << "pushButtonClose" << other << 0;
    }
    void autostartChoice()
    {
        QFETCH(QString, before);
        QFETCH(bool, checked);
        QFETCH(QString, decision);
        QFETCH(QString, after);
        QFETCH(int, result);
        platform->autostart = before;

        FrameSystemInfo info(*platform);
        // Every opening clears the machine-wide entry first, then reads the user's.
        QCOMPARE(platform->operationNames(),
                 QStringList({"clearMachineAutostart", "autostartProgram"}));
        auto* box = info.findChild<QCheckBox*>("checkBox");
        QCOMPARE(box->isChecked(), !before.isEmpty());

        info.show();
        box->setChecked(checked);
        QSignalSpy decided(&info, &FrameSystemInfo::decided);
        QTest::mouseClick(button(info, decision.toLatin1()), Qt::LeftButton);

        QCOMPARE(decided.size(), 1);
        QCOMPARE(decided.at(0).at(0).toBool(), result == 1);
        QCOMPARE(info.result(), result);
        QVERIFY(info.isHidden());
        QCOMPARE(platform->autostart,
                 after == "self" ? QCoreApplication::applicationFilePath() : after);
        if (result == 0)
            QVERIFY(platform->operationsNamed({"setAutostart", "clearAutostart"}).isEmpty());
    }

    void aboutPageBuildsTwentyCards()
    {
        FrameAbout about;
        auto* grid = about.findChild<QGridLayout*>("gridLayoutVideos");
        QVERIFY(grid);
        QCOMPARE(grid->count(), FrameAbout::kVideoCards);
        for (int i = 0; i < grid->count(); ++i) {
            auto* card = qobject_cast<ModuleVideoItem*>(grid->itemAt(i)->widget());
            QVERIFY(card);
            QCOMPARE(card->minimumSize(), FrameAbout::kVideoCardSize);
            QCOMPARE(card->maximumSize(), FrameAbout::kVideoCardSize);
            int row = -1, column = -1, rowSpan = 0, columnSpan = 0;
            grid->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
            QCOMPARE(row, i / 3);
            QCOMPARE(column, i % 3);
        }
        auto* tabs = about.findChild<QTabWidget*>("tabWidget");
        QCOMPARE(tabs->count(), 2);
        QCOMPARE(tabs->tabText(0), "操作教学");
        QCOMPARE(tabs->tabText(1), "关于Orbe");

        // The firmware buttons are not connected: a click changes no text and asks nothing.
        auto texts = [&] {
            QStringList all;
            for (QLabel* label : about.findChildren<QLabel*>())
                all << label->text();
            return all;
        };
        const QStringList before = texts();
        QCOMPARE(about.findChild<QLabel*>("labelTitleL1")->text(), "设备名称：Orbe 7090");
        about.show();
        QTest::mouseClick(button(about, "pushButton"), Qt::LeftButton);
        QTest::mouseClick(button(about, "pushButton_2"), Qt::LeftButton);
        QCOMPARE(texts(), before);
        QVERIFY(platform->operations.isEmpty());
    }
};

QTEST_MAIN(TestHubSettings)
#include "tst_hubsettings.moc"
