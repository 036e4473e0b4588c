#include "KeyboardState.h"

#include "DefaultKeyMaps.h"

namespace {

constexpr int kIdOffset = 1;
constexpr int kVersionOffset = 7;

void putLe(QByteArray& bytes, int offset, quint32 value, int width)
{
    for (int i = 0; i < width; ++i)
        bytes[offset + i] = static_cast<char>((value >> (8 * i)) & 0xFF);
}

} // namespace

std::optional<int> magnetTableIndex(quint8 table)
{
    for (int i = 0; i < int(kMagnetTables.size()); ++i)
        if (kMagnetTables[i].table == table) return i;
    return std::nullopt;
}

KeyboardState KeyboardState::factory(quint32 deviceId, quint16 firmwareVersion)
{
    KeyboardState s;
    s.info = QByteArray(kBlockSize, '\0');
    s.info[0] = char(0x8F);
    putLe(s.info, kIdOffset, deviceId, 4);
    putLe(s.info, kVersionOffset, firmwareVersion, 2);

    s.options = QByteArray(kBlockSize, '\0');
    s.options[0] = char(0x89);

    for (auto& profile : s.keyMaps) {
        profile[0] = DefaultKeyMaps::factoryKeyMap().leftJustified(kLayerSize, '\0', true);
        for (int layer = 1; layer < kLayers; ++layer)
            profile[layer] = QByteArray(kLayerSize, '\0');
    }
    s.fnMap = DefaultKeyMaps::factoryFnMap().leftJustified(kFnSize, '\0', true);

    for (int t = 0; t < int(kMagnetTables.size()); ++t) {
        s.magnetTables[t] = QByteArray(kPositions * kMagnetTables[t].width, '\0');
        for (int p = 0; p < kPositions; ++p)
            s.setMagnetValue(t, p, kMagnetTables[t].factoryValue);
    }
    for (QByteArray& picture : s.pictures)
        picture = QByteArray(kPictureSize, '\0');
    s.musicLevels = QByteArray(kMusicLevels, '\0');
    return s;
}

quint32 KeyboardState::magnetValue(int tableIndex, int position) const
{
    const int width = kMagnetTables[tableIndex].width;
    const QByteArray& t = magnetTables[tableIndex];
    quint32 value = 0;
    for (int i = width - 1; i >= 0; --i)
        value = (value << 8) | static_cast<quint8>(t.at(position * width + i));
    return value;
}

void KeyboardState::setMagnetValue(int tableIndex, int position, quint32 value)
{
    const int width = kMagnetTables[tableIndex].width;
    putLe(magnetTables[tableIndex], position * width, value, width);
}
