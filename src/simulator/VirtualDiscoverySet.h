#pragma once

#include <QtGlobal>

class VirtualByDevice;
class VirtualHidBackend;
class VirtualJmDevice;
class VirtualKeyboard;
class VirtualReceiver;
class VirtualSilentKeyboard;
class VirtualWsDevice;
struct SimulatorOptions;

// The virtual devices that show every family and route of discovery, beside the native
// keyboards of the default set: a receiver with a keyboard paired and one with nothing paired,
// a keyboard whose id no catalogue knows, and one device of each sibling family. The shipped
// catalogue files know the ids used here.
struct VirtualDiscoverySet
{
    static constexpr quint32 kPairedKeyboardId = 0x0EC3;
    static constexpr quint32 kUnknownKeyboardId = 0x0999;

    VirtualReceiver* receiver = nullptr;
    VirtualReceiver* emptyReceiver = nullptr;
    VirtualKeyboard* unknownKeyboard = nullptr;
    VirtualWsDevice* ws = nullptr;
    VirtualByDevice* by = nullptr;
    VirtualJmDevice* jm = nullptr;
    VirtualSilentKeyboard* silent = nullptr; // only with options.silentKeyboard

    static VirtualDiscoverySet addTo(VirtualHidBackend& backend, const SimulatorOptions& options);
};
