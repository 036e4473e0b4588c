#include "InstallLayout.h"

#include "FileLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace {

constexpr const char* kConfigFolder = "config";

// The data folder of an installed tree: it holds the catalogues the program can't run without.
bool holdsShippedConfig(const QString& dir)
{
    return QFileInfo(dir + u'/' + QLatin1String(kConfigFolder)).isDir();
}

// Whether the program may write config/ beside itself: the folder if it is there, otherwise
// the folder it would be made in.
bool writableBeside(const QString& programDir)
{
    const QFileInfo config(programDir + u'/' + QLatin1String(kConfigFolder));
    return config.exists() ? config.isDir() && config.isWritable()
                           : QFileInfo(programDir).isWritable();
}

// Whether files can be made in the folder, making it first when it is missing. Permission bits
// don't tell (read-only mounts, ACLs): a file is tried.
bool usable(const QString& folder)
{
    if (!QDir().mkpath(folder)) return false;
    QTemporaryFile probe(folder + QStringLiteral("/.write-probe-XXXXXX"));
    return probe.open();
}

} // namespace

InstallLayout::InstallLayout(const QString& programDir)
    : program(QDir::cleanPath(programDir.isEmpty() ? QCoreApplication::applicationDirPath()
                                                   : programDir))
{
    const QString shared = QDir::cleanPath(program + u'/' + QLatin1String(ORBE_DATA_FROM_BIN));
    installed = shared != program && holdsShippedConfig(shared);
    data = installed ? shared : program;
}

QString InstallLayout::settingsDir() const
{
    if (!installed && writableBeside(program)) return program + u'/' + QLatin1String(kConfigFolder);
    return userSettingsDir();
}

QString InstallLayout::settingsFile(const QString& name) const
{
    return settingsDir() + u'/' + name;
}

QString InstallLayout::userSettingsDir()
{
    // Shared by both programs, so the command-line tool and the hub agree on device.ini.
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' +
           QLatin1String(ORBE_DATA_NAME);
}

QString InstallLayout::userDataDir()
{
    // The hub's AppDataLocation, named so that both programs agree on it.
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u'/' +
           QLatin1String(ORBE_DATA_NAME);
}

QString InstallLayout::userFilesDir(const QString& name) const
{
    const QString beside = program + u'/' + name;
    if (!installed && usable(beside)) {
        qCInfo(lcFiles).noquote() << "files of" << name << "in" << beside;
        return beside;
    }
    const QString perUser = QDir::cleanPath(userDataDir() + u'/' + name);
    if (usable(perUser)) {
        qCInfo(lcFiles).noquote() << "files of" << name << "in" << perUser
                                  << (installed ? "(installed)"
                                                : "(the program's folder can't be written)");
        return perUser;
    }
    qCWarning(lcFiles) << "no folder for" << name << "can be written:" << perUser;
    return {};
}
