#include "MacroBlob.h"

#include <QtEndian>

namespace MacroBlob {

QByteArray build(quint16 repeat, const QByteArray& stream)
{
    QByteArray blob(kRepeatSize, '\0');
    qToLittleEndian(repeat, blob.data());
    blob.append(stream);
    const int rest = blob.size() % kPageSize;
    if (rest != 0) blob.append(kPageSize - rest, '\0');
    return blob;
}

int pageCount(const QByteArray& blob)
{
    return int(blob.size() / kPageSize);
}

QByteArray page(const QByteArray& blob, int index)
{
    QByteArray payload(kPageSize, '\0');
    if (index < 0) return payload;
    const qsizetype from = qsizetype(index) * kPageSize;
    if (from < blob.size()) {
        const qsizetype n = qMin<qsizetype>(kPageSize, blob.size() - from);
        std::copy_n(blob.constData() + from, n, payload.data());
    }
    return payload;
}

} // namespace MacroBlob
