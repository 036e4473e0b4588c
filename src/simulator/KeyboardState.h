#pragma once

#include <QByteArray>
#include <array>
#include <optional>

// One magnetism table of the native keyboard: its number on the wire, the width of a value and
// the value every key has when the keyboard leaves the factory.
struct MagnetTableSpec
{
    quint8 table;
    quint8 width;
    quint32 factoryValue;
};

// The fifteen tables, in the keyboard's own order.
inline constexpr std::array<MagnetTableSpec, 15> kMagnetTables{{
    {.table = 0x00, .width = 2, .factoryValue = 400}, // actuation, 2.0 mm
    {.table = 0x01, .width = 2, .factoryValue = 560}, // release, 2.8 mm
    {.table = 0x02, .width = 2, .factoryValue = 60},  // rapid trigger press, 0.3 mm
    {.table = 0x03, .width = 2, .factoryValue = 60},  // rapid trigger release, 0.3 mm
    {.table = 0x04, .width = 2, .factoryValue = 0},
    {.table = 0x05, .width = 1, .factoryValue = 0},
    {.table = 0x06, .width = 2, .factoryValue = 60}, // top dead zone, 0.3 mm
    {.table = 0x07, .width = 1, .factoryValue = 0},  // key mode: plain
    {.table = 0x08, .width = 1, .factoryValue = 0},
    {.table = 0x09, .width = 1, .factoryValue = 0},
    {.table = 0x0A, .width = 4, .factoryValue = 0},
    {.table = 0xFF, .width = 2, .factoryValue = 0},
    {.table = 0xFE, .width = 2, .factoryValue = 0},  // live sensor reading
    {.table = 0xFC, .width = 1, .factoryValue = 2},  // switch type
    {.table = 0xFB, .width = 1, .factoryValue = 60}, // bottom dead zone, 0.3 mm
}};

// Index into kMagnetTables of a table number, none for a number the keyboard doesn't know.
std::optional<int> magnetTableIndex(quint8 table);

// The parameters of one light effect as 87/88 carry them after the effect byte.
struct LedParams
{
    quint8 speed = 3; // as on the wire: 4 minus what the user sees
    quint8 brightness = 3;
    quint8 option = 7;
    quint8 red = 0xFF;
    quint8 green = 0xFF;
    quint8 blue = 0xFF;
};

// Everything the native keyboard's firmware keeps. Plain data: the handlers of
// NativeKeyboardModel read and write it.
struct KeyboardState
{
    static constexpr int kBlockSize = 64;
    static constexpr int kProfiles = 4;
    static constexpr int kLayers = 4;
    static constexpr int kPositions = 128;
    static constexpr int kEntrySize = 4;
    static constexpr int kLayerSize = kPositions * kEntrySize; // 512
    static constexpr int kFnSize = 640;
    static constexpr int kEffects = 256;
    static constexpr int kSleepSlots = 4;
    static constexpr int kPictureSlots = 5;
    static constexpr int kPictureSize = 392; // seven write pages of 56
    static constexpr int kMacroSlots = 50;
    static constexpr int kMusicLevels = 22;

    QByteArray info;    // the 8F block, byte 0 included
    QByteArray options; // the 89 block, byte 0 included

    quint8 profile = 0;
    quint8 reportRate = 3; // 1000 Hz
    quint8 debounce = 2;
    std::array<quint8, 2> ledOnOff{1, 1};

    quint8 ledEffect = 1;
    std::array<LedParams, kEffects> led{};
    quint8 sideEffect = 1;
    std::array<LedParams, kEffects> sideLed{};

    std::array<quint16, kSleepSlots> sleepTimes{300, 300, 1800, 1800}; // seconds

    std::array<std::array<QByteArray, kLayers>, kProfiles> keyMaps; // kLayerSize bytes each
    QByteArray fnMap;                                               // kFnSize bytes
    std::array<QByteArray, kMagnetTables.size()> magnetTables;      // 128 values, packed LE
    std::array<QByteArray, kPictureSlots> pictures;                 // kPictureSize bytes each
    std::array<QByteArray, kMacroSlots> macros;                     // as written, in pages
    QByteArray musicLevels;

    bool keyTest = false;
    bool calibrating = false;
    qint64 nowMs = 0;
    qint64 calibrationStartMs = 0;

    // The state of a keyboard fresh from the factory.
    static KeyboardState factory(quint32 deviceId, quint16 firmwareVersion);

    quint32 magnetValue(int tableIndex, int position) const;
    void setMagnetValue(int tableIndex, int position, quint32 value);
};
