#include "AppLog.h"
#include "AppStartup.h"
#include "HidBackend.h"
#include "InstallLayout.h"
#include "MainWindow.h"
#include "Platform.h"
#include "StallWatchdog.h"
#include "TimedHidBackend.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QTranslator>
#include <clocale>

int main(int argc, char* argv[])
{
    // The virtual keyboards stand in for hidapi; the flag is ours, not the framework's.
    const bool simulate = AppStartup::takeSimulateFlag(argc, argv);
    // What the hub sends and gets, as orbehub-cli --trace writes it.
    const QString traceFile = AppStartup::takeTraceOption(argc, argv);
    // How long the window's thread goes without events, printed at the end.
    const bool watch = StallWatchdog::isRequested(argc, argv);

    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    // Both are the default in Qt 6 and deprecated; kept so the start-up reads the same everywhere.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QT_WARNING_POP

    std::setlocale(LC_ALL, ".UTF-8");

    QApplication app(argc, argv);

    const InstallLayout layout;
    qCInfo(lcApp) << "shipped files in" << layout.dataDir() << "settings in"
                  << layout.settingsDir();
    if (!QFileInfo(layout.dataDir() + QStringLiteral("/images")).isDir())
        qCWarning(lcApp) << "no images folder in" << layout.dataDir() << "- the cards stay blank";

    QTranslator appTranslator;
    AppStartup::installAppTranslation(appTranslator, QLocale::system().uiLanguages());

    QTranslator qtBaseTranslator;
    QTranslator qtTranslator;
    AppStartup::installQtTranslations(qtBaseTranslator, qtTranslator, QLocale::system().name());

    const std::unique_ptr<Platform> platform = Platform::create();
    platform->setConsoleOutputUtf8();

    const QString root = AppStartup::siblingRoot(QCoreApplication::applicationDirPath());
    AppStartup::loadFonts(root);

    app.setStyleSheet(AppStartup::applicationStyleSheet());
    qCDebug(lcApp) << "style sheet set";

    std::unique_ptr<HidBackend> hid = AppStartup::createHidBackend(simulate);
    if (!traceFile.isEmpty()) hid = AppStartup::traceTo(std::move(hid), traceFile);
    TimedHidBackend* timed = nullptr;
    std::unique_ptr<StallWatchdog> watchdog;
    if (watch) {
        auto measured = std::make_unique<TimedHidBackend>(std::move(hid));
        timed = measured.get();
        hid = std::move(measured);
        watchdog = std::make_unique<StallWatchdog>();
        watchdog->restart();
    }

    MainWindow window(std::move(hid), *platform);
    window.appTranslator = &appTranslator;
    window.qtBaseTranslator = &qtBaseTranslator;
    window.qtTranslator = &qtTranslator;
    window.show();
    const int status = app.exec();
    if (timed)
        qCInfo(lcApp).nospace() << "the longest HID call took " << timed->longest().ms << " ms ("
                                << timed->longest().call << ")";
    return status;
}
