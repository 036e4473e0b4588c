#pragma once

#include <QByteArray>
#include <QtGlobal>
#include <array>

// One key function: a kind byte and three value bytes, the same on the wire and in the cache.
// Entries are compared byte by byte, never as a number.
struct KeyEntry
{
    static constexpr int kSize = 4;

    std::array<quint8, kSize> bytes{};

    constexpr KeyEntry() = default;
    constexpr KeyEntry(quint8 kind, quint8 value1, quint8 value2, quint8 value3)
        : bytes{kind, value1, value2, value3}
    {
    }

    // Four bytes from offset; bytes past the end of data read as 0.
    static KeyEntry fromByteArray(const QByteArray& data, qsizetype offset = 0);
    QByteArray toByteArray() const;

    constexpr quint8 kind() const { return bytes[0]; }
    constexpr quint8 operator[](int index) const { return bytes[index]; }
    constexpr bool isEmpty() const { return *this == KeyEntry(); }

    friend constexpr bool operator==(const KeyEntry&, const KeyEntry&) = default;
};
