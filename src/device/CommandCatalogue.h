#pragma once

#include <array>
#include <cstdint>
#include <span>

// The named commands the native keyboard knows, in the order the engineering console lists them.
// Normal traffic writes its command bytes as numbers; this table seeds the console's rows.
struct CommandRow
{
    const char* name;
    std::uint8_t command;
    std::uint8_t dataLength;           // 9 for the two commands with the checksum at offset 8
    std::array<std::uint8_t, 7> bytes; // defaults of Byte1 .. Byte7
};

namespace CommandCatalogue {

constexpr std::uint8_t CMD_SET_INFOR = 0x00;
constexpr std::uint8_t CMD_GET_INFOR = 0x8F;
constexpr std::uint8_t CMD_SET_RESET = 0x01;
constexpr std::uint8_t CMD_GET_RESET = 0x81;
constexpr std::uint8_t CMD_SET_BATTERY = 0x02;
constexpr std::uint8_t CMD_GET_BATTERY = 0x82;
constexpr std::uint8_t CMD_SET_REPORT = 0x03;
constexpr std::uint8_t CMD_GET_REPORT = 0x83;
constexpr std::uint8_t CMD_SET_PROFILE = 0x04;
constexpr std::uint8_t CMD_GET_PROFILE = 0x84;
constexpr std::uint8_t CMD_SET_LEDONOFF = 0x05;
constexpr std::uint8_t CMD_GET_LEDONOFF = 0x85;
constexpr std::uint8_t CMD_SET_DEBOUNCE = 0x06;
constexpr std::uint8_t CMD_GET_DEBOUNCE = 0x86;
constexpr std::uint8_t CMD_SET_LEDPARAM = 0x07;
constexpr std::uint8_t CMD_GET_LEDPARAM = 0x87;
constexpr std::uint8_t CMD_SET_SLEDPARAM = 0x08;
constexpr std::uint8_t CMD_GET_SLEDPARAM = 0x88;
constexpr std::uint8_t CMD_SET_KBOPTION = 0x09;
constexpr std::uint8_t CMD_GET_KBOPTION = 0x89;
constexpr std::uint8_t CMD_SET_KEYMATRIX = 0x0A;
constexpr std::uint8_t CMD_GET_KEYMATRIX = 0x8A;
constexpr std::uint8_t CMD_SET_MACRO = 0x0B;
constexpr std::uint8_t CMD_GET_MACRO = 0x8B;
constexpr std::uint8_t CMD_SET_USERPIC = 0x0C;
constexpr std::uint8_t CMD_GET_USERPIC = 0x8C;
constexpr std::uint8_t CMD_SET_MUSIC = 0x0D;
constexpr std::uint8_t CMD_SET_WINDOWS = 0x0E;
constexpr std::uint8_t CMD_SET_FN = 0x10;
constexpr std::uint8_t CMD_GET_FN = 0x90;
constexpr std::uint8_t CMD_SET_SLEEPTIME = 0x11;
constexpr std::uint8_t CMD_GET_SLEEPTIME = 0x91;
constexpr std::uint8_t CMD_SET_USERGIF = 0x12;
constexpr std::uint8_t CMD_SET_AUTOOSEN = 0x17;
constexpr std::uint8_t CMD_GET_AUTOOSEN = 0x97;
constexpr std::uint8_t CMD_SET_SKU = 0x50;
constexpr std::uint8_t CMD_GET_SKU = 0xD0;
constexpr std::uint8_t CMD_SET_MAGNETISM = 0x1D;
constexpr std::uint8_t CMD_GET_MAGNETISM = 0x9D;

// Commands outside the named list.
constexpr std::uint8_t CMD_KEY_TEST = 0x1B;        // "1B 01" on, "1B 00" off
constexpr std::uint8_t CMD_CALIBRATION = 0x1E;     // "1E 01" on, "1E 00" off
constexpr std::uint8_t CMD_WRITE_MAGNETISM = 0x65; // one value of one table
constexpr std::uint8_t CMD_READ_MAGNETISM = 0xE5;  // one page of one table

std::span<const CommandRow> rows();

} // namespace CommandCatalogue
