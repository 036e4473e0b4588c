#pragma once

#include "MagnetTables.h"

#include <QByteArray>
#include <QString>
#include <array>

class DialogDeviceConnect;

// What a backup holds of one native keyboard, as plain data: everything the protocol reads
// back, for all four onboard profiles. Blocks keep the keyboard's own byte layout.
struct KeyboardSnapshot
{
    static constexpr int kProfiles = 4;
    static constexpr int kLayers = 4;
    static constexpr int kPositions = MagnetTables::kValues;
    static constexpr int kEntrySize = 4;
    static constexpr int kLayerBytes = kPositions * kEntrySize; // 512
    static constexpr int kFnBytes = 640;                        // ten pages, 160 entries
    static constexpr int kPictureSlots = 4;                     // the light page's four slots
    static constexpr int kPictureBytes = 384;                   // six read pages: 128 colours
    static constexpr int kOptionBytes = 63; // the option block behind its command byte
    static constexpr int kSleepSlots = 4;
    static constexpr int kMagnetTables = int(MagnetTables::kTables.size());

    // One light's parameters as the 87 and 88 replies carry them in bytes 1 to 7. The speed is
    // the keyboard's byte; for the side light, mode 8 is the colour mode.
    struct Light
    {
        quint8 effect = 0;
        quint8 speed = 0;
        quint8 brightness = 0;
        quint8 option = 0;
        quint8 red = 0;
        quint8 green = 0;
        quint8 blue = 0;

        static Light fromReply(const QByteArray& reply);
        quint32 rgb() const { return quint32(red) << 16 | quint32(green) << 8 | blue; }
        friend bool operator==(const Light&, const Light&) = default;
    };

    quint32 deviceId = 0;
    quint16 firmwareVersion = 0; // as the identity block reports it
    quint8 activeProfile = 0;
    std::array<std::array<QByteArray, kLayers>, kProfiles> keyLayers;
    QByteArray fnLayer;
    // Firmware below 0x300 has no magnetism tables to read; the live sensor table is never kept.
    bool hasMagnetism = false;
    std::array<QByteArray, kMagnetTables> magnetTables; // by MagnetTables::indexOf
    Light lighting;
    bool ledOn = true;
    Light sideLight;
    QByteArray options; // kOptionBytes: wire offsets 1 to 63
    quint8 reportRate = 0;
    quint8 debounce = 0;
    std::array<quint16, kSleepSlots> sleepTimes{};
    std::array<QByteArray, kPictureSlots> pictures;

    // Whether a table belongs in a backup: all but the live sensor reading.
    static bool keeps(const MagnetTables::Table& table);
    // The version in an identity block (bytes 7 and 8); 0 for a short block.
    static quint16 identityVersion(const QByteArray& info);

    // The key layers of the profile the connection has just read.
    void takeKeyLayers(const DialogDeviceConnect& device, int profile);
    // The rest of what a read sequence brought: identity, Fn layer, tables, options, settings.
    void takeSettings(const DialogDeviceConnect& device);

    // What is missing or short, for a message; empty when whole.
    QString incomplete() const;
    quint32 magnetValue(int tableIndex, int position) const;
    QByteArray entry(const QByteArray& layer, int position) const
    {
        return layer.mid(position * kEntrySize, kEntrySize);
    }
};
