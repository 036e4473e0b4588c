#pragma once

#include <QImage>

// The other device pictures of the cards: mice, hit boxes, the generic pictures of each
// device type, and the keyboard of the about page.
namespace DeviceArt {

// branded: the purple wheel and the mark; the default picture has neither.
QImage mouse(bool branded);
QImage hitBox(bool withScreen);
// A receiver-like box: the picture of a device of unknown type.
QImage genericDevice();
// The about page's keyboard, lit from below.
QImage showcase();

} // namespace DeviceArt
