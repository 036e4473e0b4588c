#include "DataFolder.h"

#include "FileLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace DataFolder {

bool usable(const QString& folder)
{
    if (!QDir().mkpath(folder)) return false;
    // Permission bits don't tell (read-only mounts, ACLs): try a file.
    QTemporaryFile probe(folder + QStringLiteral("/.write-probe-XXXXXX"));
    return probe.open();
}

QString locate(const QString& name, const QString& besideBase)
{
    const QString base = besideBase.isEmpty() ? QCoreApplication::applicationDirPath() : besideBase;
    const QString beside = QDir(base).absoluteFilePath(name);
    if (usable(beside)) {
        qCInfo(lcFiles) << "files of" << name << "in" << beside;
        return QDir::cleanPath(beside);
    }
    const QString perUser = QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))
                                .absoluteFilePath(name);
    if (usable(perUser)) {
        qCInfo(lcFiles) << "files of" << name << "in" << perUser << "as" << beside
                        << "can't be written";
        return QDir::cleanPath(perUser);
    }
    qCWarning(lcFiles) << "no folder for" << name << ": neither" << beside << "nor" << perUser
                       << "can be written";
    return {};
}

} // namespace DataFolder
