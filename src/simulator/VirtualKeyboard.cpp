#include "VirtualKeyboard.h"

#include "Clock.h"
#include "Frame.h"
#include "SimulatorLog.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr quint16 kWiredUsagePage = 0xFFFF;
constexpr quint16 kInputUsage = 1;
constexpr quint16 kCommandUsage = 2;
constexpr quint16 kWirelessUsagePage = 0xFF55;
constexpr quint16 kWirelessUsage = 0x0202;
constexpr int kInputInterface = 0;
constexpr int kCommandInterface = 1;
constexpr int kWirelessInterface = 0;

constexpr int kFrameSize = NativeKeyboardModel::kReplySize;
constexpr size_t kMaxQueuedReplies = 64; // like the kernel's report buffer, oldest go first

// The key-test input report: 05 1B, raw travel u16 little-endian.
constexpr quint8 kKeyTestReportId = 0x05;
constexpr quint8 kKeyTestMarker = 0x1B;
constexpr int kKeyTestReportSize = 64;
constexpr qint64 kKeyTestIntervalMs = 20;
constexpr qint64 kKeyStrokeMs = 1200; // down and up again
constexpr int kBottomTravel = 720;

// The battery status request, a feature report even on the wireless interface.
constexpr quint8 kStatusCommand = 0xF7;
constexpr int kStatusBattery = 1; // offsets in the logical reply
constexpr int kStatusLink = 5;

constexpr quint8 kMusicCommand = 0x0D;

} // namespace

VirtualKeyboard::VirtualKeyboard(std::mutex& backendLock, Clock* deviceClock, bool isWirelessKb,
                                 const Identity& identity, const QByteArray& base)
    : VirtualDevice(backendLock, deviceClock),
      firmware(identity.deviceId, identity.firmwareVersion), wireless(isWirelessKb),
      vid(identity.vendorId), pid(identity.productId), pathBase(base),
      featureBuffer(kFrameSize, '\0')
{
}

QByteArray VirtualKeyboard::commandPath() const
{
    return pathBase + (wireless ? ":FF55" : ":2");
}

QByteArray VirtualKeyboard::inputPath() const
{
    return wireless ? QByteArray() : pathBase + ":1";
}

quint16 VirtualKeyboard::keyTestTravel(qint64 milliseconds)
{
    const qint64 half = kKeyStrokeMs / 2;
    const qint64 phase = milliseconds % kKeyStrokeMs;
    const qint64 depth = phase <= half ? phase : kKeyStrokeMs - phase;
    return static_cast<quint16>(kBottomTravel * depth / half);
}

QList<HidDeviceInfo> VirtualKeyboard::interfaces() const
{
    HidDeviceInfo info;
    info.vendorId = vid;
    info.productId = pid;
    info.manufacturer = QStringLiteral("Orbe");
    if (wireless) {
        info.path = commandPath();
        info.usagePage = kWirelessUsagePage;
        info.usage = kWirelessUsage;
        info.interfaceNumber = kWirelessInterface;
        info.product = QStringLiteral("Orbe HE Keyboard BT");
        return {info};
    }
    info.product = QStringLiteral("Orbe HE Keyboard");
    info.usagePage = kWiredUsagePage;
    HidDeviceInfo input = info;
    input.path = inputPath();
    input.usage = kInputUsage;
    input.interfaceNumber = kInputInterface;
    HidDeviceInfo command = info;
    command.path = commandPath();
    command.usage = kCommandUsage;
    command.interfaceNumber = kCommandInterface;
    return {input, command};
}

void VirtualKeyboard::setBattery(quint8 percent)
{
    std::lock_guard guard(lock);
    battery = percent;
}

void VirtualKeyboard::dropNextReplies(int n)
{
    std::lock_guard guard(lock);
    dropCount = std::max(0, n);
}

void VirtualKeyboard::shortNextReply(int length)
{
    std::lock_guard guard(lock);
    shortLength = std::max(0, length);
}

void VirtualKeyboard::staleReportNext()
{
    std::lock_guard guard(lock);
    stalePending = true;
}

void VirtualKeyboard::setLinkLatency(int minMs, int maxMs)
{
    std::lock_guard guard(lock);
    latencyMinMs = std::max(0, minMs);
    latencyMaxMs = std::max(latencyMinMs, maxMs);
}

int VirtualKeyboard::readDelayMs(int interfaceIndex)
{
    if (!wireless || !isCommandInterface(interfaceIndex) || latencyMaxMs == 0) return 0;
    // A small linear congruential step: spread over the range, the same on every run.
    latencySeed = latencySeed * 1103515245u + 12345u;
    const int spread = latencyMaxMs - latencyMinMs + 1;
    return latencyMinMs + int((latencySeed >> 16) % quint32(spread));
}

void VirtualKeyboard::onUnplugged()
{
    replyQueue.clear();
    lastKeyReportMs.reset();
}

bool VirtualKeyboard::isCommandInterface(int interfaceIndex) const
{
    return interfaceIndex == (wireless ? kWirelessInterface : kCommandInterface);
}

QByteArray VirtualKeyboard::run(const QByteArray& frame)
{
    firmware.setNow(clock->elapsedMs());
    return firmware.handle(frame.leftJustified(kFrameSize, '\0'));
}

int VirtualKeyboard::sendFeatureReport(int interfaceIndex, const quint8* data, size_t length)
{
    if (wireless && isCommandInterface(interfaceIndex) && length >= 2 &&
        data[0] == Frame::kWiredReportId && data[1] == kStatusCommand) {
        featureBuffer = QByteArray(kFrameSize, '\0');
        featureBuffer[0] = char(kStatusCommand);
        featureBuffer[kStatusBattery] = char(battery);
        featureBuffer[kStatusLink] = 1;
        return int(length);
    }
    if (wireless || !isCommandInterface(interfaceIndex) || length < 2 ||
        data[0] != Frame::kWiredReportId)
        return -1;
    const size_t frameLength = std::min<size_t>(length - 1, kFrameSize);
    const QByteArray answer =
        run(QByteArray(reinterpret_cast<const char*>(data) + 1, int(frameLength)));
    // The music report is a stream with no answer of its own: the reply of the last command
    // stays where the queue's read finds it, however many music reports came in between.
    if (data[1] != kMusicCommand) featureBuffer = answer;
    return int(length);
}

int VirtualKeyboard::deliver(const QByteArray& report, quint8* data, size_t length)
{
    size_t n = std::min<size_t>(length, size_t(report.size()));
    if (shortLength) {
        n = std::min<size_t>(n, size_t(*shortLength));
        shortLength.reset();
    }
    std::memcpy(data, report.constData(), n);
    return int(n);
}

int VirtualKeyboard::getFeatureReport(int interfaceIndex, quint8* data, size_t length)
{
    if (!isCommandInterface(interfaceIndex) || length < 1 || data[0] != Frame::kWiredReportId)
        return -1;
    // Wireless: only the status reply is here; the faults are for the replies on the air.
    if (wireless)
        return deliver(QByteArray(1, char(Frame::kWiredReportId)) + featureBuffer, data, length);
    if (dropCount > 0) {
        --dropCount;
        qCDebug(lcSimulator) << "dropped a feature reply on" << commandPath();
        return -1;
    }
    // The firmware's feature buffer: asking again without a new command reads the same reply.
    return deliver(QByteArray(1, char(Frame::kWiredReportId)) + featureBuffer, data, length);
}

int VirtualKeyboard::write(int interfaceIndex, const quint8* data, size_t length)
{
    if (!wireless || !isCommandInterface(interfaceIndex) || length < 1 ||
        data[0] != Frame::kWirelessReportId)
        return -1;
    if (length >= 2 && data[1] == Frame::kWirelessPrefix) {
        const size_t frameLength = std::min<size_t>(length - 2, kFrameSize);
        QByteArray report;
        report.append(char(Frame::kWirelessReportId));
        report.append(char(Frame::kWirelessPrefix));
        report.append(run(QByteArray(reinterpret_cast<const char*>(data) + 2, int(frameLength))));
        replyQueue.push_back(report);
        if (replyQueue.size() > kMaxQueuedReplies) replyQueue.pop_front();
    }
    return int(length);
}

int VirtualKeyboard::read(int interfaceIndex, quint8* data, size_t length)
{
    if (wireless) return isCommandInterface(interfaceIndex) ? readReply(data, length) : 0;
    return interfaceIndex == kInputInterface ? readKeyTest(data, length) : 0;
}

int VirtualKeyboard::readReply(quint8* data, size_t length)
{
    if (stalePending) {
        stalePending = false;
        QByteArray stale(Frame::kWirelessLength, '\0');
        stale[0] = char(Frame::kWirelessReportId);
        stale[1] = char(Frame::kStaleMarker);
        const size_t n = std::min<size_t>(length, size_t(stale.size()));
        std::memcpy(data, stale.constData(), n);
        return int(n);
    }
    if (dropCount > 0) {
        --dropCount;
        if (!replyQueue.empty()) replyQueue.pop_front();
        qCDebug(lcSimulator) << "dropped a reply on" << commandPath();
        return 0;
    }
    if (replyQueue.empty()) return 0;
    const QByteArray report = replyQueue.front();
    replyQueue.pop_front();
    return deliver(report, data, length);
}

int VirtualKeyboard::readKeyTest(quint8* data, size_t length)
{
    if (!firmware.keyTestOn()) return 0;
    const qint64 now = clock->elapsedMs();
    if (lastKeyReportMs && now - *lastKeyReportMs < kKeyTestIntervalMs) return 0;
    lastKeyReportMs = now;
    const quint16 travel = keyTestTravel(now);
    QByteArray report(kKeyTestReportSize, '\0');
    report[0] = char(kKeyTestReportId);
    report[1] = char(kKeyTestMarker);
    report[2] = char(travel & 0xFF);
    report[3] = char(travel >> 8);
    const size_t n = std::min<size_t>(length, size_t(report.size()));
    std::memcpy(data, report.constData(), n);
    return int(n);
}
