#pragma once

#include "DefaultKeyMaps.h"
#include "KeyEntry.h"

#include <QtGlobal>

// Pages name a key by its key code; the matrix by position (column * 6 + row). The code of a
// position is byte 2 of its entry in the live default key matrix, except for four positions
// whose byte 2 is no usable key and which have codes of their own.

// The key code at a position; 0 past the matrix.
quint8 CodeOfPosition(quint8 position);
// The first position whose code is this one; 0xFF if there is none.
quint8 PositionOfCode(quint8 code);

// The entry of the live default key matrix at a position; all zero past the matrix.
KeyEntry DefaultEntryAt(quint8 position);
// True unless all four bytes equal the default entry at that position.
bool IsModifiedEntry(quint8 position, const KeyEntry& entry);

// The live default key matrix that the two conversions read; only the console's save action
// replaces it.
using DefaultKeyMaps::DefaultKeyMap;
using DefaultKeyMaps::SetDefaultKeyMap;
