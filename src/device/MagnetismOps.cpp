#include "MagnetismOps.h"

#include "Clock.h"
#include "CommandLayouts.h"
#include "ConsoleModel.h"
#include "DeviceCache.h"
#include "DeviceLink.h"
#include "DialogDeviceConnect.h"
#include "KeyPositions.h"

using namespace CommandLayouts;
using Kick = DeviceLink::Kick;

namespace {

constexpr quint8 kCalibrationPages = 4;
constexpr quint32 kKeyFlag = 0x80;
// The input reports that carry a key-test sample: report 05, or the stream's 1B in byte 1.
constexpr quint8 kKeyTestReport = 0x05;
constexpr quint8 kKeyTestStream = CMD_KEY_TEST;
constexpr std::size_t kKeyTravelOffset = 2;
constexpr double kKeyTestFullTravel = 720.0; // what the stream counts at the bottom

} // namespace

MagnetismOps::MagnetismOps(const DeviceParts& parts) : p(parts) {}

MagnetismOps::~MagnetismOps() = default;

void MagnetismOps::DoSetMagnetism(quint8 table, quint8 keyCode, quint32 value, quint8 commit)
{
    if (p.link.isReadingAll()) return;
    // Key code FF gives position FF, which the keyboard takes as every key; the cache has no
    // such position and is left alone.
    const quint8 position = PositionOfCode(keyCode);
    MagnetWrite c{.table = table, .position = position, .commit = commit};
    putLe(c.value, value); // whole, whatever the table's width
    p.link.enqueue(bytes(c), Kick::Immediate);
    p.cache.setMagnetism(table, position, value);
}

quint32 MagnetismOps::GetKeyMode(quint8 keyCode) const
{
    return p.cache.magnetism(MagnetTables::kKeyModeTable, PositionOfCode(keyCode));
}

quint32 MagnetismOps::GetKeyOption(quint8 position) const
{
    return p.cache.magnetism(MagnetTables::kSnapPartnerTable, position);
}

void MagnetismOps::DoSetKeyFlag(quint8 keyCode, bool on)
{
    const quint8 position = PositionOfCode(keyCode);
    quint32 mode = p.cache.magnetism(MagnetTables::kKeyModeTable, position);
    mode = on ? (mode | kKeyFlag) : (mode & ~kKeyFlag);
    p.cache.setMagnetism(MagnetTables::kKeyModeTable, position, mode);
    DoSetMagnetism(MagnetTables::kKeyModeTable, keyCode, mode, 1);
}

void MagnetismOps::DoStartKeyTest()
{
    if (p.link.isReadingAll()) return;
    emit p.front.onKeyTesting(true);
    p.cache.calibrationBuffer.clear();
    p.link.enqueue(bytes(Switch{CMD_KEY_TEST, 1}), Kick::Immediate);
}

void MagnetismOps::DoStopKeyTest()
{
    if (p.link.isReadingAll()) return;
    emit p.front.onKeyTesting(false);
    p.link.clearQueue();
    p.link.enqueue(bytes(Switch{CMD_KEY_TEST, 0}), Kick::Immediate);
}

void MagnetismOps::DoStartCalibration()
{
    // A read sequence's own FE pages would land in the calibration buffer.
    if (p.link.isReadingAll()) return;
    p.cache.calibrating = true;
    if (!calibrationTimer)
        calibrationTimer = p.clock.createTimer([this] { calibrationTick(); }, false);
    p.cache.calibrationBuffer.clear();
    p.link.enqueue(bytes(Switch{CMD_CALIBRATION, 1}), Kick::Immediate);
    calibrationTimer->start(kCalibrationTickMs);
}

void MagnetismOps::calibrationTick()
{
    const u8 page = u8(calibrationPages++ % kCalibrationPages);
    p.link.enqueue(bytes(MagnetRead{.table = MagnetTables::kSensorTable, .page = page}),
                   Kick::Deferred);
}

void MagnetismOps::DoStopCalibration()
{
    p.cache.calibrating = false;
    if (calibrationTimer) calibrationTimer->stop();
    p.link.clearQueue();
    p.link.enqueue(bytes(Switch{CMD_CALIBRATION, 0}), Kick::Immediate);
}

void MagnetismOps::takeInputReport(const QByteArray& report)
{
    p.console.log(report, true);
    if (byteAt(report, 0) != kKeyTestReport && byteAt(report, 1) != kKeyTestStream) return;
    p.cache.keyTravel = static_cast<float>(leAt(report, kKeyTravelOffset, 2) / kKeyTestFullTravel);
    emit p.front.onKeyTest();
}
