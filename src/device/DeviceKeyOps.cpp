// Key matrix and Fn layer writes. The cache is written by the sender at once: the keyboard is
// taken to have accepted, and the next read sequence replaces the cache with what it holds.

#include "CommandCatalogue.h"
#include "DefaultKeyMaps.h"
#include "DeviceBytes.h"
#include "DialogDeviceConnect.h"
#include "KeyEntry.h"
#include "KeyNameTable.h"
#include "KeyPositions.h"
#include "MagnetTables.h"
#include "ModuleGenKeymapping.h"

namespace {

constexpr int kKeyFrameLength = 12;
constexpr int kEntryOffset = 8;
constexpr int kKeyModeMask = 0x7F;
constexpr int kModeSnapKey = 7;

void writeEntry(QByteArray& matrix, quint8 position, const quint8 entry[4])
{
    if (position >= DefaultKeyMaps::kPositions)
        return;
    if (matrix.size() < DefaultKeyMaps::kMatrixSize)
        matrix.resize(DefaultKeyMaps::kMatrixSize, '\0');
    for (int i = 0; i < 4; ++i)
        matrix[position * 4 + i] = static_cast<char>(entry[i]);
}

} // namespace

void DialogDeviceConnect::DoSetKey(quint8 keyCode, const quint8 entry[4], quint8 layer,
                                   quint8 last)
{
    if (readingAll)
        return;
    const quint8 position = PositionOfCode(keyCode);
    QByteArray c = DeviceBytes::command(CommandCatalogue::CMD_SET_KEYMATRIX, kKeyFrameLength);
    c[1] = static_cast<char>(currentProfile);
    c[2] = static_cast<char>(position);
    c[5] = static_cast<char>(last);
    c[6] = static_cast<char>(layer);
    for (int i = 0; i < 4; ++i)
        c[kEntryOffset + i] = static_cast<char>(entry[i]);
    enqueue(c, Kick::Immediate);
    if (layer < kKeySlots)
        writeEntry(keyMatrix[layer], position, entry);
}

void DialogDeviceConnect::DoSetFn(quint8 keyCode, const quint8 entry[4])
{
    if (readingAll)
        return;
    const quint8 position = PositionOfCode(keyCode);
    QByteArray c = DeviceBytes::command(CommandCatalogue::CMD_SET_FN, kKeyFrameLength);
    c[3] = static_cast<char>(position);
    for (int i = 0; i < 4; ++i)
        c[kEntryOffset + i] = static_cast<char>(entry[i]);
    enqueue(c, Kick::Immediate);
    writeEntry(fnMatrix[0], position, entry);
}

void DialogDeviceConnect::DoSetKeyCode(quint8 keyCode, bool enabled, quint8 layer)
{
    const quint8 plain[4] = {0, 0, keyCode, 0};
    const quint8 none[4] = {0, 0, 0, 0};
    DoSetKey(keyCode, enabled ? plain : none, layer, 1);
}

void DialogDeviceConnect::DoSetFnCode(quint8 keyCode, bool enabled)
{
    // On the Fn layer an empty entry means "as the key is"; 00 00 00 01 switches the key off.
    const quint8 asIs[4] = {0, 0, 0, 0};
    const quint8 off[4] = {0, 0, 0, 1};
    DoSetFn(keyCode, enabled ? asIs : off);
}

void DialogDeviceConnect::DoResetKey(quint8 keyCode)
{
    if (readingAll)
        return;
    const quint8 plain[4] = {0, 0, keyCode, 0};
    const quint8 none[4] = {0, 0, 0, 0};
    DoSetKey(keyCode, plain, 0, 0);
    DoSetKey(keyCode, none, 1, 0);
    DoSetKey(keyCode, none, 2, 0);
    DoSetKey(keyCode, none, 3, 1);
    DoSetMagnetism(0x07, keyCode, 0, 0);
    DoSetMagnetism(0x00, keyCode, 400, 0);
    DoSetMagnetism(0x01, keyCode, 560, 0);
    DoSetMagnetism(0x06, keyCode, 60, 0);
    DoSetMagnetism(0xFB, keyCode, 60, 0);
    DoSetMagnetism(0xFC, keyCode, 2, 1);
}

void DialogDeviceConnect::GetKeyDisplay(QStringList& out, quint8 keyCode) const
{
    out.clear();
    const quint8 position = PositionOfCode(keyCode);
    const QByteArray& modes = magnetTables[MagnetTables::indexOf(0x07)];
    if (position >= modes.size())
        return;
    if ((DeviceBytes::at(modes, position) & kKeyModeMask) == kModeSnapKey) {
        // Table 09 holds the partner's position, and it is named as if it were a key code;
        // that is how the keyboard's pages have always shown it.
        out.append(KeyNameByCode(quint8(GetMagnetism(0x09, position) & 0xFF)));
        return;
    }
    for (quint8 layer = 0; layer < 4; ++layer) {
        quint8 e[4];
        GetKeyEntry(e, position, layer);
        out.append(ModuleGenKeymapping::instance().KeyEntryText(KeyEntry(e[0], e[1], e[2], e[3]),
                                                                false));
    }
}
