#pragma once

#include <QString>

// The dynamic keystroke editor's pictures: the four points of a key's travel that head its
// columns (pressed past the actuation point, bottomed out, lifted from the bottom, back at the
// top), and the two states of a row's switch (on, and an empty place to add one).
namespace DksArt {

// Writes every picture under the resource folder (ending in '/'), in k/.
void saveAll(const QString& res);

} // namespace DksArt
