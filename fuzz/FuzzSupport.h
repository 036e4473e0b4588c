#pragma once

// What every fuzz target shares: quiet logging (a warning per input would be most of the time
// spent), and the input as the byte array the product's readers take.

#include <QByteArray>
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

} // namespace FuzzSupport
