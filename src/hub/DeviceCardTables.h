#pragma once

#include <QtGlobal>
#include <array>

// The pictures of a card's badges, under ":/images/dev/".
namespace DeviceCardTables {

inline constexpr const char* kBadgeDir = ":/images/dev/";

// By battery index: 0 up to 20 %, 1 up to 40 %, 2 up to 60 %, 3 up to 80 %, 4 above.
struct BatteryStep
{
    int upTo; // largest charge in percent of this step
    const char* image;
};
inline constexpr std::array<BatteryStep, 5> kBatterySteps{{
    {.upTo = 20, .image = "batt-low.png"},
    {.upTo = 40, .image = "batt-25.png"},
    {.upTo = 60, .image = "batt-50.png"},
    {.upTo = 80, .image = "batt-75.png"},
    {.upTo = 255, .image = "batt-full.png"},
}};

// By DeviceEnumInfo::connectionType.
inline constexpr std::array<const char*, 3> kConnectionImages{"usb.png", "2.4g.png", "ble.png"};

constexpr int batteryIndex(int percent)
{
    for (int i = 0; i < int(kBatterySteps.size()) - 1; ++i)
        if (percent <= kBatterySteps[i].upTo) return i;
    return int(kBatterySteps.size()) - 1;
}

} // namespace DeviceCardTables
