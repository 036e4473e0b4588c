#include "ProcessTable.h"

#include "PlatformLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>

namespace {

// The executable name of a process: argv[0]'s file name, which is not cut at 15 characters
// as /proc/<pid>/comm is; comm serves for kernel threads with no command line.
QString executableName(const QString& procDir)
{
    QFile cmdline(procDir + QStringLiteral("/cmdline"));
    if (cmdline.open(QIODevice::ReadOnly)) {
        const QByteArray all = cmdline.read(4096);
        const QByteArray first = all.left(all.indexOf('\0'));
        if (!first.isEmpty()) return QFileInfo(QString::fromLocal8Bit(first)).fileName();
    }
    QFile comm(procDir + QStringLiteral("/comm"));
    if (comm.open(QIODevice::ReadOnly)) return QString::fromLocal8Bit(comm.readAll()).trimmed();
    return {};
}

} // namespace

QList<qint64> ProcessTable::idsNamed(const QString& name)
{
    QList<qint64> ids;
    const qint64 self = QCoreApplication::applicationPid();
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString& entry : entries) {
        bool isNumber = false;
        const qint64 pid = entry.toLongLong(&isNumber);
        if (!isNumber || pid == self) continue;
        if (executableName(QStringLiteral("/proc/") + entry).compare(name, Qt::CaseInsensitive) ==
            0)
            ids.append(pid);
    }
    std::sort(ids.begin(), ids.end());
    return ids;
}

bool ProcessTable::endFirstNamed(const QString& name)
{
    const QList<qint64> ids = idsNamed(name);
    if (ids.isEmpty()) return false;
    if (::kill(static_cast<pid_t>(ids.first()), SIGKILL) != 0) {
        qCDebug(lcPlatform) << "cannot end" << name << ids.first() << std::strerror(errno);
        return false;
    }
    return true;
}
