#include "DeviceProbes.h"

#include "Clock.h"
#include "DiscoveryTables.h"
#include "Frame.h"
#include "HidBackend.h"
#include "HubLog.h"

#include <array>
#include <cstring>

using namespace Discovery;

namespace {

constexpr quint8 kIdentify = 0x8F;
constexpr quint8 kSideLedReply = 0x88; // also ends the Bluetooth tries
// Wired replies start with the report id; Bluetooth replies with 06 55.
constexpr int kWiredCommandOffset = 1;
constexpr int kWiredIdOffset = 2;
constexpr int kBluetoothCommandOffset = 2;
constexpr int kBluetoothIdOffset = 3;
constexpr int kLinkOffset = 6;

quint32 le32(const quint8* p)
{
    return quint32(p[0]) | quint32(p[1]) << 8 | quint32(p[2]) << 16 | quint32(p[3]) << 24;
}

QByteArray wiredRequest(quint8 command, quint8 parameter = 0)
{
    QByteArray bare(1, char(command));
    if (parameter != 0) bare.append(char(parameter));
    return Frame::wrapWired(Frame::close(bare));
}

int sendFeature(HidBackend& hid, HidHandle* handle, const QByteArray& report)
{
    return hid.sendFeatureReport(handle, reinterpret_cast<const quint8*>(report.constData()),
                                 size_t(report.size()));
}

// The reply buffer is shared by all rounds and steps and cleared once: a read that returns
// nothing leaves the previous reply in place, and the byte tests see that.
using WiredReply = std::array<quint8, Frame::kWiredLength>;

int getFeature(HidBackend& hid, HidHandle* handle, WiredReply& reply)
{
    reply[0] = Frame::kWiredReportId;
    return hid.getFeatureReport(handle, reply.data(), reply.size());
}

bool stepDone(const ReceiverStep& step, const WiredReply& reply)
{
    switch (step.until) {
    case ReceiverStep::LinkUp:
        return reply[kLinkOffset] == 1;
    case ReceiverStep::Idle:
        return reply[kWiredCommandOffset] == 0;
    case ReceiverStep::Once:
        break;
    }
    return true;
}

// The receiver's sequence: link, wait for the keyboard, ask it, wait, fetch its id.
DeviceProbes::WiredAnswer askReceiver(HidBackend& hid, Clock& clock, HidHandle* handle,
                                      WiredReply& reply)
{
    int lastRead = 0;
    for (const ReceiverStep& step : kReceiverSteps) {
        const QByteArray request = wiredRequest(step.command, step.parameter);
        for (int attempt = 0; attempt < step.tries; ++attempt) {
            sendFeature(hid, handle, request);
            clock.sleepMs(kReceiverSettleMs);
            lastRead = getFeature(hid, handle, reply);
            if (stepDone(step, reply)) break;
            clock.sleepMs(kReceiverRetryMs);
        }
    }
    DeviceProbes::WiredAnswer answer;
    if (lastRead > 0) {
        answer.connection = 1;
        answer.id = le32(reply.data() + kWiredIdOffset);
    }
    qCDebug(lcHub, "receiver: keyboard id %X (read %d)", answer.id, lastRead);
    return answer;
}

} // namespace

quint32 DeviceProbes::bluetooth(HidBackend& hid, Clock& clock, HidHandle* handle)
{
    hid.setNonblocking(handle, false);
    const QByteArray request = Frame::wrapWireless(Frame::close(QByteArray(1, char(kIdentify))));
    std::array<quint8, Frame::kWirelessLength> reply{};
    for (int attempt = 0; attempt < kBluetoothPacing.tries; ++attempt) {
        hid.write(handle, reinterpret_cast<const quint8*>(request.constData()),
                  size_t(request.size()));
        hid.readTimeout(handle, reply.data(), reply.size(), kBluetoothPacing.readTimeoutMs);
        const quint8 command = reply[kBluetoothCommandOffset];
        if (command == kIdentify || command == kSideLedReply) break;
        clock.sleepMs(kBluetoothPacing.retryMs);
    }
    return le32(reply.data() + kBluetoothIdOffset);
}

DeviceProbes::WiredAnswer DeviceProbes::wired(HidBackend& hid, Clock& clock, HidHandle* handle,
                                              const std::function<bool()>& stop)
{
    const QByteArray request = wiredRequest(kIdentify);
    WiredReply reply{};
    quint32 id = 0;
    int counted = 0;
    int uncounted = 0;
    for (;;) {
        if (stop && stop())
            return {.stopped = true, .neverAnswered = counted == 0 && uncounted > 0};
        const int sent = sendFeature(hid, handle, request);
        clock.sleepMs(kWiredPacing.settleMs);
        const int got = getFeature(hid, handle, reply);
        if (sent < 0 && got < 0) {
            // Gone: a device that never answers holds the pass only while it is plugged in.
            qCDebug(lcHub) << "wired probe: the device is gone";
            return {};
        }
        if (reply[kWiredCommandOffset] != kIdentify) {
            // Deliberately uncounted: the keyboard may still be busy starting up.
            ++uncounted;
            clock.sleepMs(kWiredPacing.retryMs);
            continue;
        }
        id = le32(reply.data() + kWiredIdOffset);
        ++counted;
        if (id != 0 || counted == kWiredPacing.countedRounds) break;
        clock.sleepMs(kWiredPacing.retryMs);
    }
    if (id >= 1 && id <= kLargestWiredId) return {.id = id};
    qCDebug(lcHub, "wired probe: id %X is a receiver's", id);
    return askReceiver(hid, clock, handle, reply);
}

std::optional<quint8> DeviceProbes::ws(HidBackend& hid, Clock& clock, HidHandle* handle)
{
    std::array<quint8, kWsReplyLength> reply{};
    int got = 0;
    for (int attempt = 0; attempt < kWsPacing.tries; ++attempt) {
        hid.write(handle, kWsIdentify.data(), kWsIdentify.size());
        clock.sleepMs(kWsPacing.settleMs);
        got = hid.readTimeout(handle, reply.data(), reply.size(), kWsPacing.readTimeoutMs);
        if (reply[kWsMarkerOffset] == kWsIdentify[kWsMarkerOffset] &&
            reply[kWsMarkerOffset + 1] == kWsIdentify[kWsMarkerOffset + 1])
            break;
        clock.sleepMs(kWsPacing.retryMs);
    }
    if (got < kWsIdOffset + 1) return std::nullopt;
    return reply[kWsIdOffset];
}

QString DeviceProbes::by(HidBackend& hid, HidHandle* handle)
{
    std::array<quint8, kByReportLength> buffer{};
    std::memcpy(buffer.data(), kBySerialRequest.data(), kBySerialRequest.size());
    quint8 sum = 0;
    for (int i = 0; i < kByReportLength - 1; ++i)
        sum = quint8(sum + buffer[i]);
    buffer[kByReportLength - 1] = quint8(~sum);
    hid.write(handle, buffer.data(), buffer.size());
    hid.readTimeout(handle, buffer.data(), buffer.size(), kByReadTimeoutMs);
    const QByteArray serial(reinterpret_cast<const char*>(buffer.data()) + kBySerialOffset,
                            kBySerialBytes);
    return QString::fromLatin1(serial.toHex());
}
