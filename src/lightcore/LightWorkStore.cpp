#include "LightWorkStore.h"

#include "InstallLayout.h"
#include "JsonFile.h"
#include "LightLog.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

namespace {

const QString kImage = QStringLiteral("image");
const QString kName = QStringLiteral("name");
const QString kData = QStringLiteral("data");

} // namespace

LightWorkStore::LightWorkStore(const QString& folder)
    : path(QDir(folder).absoluteFilePath(QLatin1String(kFileName)))
{
    if (!QDir().mkpath(folder)) qCWarning(lcLighting) << "cannot create the works folder" << folder;
}

QString LightWorkStore::folderIn(const QString& baseDir)
{
    return baseDir.isEmpty() ? InstallLayout().userFilesDir(QLatin1String(kFolderName))
                             : QDir(baseDir).absoluteFilePath(QLatin1String(kFolderName));
}

QList<LightWork> LightWorkStore::load()
{
    JsonFile::ReadResult result;
    const QJsonDocument doc = JsonFile::read(path, &lcLighting, &result);
    broken = result == JsonFile::ReadResult::Broken;
    if (result == JsonFile::ReadResult::Read && !doc.isArray()) {
        qCWarning(lcLighting) << "not a list of works:" << path;
        broken = true;
    }
    QList<LightWork> works;
    const QJsonArray list = doc.array();
    for (const QJsonValue& entry : list) {
        if (!entry.isObject()) {
            qCWarning(lcLighting) << "skipped an entry that is not a work in" << path;
            continue;
        }
        const QJsonObject object = entry.toObject();
        works.append({object.value(kImage).toString(), object.value(kName).toString(),
                      object.value(kData).toString()});
    }
    return works;
}

bool LightWorkStore::keepBrokenFile()
{
    if (!QFile::exists(path)) return true;
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString target = path + QStringLiteral(".broken-") + stamp;
    for (int n = 2; QFile::exists(target); ++n)
        target = path + QStringLiteral(".broken-%1-%2").arg(stamp).arg(n);
    if (!QFile::copy(path, target)) {
        qCWarning(lcLighting) << "cannot keep the broken works file" << path << "as" << target;
        return false;
    }
    qCWarning(lcLighting) << "the broken works file is kept as" << target;
    keptBroken = target;
    return true;
}

bool LightWorkStore::save(const QList<LightWork>& works)
{
    // Never replace what couldn't be read without a copy of it.
    if (broken && !keepBrokenFile()) return false;
    QJsonArray list;
    for (const LightWork& work : works)
        list.append(QJsonObject{{kImage, work.image}, {kName, work.name}, {kData, work.data}});
    if (!JsonFile::write(path, QJsonDocument(list), &lcLighting)) return false;
    broken = false;
    return true;
}

QString LightWorkStore::toHex(const QByteArray& map)
{
    return QString::fromLatin1(map.toHex());
}

QByteArray LightWorkStore::fromHex(const QString& text)
{
    return QByteArray::fromHex(text.toLatin1());
}
