#include "SettingsOps.h"

#include "CommandLayouts.h"
#include "ConsoleModel.h"
#include "DeviceCache.h"
#include "DeviceLink.h"
#include "EffectCatalogue.h"
#include "Frame.h"

using namespace CommandLayouts;
using Kick = DeviceLink::Kick;

namespace {

constexpr int kLastOptionIndex = 62; // the option block is one 64-byte frame
constexpr int kColourOptionLow = 7;  // options from here on carry a colour

} // namespace

void SettingsOps::writeRowCells(quint8 command, std::initializer_list<std::pair<int, int>> cells)
{
    const int row = p.console.rowOfCommand(command);
    if (row < 0) return;
    for (const auto& [byteIndex, value] : cells)
        p.console.rows().setCell(row, byteIndex, value);
    BuildRowCommand(row, true);
}

void SettingsOps::BuildRowCommand(int row, bool write)
{
    if (p.link.isReadingAll() || row < 0 || row >= p.console.rows().count()) return;
    p.console.setCommandLine(Frame::hexText(p.console.rows().bytes(row)));
    if (write) writeCommandLine();
}

void SettingsOps::writeCommandLine()
{
    if (!p.link.isConnected() || p.link.isReadingAll()) return;
    p.link.enqueue(QByteArray::fromHex(p.console.commandLine().trimmed().toLatin1()),
                   Kick::Immediate);
}

void SettingsOps::DoSetReportRate(quint8 value)
{
    p.cache.reportRate = value;
    writeRowCells(CMD_SET_REPORT, {{2, value}});
}

void SettingsOps::DoSetDebounce(quint8 value)
{
    p.cache.debounce = value;
    writeRowCells(CMD_SET_DEBOUNCE, {{1, value}});
}

void SettingsOps::DoSetLedOnOff(bool off)
{
    writeRowCells(CMD_SET_LEDONOFF, {{1, off ? 0 : 1}, {2, off ? 0 : 1}});
}

void SettingsOps::DoSetLedEffect(int effect, quint8 option)
{
    p.cache.musicOn = effect == EffectCatalogue::kMusic;
    if (!p.cache.musicOn) p.link.stopMusicRound();
    // The low nibble 7 marks a colour option; the user picture carries only its slot.
    const int optionByte =
        option * 16 + (effect == EffectCatalogue::kUserPicture ? 0 : kColourOptionLow);
    writeRowCells(CMD_SET_LEDPARAM, {{1, effect}, {4, optionByte}});
}

void SettingsOps::DoSetLedSpeed(quint8 speed)
{
    writeRowCells(CMD_SET_LEDPARAM, {{2, kLedSpeedSteps - speed}});
}

void SettingsOps::DoSetLedBrightness(int brightness)
{
    writeRowCells(CMD_SET_LEDPARAM, {{3, brightness}});
}

void SettingsOps::DoSetLedColor(quint32 rgb, int option)
{
    if (option >= kColourOptionLow)
        writeRowCells(CMD_SET_LEDPARAM, {{4, option},
                                         {5, int((rgb >> 16) & 0xFF)},
                                         {6, int((rgb >> 8) & 0xFF)},
                                         {7, int(rgb & 0xFF)}});
    else
        writeRowCells(CMD_SET_LEDPARAM, {{4, option}});
}

void SettingsOps::DoSetSideLed(const QByteArray& data)
{
    QByteArray c = data.isEmpty() ? QByteArray(1, '\0') : data;
    c[0] = static_cast<char>(CMD_SET_SLEDPARAM);
    p.link.enqueue(c, Kick::Immediate);
}

void SettingsOps::DoSetKbOption(int index, quint8 value)
{
    if (index < 0 || index > kLastOptionIndex) return;
    // Before the first 89 reply the block is empty; it grows to hold the option.
    QByteArray& block = p.cache.kbOptions;
    if (block.size() < index + 2) block.resize(index + 2, '\0');
    block[0] = static_cast<char>(CMD_SET_KBOPTION);
    block[index + 1] = static_cast<char>(value);
    p.link.enqueue(block, Kick::Immediate);
}

quint8 SettingsOps::GetKbOption(int index) const
{
    const int at = index + 1; // byte 0 is the command
    return at < 0 ? 0 : byteAt(p.cache.kbOptions, std::size_t(at));
}

void SettingsOps::DoSetSleepTime(int minutes, int slot)
{
    if (p.link.isReadingAll()) return;
    std::array<quint16, 4>& times = p.cache.sleepTimes;
    if (slot >= 0 && slot < int(times.size()))
        // Kept to 16 bits, as the wire; counted in 64 bits so a large count only wraps.
        times[slot] = static_cast<quint16>(qint64(minutes) * 60);
    SleepTimeWrite c;
    for (std::size_t i = 0; i < times.size(); ++i)
        putLe(c.seconds[i], times[i]);
    p.link.enqueue(bytes(c), Kick::Immediate);
}
