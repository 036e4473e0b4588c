#include "CommandCatalogue.h"

namespace CommandCatalogue {
namespace {

constexpr std::array<std::uint8_t, 7> kZero{};
constexpr std::array<std::uint8_t, 7> kLedOnOff{1, 1, 0, 0, 0, 0, 0};
constexpr std::array<std::uint8_t, 7> kLedParam{1, 3, 3, 7, 255, 255, 255};

constexpr std::array<CommandRow, 39> kRows{{
    {"CMD_SET_INFOR", CMD_SET_INFOR, 8, kZero},
    {"CMD_GET_INFOR", CMD_GET_INFOR, 8, kZero},
    {"CMD_SET_RESET", CMD_SET_RESET, 8, kZero},
    {"CMD_GET_RESET", CMD_GET_RESET, 8, kZero},
    {"CMD_SET_BATTERY", CMD_SET_BATTERY, 8, kZero},
    {"CMD_GET_BATTERY", CMD_GET_BATTERY, 8, kZero},
    {"CMD_SET_REPORT", CMD_SET_REPORT, 8, kZero},
    {"CMD_GET_REPORT", CMD_GET_REPORT, 8, kZero},
    {"CMD_SET_PROFILE", CMD_SET_PROFILE, 8, kZero},
    {"CMD_GET_PROFILE", CMD_GET_PROFILE, 8, kZero},
    {"CMD_SET_LEDONOFF", CMD_SET_LEDONOFF, 8, kLedOnOff},
    {"CMD_GET_LEDONOFF", CMD_GET_LEDONOFF, 8, kZero},
    {"CMD_SET_DEBOUNCE", CMD_SET_DEBOUNCE, 8, kZero},
    {"CMD_GET_DEBOUNCE", CMD_GET_DEBOUNCE, 8, kZero},
    {"CMD_SET_LEDPARAM", CMD_SET_LEDPARAM, 9, kLedParam},
    {"CMD_GET_LEDPARAM", CMD_GET_LEDPARAM, 8, kZero},
    {"CMD_SET_SLEDPARAM", CMD_SET_SLEDPARAM, 9, kLedParam},
    {"CMD_GET_SLEDPARAM", CMD_GET_SLEDPARAM, 8, kZero},
    {"CMD_SET_KBOPTION", CMD_SET_KBOPTION, 8, kZero},
    {"CMD_GET_KBOPTION", CMD_GET_KBOPTION, 8, kZero},
    {"CMD_SET_KEYMATRIX", CMD_SET_KEYMATRIX, 8, kZero},
    {"CMD_GET_KEYMATRIX", CMD_GET_KEYMATRIX, 8, kZero},
    {"CMD_SET_MACRO", CMD_SET_MACRO, 8, kZero},
    {"CMD_GET_MACRO", CMD_GET_MACRO, 8, kZero},
    {"CMD_SET_USERPIC", CMD_SET_USERPIC, 8, kZero},
    {"CMD_GET_USERPIC", CMD_GET_USERPIC, 8, kZero},
    {"CMD_SET_MUSIC", CMD_SET_MUSIC, 8, kZero},
    {"CMD_SET_WINDOWS", CMD_SET_WINDOWS, 8, kZero},
    {"CMD_SET_FN", CMD_SET_FN, 8, kZero},
    {"CMD_GET_FN", CMD_GET_FN, 8, kZero},
    {"CMD_SET_SLEEPTIME", CMD_SET_SLEEPTIME, 8, kZero},
    {"CMD_GET_SLEEPTIME", CMD_GET_SLEEPTIME, 8, kZero},
    {"CMD_SET_USERGIF", CMD_SET_USERGIF, 8, kZero},
    {"CMD_SET_AUTOOSEN", CMD_SET_AUTOOSEN, 8, kZero},
    {"CMD_GET_AUTOOSEN", CMD_GET_AUTOOSEN, 8, kZero},
    {"CMD_SET_SKU", CMD_SET_SKU, 8, kZero},
    {"CMD_GET_SKU", CMD_GET_SKU, 8, kZero},
    {"CMD_SET_MAGNETISM", CMD_SET_MAGNETISM, 8, kZero},
    {"CMD_GET_MAGNETISM", CMD_GET_MAGNETISM, 8, kZero},
}};

} // namespace

std::span<const CommandRow> rows()
{
    return kRows;
}

} // namespace CommandCatalogue
