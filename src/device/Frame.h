#pragma once

#include <QByteArray>

class HidBackend;
class HidHandle;

// The framing of a native keyboard's commands. A command is built bare by its caller; the
// sender closes and wraps it at the moment it goes out, here and nowhere else.
namespace Frame {

constexpr int kPadding = 128;       // zeros appended before a frame goes out
constexpr int kWiredLength = 65;    // report id 00 + 64 bytes, as a feature report
constexpr int kWirelessLength = 66; // 06 55 + 64 bytes, as an output report
constexpr int kReplyBufferSize = 1024;
constexpr int kWirelessReadTimeoutMs = 400;
constexpr quint8 kWiredReportId = 0x00;
constexpr quint8 kWirelessReportId = 0x06;
constexpr quint8 kWirelessPrefix = 0x55;
constexpr quint8 kStaleMarker = 0x77; // 06 77 opens a report that is not a reply
constexpr int kChecksumOffset = 7;
constexpr int kLedChecksumOffset = 8; // for 07 and 08, whose byte 7 is blue

// Offset of the checksum for a command byte.
int checksumOffset(quint8 command);
// The one's complement of the sum of bytes 0 .. offset-1, modulo 256.
quint8 checksum(const QByteArray& frame, int offset);
// The command extended by 128 zeros, with its checksum written.
QByteArray close(const QByteArray& command);
// A closed frame with its transport's report id (and prefix), cut to the transport's length.
QByteArray wrapWired(const QByteArray& closedFrame);
QByteArray wrapWireless(const QByteArray& closedFrame);

// Sends a closed frame on the transport. Results are deliberately not looked at: the protocol
// never notices a short or failed write.
void sendWired(HidBackend& hid, HidHandle* handle, const QByteArray& closedFrame);
void sendWireless(HidBackend& hid, HidHandle* handle, const QByteArray& closedFrame);

// Takes a reply; false when there is none. The reply starts at the command byte.
bool takeReplyWired(HidBackend& hid, HidHandle* handle, QByteArray* reply);
// timeoutMs 0 takes only a reply that is already there.
bool takeReplyWireless(HidBackend& hid, HidHandle* handle, QByteArray* reply,
                       int timeoutMs = kWirelessReadTimeoutMs);

// Upper-case hex with a blank between bytes: "8F 00 70".
QString hexText(const QByteArray& bytes);

} // namespace Frame
