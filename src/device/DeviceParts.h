#pragma once

class Clock;
class ConsoleModel;
class DeviceLink;
class DialogDeviceConnect;
class ModuleGenKeymapping;
struct DeviceCache;

// What every part of the connection works with: the front (its signals, and the operations of
// the other groups), the link, the cache, the console model, the clock and the key tables. The
// front owns them all and outlives the groups.
struct DeviceParts
{
    DialogDeviceConnect& front;
    DeviceLink& link;
    DeviceCache& cache;
    ConsoleModel& console;
    Clock& clock;
    const ModuleGenKeymapping& keys;
};
