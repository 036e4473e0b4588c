#pragma once

#include "DeviceParts.h"

#include <QByteArray>
#include <initializer_list>
#include <utility>

// Settings and lighting: the small commands, and the console's row writes they go through.
// Report rate, debounce, LED on/off and the LED parameters are not built here: each operation
// changes a cell of its console row and sends the row whole, so the row is the one store of
// those bytes.
class SettingsOps
{
public:
    explicit SettingsOps(const DeviceParts& parts) : p(parts) {}

    void DoSetReportRate(quint8 value);
    void DoSetDebounce(quint8 value);
    void DoSetLedOnOff(bool off);
    void DoSetLedEffect(int effect, quint8 option);
    void DoSetLedSpeed(quint8 speed);
    void DoSetLedBrightness(int brightness);
    void DoSetLedColor(quint32 rgb, int option);
    void DoSetSideLed(const QByteArray& data);
    void DoSetKbOption(int index, quint8 value);
    quint8 GetKbOption(int index) const;
    void DoSetSleepTime(int minutes, int slot);

    // Sets cells (Byte1..Byte7 by number) of a command's row and sends the row.
    void writeRowCells(quint8 command, std::initializer_list<std::pair<int, int>> cells);
    // The row's eight bytes into the command line and, with write, out.
    void BuildRowCommand(int row, bool write);
    // Sends the command line as far as it parses as hex.
    void writeCommandLine();

private:
    DeviceParts p;
};
