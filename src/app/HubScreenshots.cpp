// Runs the hub over the virtual devices in English and saves pictures of its window: the cards
// once every device is listed (cards.png), the home page of a native keyboard once it has been
// read (shell.png), its custom colour tab with the colour picker open over it (picker.png), its
// macro page with a macro recorded key by key in real time (macro.png) and the insert dialog
// (macro-insert.png), and its key page with bindings and a bubble (keys.png), the function picker
// open over it (keypicker.png), the options panel (options.png) and the advanced keys' four tabs
// (dks.png, modtap.png, toggle.png, snapkey.png) with the DKS travel popup (dks-travel.png), and
// its light page with a painting and the works kept from it (light.png); then, on the wired
// keyboard, the magnetic page with travel applied (magnetic-travel.png), switch types painted
// (magnetic-switches.png), the travel and key tests running (magnetic-test.png) and the
// calibration part-way (calibration.png); last the engineering console (console.png) and
// the tests' stand-in sibling driver hosted in the hub (sibling.png, when it was built).
// orbe_hub_screenshots <folder>; not installed, for the README. The hub runs on a copy of the
// files beside the program, so that the macros recorded here stay out of the build's own.

#include "AdvancedKeyShots.h"
#include "AppStartup.h"
#include "Clock.h"
#include "DeviceEnumInfo.h"
#include "DeviceRegistry.h"
#include "DialogColorPicker.h"
#include "DialogDeviceConnect.h"
#include "FrameDeviceHolder.h"
#include "FrameDeviceShow.h"
#include "FrameMacro.h"
#include "KeyPageShots.h"
#include "Languages.h"
#include "LightPageShots.h"
#include "MagneticShots.h"
#include "MainWindow.h"
#include "ModuleAddMacroSquare.h"
#include "ModuleEfColor.h"
#include "ModuleLangMenu.h"
#include "ModuleMacroManager.h"
#include "Platform.h"
#include "ScriptedInput.h"
#include "SiblingShots.h"
#include "SuperLabel.h"
#include "VirtualHidBackend.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

namespace {

constexpr int kEnglish = 1;
// The card page is also taken in these languages, to show the translations and their fonts.
struct CardShot
{
    int language; // index into kLanguages
    const char* file;
};
constexpr CardShot kCardShots[] = {{3, "/cards-ja.png"}, {9, "/cards-de.png"}};
constexpr int kDevicesInSet = 6;
constexpr int kPollMs = 100;
constexpr int kSettleMs = 3000; // the cards' first battery answers come 2 s after they show
constexpr int kGiveUpMs = 60000;
constexpr int kRelayoutMs = 1000;

bool save(QWidget& window, const QString& path)
{
    const bool ok = window.grab().save(path);
    QTextStream(stdout) << (ok ? "wrote " : "could not write ") << path << '\n';
    return ok;
}

// The screen where the window stands, so that the picker's own window is in the picture.
bool saveScreen(QWidget& window, const QString& path)
{
    const QRect area = window.frameGeometry();
    const bool ok =
        window.screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height()).save(path);
    QTextStream(stdout) << (ok ? "wrote " : "could not write ") << path << '\n';
    return ok;
}

void mouse(QWidget* widget, QEvent::Type type, Qt::MouseButton button)
{
    const QPointF at(widget->width() / 2.0, widget->height() - 20.0);
    QMouseEvent event(type, at, widget->mapToGlobal(at), button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void key(QWidget* widget, QEvent::Type type, int qtKey)
{
    QKeyEvent event(type, qtKey, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

// A copy of config/ and images/ beside the program.
bool copyProgramFiles(const QString& to)
{
    const QDir from(QCoreApplication::applicationDirPath());
    for (const char* folder : {"config", "images"}) {
        QDirIterator it(from.filePath(QLatin1String(folder)), QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString source = it.next();
            const QString target = QDir(to).filePath(from.relativeFilePath(source));
            QDir().mkpath(QFileInfo(target).absolutePath());
            if (!QFile::copy(source, target)) return false;
        }
    }
    return true;
}

// The macro recorded for the picture, a skill combination: each event, then the poll ticks
// (100 ms) to wait before the next, so that the delays are real gaps of different lengths.
struct MacroStep
{
    enum Kind { KeyDown, KeyUp, MouseDown, MouseUp } kind;
    int code; // a Qt key or a mouse button
    int ticks;
};
constexpr MacroStep kMacroSteps[] = {
    {MacroStep::KeyDown, Qt::Key_Shift, 1},     {MacroStep::KeyDown, Qt::Key_Q, 1},
    {MacroStep::KeyUp, Qt::Key_Q, 1},           {MacroStep::KeyUp, Qt::Key_Shift, 3},
    {MacroStep::KeyDown, Qt::Key_E, 1},         {MacroStep::KeyUp, Qt::Key_E, 2},
    {MacroStep::MouseDown, Qt::LeftButton, 1},  {MacroStep::MouseUp, Qt::LeftButton, 4},
    {MacroStep::KeyDown, Qt::Key_R, 1},         {MacroStep::KeyUp, Qt::Key_R, 1},
    {MacroStep::KeyDown, Qt::Key_Space, 1},     {MacroStep::KeyUp, Qt::Key_Space, 2},
    {MacroStep::MouseDown, Qt::RightButton, 1}, {MacroStep::MouseUp, Qt::RightButton, 1},
    {MacroStep::KeyDown, Qt::Key_F, 1},         {MacroStep::KeyUp, Qt::Key_F, 1},
};

void playStep(FrameMacro* page, const MacroStep& step)
{
    switch (step.kind) {
    case MacroStep::KeyDown:
        return key(page, QEvent::KeyPress, step.code);
    case MacroStep::KeyUp:
        return key(page, QEvent::KeyRelease, step.code);
    case MacroStep::MouseDown:
        return mouse(page, QEvent::MouseButtonPress, Qt::MouseButton(step.code));
    case MacroStep::MouseUp:
        return mouse(page, QEvent::MouseButtonRelease, Qt::MouseButton(step.code));
    }
}

// A user's list of macros, named in English: the first start names them in the language of the
// moment, which is Chinese before the saved language loads.
constexpr const char* kMacroNames[] = {"Skill combo", "Quick build", "Reload cancel", "Sprint jump",
                                       "Chat: GG",    "Burst fire",  "Inventory",     "Emotes"};

void nameMacros(const QString& programDir)
{
    ModuleMacroManager store(programDir);
    for (int i = 0; i < int(std::size(kMacroNames)); ++i)
        if (Macro* macro = store.macros().value(i)) macro->name = QLatin1String(kMacroNames[i]);
    store.SaveHeader();
}

// The insert dialog as a user fills it for a key.
bool saveInsertDialog(FrameMacro* page, const QString& path)
{
    page->findChild<QPushButton*>(QStringLiteral("pushButtonInsert"))->click();
    auto* dialog = page->findChild<ModuleAddMacroSquare*>();
    if (!dialog) return false;
    key(dialog->findChild<QWidget*>(QStringLiteral("lineEditKey")), QEvent::KeyPress, Qt::Key_G);
    const bool ok = save(*dialog, path);
    dialog->reject();
    return ok;
}

} // namespace

int main(int argc, char* argv[])
{
    // Keeps the user's saved language and the running hub's segment out of this. Test mode's
    // values live under the home folder, where every test of the machine writes them (a test's
    // return flag would send this window back to the cards): this run gets a home of its own.
    QTemporaryDir home;
    if (home.isValid()) qputenv("HOME", QFile::encodeName(home.path()));
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    app.setStyleSheet(AppStartup::applicationStyleSheet());
    const QString out = app.arguments().value(1, QStringLiteral("."));
    QDir().mkpath(out);
    // A second argument takes every page in that language instead (an index of the language
    // menu), for reading a translation back in place.
    bool languageGiven = false;
    const int language = app.arguments().value(2).toInt(&languageGiven);
    const bool allInEnglish = !languageGiven || language == kEnglish;
    if (languageGiven && (language < 0 || language >= int(kLanguages.size()))) {
        QTextStream(stderr) << "no language " << language << '\n';
        return 2;
    }

    QTemporaryDir programDir;
    if (!copyProgramFiles(programDir.path())) {
        QTextStream(stderr) << "could not copy the program's files\n";
        return 1;
    }
    nameMacros(programDir.path());
    const bool withSibling = SiblingShots::installStandIn(programDir.path());
    if (!withSibling) QTextStream(stderr) << "no stand-in sibling built: no sibling.png\n";

    QTranslator appTranslator, qtBaseTranslator, qtTranslator;
    const std::unique_ptr<Platform> platform = Platform::create();
    platform->setUserValue(QStringLiteral("lastlang"), allInEnglish ? kEnglish : language);
    MainWindow window(AppStartup::createHidBackend(true), *platform, nullptr, programDir.path());
    window.appTranslator = &appTranslator;
    window.qtBaseTranslator = &qtBaseTranslator;
    window.qtTranslator = &qtTranslator;
    window.show();
    QCursor::setPos(0, 0); // no card under the pointer: none shows its hover style

    enum class Step {
        Cards,
        Settle,
        CardsIn,
        CardsBack,
        Shell,
        Picker,
        Record,
        Macro,
        Bindings,
        KeyPage,
        KeyPicker,
        Options,
        AdvancedKeys,
        AdvancedTab,
        Light,
        WiredCard,
        Travel,
        Switches,
        Tests,
        Calibration,
        Console,
        Sibling,
        Done
    } step = Step::Cards;
    int waited = 0;
    int macroStep = 0;
    int ticksLeft = 0;
    int advancedTab = 0;
    int cardShot = 0;
    FrameMacro* macroPage = nullptr;
    DialogColorPicker* picker = nullptr;
    DialogDeviceConsole* console = nullptr;
    int result = 1;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        waited += kPollMs;
        if (waited > kGiveUpMs) {
            QTextStream(stderr) << "gave up waiting for the hub\n";
            app.exit(1);
            return;
        }
        switch (step) {
        case Step::Cards:
            if (window.deviceRegistry()->onlineCount() < kDevicesInSet) return;
            step = Step::Settle;
            waited = 0;
            return;
        case Step::Settle:
            if (waited < kSettleMs) return;
            if (!save(window, out + QStringLiteral("/cards.png"))) app.exit(1);
            if (allInEnglish) {
                window.languageMenu()->selectLanguage(kCardShots[0].language);
                step = Step::CardsIn;
                waited = 0;
                return;
            }
            step = Step::CardsBack;
            return;
        case Step::CardsIn:
            // The windows take the language change, then lay their new texts out again.
            if (waited < kRelayoutMs) return;
            waited = 0;
            if (!save(window, out + QLatin1String(kCardShots[cardShot].file))) app.exit(1);
            if (++cardShot < int(std::size(kCardShots))) {
                window.languageMenu()->selectLanguage(kCardShots[cardShot].language);
                return;
            }
            window.languageMenu()->selectLanguage(kEnglish);
            step = Step::CardsBack;
            return;
        case Step::CardsBack:
            // The native keyboard on Bluetooth, the second card: its page shows the battery.
            ScriptedInput::click(window.card(1));
            step = Step::Shell;
            return;
        case Step::Shell: {
            DialogDeviceConnect* link = window.connection();
            if (!link->isConnected() || !link->isIdle() || link->GetKeyMatrix(0).isEmpty()) return;
            if (!save(window, out + QStringLiteral("/shell.png"))) app.exit(1);
            // The custom colours of the home page, with the picker opened beside them.
            auto* colours = window.findChild<ModuleEfColor*>(QStringLiteral("frameLEDColor"));
            colours->findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(1);
            picker = colours->picker();
            picker->setColor(QColor(0x6F, 0x3C, 0xE0));
            const QPoint at = colours->mapToGlobal(QPoint(colours->width() - 40, 40));
            picker->showAt(at.x(), at.y());
            step = Step::Picker;
            waited = 0;
            return;
        }
        case Step::Picker:
            if (waited < 600) return; // the picker's window is mapped and painted
            if (!saveScreen(window, out + QStringLiteral("/picker.png"))) app.exit(1);
            picker->hide();
            {
                FrameDeviceHolder* holder = window.deviceHolder();
                holder->showPage(holder->findChild<SuperLabel*>(QStringLiteral("label4")), 3);
                macroPage = holder->findChild<FrameMacro*>();
                macroPage->findChild<QPushButton*>(QStringLiteral("pushButtonRecord"))->click();
            }
            step = Step::Record;
            return;
        case Step::Record:
            if (ticksLeft > 0 && --ticksLeft > 0) return;
            if (macroStep < int(std::size(kMacroSteps))) {
                ticksLeft = kMacroSteps[macroStep].ticks;
                playStep(macroPage, kMacroSteps[macroStep++]);
                return;
            }
            macroPage->findChild<QPushButton*>(QStringLiteral("pushButtonRecord"))->click();
            step = Step::Macro;
            waited = 0;
            return;
        case Step::Macro:
            if (waited < kPollMs * 3) return; // the grid settles 10 ms after its last change
            if (!save(window, out + QStringLiteral("/macro.png")) ||
                !saveInsertDialog(macroPage, out + QStringLiteral("/macro-insert.png")))
                app.exit(1);
            KeyPageShots::writeBindings(window);
            step = Step::Bindings;
            return;
        case Step::Bindings:
            if (!window.connection()->isIdle()) return;
            KeyPageShots::showKeyPage(window);
            step = Step::KeyPage;
            return;
        case Step::KeyPage:
            if (!KeyPageShots::saveComposed(window, out + QStringLiteral("/keys.png"))) app.exit(1);
            KeyPageShots::openPicker(window);
            step = Step::KeyPicker;
            return;
        case Step::KeyPicker:
            if (!KeyPageShots::saveComposed(window, out + QStringLiteral("/keypicker.png")))
                app.exit(1);
            KeyPageShots::closePicker(window);
            KeyPageShots::showOptions(window);
            step = Step::Options;
            return;
        case Step::Options:
            if (!KeyPageShots::saveComposed(window, out + QStringLiteral("/options.png")))
                app.exit(1);
            AdvancedKeyShots::writeKeys(window);
            step = Step::AdvancedKeys;
            return;
        case Step::AdvancedKeys:
            if (!window.connection()->isIdle()) return;
            AdvancedKeyShots::showTab(window, advancedTab);
            step = Step::AdvancedTab;
            return;
        case Step::AdvancedTab:
            if (!KeyPageShots::saveComposed(window,
                                            out + u'/' + AdvancedKeyShots::fileName(advancedTab)))
                app.exit(1);
            if (advancedTab == 0 &&
                !AdvancedKeyShots::saveTravelPopup(window, out + QStringLiteral("/dks-travel.png")))
                app.exit(1);
            if (++advancedTab < AdvancedKeyShots::kTabs) {
                AdvancedKeyShots::showTab(window, advancedTab);
                return;
            }
            LightPageShots::paintWorks(window);
            step = Step::Light;
            return;
        case Step::Light:
            if (!window.connection()->isIdle()) return; // the layer is written
            if (!save(window, out + QStringLiteral("/light.png"))) app.exit(1);
            // The magnetic pages on the wired keyboard: its depth stream feeds the travel test.
            MagneticShots::leaveDevicePage(window);
            ScriptedInput::click(window.card(0));
            step = Step::WiredCard;
            waited = 0;
            return;
        case Step::WiredCard: {
            DialogDeviceConnect* link = window.connection();
            if (waited < kPollMs * 5 || !link->isConnected() || !link->isIdle() ||
                link->isWirelessConnection() || link->GetMagnetTable(0).isEmpty())
                return;
            MagneticShots::applyTravel(window);
            step = Step::Travel;
            waited = 0;
            return;
        }
        case Step::Travel:
            // The rapid trigger boxes take what was typed 300 ms after it.
            if (waited < kPollMs * 5 || !window.connection()->isIdle()) return;
            if (!save(window, out + QStringLiteral("/magnetic-travel.png"))) app.exit(1);
            MagneticShots::paintSwitchTypes(window);
            step = Step::Switches;
            return;
        case Step::Switches:
            if (!window.connection()->isIdle()) return;
            if (!save(window, out + QStringLiteral("/magnetic-switches.png"))) app.exit(1);
            MagneticShots::startTests(window);
            step = Step::Tests;
            waited = 0;
            return;
        case Step::Tests:
            // The stream's key goes down and up once in 1.2 s; the poll catches it part-way.
            if (waited < kPollMs * 10 || !MagneticShots::midPress(window)) return;
            if (!save(window, out + QStringLiteral("/magnetic-test.png"))) app.exit(1);
            MagneticShots::startCalibration(window);
            step = Step::Calibration;
            waited = 0;
            return;
        case Step::Calibration:
            // The simulated user presses a key every 300 ms: about a third of the board by now.
            if (waited < 9000) return;
            result =
                MagneticShots::saveCalibration(window, out + QStringLiteral("/calibration.png"))
                    ? 0
                    : 1;
            MagneticShots::finishCalibration(window);
            console = SiblingShots::openConsole(window, *platform);
            step = Step::Console;
            waited = 0;
            return;
        case Step::Console:
            if (waited < 800) return; // the command's answer is in the log
            if (!save(*console, out + QStringLiteral("/console.png"))) result = 1;
            console->close();
            if (!withSibling || !SiblingShots::openSibling(window)) {
                step = Step::Done;
                app.exit(result);
                return;
            }
            step = Step::Sibling;
            waited = 0;
            return;
        case Step::Sibling:
            if (!SiblingShots::siblingShown(window) || waited < 2500) return;
            if (!saveScreen(window, out + QStringLiteral("/sibling.png"))) result = 1;
            SiblingShots::endStandIn(*platform);
            step = Step::Done;
            app.exit(result);
            return;
        case Step::Done:
            return;
        }
    });
    poll.start(kPollMs);
    return app.exec();
}
