#include "SiblingShots.h"

#include "ConsoleModel.h"
#include "DeviceEnumInfo.h"
#include "DialogDeviceConnect.h"
#include "DialogDeviceConsole.h"
#include "FrameDeviceShow.h"
#include "MainWindow.h"
#include "ScriptedInput.h"
#include "SiblingHost.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QStackedWidget>

namespace {

QString standInTarget(const QString& programDir)
{
    return QDir::cleanPath(programDir + SiblingHost::nativeName(QLatin1String(
                                            SiblingHost::kSiblings[SiblingHost::BY].program)));
}

} // namespace

bool SiblingShots::installStandIn(const QString& programDir)
{
    const QString built =
        QCoreApplication::applicationDirPath() + QStringLiteral("/../tests/orbe_sibling_standin");
    const QString target = standInTarget(programDir);
    QDir().mkpath(QFileInfo(target).absolutePath());
    // The folder that marks where the sibling drivers stand, as the installer lays them out.
    QDir().mkpath(programDir + QStringLiteral("/RyExe"));
    // This program keeps its values where test mode puts them; the stand-in is told to look there.
    qputenv("ORBE_STANDIN_TEST_MODE", "1");
    return QFile::exists(built) && QFile::copy(built, target);
}

DialogDeviceConsole* SiblingShots::openConsole(MainWindow& window, Platform& platform)
{
    auto* console = new DialogDeviceConsole(window.connection(), platform, &window);
    console->setAttribute(Qt::WA_DeleteOnClose);
    console->show();
    window.connection()->console().setCommandLine(QStringLiteral("89 00 00 00 00 00 00 76"));
    console->findChild<QPushButton*>(QStringLiteral("pushButtonWrite"))->click();
    return console;
}

bool SiblingShots::openSibling(MainWindow& window)
{
    int index = 0;
    for (const DeviceEnumInfo& device : window.deviceList()) {
        if (!device.online) continue;
        if (device.family == SiblingHost::BY) {
            ScriptedInput::click(window.card(index));
            return true;
        }
        ++index;
    }
    return false;
}

bool SiblingShots::siblingShown(const MainWindow& window)
{
    return window.siblingHost()->window(SiblingHost::BY) != 0 &&
           window.findChild<QStackedWidget*>(QStringLiteral("stackedWidget"))->currentIndex() ==
               MainWindow::SiblingPage;
}

void SiblingShots::endStandIn(Platform& platform)
{
    platform.endProcess(QFileInfo(standInTarget(QString())).fileName());
}
