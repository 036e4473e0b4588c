#include "DefaultKeyMaps.h"

#include <array>
#include <cstdint>

namespace DefaultKeyMaps {
namespace {

using Entry = std::array<std::uint8_t, kEntrySize>;

struct PlacedEntry
{
    int position;
    Entry entry;
};

// Plain keys: the usage in byte 2, by column, rows 0 to 5; 0 is an empty place.
constexpr std::array<std::array<std::uint8_t, 6>, 15> kPlainColumns{{
    {0x29, 0x35, 0x2B, 0x39, 0xE1, 0xE0},
    {0x3A, 0x1E, 0x14, 0x04, 0x00, 0xE3},
    {0x3B, 0x1F, 0x1A, 0x16, 0x1D, 0xE2},
    {0x3C, 0x20, 0x08, 0x07, 0x1B, 0x00},
    {0x3D, 0x21, 0x15, 0x09, 0x06, 0x00},
    {0x3E, 0x22, 0x17, 0x0A, 0x19, 0x00},
    {0x3F, 0x23, 0x1C, 0x0B, 0x05, 0x2C},
    {0x40, 0x24, 0x18, 0x0D, 0x11, 0x00},
    {0x41, 0x25, 0x0C, 0x0E, 0x10, 0x00},
    {0x42, 0x26, 0x12, 0x0F, 0x36, 0xE6},
    {0x43, 0x27, 0x13, 0x33, 0x37, 0x00}, // position 65 is the Fn key, below
    {0x44, 0x2D, 0x2F, 0x34, 0x38, 0xE4},
    {0x45, 0x2E, 0x30, 0x00, 0xE5, 0x50},
    {0x4C, 0x2A, 0x31, 0x28, 0x52, 0x51},
    {0x00, 0x4A, 0x4B, 0x4E, 0x4D, 0x4F},
}};

// Keys whose entry is not a plain usage.
constexpr std::array<PlacedEntry, 6> kSpecialKeys{{
    {65, {0x0A, 0x01, 0x00, 0x00}}, // Fn
    {90, {0x03, 0x00, 0xEA, 0x00}}, // volume down
    {91, {0x03, 0x00, 0xE9, 0x00}}, // volume up
    {92, {0x0A, 0x0E, 0x00, 0x00}},
    {96, {0x0D, 0x02, 0x02, 0x00}}, // backlight brightness down
    {97, {0x0D, 0x02, 0x01, 0x00}}, // backlight brightness up
}};

// The factory Fn layer up to position 14, placed on the entry grid.
constexpr std::array<PlacedEntry, 6> kFnHead{{
    {1, {0x0A, 0x02, 0x00, 0x00}},  // factory reset
    {5, {0x0D, 0x08, 0x00, 0x00}},  // side light on/off
    {6, {0x03, 0x00, 0x94, 0x01}},  // my computer
    {11, {0x0A, 0x03, 0x00, 0x00}}, // Win lock
    {12, {0x03, 0x00, 0x8A, 0x01}}, // mail
    {14, {0x0A, 0x0A, 0x00, 0x00}}, // WASD swap
}};

// From position 15 to 89 the factory Fn table was laid down one byte early against the entry
// grid, and keyboards ship that way; the first read sequence replaces the cache anyway.
constexpr int kFnShiftFrom = 15;
constexpr int kFnShiftTo = 89;
constexpr std::array<PlacedEntry, 20> kFnShifted{{
    {16, {0x0D, 0x08, 0x01, 0x00}}, // side light brightness
    {17, {0x0D, 0x08, 0x02, 0x00}}, // side light speed
    {18, {0x03, 0x00, 0x21, 0x02}}, // search
    {22, {0x0D, 0x08, 0x03, 0x00}}, // side light colour
    {24, {0x03, 0x00, 0x92, 0x01}}, // calculator
    {28, {0x0D, 0x08, 0x02, 0x01}}, // side light faster
    {30, {0x03, 0x00, 0x83, 0x01}}, // media player
    {36, {0x03, 0x00, 0xB6, 0x00}}, // previous track
    {42, {0x03, 0x00, 0xCD, 0x00}}, // play / pause
    {48, {0x03, 0x00, 0xB5, 0x00}}, // next track
    {54, {0x03, 0x00, 0xE2, 0x00}}, // mute
    {60, {0x03, 0x00, 0xEA, 0x00}}, // volume down
    {66, {0x03, 0x00, 0xE9, 0x00}}, // volume up
    {72, {0x0D, 0x00, 0x00, 0x00}}, // backlight on/off
    {77, {0x0D, 0x03, 0x01, 0x00}}, // backlight slower
    {80, {0x0D, 0x01, 0x00, 0x00}}, // next backlight effect
    {82, {0x0D, 0x02, 0x01, 0x00}}, // backlight brighter
    {83, {0x0D, 0x02, 0x02, 0x00}}, // backlight darker
    {88, {0x0D, 0x08, 0x04, 0x00}}, // side light colour cycle
    {89, {0x0D, 0x03, 0x02, 0x00}}, // backlight faster
}};

void put(QByteArray& map, int offset, const Entry& entry)
{
    for (int i = 0; i < kEntrySize; ++i)
        map[offset + i] = static_cast<char>(entry[i]);
}

QByteArray& liveKeyMap()
{
    static QByteArray map = factoryKeyMap();
    return map;
}

} // namespace

QByteArray factoryKeyMap()
{
    QByteArray map(kMatrixSize, '\0');
    for (int column = 0; column < int(kPlainColumns.size()); ++column)
        for (int row = 0; row < 6; ++row)
            if (const std::uint8_t usage = kPlainColumns[column][row])
                put(map, (column * 6 + row) * kEntrySize, {0x00, 0x00, usage, 0x00});
    for (const PlacedEntry& e : kSpecialKeys)
        put(map, e.position * kEntrySize, e.entry);
    return map;
}

QByteArray factoryFnMap()
{
    QByteArray map(kMatrixSize, '\0');
    for (const PlacedEntry& e : kFnHead)
        put(map, e.position * kEntrySize, e.entry);
    for (const PlacedEntry& e : kFnShifted) {
        if (e.position >= kFnShiftFrom && e.position <= kFnShiftTo)
            put(map, e.position * kEntrySize - 1, e.entry);
    }
    return map;
}

const QByteArray& DefaultKeyMap()
{
    return liveKeyMap();
}

const QByteArray& DefaultFnMap()
{
    static const QByteArray map = factoryFnMap();
    return map;
}

void SetDefaultKeyMap(const QByteArray& map)
{
    QByteArray copy = map.left(kMatrixSize);
    copy.resize(kMatrixSize, '\0');
    liveKeyMap() = copy;
}

} // namespace DefaultKeyMaps
