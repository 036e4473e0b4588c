#pragma once

#include <QJsonDocument>
#include <QLoggingCategory>
#include <QString>

// The hub's JSON files, read forgivingly and written whole or not at all. Failures are logged
// in the caller's category.
namespace JsonFile {

using Category = const QLoggingCategory& (*)();

enum class ReadResult {
    Read,    // the document is the file's
    Missing, // no file: a first start
    Broken,  // unreadable or not JSON (the document is null)
};

// The file's document; a null document for a missing, unreadable or broken file.
QJsonDocument read(const QString& path, Category category, ReadResult* result = nullptr);

// Replaces the file with the document, indented. The old file stays whole when anything
// fails; false then.
bool write(const QString& path, const QJsonDocument& document, Category category);

} // namespace JsonFile
