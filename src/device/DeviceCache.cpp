#include "DeviceCache.h"

#include "CommandLayouts.h"
#include "DefaultKeyMaps.h"

#include <cstddef>

using CommandLayouts::IdentityReply;

void DeviceCache::restoreDefaultMatrices()
{
    keyMatrix[0] = DefaultKeyMaps::DefaultKeyMap();
    fnMatrix[0] = DefaultKeyMaps::DefaultFnMap();
}

void DeviceCache::resetVersion()
{
    versionAtLeast300 = false;
    versionAtLeast400 = false;
    deviceId = 0;
    firmwareVersion = 0;
    travelScale = 10;
}

void DeviceCache::storeIdentity(const QByteArray& reply)
{
    deviceInfo = reply;
    deviceId = CommandLayouts::leAt(reply, offsetof(IdentityReply, deviceId), 4);
    firmwareVersion = quint16(CommandLayouts::leAt(reply, offsetof(IdentityReply, version), 2));
    versionAtLeast300 = firmwareVersion >= 0x300;
    versionAtLeast400 = firmwareVersion >= 0x400;
    travelScale = firmwareVersion >= 0x500 ? 200 : (firmwareVersion >= 0x300 ? 100 : 10);
}

void DeviceCache::keyEntry(quint8 out[4], quint8 position, quint8 layer) const
{
    const bool fn = (layer & 0xF0) == 0xF0;
    const int slot = fn ? (layer & 0x0F) : layer;
    const QByteArray empty;
    const QByteArray& matrix = slot < kKeySlots ? (fn ? fnMatrix[slot] : keyMatrix[slot]) : empty;
    for (int i = 0; i < DefaultKeyMaps::kEntrySize; ++i)
        out[i] =
            CommandLayouts::byteAt(matrix, std::size_t(position) * DefaultKeyMaps::kEntrySize + i);
}

void DeviceCache::putEntry(QByteArray& matrix, quint8 position, const quint8 entry[4])
{
    if (position >= DefaultKeyMaps::kPositions) return;
    if (matrix.size() < DefaultKeyMaps::kMatrixSize)
        matrix.resize(DefaultKeyMaps::kMatrixSize, '\0');
    for (int i = 0; i < DefaultKeyMaps::kEntrySize; ++i)
        matrix[position * DefaultKeyMaps::kEntrySize + i] = static_cast<char>(entry[i]);
}

quint32 DeviceCache::magnetism(quint8 table, quint8 position) const
{
    const int index = MagnetTables::indexOf(table);
    if (index < 0 || position >= MagnetTables::kValues) return 0;
    const int width = MagnetTables::kTables[index].width;
    const QByteArray& cache = magnetTables[index];
    if ((position + 1) * width > cache.size()) return 0;
    return CommandLayouts::leAt(cache, std::size_t(position) * width, width);
}

void DeviceCache::setMagnetism(quint8 table, quint8 position, quint32 value)
{
    const int index = MagnetTables::indexOf(table);
    if (index < 0 || position >= MagnetTables::kValues) return;
    const int width = MagnetTables::kTables[index].width;
    QByteArray& cache = magnetTables[index];
    if (cache.size() < MagnetTables::kValues * width)
        cache.resize(MagnetTables::kValues * width, '\0');
    for (int i = 0; i < width; ++i)
        cache[position * width + i] = static_cast<char>((value >> (8 * i)) & 0xFF);
}
