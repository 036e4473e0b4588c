#pragma once

#include <QString>
#include <functional>
#include <optional>

class Clock;
class HidBackend;
class HidHandle;

// The questions the discovery pass asks an open device, one function per route. Every wait
// goes through the clock.
namespace DeviceProbes {

// Bluetooth route: 8F in a 06 55 output report, up to five tries. The id from the reply, 0
// when none came.
quint32 bluetooth(HidBackend& hid, Clock& clock, HidHandle* handle);

struct WiredAnswer
{
    quint32 id = 0;
    quint8 connection = 0;      // 1 when a receiver named its keyboard
    bool stopped = false;       // the pass was asked to stop while waiting for 8F
    bool neverAnswered = false; // stopped after rounds of which none answered 8F
};

// Wired route: 8F as a feature report until the device answers 8F (rounds without 8F are not
// counted, so a device that never answers holds the pass), then, for an id of 0 or above
// 0x1000, the receiver's questions for the keyboard behind it. stop is asked every round.
WiredAnswer wired(HidBackend& hid, Clock& clock, HidHandle* handle,
                  const std::function<bool()>& stop);

// WS family: the identify report, up to ten tries. Reply byte 11 when the last read gave at
// least 12 bytes.
std::optional<quint8> ws(HidBackend& hid, Clock& clock, HidHandle* handle);

// BY family: the serial request; the reply's six serial bytes as 12 lower-case hex digits. A
// failed read leaves the request in the buffer, whose bytes then make the text.
QString by(HidBackend& hid, HidHandle* handle);

} // namespace DeviceProbes
