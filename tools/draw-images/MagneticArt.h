#pragma once

#include <QString>

// The magnetic page's pictures: the travel test's key seen from the side at ten depths
// (press/press00 at the bottom to press09 at rest) and the switch type icons (rt/mticoNN, by the
// row of the switch type table).
namespace MagneticArt {

// Writes every picture under the folder (ending in '/'): press/, rt/.
void saveAll(const QString& folder);

} // namespace MagneticArt
