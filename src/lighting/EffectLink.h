#pragma once

class Clock;
class DialogDeviceConnect;
class QWidget;
class ModuleEfColor;
class ModuleEfLumi;
class ModuleEfMode;
class ModuleEfSpeed;

// The lighting panel, the same on every page that has one: built with its controls' names, and
// wired to the connection so that the user's choices go to the keyboard and the keyboard's
// lighting answers (87, 88) come back into the panel without being sent again.
namespace EffectLink {

struct Panel
{
    ModuleEfMode* mode;
    ModuleEfColor* color;
    ModuleEfLumi* bright;
    ModuleEfSpeed* speed;
};

void bind(DialogDeviceConnect* device, const Panel& panel);

// The panel side by side: the effect list, the colours, and brightness over speed
// ("frameLEDMode", "frameLEDColor", "frameBR" with "frameLEDBright" and "frameLEDSpeed"), bound
// to the device. clock paces the side light's colour; null means real time.
QWidget* buildPanel(DialogDeviceConnect* device, Clock* clock, QWidget* parent, Panel* out);

} // namespace EffectLink
