#pragma once

#include <QString>
#include <functional>

class Clock;
class HidBackend;
class QTextStream;
struct DeviceEnumInfo;

// orbehub-cli list: one discovery pass over the backend, as the hub runs it, and one line per
// record: family, connection, device id, online, name, vendor path, device path, tab-separated.
namespace DeviceListCommand {

// The pass ends early, with status TimedOut, when it runs longer than this (a device that never
// answers its identity request holds it).
inline constexpr int kPassLimitMs = 30000;

QString line(const DeviceEnumInfo& record);

// Runs the pass with the catalogue beside the program and prints the records; the exit status.
int run(HidBackend& hid, Clock& clock, QTextStream& out, QTextStream& err);

} // namespace DeviceListCommand
