#include "ReplyDispatch.h"

#include "CommandLayouts.h"
#include "ConsoleModel.h"
#include "DeviceCache.h"
#include "DeviceLink.h"
#include "DeviceLog.h"
#include "DialogDeviceConnect.h"

using namespace CommandLayouts;

namespace {

// Replies to commands outside this range are dispatched nowhere.
constexpr int kDispatchLow = CMD_GET_REPORT;
constexpr int kDispatchHigh = CMD_READ_MAGNETISM;
constexpr quint8 kReadReplyBit = 0x80;
constexpr int kConsoleBytes = 7; // Byte1 .. Byte7
constexpr int kLoggedHead = 8;
constexpr quint8 kLastCalibrationPage = 3;
constexpr quint8 kLastPicturePage = 5;

} // namespace

void ReplyDispatch::take(const QByteArray& reply)
{
    showReadRow(reply);
    dispatch(reply);
    emit p.front.onReadBack(reply);
    p.console.log(p.link.lastCommand().left(kLoggedHead), false);
    p.console.log(reply, true);
}

void ReplyDispatch::showReadRow(const QByteArray& reply)
{
    // Bit 7 marks a read reply; the console shows its bytes in the row of that command.
    const quint8 first = byteAt(reply, 0);
    if (!(first & kReadReplyBit)) return;
    const int row = p.console.rowOfCommand(first);
    if (row < 0) return;
    for (int i = 1; i <= kConsoleBytes; ++i)
        p.console.rows().setCell(row, i, byteAt(reply, i));
}

void ReplyDispatch::dispatch(const QByteArray& reply)
{
    const QByteArray sent = p.link.lastCommand();
    const int command = byteAt(sent, 0);
    if (command < kDispatchLow || command > kDispatchHigh) return;
    DeviceCache& cache = p.cache;
    switch (command) {
    case CMD_GET_REPORT:
        cache.reportRate = byteAt(reply, offsetof(ReportRateReply, rate));
        break;
    case CMD_GET_PROFILE:
        emit p.front.onUpdataLayer(static_cast<qint8>(byteAt(reply, offsetof(ValueReply, value))));
        break;
    case CMD_GET_DEBOUNCE:
        cache.debounce = byteAt(reply, offsetof(ValueReply, value));
        break;
    case CMD_GET_LEDPARAM:
    case CMD_GET_SLEDPARAM:
        storeLedParams(reply, command == CMD_GET_SLEDPARAM);
        break;
    case CMD_GET_KBOPTION:
        cache.kbOptions = reply;
        qCDebug(lcDevice).noquote() << "get_:" << QString::fromLatin1(reply.toHex().toUpper());
        p.link.enqueue(plain(CMD_GET_PROFILE), DeviceLink::Kick::Deferred);
        break;
    case CMD_GET_KEYMATRIX:
        if (const int slot = byteAt(sent, offsetof(KeyMatrixRead, layer));
            slot < DeviceCache::kKeySlots)
            cache.keyPages[slot].append(reply);
        break;
    case CMD_GET_USERPIC:
        cache.userPicture.append(reply);
        if (byteAt(sent, offsetof(PictureRead, page)) == kLastPicturePage)
            emit p.front.onGetPictrue(cache.userPicture);
        break;
    case CMD_GET_INFOR:
        cache.storeIdentity(reply);
        p.console.setVersion(cache.firmwareVersion, cache.deviceId);
        p.link.enqueue(plain(CMD_GET_KBOPTION), DeviceLink::Kick::Deferred);
        break;
    case CMD_GET_FN:
        if (const int slot = byteAt(sent, offsetof(FnRead, slot)); slot < DeviceCache::kKeySlots)
            cache.fnPages[slot].append(reply);
        break;
    case CMD_GET_SLEEPTIME:
        for (int i = 0; i < int(cache.sleepTimes.size()); ++i)
            cache.sleepTimes[i] =
                quint16(leAt(reply, offsetof(SleepTimeReply, seconds) + 2 * std::size_t(i), 2));
        break;
    case CMD_READ_MAGNETISM:
        storeMagnetPage(reply);
        break;
    default:
        break;
    }
}

void ReplyDispatch::storeLedParams(const QByteArray& reply, bool side)
{
    const int effect = static_cast<qint8>(byteAt(reply, offsetof(ValueReply, value)));
    if (side && effect >= 0 && effect < DeviceCache::kSideLedSlots)
        p.cache.sideLedParams[effect] = reply;
    else if (!side && effect >= 0 && effect < DeviceCache::kLedSlots)
        p.cache.ledParams[effect] = reply;
    // The row of the matching write shows effect, speed (counted the keyboard's way round) and
    // brightness, so that the next row write sends them back as they are.
    ConsoleRows& rows = p.console.rows();
    const int row = rows.rowOf(side ? CMD_SET_SLEDPARAM : CMD_SET_LEDPARAM);
    rows.setCell(row, 1, byteAt(reply, offsetof(ValueReply, value)));
    rows.setCell(row, 2, kLedSpeedSteps - byteAt(reply, offsetof(ValueReply, speed)));
    rows.setCell(row, 3, byteAt(reply, offsetof(ValueReply, brightness)));
}

void ReplyDispatch::storeMagnetPage(const QByteArray& reply)
{
    const QByteArray sent = p.link.lastCommand();
    const quint8 table = byteAt(sent, offsetof(MagnetRead, table));
    DeviceCache& cache = p.cache;
    if (cache.calibrating && table == MagnetTables::kSensorTable) {
        cache.calibrationBuffer.append(reply);
        if (byteAt(sent, offsetof(MagnetRead, page)) == kLastCalibrationPage) {
            const QByteArray scan = cache.calibrationBuffer;
            cache.calibrationBuffer.clear();
            emit p.front.onCalibration(scan);
        }
    } else if (const int index = MagnetTables::indexOf(table); index >= 0) {
        cache.magnetTables[index].append(reply);
    }
}
