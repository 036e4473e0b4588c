#pragma once

#include <array>
#include <cstdint>

// The fifteen per-key magnetism tables: 128 values each at a fixed width, fetched in pages of
// 64 bytes, in the order the read sequence asks for them.
namespace MagnetTables {

struct Table
{
    std::uint8_t number;
    int width;        // bytes per value
    int pages;        // 64-byte pages: 128 * width / 64
    const char* name; // for dumps and logs
};

constexpr int kValues = 128;

// The tables the connection itself reads values of.
constexpr std::uint8_t kKeyModeTable = 0x07;     // bits 0-6 the mode, bit 7 the key flag
constexpr std::uint8_t kSnapPartnerTable = 0x09; // a SnapKey's partner position
constexpr std::uint8_t kSensorTable = 0xFE;      // what the calibration scan reads

constexpr std::array<Table, 15> kTables{{
    {0x00, 2, 4, "actuation"},              // actuation travel, 0.005 mm
    {0x01, 2, 4, "release"},                // release travel
    {0x02, 2, 4, "rapidTriggerPress"},      // rapid trigger, press
    {0x03, 2, 4, "rapidTriggerRelease"},    // rapid trigger, release
    {0x04, 2, 4, "dynamicKeystrokeTravel"}, // dynamic keystroke travel
    {0x05, 1, 2, "modTapHoldTime"},         // mod-tap hold time
    {0x06, 2, 4, "topDeadZone"},            // top dead zone
    {0x07, 1, 2, "keyMode"},                // key mode, bit 7 the key flag
    {0x08, 1, 2, "dynamicKeystrokeAction"}, // dynamic keystroke action word
    {0x09, 1, 2, "snapKeyPartner"},         // SnapKey partner position
    {0x0A, 4, 8, "table0A"},
    {0xFF, 2, 4, "tableFF"},
    {0xFE, 2, 4, "sensorReading"},  // live sensor reading
    {0xFC, 1, 2, "switchType"},     // switch type
    {0xFB, 1, 2, "bottomDeadZone"}, // bottom dead zone
}};

static_assert([] {
    for (const Table& t : kTables)
        if (t.pages * 64 != kValues * t.width) return false;
    return true;
}());

// Index into kTables (and the connection's cache) of a table number; -1 if unknown.
constexpr int indexOf(std::uint8_t number)
{
    for (int i = 0; i < int(kTables.size()); ++i)
        if (kTables[i].number == number) return i;
    return -1;
}

// Raw travel: millimetres times 200, cut toward zero, in single precision as the pages do.
constexpr std::uint32_t rawFromMillimetres(float mm)
{
    const float raw = mm * 200.0f;
    return raw <= 0.0f ? 0u : static_cast<std::uint32_t>(raw);
}
constexpr double millimetresFromRaw(std::uint32_t raw)
{
    return raw / 200.0;
}

} // namespace MagnetTables
