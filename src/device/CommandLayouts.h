#pragma once

#include "CommandCatalogue.h"

#include <QByteArray>
#include <cstddef>
#include <cstdint>
#include <type_traits>

// The bytes of each command the connection builds, and of the replies it reads fields from, as
// structures of single bytes: a field's name is its offset (offsetof), and the structure's size
// is checked at compile time. Byte 7 is where the sender writes the checksum, so every layout
// leaves it as `checksum`; the 56-byte payload of the paged transfers starts at offset 8.
// Multi-byte values are little-endian byte arrays, written with the helpers below.
namespace CommandLayouts {

using u8 = std::uint8_t;
using namespace CommandCatalogue;

constexpr int kChecksumOffset = 7;
constexpr int kPayloadOffset = 8;
constexpr int kPagePayload = 56; // bytes a paged write carries per frame
constexpr int kFrameLength = 64; // the most a frame carries; longer commands lose the rest

constexpr int kLedSpeedSteps = 4; // the keyboard counts LED speed down from here

// ---- Reads with arguments: an eight-byte head.

// 8A: one 64-byte page of one key layer of one onboard profile.
struct KeyMatrixRead
{
    u8 command = CMD_GET_KEYMATRIX;
    u8 profile = 0;
    u8 all = 0xFF;
    u8 page = 0;
    u8 layer = 0; // also the cache slot the reply goes to
    u8 unused[2] = {};
    u8 checksum = 0;
};

// 90: one page of the Fn matrix; the slot byte is always 0.
struct FnRead
{
    u8 command = CMD_GET_FN;
    u8 unused1 = 0;
    u8 slot = 0; // the cache slot the reply goes to
    u8 all = 0xFF;
    u8 page = 0;
    u8 unused5[2] = {};
    u8 checksum = 0;
};

// E5: one page of one magnetism table.
struct MagnetRead
{
    u8 command = CMD_READ_MAGNETISM;
    u8 table = 0;
    u8 one = 1;
    u8 page = 0;
    u8 unused[3] = {};
    u8 checksum = 0;
};

// 8C: one page of a user picture.
struct PictureRead
{
    u8 command = CMD_GET_USERPIC;
    u8 slot = 0;
    u8 all = 0xFF;
    u8 page = 0; // the last page (5) ends the picture
    u8 unused[3] = {};
    u8 checksum = 0;
};

// ---- Switches: key-test stream (1B) and calibration scan (1E).

struct Switch
{
    u8 command;
    u8 on;
};

// ---- Writes.

// 04: select an onboard profile; twelve bytes as the device page has always sent them.
struct ProfileSet
{
    u8 command = CMD_SET_PROFILE;
    u8 profile = 0;
    u8 unused[10] = {};
};

// 0A: one key entry of one layer.
struct KeyMatrixWrite
{
    u8 command = CMD_SET_KEYMATRIX;
    u8 profile = 0;
    u8 position = 0;
    u8 unused3[2] = {};
    u8 last = 0; // 1 on the last entry of a batch: the keyboard saves then
    u8 layer = 0;
    u8 checksum = 0;
    u8 entry[4] = {};
};

// 10: one key entry of the Fn layer.
struct FnWrite
{
    u8 command = CMD_SET_FN;
    u8 unused1[2] = {};
    u8 position = 0;
    u8 unused4[3] = {};
    u8 checksum = 0;
    u8 entry[4] = {};
};

// 65: one value of one magnetism table, whole (32 bits) whatever the table's width.
struct MagnetWrite
{
    u8 command = CMD_WRITE_MAGNETISM;
    u8 table = 0;
    u8 unused2 = 0;
    u8 position = 0; // FF: every key
    u8 commit = 0;
    u8 unused5[2] = {};
    u8 checksum = 0;
    u8 value[4] = {};
};

// 11: the four sleep times, seconds, u16 each.
struct SleepTimeWrite
{
    u8 command = CMD_SET_SLEEPTIME;
    u8 unused[6] = {};
    u8 checksum = 0;
    u8 seconds[4][2] = {};
};

// 0B: one page of a macro's blob.
struct MacroPage
{
    u8 command = CMD_SET_MACRO;
    u8 macroId = 0;
    u8 page = 0;
    u8 length = kPagePayload;
    u8 last = 0;
    u8 unused[2] = {};
    u8 checksum = 0;
    u8 payload[kPagePayload] = {};
};

// 0C: one page of a user picture's colour map.
struct PictureWrite
{
    u8 command = CMD_SET_USERPIC;
    u8 slot = 0;
    u8 all = 0xFF;
    u8 page = 0;
    u8 length = kPagePayload;
    u8 last = 0;
    u8 unused = 0;
    u8 checksum = 0;
    u8 payload[kPagePayload] = {};
};

// ---- Replies, after the transport's report id or prefix.

// 8F: who the keyboard is.
struct IdentityReply
{
    u8 command;
    u8 deviceId[4];
    u8 unused[2];
    u8 version[2];
};

// 83: the report rate.
struct ReportRateReply
{
    u8 command;
    u8 unused;
    u8 rate;
};

// 84, 86, 87, 88: the value in byte 1 (profile, debounce, effect), then speed and brightness.
struct ValueReply
{
    u8 command;
    u8 value;
    u8 speed;
    u8 brightness;
};

// 91: the four sleep times.
struct SleepTimeReply
{
    u8 command;
    u8 unused[7];
    u8 seconds[4][2];
};

// ---- Compile-time checks: sizes as the keyboard counts them, and the checksum's place.

static_assert(sizeof(KeyMatrixRead) == 8 && sizeof(FnRead) == 8);
static_assert(sizeof(MagnetRead) == 8 && sizeof(PictureRead) == 8 && sizeof(Switch) == 2);
static_assert(sizeof(ProfileSet) == 12 && sizeof(KeyMatrixWrite) == 12 && sizeof(FnWrite) == 12);
static_assert(sizeof(MagnetWrite) == 12 && sizeof(SleepTimeWrite) == 16);
static_assert(sizeof(MacroPage) == 64 && sizeof(PictureWrite) == 64);
static_assert(offsetof(KeyMatrixWrite, checksum) == kChecksumOffset &&
              offsetof(KeyMatrixWrite, entry) == kPayloadOffset);
static_assert(offsetof(FnWrite, entry) == kPayloadOffset &&
              offsetof(MagnetWrite, value) == kPayloadOffset &&
              offsetof(SleepTimeWrite, seconds) == kPayloadOffset);
static_assert(offsetof(MacroPage, payload) == kPayloadOffset &&
              offsetof(PictureWrite, payload) == kPayloadOffset);
static_assert(offsetof(KeyMatrixRead, layer) == 4 && offsetof(FnRead, slot) == 2 &&
              offsetof(MagnetRead, table) == 1 && offsetof(PictureRead, page) == 3);
static_assert(offsetof(IdentityReply, deviceId) == 1 && offsetof(IdentityReply, version) == 7);
static_assert(offsetof(ReportRateReply, rate) == 2 && offsetof(SleepTimeReply, seconds) == 8);

// ---- Helpers.

// A command that names nothing but its command byte, zero-filled to length (1 to a frame's 64:
// the transports send no more, so a longer one would only cost memory).
inline QByteArray plain(u8 command, int length = 1)
{
    QByteArray c(length < 1 ? 1 : (length > kFrameLength ? kFrameLength : length), '\0');
    c[0] = static_cast<char>(command);
    return c;
}

// The bytes of a layout, as the queue takes them.
template <class Layout> QByteArray bytes(const Layout& layout)
{
    static_assert(std::is_trivially_copyable_v<Layout> && std::is_standard_layout_v<Layout>);
    return QByteArray(reinterpret_cast<const char*>(&layout), int(sizeof(Layout)));
}

// Little-endian into a byte array field.
template <std::size_t N> constexpr void putLe(u8 (&field)[N], std::uint32_t value)
{
    for (std::size_t i = 0; i < N; ++i)
        field[i] = static_cast<u8>((value >> (8 * i)) & 0xFF);
}

// One byte of a frame or reply at a field's offset; 0 past the end (replies can be short).
inline u8 byteAt(const QByteArray& data, std::size_t offset)
{
    return offset < std::size_t(data.size()) ? static_cast<u8>(data.at(int(offset))) : 0;
}

// A little-endian value of `width` bytes from offset; missing bytes read as 0.
inline std::uint32_t leAt(const QByteArray& data, std::size_t offset, int width)
{
    std::uint32_t value = 0;
    for (int i = width - 1; i >= 0; --i)
        value = (value << 8) | byteAt(data, offset + std::size_t(i));
    return value;
}

} // namespace CommandLayouts
