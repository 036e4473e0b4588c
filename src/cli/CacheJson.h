#pragma once

#include <QJsonObject>

class DialogDeviceConnect;

// The connection's cache as JSON: scalars, identity and option blocks, key and Fn matrices,
// magnetism tables as numbers by table name, and the LED parameter blocks.
namespace CacheJson {

QJsonObject fromConnection(const DialogDeviceConnect& device);

// Firmware version and device id as the identity block reports them.
quint16 reportedFirmwareVersion(const DialogDeviceConnect& device);

} // namespace CacheJson
