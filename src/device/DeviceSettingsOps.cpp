// Settings and lighting: the small commands. Report rate, debounce, LED on/off and the LED
// parameters are not built here: each operation changes a cell of its console row and sends the
// row whole, so the row is the one store of those bytes.

#include "CommandCatalogue.h"
#include "DeviceBytes.h"
#include "DialogDeviceConnect.h"

namespace {

constexpr int kEffectUserPicture = 13;
constexpr int kEffectMusic = 22;
constexpr int kSleepFrameLength = 16;
constexpr int kSleepOffset = 8;

} // namespace

void DialogDeviceConnect::writeRowCells(quint8 command,
                                        std::initializer_list<std::pair<int, int>> cells)
{
    const int row = consoleRows.rowOf(command);
    if (row < 0)
        return;
    for (const auto& [byteIndex, value] : cells)
        consoleRows.setCell(row, byteIndex, value);
    BuildRowCommand(row, true);
}

void DialogDeviceConnect::DoSetReportRate(quint8 value)
{
    reportRate = value;
    writeRowCells(CommandCatalogue::CMD_SET_REPORT, {{2, value}});
}

void DialogDeviceConnect::DoSetDebounce(quint8 value)
{
    debounce = value;
    writeRowCells(CommandCatalogue::CMD_SET_DEBOUNCE, {{1, value}});
}

void DialogDeviceConnect::DoSetLedOnOff(bool off)
{
    writeRowCells(CommandCatalogue::CMD_SET_LEDONOFF, {{1, off ? 0 : 1}, {2, off ? 0 : 1}});
}

void DialogDeviceConnect::DoSetLedEffect(int effect, quint8 option)
{
    musicOn = effect == kEffectMusic;
    // The low nibble 7 marks a colour option; the user picture carries only its slot.
    const int optionByte = option * 16 + (effect == kEffectUserPicture ? 0 : 7);
    writeRowCells(CommandCatalogue::CMD_SET_LEDPARAM, {{1, effect}, {4, optionByte}});
}

void DialogDeviceConnect::DoSetLedSpeed(quint8 speed)
{
    // The keyboard counts speed the other way round.
    writeRowCells(CommandCatalogue::CMD_SET_LEDPARAM, {{2, 4 - speed}});
}

void DialogDeviceConnect::DoSetLedBrightness(int brightness)
{
    writeRowCells(CommandCatalogue::CMD_SET_LEDPARAM, {{3, brightness}});
}

void DialogDeviceConnect::DoSetLedColor(quint32 rgb, int option)
{
    if (option > 6)
        writeRowCells(CommandCatalogue::CMD_SET_LEDPARAM,
                      {{4, option},
                       {5, int((rgb >> 16) & 0xFF)},
                       {6, int((rgb >> 8) & 0xFF)},
                       {7, int(rgb & 0xFF)}});
    else
        writeRowCells(CommandCatalogue::CMD_SET_LEDPARAM, {{4, option}});
}

void DialogDeviceConnect::DoSetSideLed(const QByteArray& data)
{
    QByteArray c = data.isEmpty() ? QByteArray(1, '\0') : data;
    c[0] = static_cast<char>(CommandCatalogue::CMD_SET_SLEDPARAM);
    enqueue(c, Kick::Immediate);
}

void DialogDeviceConnect::DoSetKbOption(int index, quint8 value)
{
    if (index < 0 || index > 62)
        return;
    // Before the first 89 reply the block is empty; it grows to hold the option.
    if (kbOptions.size() < index + 2)
        kbOptions.resize(index + 2, '\0');
    kbOptions[0] = static_cast<char>(CommandCatalogue::CMD_SET_KBOPTION);
    kbOptions[index + 1] = static_cast<char>(value);
    enqueue(kbOptions, Kick::Immediate);
}

quint8 DialogDeviceConnect::GetKbOption(int index) const
{
    return DeviceBytes::at(kbOptions, index + 1);
}

void DialogDeviceConnect::DoSetSleepTime(int minutes, int slot)
{
    if (readingAll)
        return;
    if (slot >= 0 && slot < int(sleepTimes.size()))
        sleepTimes[slot] = static_cast<quint16>(minutes * 60); // kept to 16 bits, as the wire
    QByteArray c = DeviceBytes::command(CommandCatalogue::CMD_SET_SLEEPTIME, kSleepFrameLength);
    for (int i = 0; i < int(sleepTimes.size()); ++i)
        DeviceBytes::putU16(c, kSleepOffset + 2 * i, sleepTimes[i]);
    enqueue(c, Kick::Immediate);
}
