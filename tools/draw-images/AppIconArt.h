#pragma once

#include <QImage>
#include <array>

// The hub's application icon for the desktop's menus and docks, drawn for each size of the
// hicolor theme rather than scaled, so the small ones stay sharp.
namespace AppIconArt {

inline constexpr std::array<int, 9> kSizes{16, 22, 24, 32, 48, 64, 128, 256, 512};

// A key cap carrying the brand's mark on the purple tile; below 32 pixels the cap would be
// mush, so the small sizes show the mark alone, in white.
QImage appIcon(int size);

} // namespace AppIconArt
