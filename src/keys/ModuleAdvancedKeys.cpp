#include "ModuleAdvancedKeys.h"

#include "Clock.h"
#include "CustumSlider.h"
#include "DialogDeviceConnect.h"
#include "DialogVKPicker.h"
#include "KeyNameTable.h"
#include "KeyPositions.h"
#include "ModuleDKSAdjust.h"
#include "ModuleDKSItem.h"
#include "ModuleGenKeymapping.h"
#include "ModuleGeneralMasker.h"
#include "NumberText.h"

#include <QButtonGroup>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <algorithm>
#include <cmath>

namespace {

// Magnetism tables and the key modes of table 07.
constexpr quint8 kModeTable = 0x07;
constexpr quint8 kDksTravelTable = 0x04;
constexpr quint8 kHoldTable = 0x05;
constexpr quint8 kDksActionTable = 0x08;
constexpr quint8 kPartnerTable = 0x09;
constexpr quint32 kModeMask = 0x7F;
enum KeyMode : quint32 { Dks = 2, ModTap = 3, ToggleRepeat = 4, ToggleHold = 5, SnapKey = 7 };

// Deliberate: table 08 always gets this word, whatever the switches of the rows show. As two-bit
// fields from the low end it reads 3 3 2 1, 3 2 1 1, 2 1 1 1, 1 1 1 1, a byte per function.
constexpr quint32 kDksActions = 0x55565B6F;
constexpr double kRawPerMillimetre = 200.0;
// Deliberate: the hold time goes out in hundreds of the slider's steps, an integer division.
constexpr int kHoldDivisor = 100;

const char* const kTravelMaskStyle =
    "QDialog { background-color: rgba(240, 240, 240, 0.8);  border: none; border-radius: 32px;}";

} // namespace

ModuleAdvancedKeys::ModuleAdvancedKeys(DialogDeviceConnect* connection,
                                       const ModuleGenKeymapping& keyTables, Clock* clockIn,
                                       QWidget* pickers, QWidget* travel, QWidget* parent)
    : QWidget(parent), device(connection), keys(keyTables),
      clock(clockIn ? clockIn : QtClock::shared()), pickerArea(pickers), travelArea(travel)
{
    buildForm();
    setEmptyCaptions();
    retranslate();
    dksAdjust = new ModuleDKSAdjust(clock, this);
    dksAdjust->hide();

    connect(dksAdjust, &ModuleDKSAdjust::onValueSave, this, &ModuleAdvancedKeys::onTravelSaved);
    for (int row = 0; row < kDksRows; ++row) {
        connect(frameDKS[row], &ModuleDKSItem::onButtonClicked, this, [this, row] {
            if (const std::optional<KeyEntry> picked = pickFunction()) {
                dksEntries[row] = *picked;
                frameDKS[row]->setKeyText(keys.KeyEntryText(*picked, false));
            }
        });
    }
    connect(pushButton_OKDKS, &QPushButton::clicked, this, &ModuleAdvancedKeys::saveDks);

    connect(buttonGroupMT, &QButtonGroup::buttonClicked, this, [this](QAbstractButton* button) {
        pickInto(mtEntries[button == pushButton_MT1 ? 0 : 1], button);
    });
    holdTextDelay = clock->createTimer([this] { onHoldText(); }, true);
    connect(horizontalSlider, &QSlider::valueChanged, lineEditValue,
            [this](int value) { lineEditValue->setText(QStringLiteral("%1 ms").arg(value)); });
    connect(lineEditValue, &QLineEdit::textChanged, this,
            [this] { holdTextDelay->start(kTextDelayMs); });
    horizontalSlider->setValue(kHoldDefault);
    connect(pushButton_OKMT, &QPushButton::clicked, this, &ModuleAdvancedKeys::saveMt);

    connect(buttonGroupTGL, &QButtonGroup::buttonClicked, this,
            [this](QAbstractButton* button) { pickInto(tglEntry, button); });
    connect(pushButton_OKTGL, &QPushButton::clicked, this, &ModuleAdvancedKeys::saveTgl);
    // Choosing the kind saves at once.
    for (QRadioButton* radio : {radioButton_TGL1, radioButton_TGL2})
        connect(radio, &QRadioButton::clicked, pushButton_OKTGL, &QPushButton::click);

    // A press on either key box says which one the next key on the keyboard fills.
    connect(buttonGroupSnap, &QButtonGroup::buttonClicked, this, [this](QAbstractButton* button) {
        (button == pushButton_Snap1 ? radioButton_Snap1 : radioButton_Snap2)->setChecked(true);
    });
    connect(pushButton_OKSnap, &QPushButton::clicked, this, &ModuleAdvancedKeys::saveSnap);
}

ModuleAdvancedKeys::~ModuleAdvancedKeys() = default;

KeyEntry ModuleAdvancedKeys::entryAt(quint8 position, quint8 layer) const
{
    quint8 bytes[KeyEntry::kSize];
    device->GetKeyEntry(bytes, position, layer);
    return KeyEntry(bytes[0], bytes[1], bytes[2], bytes[3]);
}

void ModuleAdvancedKeys::onKeyClicked(const QString& text, quint8 code)
{
    if (!device) return;
    loadKey(text, code);
    switch (tabWidgetAdv->currentIndex()) {
    case DksTab:
        dksKey = code;
        showOn(pushButton_DKS, text);
        break;
    case MtTab:
        mtKey = code;
        showOn(pushButton_MT, text);
        break;
    case TglTab:
        tglKey = code;
        showOn(pushButton_TGL, text);
        break;
    case SnapTab:
        if (radioButton_Snap1->isChecked()) {
            snapKeyA = code;
            showOn(pushButton_Snap1, text);
        } else {
            snapKeyB = code;
            showOn(pushButton_Snap2, text);
        }
        break;
    default:
        break;
    }
}

void ModuleAdvancedKeys::loadKey(const QString& text, quint8 code)
{
    // Whatever tab is open, a key that already is one of these fills its tab; only the open tab
    // makes it the key under edit.
    const quint8 position = PositionOfCode(code);
    QStringList names;
    device->GetKeyDisplay(names, code);
    switch (device->GetKeyMode(code) & kModeMask) {
    case Dks:
        for (int row = 0; row < kDksRows; ++row) {
            frameDKS[row]->setKeyText(names.value(row));
            dksEntries[row] = entryAt(position, quint8(row));
        }
        showOn(pushButton_DKS, text);
        DKSTravel = device->GetMagnetism(kDksTravelTable, position) / kRawPerMillimetre;
        showTravel();
        break;
    case ModTap:
        showOn(pushButton_MT1, names.value(0));
        showOn(pushButton_MT2, names.value(1));
        showOn(pushButton_MT, text);
        mtEntries = {entryAt(position, 0), entryAt(position, 1)};
        break;
    case ToggleRepeat:
    case ToggleHold: {
        showOn(pushButton_TGL1, names.value(0));
        showOn(pushButton_TGL, text);
        const bool repeat = (device->GetKeyMode(code) & kModeMask) == ToggleRepeat;
        (repeat ? radioButton_TGL1 : radioButton_TGL2)->setChecked(true);
        tglEntry = entryAt(position, 0);
        break;
    }
    case SnapKey:
        snapKeyA = code;
        // Deliberate: table 09 holds the partner's matrix position, and it is taken as a key
        // code from here on, named and saved as one.
        snapKeyB = quint8(device->GetKeyOption(position));
        showOn(pushButton_Snap2, KeyNameByCode(snapKeyB));
        break;
    default:
        break;
    }
}

bool ModuleAdvancedKeys::eventFilter(QObject* watched, QEvent* event)
{
    const bool pressPoint = watched == labelPress1 || watched == labelPress3;
    const bool peak = watched == labelRelease2 || watched == labelRelease4;
    if (pressPoint || peak) {
        // The label takes the press, so that the release comes back to it.
        if (event->type() == QEvent::MouseButtonPress) return true;
        if (event->type() == QEvent::MouseButtonRelease) {
            openTravel(pressPoint ? labelPress1 : labelRelease2);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ModuleAdvancedKeys::openTravel(QLabel* label)
{
    travelLabel = label;
    dksAdjust->setValueText(label->text().remove(QStringLiteral("mm")).trimmed());
    {
        ModuleGeneralMasker masker(dksAdjust, travelArea);
        masker.setStyleSheet(QLatin1String(kTravelMaskStyle));
        masker.exec();
    }
    // The masker hands the popup back loose however it closed (Escape hides the masker, and so
    // the popup); the module keeps it.
    dksAdjust->setParent(this);
}

void ModuleAdvancedKeys::onTravelSaved(const QString& text)
{
    // Read in double precision: "0.700" must come back as the 140 steps it shows.
    DKSTravel = text.toDouble();
    showTravel();
}

void ModuleAdvancedKeys::showTravel()
{
    // The press point and the peak are one number.
    const QString shown = QString::asprintf("%.2f mm", DKSTravel);
    labelPress1->setText(shown);
    labelRelease2->setText(shown);
}

std::optional<KeyEntry> ModuleAdvancedKeys::pickFunction()
{
    DialogVKPicker picker(pickerArea);
    if (picker.exec() != QDialog::Accepted) return std::nullopt;
    return picker.entry();
}

void ModuleAdvancedKeys::pickInto(KeyEntry& entry, QAbstractButton* button)
{
    if (const std::optional<KeyEntry> picked = pickFunction()) {
        entry = *picked;
        showOn(button, keys.KeyEntryText(*picked, false));
    }
}

void ModuleAdvancedKeys::onHoldText()
{
    const int value = int(NumberText::toDouble(lineEditValue->text().trimmed()));
    horizontalSlider->setValue(std::clamp(value, 0, kHoldMaximum));
}

void ModuleAdvancedKeys::saveDks()
{
    if (!device || dksKey == 0) return;
    for (int layer = 0; layer < kDksRows; ++layer)
        device->DoSetKey(dksKey, dksEntries[layer].bytes.data(), quint8(layer),
                         layer == kDksRows - 1 ? 1 : 0);
    device->DoSetMagnetism(kModeTable, dksKey, Dks, 0);
    device->DoSetMagnetism(kDksTravelTable, dksKey,
                           quint32(std::trunc(DKSTravel * kRawPerMillimetre)), 0);
    device->DoSetMagnetism(kDksActionTable, dksKey, kDksActions, 1);
    emit onSaved();
}

void ModuleAdvancedKeys::saveMt()
{
    if (!device || mtKey == 0) return;
    device->DoSetKey(mtKey, mtEntries[0].bytes.data(), 0, 0);
    device->DoSetKey(mtKey, mtEntries[1].bytes.data(), 1, 1);
    device->DoSetMagnetism(kModeTable, mtKey, ModTap, 0);
    device->DoSetMagnetism(kHoldTable, mtKey, quint32(horizontalSlider->value() / kHoldDivisor), 1);
    emit onSaved();
}

void ModuleAdvancedKeys::saveTgl()
{
    if (!device || tglKey == 0) return;
    device->DoSetKey(tglKey, tglEntry.bytes.data(), 0, 1);
    device->DoSetMagnetism(kModeTable, tglKey,
                           radioButton_TGL1->isChecked() ? ToggleRepeat : ToggleHold, 1);
    emit onSaved();
}

void ModuleAdvancedKeys::saveSnap()
{
    if (!device || snapKeyA == 0 || snapKeyB == 0) return;
    device->DoSetMagnetism(kModeTable, snapKeyA, SnapKey, 0);
    device->DoSetMagnetism(kModeTable, snapKeyB, SnapKey, 0);
    device->DoSetMagnetism(kPartnerTable, snapKeyA, PositionOfCode(snapKeyB), 0);
    device->DoSetMagnetism(kPartnerTable, snapKeyB, PositionOfCode(snapKeyA), 1);
    emit onSaved();
}

void ModuleAdvancedKeys::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QWidget::changeEvent(event);
}
