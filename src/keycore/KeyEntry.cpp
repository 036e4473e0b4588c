#include "KeyEntry.h"

KeyEntry KeyEntry::fromByteArray(const QByteArray& data, qsizetype offset)
{
    KeyEntry entry;
    for (int i = 0; i < kSize; ++i) {
        const qsizetype at = offset + i;
        if (at >= 0 && at < data.size()) entry.bytes[i] = static_cast<quint8>(data[at]);
    }
    return entry;
}

QByteArray KeyEntry::toByteArray() const
{
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), kSize);
}
