#pragma once

// Small helpers that several test programs share: bytes from hex text, whole-file reads and
// writes, and an application folder holding a copy of the shipped config/.

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

// Bytes from hex text; blanks are ignored.
inline QByteArray hex(const char* text)
{
    return QByteArray::fromHex(text);
}

inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Writes the file whole, making its folder first.
inline void writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(content), content.size());
}

#ifdef ORBE_SOURCE_DIR
// An application folder with a copy of the shipped config/, so that a test may change it.
class AppDir
{
public:
    AppDir()
    {
        const QString source = QStringLiteral(ORBE_SOURCE_DIR "/config/");
        QDir().mkpath(path() + "/config");
        for (const QString& name : QDir(source).entryList(QDir::Files))
            QFile::copy(source + name, path() + "/config/" + name);
    }
    QString path() const { return dir.path(); }

private:
    QTemporaryDir dir;
};
#endif

// A widget of a page by its object name; the test stops at once when the page has none.
template <class T> T* widget(const QObject* root, const char* name)
{
    T* found = root->findChild<T*>(QLatin1String(name));
    if (!found) qFatal("no %s named %s", T::staticMetaObject.className(), name);
    return found;
}

// Puts a key entry into a backup file's document: profiles[profile][layer][position].
inline void setBackupKeyEntry(QJsonObject& backup, int profile, int layer, int position,
                              const QString& entry)
{
    QJsonArray profiles = backup.value("profiles").toArray();
    QJsonArray layers = profiles[profile].toArray();
    QJsonArray entries = layers[layer].toArray();
    entries[position] = entry;
    layers[layer] = entries;
    profiles[profile] = layers;
    backup.insert("profiles", profiles);
}
