#pragma once

// What every fuzz target shares: quiet logging (a warning per input would be most of the time
// spent), the input as the byte array the product's readers take, and a scratch folder.

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>
#include <QtGlobal>
#include <cstddef>
#include <cstdint>

namespace FuzzSupport {

// Drops every message; called once from LLVMFuzzerInitialize.
inline void quiet()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

inline QByteArray bytes(const uint8_t* data, size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
}

// The folder of the targets that go through files, made once and kept to the end: in memory
// where the system offers it, since every input is written and read back.
inline QString scratchDir()
{
    static const auto dir = [] {
        const QString shm = QStringLiteral("/dev/shm");
        const QString root = QFileInfo(shm).isWritable() ? shm : QDir::tempPath();
        return new QTemporaryDir(root + QStringLiteral("/orbe-fuzz-XXXXXX"));
    }();
    return dir->path();
}

// Replaces the file with the input.
inline void writeFile(const QString& path, const char* data, size_t size)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate)) file.write(data, qint64(size));
}

// The target's store, made in the scratch folder at the first input and kept to the end: every
// input goes through its files.
template <typename Store> Store& scratchStore()
{
    static Store* store = new Store(scratchDir());
    return *store;
}

} // namespace FuzzSupport

// libFuzzer's start-up hook, the same for every target (each includes this header once).
extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FuzzSupport::quiet();
    return 0;
}
