#include "NumberText.h"

namespace NumberText {

QByteArray leadingNumber(const QString& text)
{
    QByteArray bytes = text.toUtf8().left(kMaxBytes);
    qsizetype end = 0;
    while (end < bytes.size() &&
           ((bytes.at(end) >= '0' && bytes.at(end) <= '9') || bytes.at(end) == '.'))
        ++end;
    bytes.truncate(end);
    return bytes;
}

double toDouble(const QString& text)
{
    bool ok = false;
    const double value = leadingNumber(text).toDouble(&ok);
    return ok ? value : 0.0;
}

} // namespace NumberText
