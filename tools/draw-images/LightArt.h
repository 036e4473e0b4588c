#pragma once

#include <QImage>

// The lighting pages' pictures: the pipette, the highlight under the chosen system colour and
// the glow behind the system colour row.
namespace LightArt {

// An eyedropper, drawn for a 32-pixel cursor and the picker's button.
QImage pipette();

// A white disc with a purple ring and a soft shadow, behind the centre colour dot.
QImage colourHighlight();

// A wide, soft band of coloured light on a pale card: the backdrop of the system colours.
QImage lightBand();

} // namespace LightArt
