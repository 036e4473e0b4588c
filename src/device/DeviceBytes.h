#pragma once

#include <QByteArray>

// Small byte helpers shared by the connection's files. Reads past the end give 0: replies can be
// short, and the protocol never checks their length.
namespace DeviceBytes {

inline quint8 at(const QByteArray& data, int index)
{
    return index >= 0 && index < data.size() ? static_cast<quint8>(data.at(index)) : 0;
}

inline quint16 u16(const QByteArray& data, int index)
{
    return static_cast<quint16>(at(data, index) | (at(data, index + 1) << 8));
}

inline quint32 u32(const QByteArray& data, int index)
{
    return u16(data, index) | (quint32(u16(data, index + 2)) << 16);
}

inline void putU16(QByteArray& data, int index, quint16 value)
{
    data[index] = static_cast<char>(value & 0xFF);
    data[index + 1] = static_cast<char>(value >> 8);
}

inline void putU32(QByteArray& data, int index, quint32 value)
{
    putU16(data, index, static_cast<quint16>(value & 0xFFFF));
    putU16(data, index + 2, static_cast<quint16>(value >> 16));
}

// A zero-filled command of the given length with its command byte.
inline QByteArray command(quint8 byte0, int length)
{
    QByteArray c(length < 1 ? 1 : length, '\0');
    c[0] = static_cast<char>(byte0);
    return c;
}

} // namespace DeviceBytes
