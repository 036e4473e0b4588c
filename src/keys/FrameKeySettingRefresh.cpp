// The key page's two layer refreshes and what a click on a key does.

#include "DialogDeviceConnect.h"
#include "DialogFNPicker.h"
#include "FrameKeySetting.h"
#include "KeyEntry.h"
#include "KeyNameTable.h"
#include "KeyPositions.h"
#include "Macro.h"
#include "ModuleAdvancedKeys.h"
#include "ModuleDeviceOptions.h"
#include "ModuleGenKeymapping.h"
#include "ModuleKeyboard.h"
#include "ModuleMacroManager.h"

namespace {

constexpr int kPositions = 128;
constexpr quint8 kLayer0 = 0;
constexpr quint8 kFnLayer = 0xF0;
constexpr quint32 kModeMask = 0x7F;
constexpr quint8 kMacroKind = 0x09;
const QString kDisabled = QStringLiteral("DISABLED");

// Key modes of magnetism table 07.
enum KeyMode : quint32 { Dks = 2, ModTap = 3, ToggleA = 4, ToggleB = 5, SnapKey = 7 };

KeyEntry entryAt(const DialogDeviceConnect& device, quint8 position, quint8 layer)
{
    quint8 bytes[KeyEntry::kSize];
    device.GetKeyEntry(bytes, position, layer);
    return KeyEntry(bytes[0], bytes[1], bytes[2], bytes[3]);
}

} // namespace

void FrameKeySetting::RefreshPage()
{
    if (mode == Custom)
        RefreshCustomLayer();
    else if (mode == FnLayer)
        RefreshFnLayer();
}

void FrameKeySetting::RefreshCustomLayer()
{
    if (!device || device->isReadingAll()) return;
    holdRefreshing(kCustomHoldMs);
    for (int position = 0; position < kPositions; ++position) {
        const KeyEntry entry = entryAt(*device, quint8(position), kLayer0);
        const quint8 code = CodeOfPosition(quint8(position));
        const quint32 keyMode = device->GetKeyMode(code) & kModeMask;
        if (!IsModifiedEntry(quint8(position), entry) && keyMode == 0) {
            frameKeyboard->setKeyTooltip(code, QString(), QString(), true);
            continue;
        }
        QString title = KeyNameByCode(code);
        QString body = keys.KeyEntryText(entry, true);
        QStringList names;
        device->GetKeyDisplay(names, code);
        switch (keyMode) {
        case Dks:
            body = tr("动态键程") + QStringLiteral("(DKS):\n") + names.value(0) + u'\n' +
                   names.value(1) + u'\n' + names.value(2) + u'\n' + names.value(3);
            break;
        case ModTap:
            body = tr("按住单击") + QStringLiteral("(MT):\n") + names.value(0) +
                   QStringLiteral(":\n") + names.value(1);
            break;
        case ToggleA:
        case ToggleB:
            body = tr("切换开关") + QStringLiteral("(TGL):\n") + names.value(0);
            break;
        case SnapKey:
            body = QStringLiteral("SnapKey:\n") + names.value(0);
            break;
        default:
            break;
        }
        if (entry.kind() == kMacroKind) {
            if (const Macro* macro = macros.FindMacro(entry[2]))
                body = tr("宏设置") + QStringLiteral(":\n") + macro->name;
        }
        if (entry.isEmpty()) title = kDisabled;
        frameKeyboard->setKeyTooltip(code, title.trimmed(), body.trimmed(), true);
    }
    options->fill();
}

void FrameKeySetting::RefreshFnLayer()
{
    if (!device || device->isReadingAll()) return;
    holdRefreshing(kFnHoldMs);
    static const KeyEntry allSet(0xFF, 0xFF, 0xFF, 0xFF);
    static const KeyEntry switchedOff(0x00, 0x00, 0x00, 0x01);
    for (int position = 0; position < kPositions; ++position) {
        const KeyEntry entry = entryAt(*device, quint8(position), kFnLayer);
        // An empty Fn entry leaves the key as it is: a custom binding keeps its bubble.
        if (entry.isEmpty() || entry == allSet) continue;
        const quint8 code = CodeOfPosition(quint8(position));
        // The key's content goes first only where the key is to be disabled: a bubble would keep
        // it enabled. Any other key's texts are replaced below as they stand.
        if (entry == switchedOff) frameKeyboard->setKeyTooltip(code, QString(), QString(), true);
        QString title = QStringLiteral("Fn + ") + KeyNameByCode(code);
        QString body = keys.KeyEntryText(entry, true);
        if (body.isEmpty()) body = tr("系统按键");
        if (entry == switchedOff) title = kDisabled;
        frameKeyboard->setKeyTooltip(code, title.trimmed(), body.trimmed(), true);
    }
    options->fill();
}

void FrameKeySetting::onPickKey(const QString& text, uchar code)
{
    if (mode == Advanced) {
        advanced->onKeyClicked(text, code);
        return;
    }
    if (mode != Custom && mode != FnLayer) return;
    if (!device) return;
    DialogFNPicker picker(keys, macros, this);
    if (picker.exec() != QDialog::Accepted) return;
    const KeyEntry entry = picker.entry();
    if (mode == FnLayer) {
        // The macro tab is there too; its bytes go out as they stand.
        device->DoSetFn(code, entry.bytes.data());
        RefreshFnLayer();
        return;
    }
    if (picker.isMacro()) {
        const quint8 repeat = entry[0];
        const quint8 playMode = entry[1];
        const quint8 slot = entry[2];
        const QByteArray stream = ModuleMacroManager::PackMacro(macros.FindMacro(slot));
        device->DoSetMacro(code, repeat, playMode, slot, stream);
        RefreshCustomLayer();
        return;
    }
    device->DoSetKey(code, entry.bytes.data(), kLayer0, 1);
    RefreshCustomLayer();
}

void FrameKeySetting::onKeyChanged(uchar hid, uchar, bool enable)
{
    if (mode == FnLayer && device) device->DoSetFnCode(hid, enable);
}
