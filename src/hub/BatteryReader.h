#pragma once

#include <QString>
#include <QtGlobal>
#include <array>
#include <optional>

class Clock;
class HidBackend;

// The battery query of a card: opens the device's path, asks for its charge the way its family
// answers, and closes it again. Blocking (up to half a second), so it runs off the GUI thread.
namespace BatteryReader {

// Family 0: a feature report F7, then the status feature report; byte 6 = 1 marks a live link.
inline constexpr quint8 kCloudStatusCommand = 0xF7;
inline constexpr int kCloudRounds = 5;
inline constexpr int kCloudWaitMs = 100;
inline constexpr int kCloudReportLength = 65;
inline constexpr int kCloudRequestBuffer = 120;
inline constexpr int kCloudReplyBuffer = 1024;
inline constexpr int kCloudBatteryOffset = 2;
inline constexpr int kCloudLinkOffset = 6;
inline constexpr int kCloudChecksumOffset = 8;

// Family 1: an output report, then an input report with the charge at byte 8.
inline constexpr std::array<quint8, 8> kWsBatteryRequest{0x04, 0x00, 0x00, 0x1A,
                                                         0x06, 0x00, 0x00, 0x00};
inline constexpr int kWsRounds = 5;
inline constexpr int kWsWaitMs = 30;
inline constexpr int kWsReplyLength = 16;
inline constexpr int kWsReadTimeoutMs = 50;
inline constexpr int kWsBatteryOffset = 8;
inline constexpr int kWsLargestCharge = 100;

// The charge in percent as the device reported it (families 2 and 3 always give 0), or nothing
// when the device could not be opened. A family 1 device that keeps answering more than 100
// gives its last answer.
std::optional<int> read(HidBackend& hid, Clock& clock, quint8 family, const QString& devicePath);

} // namespace BatteryReader
