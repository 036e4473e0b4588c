#pragma once

#include <QByteArray>

// The factory key and Fn matrices: 128 four-byte entries each, by matrix position
// (column * 6 + row). They seed the connection's caches before a keyboard has answered.
namespace DefaultKeyMaps {

constexpr int kEntrySize = 4;
constexpr int kPositions = 128;
constexpr int kMatrixSize = kEntrySize * kPositions; // 512

// The factory tables as built into the program.
QByteArray factoryKeyMap();
QByteArray factoryFnMap();

// The live default key matrix. The console's "Save Matrix" may replace it, and the mapping
// between key codes and positions follows it.
const QByteArray& DefaultKeyMap();
const QByteArray& DefaultFnMap();
void SetDefaultKeyMap(const QByteArray& map);

} // namespace DefaultKeyMaps
