#include "VirtualReceiver.h"

#include "Clock.h"
#include "Frame.h"
#include "SimulatorLog.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr quint16 kUsagePage = 0xFFFF;
constexpr quint16 kInputUsage = 1;
constexpr quint16 kCommandUsage = 2;
constexpr int kInputInterface = 0;
constexpr int kCommandInterface = 1;
constexpr int kReplySize = NativeKeyboardModel::kReplySize;

constexpr quint8 kIdentify = 0x8F;
constexpr quint8 kLink = 0xF6;
constexpr quint8 kLinkParameter = 0x0A;
constexpr quint8 kStatus = 0xF7;
constexpr quint8 kPairedId = 0xFC;
// Offsets in the logical reply (the report has the report id in front).
constexpr int kStatusBusy = 0;
constexpr int kStatusBattery = 1;
constexpr int kStatusLink = 5;
constexpr int kIdOffset = 1;

void putId(QByteArray& reply, quint32 id)
{
    for (int i = 0; i < 4; ++i)
        reply[kIdOffset + i] = char((id >> (8 * i)) & 0xFF);
}

} // namespace

VirtualReceiver::VirtualReceiver(std::mutex& backendLock, Clock* deviceClock,
                                 const Identity& receiverIdentity, quint32 pairedId,
                                 const QByteArray& base)
    : VirtualDevice(backendLock, deviceClock), identity(receiverIdentity), pathBase(base),
      keyboard(pairedId != 0 ? std::make_unique<NativeKeyboardModel>(pairedId) : nullptr),
      featureBuffer(kReplySize, '\0'), linkUp(pairedId != 0)
{
}

VirtualReceiver::~VirtualReceiver() = default;

void VirtualReceiver::setBattery(quint8 percent)
{
    std::lock_guard guard(lock);
    battery = percent;
}

QList<quint8> VirtualReceiver::receivedCommands() const
{
    std::lock_guard guard(lock);
    return commands;
}

QList<HidDeviceInfo> VirtualReceiver::interfaces() const
{
    HidDeviceInfo info;
    info.vendorId = identity.vendorId;
    info.productId = identity.productId;
    info.usagePage = kUsagePage;
    info.manufacturer = QStringLiteral("Orbe");
    info.product = QStringLiteral("Orbe 2.4G Receiver");
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

void VirtualReceiver::onUnplugged()
{
    linkUp = keyboard != nullptr;
    linkPolls = relayPolls = 0;
}

QByteArray VirtualReceiver::linkStatus()
{
    if (keyboard && !linkUp && ++linkPolls >= kLinkPolls) linkUp = true;
    QByteArray reply(kReplySize, '\0');
    reply[kStatusBusy] = char(relayPolls > 0 ? kStatus : 0);
    if (relayPolls > 0) --relayPolls;
    reply[kStatusBattery] = char(keyboard ? battery : 0);
    reply[kStatusLink] = char(linkUp ? 1 : 0);
    return reply;
}

QByteArray VirtualReceiver::answer(const QByteArray& frame)
{
    const quint8 command = quint8(frame.at(0));
    commands.append(command);
    QByteArray reply(kReplySize, '\0');
    reply[0] = char(command);
    switch (command) {
    case kIdentify:
        putId(reply, identity.receiverId);
        if (linkUp) relayPolls = kRelayPolls;
        return reply;
    case kLink:
        if (quint8(frame.at(1)) == kLinkParameter && keyboard) {
            linkUp = false;
            linkPolls = 0;
        }
        return frame.left(kReplySize);
    case kStatus:
        return linkStatus();
    case kPairedId:
        putId(reply, keyboard ? keyboard->deviceId() : 0);
        return reply;
    default:
        break;
    }
    if (!keyboard) return frame.left(kReplySize);
    keyboard->setNow(clock->elapsedMs());
    return keyboard->handle(frame);
}

int VirtualReceiver::sendFeatureReport(int interfaceIndex, const quint8* data, size_t length)
{
    if (interfaceIndex != kCommandInterface || length < 2 || data[0] != Frame::kWiredReportId)
        return -1;
    const size_t frameLength = std::min<size_t>(length - 1, kReplySize);
    const QByteArray frame = QByteArray(reinterpret_cast<const char*>(data) + 1, int(frameLength))
                                 .leftJustified(kReplySize, '\0');
    featureBuffer = answer(frame);
    return int(length);
}

int VirtualReceiver::getFeatureReport(int interfaceIndex, quint8* data, size_t length)
{
    if (interfaceIndex != kCommandInterface || length < 1 || data[0] != Frame::kWiredReportId)
        return -1;
    const QByteArray report = QByteArray(1, char(Frame::kWiredReportId)) + featureBuffer;
    const size_t n = std::min<size_t>(length, size_t(report.size()));
    std::memcpy(data, report.constData(), n);
    return int(n);
}
