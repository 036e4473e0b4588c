#pragma once

// What every fuzz target shares: quiet logging (a warning per input would be most of the time
// spent), the input as the byte array the product's readers take, and a scratch folder.

#include <QByteArray>
#include <QDir>
#include <QFileInfo>
#include <QString>
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

// Where targets that go through files keep them: in memory where the system offers it, since
// every input is written and read back.
inline QString scratchRoot()
{
    const QString shm = QStringLiteral("/dev/shm");
    return QFileInfo(shm).isWritable() ? shm : QDir::tempPath();
}

} // namespace FuzzSupport
