#pragma once

#include <QJsonObject>

class DialogDeviceConnect;
class NativeKeyboardModel;

// The connection's cache as JSON: scalars, identity and option blocks, key and Fn matrices,
// magnetism tables as numbers by table name, and the LED parameter blocks.
namespace CacheJson {

QJsonObject fromConnection(const DialogDeviceConnect& device);

// What the virtual keyboard holds that the connection never reads back: the user pictures and
// the macro slots that were written.
QJsonObject fromKeyboard(const NativeKeyboardModel& keyboard);

// Firmware version and device id as the identity block reports them.
quint16 reportedFirmwareVersion(const DialogDeviceConnect& device);

} // namespace CacheJson
