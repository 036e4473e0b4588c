#pragma once

#include <QString>

// The key page's pictures: the arrow keys of the on-screen keyboard, and the system and mouse
// function tiles of the function picker (normal and chosen).
namespace KeyPageArt {

// Writes every picture under the resource folder (ending in '/'): k/, macro/fn0/, macro/fn1/,
// macro/mouse/.
void saveAll(const QString& res);

} // namespace KeyPageArt
