#include "KeyNameTable.h"

#include <algorithm>

namespace {

const KeyNameRow* firstWithUsage(quint16 usage)
{
    const auto* it = std::find_if(std::begin(KeyNameTable), std::end(KeyNameTable),
                                  [usage](const KeyNameRow& row) { return row.usage == usage; });
    return it == std::end(KeyNameTable) ? nullptr : it;
}

const KeyNameRow* firstWithScan(quint16 scan)
{
    const auto* it = std::find_if(std::begin(KeyNameTable), std::end(KeyNameTable),
                                  [scan](const KeyNameRow& row) { return row.scan == scan; });
    return it == std::end(KeyNameTable) ? nullptr : it;
}

} // namespace

QString KeyNameByCode(quint16 usage)
{
    const KeyNameRow* row = firstWithUsage(usage);
    return row ? QString::fromUtf8(row->name) : QString();
}

QString KeyNameByScan(quint16 scan)
{
    const KeyNameRow* row = firstWithScan(scan);
    return row ? QString::fromUtf8(row->name) : QString();
}

quint16 CodeByScan(quint16 scan)
{
    const KeyNameRow* row = firstWithScan(scan);
    return row ? row->usage : 0;
}
