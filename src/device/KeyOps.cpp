#include "KeyOps.h"

#include "CommandLayouts.h"
#include "DefaultKeyMaps.h"
#include "DeviceCache.h"
#include "DeviceLink.h"
#include "DeviceLog.h"
#include "DialogDeviceConnect.h"
#include "KeyEntry.h"
#include "KeyNameTable.h"
#include "KeyPositions.h"
#include "ModuleGenKeymapping.h"

#include <algorithm>

using namespace CommandLayouts;
using Kick = DeviceLink::Kick;

namespace {

constexpr quint8 kKeyModeMask = 0x7F;
constexpr quint8 kModeSnapKey = 7;

// What a reset key gets in each magnetism table, in the order it is sent; the last commits.
struct ResetValue
{
    quint8 table;
    quint32 value;
    quint8 commit;
};
constexpr ResetValue kResetValues[] = {
    {.table = 0x07, .value = 0, .commit = 0},   // plain key mode
    {.table = 0x00, .value = 400, .commit = 0}, // actuation 2.0 mm
    {.table = 0x01, .value = 560, .commit = 0}, // release 2.8 mm
    {.table = 0x06, .value = 60, .commit = 0},  // top dead zone 0.3 mm
    {.table = 0xFB, .value = 60, .commit = 0},  // bottom dead zone 0.3 mm
    {.table = 0xFC, .value = 2, .commit = 1},   // switch type
};

} // namespace

void KeyOps::DoSetKey(quint8 keyCode, const quint8 entry[4], quint8 layer, quint8 last)
{
    if (p.link.isReadingAll()) return;
    const quint8 position = PositionOfCode(keyCode);
    KeyMatrixWrite c{
        .profile = p.cache.currentProfile, .position = position, .last = last, .layer = layer};
    std::copy_n(entry, KeyEntry::kSize, c.entry);
    p.link.enqueue(bytes(c), Kick::Immediate);
    if (layer < DeviceCache::kKeySlots)
        DeviceCache::putEntry(p.cache.keyMatrix[layer], position, entry);
}

void KeyOps::DoSetFn(quint8 keyCode, const quint8 entry[4])
{
    if (p.link.isReadingAll()) return;
    const quint8 position = PositionOfCode(keyCode);
    FnWrite c{.position = position};
    std::copy_n(entry, KeyEntry::kSize, c.entry);
    p.link.enqueue(bytes(c), Kick::Immediate);
    DeviceCache::putEntry(p.cache.fnMatrix[0], position, entry);
}

void KeyOps::DoSetKeyCode(quint8 keyCode, bool enabled, quint8 layer)
{
    const quint8 plainKey[4] = {0, 0, keyCode, 0};
    const quint8 none[4] = {0, 0, 0, 0};
    DoSetKey(keyCode, enabled ? plainKey : none, layer, 1);
}

void KeyOps::DoSetFnCode(quint8 keyCode, bool enabled)
{
    // On the Fn layer an empty entry means "as the key is"; 00 00 00 01 switches the key off.
    const quint8 asIs[4] = {0, 0, 0, 0};
    const quint8 off[4] = {0, 0, 0, 1};
    DoSetFn(keyCode, enabled ? asIs : off);
}

void KeyOps::DoResetKey(quint8 keyCode)
{
    if (p.link.isReadingAll()) return;
    const quint8 plainKey[4] = {0, 0, keyCode, 0};
    const quint8 none[4] = {0, 0, 0, 0};
    for (quint8 layer = 0; layer < DeviceCache::kKeyLayers; ++layer)
        DoSetKey(keyCode, layer == 0 ? plainKey : none, layer,
                 layer == DeviceCache::kKeyLayers - 1 ? 1 : 0);
    for (const ResetValue& r : kResetValues)
        p.front.DoSetMagnetism(r.table, keyCode, r.value, r.commit);
}

void KeyOps::GetKeyDisplay(QStringList& out, quint8 keyCode) const
{
    out.clear();
    const quint8 position = PositionOfCode(keyCode);
    const QByteArray& modes =
        p.cache.magnetTables[MagnetTables::indexOf(MagnetTables::kKeyModeTable)];
    if (position >= modes.size()) return;
    if ((byteAt(modes, position) & kKeyModeMask) == kModeSnapKey) {
        // Table 09 holds the partner's position, and it is named as if it were a key code;
        // that is how the keyboard's pages have always shown it.
        out.append(KeyNameByCode(
            quint8(p.cache.magnetism(MagnetTables::kSnapPartnerTable, position) & 0xFF)));
        return;
    }
    for (quint8 layer = 0; layer < DeviceCache::kKeyLayers; ++layer) {
        quint8 e[4];
        p.cache.keyEntry(e, position, layer);
        out.append(p.keys.KeyEntryText(KeyEntry(e[0], e[1], e[2], e[3]), false));
    }
}

QStringList KeyOps::SaveMatrix()
{
    DefaultKeyMaps::SetDefaultKeyMap(p.cache.keyMatrix[0]);
    const QByteArray& saved = DefaultKeyMaps::DefaultKeyMap();
    QStringList lines;
    for (int i = 0; i < DefaultKeyMaps::kPositions; ++i) {
        const auto at = [&](int b) { return quint8(saved.at(i * DefaultKeyMaps::kEntrySize + b)); };
        // Big-endian in the comment, for reading; the wire stays little-endian.
        const quint32 word =
            quint32(at(0)) << 24 | quint32(at(1)) << 16 | quint32(at(2)) << 8 | quint32(at(3));
        lines << QString::asprintf("%3d,%3d,%3d,%3d,  // %3d  0x%08X", at(0), at(1), at(2), at(3),
                                   i, word);
        qCInfo(lcDevice).noquote() << lines.last();
    }
    return lines;
}
