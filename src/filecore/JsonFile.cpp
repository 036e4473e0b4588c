#include "JsonFile.h"

#include <QFile>
#include <QJsonParseError>
#include <QSaveFile>

namespace JsonFile {

QJsonDocument read(const QString& path, Category category, ReadResult* result)
{
    ReadResult ignored;
    ReadResult& outcome = result ? *result : ignored;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        // A missing file is normal: a first start, or nothing saved yet.
        if (file.exists()) {
            qCWarning(category) << "cannot read" << path << file.errorString();
            outcome = ReadResult::Broken;
        } else {
            qCDebug(category) << "no file" << path;
            outcome = ReadResult::Missing;
        }
        return {};
    }
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError) {
        qCWarning(category) << "broken file" << path << "at" << error.offset << error.errorString();
        outcome = ReadResult::Broken;
        return {};
    }
    outcome = ReadResult::Read;
    return doc;
}

bool write(const QString& path, const QJsonDocument& document, Category category)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
        qCWarning(category) << "cannot write" << path << file.errorString();
        return false;
    }
    const QByteArray data = document.toJson(QJsonDocument::Indented);
    // Flushed by hand: commit() alone misses a failed final flush and installs a cut file
    // (QTBUG-75077).
    if (file.write(data) != data.size() || !file.flush()) {
        qCWarning(category) << "write failed" << path << file.errorString();
        file.cancelWriting();
        return false;
    }
    if (!file.commit()) {
        qCWarning(category) << "could not replace" << path << file.errorString();
        return false;
    }
    return true;
}

} // namespace JsonFile
