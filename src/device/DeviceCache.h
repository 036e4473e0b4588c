#pragma once

#include "MagnetTables.h"

#include <QByteArray>
#include <array>

// Everything the connection knows of the keyboard, as plain data: the reply dispatch fills it
// and the Do* operations update it at once, without waiting for the keyboard. Touched on the
// connection's own (the window's) thread only.
struct DeviceCache
{
    static constexpr int kKeySlots = 8;
    static constexpr int kKeyLayers = 4; // slots a read fills, one per key layer
    static constexpr int kMagnetTables = int(MagnetTables::kTables.size());
    static constexpr int kLedSlots = 100;
    static constexpr int kSideLedSlots = 20;

    // Blocks as they came from the keyboard.
    std::array<QByteArray, kMagnetTables> magnetTables; // by MagnetTables::indexOf
    QByteArray calibrationBuffer;
    QByteArray kbOptions;
    QByteArray deviceInfo;
    std::array<QByteArray, kKeySlots> keyPages; // being read
    std::array<QByteArray, kKeySlots> fnPages;
    std::array<QByteArray, kKeySlots> keyMatrix; // what the pages use
    std::array<QByteArray, kKeySlots> fnMatrix;
    std::array<QByteArray, kLedSlots> ledParams;
    std::array<QByteArray, kSideLedSlots> sideLedParams;
    QByteArray userPicture;

    // Scalars.
    std::array<quint16, 4> sleepTimes{};
    quint8 reportRate = 0;
    quint8 debounce = 0;
    quint8 currentProfile = 0;
    quint16 firmwareVersion = 0;
    quint32 deviceId = 0;
    bool versionAtLeast300 = false;
    bool versionAtLeast400 = false;
    quint16 travelScale = 10;
    float keyTravel = 0;
    bool musicOn = false;
    bool calibrating = false;

    // The built-in default matrices in slot 0, as before any keyboard answered.
    void restoreDefaultMatrices();
    // Forgets the version and id, as a connect does.
    void resetVersion();
    // Takes an 8F reply: identity block, id, version and the gates that follow from it.
    void storeIdentity(const QByteArray& reply);

    // Four bytes of the key matrix at a position; a layer 0xF0 + n reads Fn slot n instead.
    // Bytes the cache doesn't hold read as 0.
    void keyEntry(quint8 out[4], quint8 position, quint8 layer) const;
    // Writes an entry into a matrix, growing it to a whole layer first; positions past the
    // matrix are ignored.
    static void putEntry(QByteArray& matrix, quint8 position, const quint8 entry[4]);

    // One value of a magnetism table at its width; 0 for what the cache doesn't hold.
    quint32 magnetism(quint8 table, quint8 position) const;
    // Writes one value, growing the table to all 128 values first; unknown tables and positions
    // past the matrix are ignored.
    void setMagnetism(quint8 table, quint8 position, quint32 value);
};
