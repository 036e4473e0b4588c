#pragma once

class DialogDeviceConnect;
class ModuleEfColor;
class ModuleEfLumi;
class ModuleEfMode;
class ModuleEfSpeed;

// Wires a lighting panel to the connection, the same on every page that has one: the user's
// choices go to the keyboard, and the keyboard's lighting answers (87, 88) come back into the
// panel without being sent again.
namespace EffectLink {

struct Panel
{
    ModuleEfMode* mode;
    ModuleEfColor* color;
    ModuleEfLumi* bright;
    ModuleEfSpeed* speed;
};

void bind(DialogDeviceConnect* device, const Panel& panel);

} // namespace EffectLink
