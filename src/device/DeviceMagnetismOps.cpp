// Per-key magnetism values, the key-test stream and the calibration scan.

#include "Clock.h"
#include "CommandCatalogue.h"
#include "DeviceBytes.h"
#include "DialogDeviceConnect.h"
#include "KeyPositions.h"
#include "MagnetTables.h"

namespace {

constexpr int kMagnetFrameLength = 12;
constexpr int kValueOffset = 8;
constexpr quint8 kKeyModeTable = 0x07;
constexpr quint8 kSnapPartnerTable = 0x09;
constexpr quint8 kKeyFlag = 0x80;

} // namespace

void DialogDeviceConnect::DoSetMagnetism(quint8 table, quint8 keyCode, quint32 value,
                                         quint8 commit)
{
    if (readingAll)
        return;
    // Key code FF gives position FF, which the keyboard takes as every key; the cache has no
    // such position and is left alone.
    const quint8 position = PositionOfCode(keyCode);
    QByteArray c = DeviceBytes::command(CommandCatalogue::CMD_WRITE_MAGNETISM, kMagnetFrameLength);
    c[1] = static_cast<char>(table);
    c[3] = static_cast<char>(position);
    c[4] = static_cast<char>(commit);
    DeviceBytes::putU32(c, kValueOffset, value); // whole, whatever the table's width
    enqueue(c, Kick::Immediate);
    SetMagnetism(table, position, value);
}

quint32 DialogDeviceConnect::GetMagnetism(quint8 table, quint8 position) const
{
    const int index = MagnetTables::indexOf(table);
    if (index < 0 || position >= MagnetTables::kValues)
        return 0;
    const int width = MagnetTables::kTables[index].width;
    const QByteArray& cache = magnetTables[index];
    if ((position + 1) * width > cache.size())
        return 0;
    quint32 value = 0;
    for (int i = width - 1; i >= 0; --i)
        value = (value << 8) | DeviceBytes::at(cache, position * width + i);
    return value;
}

void DialogDeviceConnect::SetMagnetism(quint8 table, quint8 position, quint32 value)
{
    const int index = MagnetTables::indexOf(table);
    if (index < 0 || position >= MagnetTables::kValues)
        return;
    const int width = MagnetTables::kTables[index].width;
    QByteArray& cache = magnetTables[index];
    if (cache.size() < MagnetTables::kValues * width)
        cache.resize(MagnetTables::kValues * width, '\0');
    for (int i = 0; i < width; ++i)
        cache[position * width + i] = static_cast<char>((value >> (8 * i)) & 0xFF);
}

quint32 DialogDeviceConnect::GetKeyMode(quint8 keyCode) const
{
    return GetMagnetism(kKeyModeTable, PositionOfCode(keyCode));
}

quint32 DialogDeviceConnect::GetKeyOption(quint8 position) const
{
    return GetMagnetism(kSnapPartnerTable, position);
}

void DialogDeviceConnect::DoSetKeyFlag(quint8 keyCode, bool on)
{
    const quint8 position = PositionOfCode(keyCode);
    quint32 mode = GetMagnetism(kKeyModeTable, position);
    mode = on ? (mode | kKeyFlag) : (mode & ~quint32(kKeyFlag));
    SetMagnetism(kKeyModeTable, position, mode);
    DoSetMagnetism(kKeyModeTable, keyCode, mode, 1);
}

void DialogDeviceConnect::DoStartKeyTest()
{
    if (readingAll)
        return;
    emit onKeyTesting(true);
    calibrationBuffer.clear();
    DoSendHex("1B 01", true);
}

void DialogDeviceConnect::DoStopKeyTest()
{
    if (readingAll)
        return;
    emit onKeyTesting(false);
    sendQueue.clear();
    DoSendHex("1B 00", true);
}

void DialogDeviceConnect::DoStartCalibration()
{
    // A read sequence's own FE pages would land in the calibration buffer.
    if (readingAll)
        return;
    calibrating = true;
    if (!calibrationTimer)
        calibrationTimer = clock->createTimer([this] { calibrationTick(); }, false);
    calibrationBuffer.clear();
    DoSendHex("1E 01", true);
    calibrationTimer->start(kCalibrationTickMs);
}

void DialogDeviceConnect::calibrationTick()
{
    // The page counter lives as long as the program; a scan started with the counter mid-way
    // gives a short first scan, which the receiver takes as it comes.
    static quint64 counter = 0;
    const quint64 page = counter & 3;
    ++counter;
    DoSendHex(QString::asprintf("E5 FE 01 %02X", unsigned(page)), false);
}

void DialogDeviceConnect::DoStopCalibration()
{
    calibrating = false;
    if (calibrationTimer)
        calibrationTimer->stop();
    sendQueue.clear();
    DoSendHex("1E 00", true);
}
