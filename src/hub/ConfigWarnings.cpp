#include "ConfigWarnings.h"

#include "HubLog.h"

#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QSet>

namespace {

struct Told
{
    QMutex mutex;
    // By path: the problems told, each keyed with the content it was found in.
    QHash<QString, QSet<QString>> problems;
};

Told& told()
{
    static Told state;
    return state;
}

} // namespace

void ConfigWarnings::warn(const QString& path, const QByteArray& content, const QString& problem)
{
    const QString key = QString::number(qHash(content), 16) + QLatin1Char(' ') + problem;
    {
        Told& state = told();
        QMutexLocker lock(&state.mutex);
        QSet<QString>& seen = state.problems[path];
        if (seen.contains(key)) return;
        seen.insert(key);
    }
    qCWarning(lcHub).noquote() << path + QLatin1String(": ") + problem;
}

void ConfigWarnings::clear(const QString& path)
{
    Told& state = told();
    QMutexLocker lock(&state.mutex);
    state.problems.remove(path);
}
