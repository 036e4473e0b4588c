#include "Frame.h"

#include "HidBackend.h"

#include <QString>
#include <algorithm>

namespace Frame {

int checksumOffset(quint8 command)
{
    return (command == 0x07 || command == 0x08) ? kLedChecksumOffset : kChecksumOffset;
}

quint8 checksum(const QByteArray& frame, int offset)
{
    quint8 sum = 0;
    for (int i = 0; i < offset && i < frame.size(); ++i)
        sum = static_cast<quint8>(sum + static_cast<quint8>(frame.at(i)));
    return static_cast<quint8>(~sum);
}

QByteArray close(const QByteArray& command)
{
    QByteArray frame = command + QByteArray(kPadding, '\0');
    const int offset = checksumOffset(static_cast<quint8>(frame.at(0)));
    frame[offset] = static_cast<char>(checksum(frame, offset));
    return frame;
}

QByteArray wrapWired(const QByteArray& closedFrame)
{
    QByteArray out = QByteArray(1, static_cast<char>(kWiredReportId)) + closedFrame;
    out.resize(kWiredLength, '\0');
    return out;
}

QByteArray wrapWireless(const QByteArray& closedFrame)
{
    QByteArray out;
    out.append(static_cast<char>(kWirelessReportId));
    out.append(static_cast<char>(kWirelessPrefix));
    out.append(closedFrame);
    out.resize(kWirelessLength, '\0');
    return out;
}

void sendWired(HidBackend& hid, HidHandle* handle, const QByteArray& closedFrame)
{
    const QByteArray out = wrapWired(closedFrame);
    hid.sendFeatureReport(handle, reinterpret_cast<const quint8*>(out.constData()), out.size());
}

void sendWireless(HidBackend& hid, HidHandle* handle, const QByteArray& closedFrame)
{
    const QByteArray out = wrapWireless(closedFrame);
    hid.write(handle, reinterpret_cast<const quint8*>(out.constData()), out.size());
}

bool takeReplyWired(HidBackend& hid, HidHandle* handle, QByteArray* reply)
{
    quint8 buffer[kReplyBufferSize] = {}; // also report id 0
    const int result = hid.getFeatureReport(handle, buffer, kWiredLength);
    if (result < 1) return false;
    *reply = QByteArray(reinterpret_cast<const char*>(buffer) + 1, result - 1);
    return true;
}

bool takeReplyWireless(HidBackend& hid, HidHandle* handle, QByteArray* reply, int timeoutMs)
{
    quint8 buffer[kReplyBufferSize] = {};
    int result = hid.readTimeout(handle, buffer, kWirelessLength, timeoutMs);
    // The receiver can hand over a stale 06 77 report first. It is skipped once; whatever the
    // second read brings is the reply. The test is on the buffer, not on the result.
    if (buffer[0] == kWirelessReportId && buffer[1] == kStaleMarker) {
        std::fill(std::begin(buffer), std::end(buffer), 0);
        result = hid.readTimeout(handle, buffer, kWirelessLength, timeoutMs);
    }
    if (result < 1) return false;
    *reply = QByteArray(reinterpret_cast<const char*>(buffer) + 2, std::max(0, result - 2));
    return true;
}

QString hexText(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.toHex(' ').toUpper());
}

} // namespace Frame
