#pragma once

#include "KeyboardSnapshot.h"

#include <QByteArray>
#include <QDateTime>
#include <QJsonDocument>
#include <QString>
#include <optional>

// The backup file: one JSON object, versioned, with the device id it belongs to. Written whole
// or not at all; read strictly (every field present, of its type and size, no unknown keys), so
// that a damaged file is refused before anything reaches a keyboard.
namespace BackupFile {

inline constexpr char kFormat[] = "orbehub-keyboard-backup";
inline constexpr int kVersion = 1;
// Larger than any backup this version writes (about 150 KB) by far.
inline constexpr qint64 kLargestFile = 8 * 1024 * 1024;

QJsonDocument toJson(const KeyboardSnapshot& snapshot, const QDateTime& created);
// The snapshot in a file's bytes; none, with a one-line reason, for anything else.
std::optional<KeyboardSnapshot> parse(const QByteArray& bytes, QString* error);

bool write(const QString& path, const KeyboardSnapshot& snapshot);
std::optional<KeyboardSnapshot> read(const QString& path, QString* error);

} // namespace BackupFile
