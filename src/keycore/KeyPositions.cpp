#include "KeyPositions.h"

#include <array>

namespace {

struct OwnCode
{
    quint8 position;
    quint8 code;
};

// Positions whose byte 2 is no usable key: the Fn key, 0A 0E 00 00 and the two backlight
// brightness keys.
constexpr std::array<OwnCode, 4> kOwnCodes{{
    {.position = 65, .code = 0xFA},
    {.position = 92, .code = 0xFB},
    {.position = 96, .code = 0xFC},
    {.position = 97, .code = 0xFD},
}};

static_assert(KeyEntry::kSize == DefaultKeyMaps::kEntrySize);

constexpr int kCodeByte = 2;
constexpr quint8 kNoPosition = 0xFF;

} // namespace

quint8 CodeOfPosition(quint8 position)
{
    for (const OwnCode& own : kOwnCodes)
        if (own.position == position) return own.code;
    return DefaultEntryAt(position)[kCodeByte];
}

quint8 PositionOfCode(quint8 code)
{
    for (const OwnCode& own : kOwnCodes)
        if (own.code == code) return own.position;
    const QByteArray& map = DefaultKeyMaps::DefaultKeyMap();
    for (int position = 0; position < DefaultKeyMaps::kPositions; ++position) {
        const qsizetype at = qsizetype(position) * KeyEntry::kSize + kCodeByte;
        if (at < map.size() && quint8(map[at]) == code) return quint8(position);
    }
    return kNoPosition;
}

KeyEntry DefaultEntryAt(quint8 position)
{
    if (position >= DefaultKeyMaps::kPositions) return KeyEntry();
    return KeyEntry::fromByteArray(DefaultKeyMaps::DefaultKeyMap(),
                                   qsizetype(position) * KeyEntry::kSize);
}

bool IsModifiedEntry(quint8 position, const KeyEntry& entry)
{
    return entry != DefaultEntryAt(position);
}
