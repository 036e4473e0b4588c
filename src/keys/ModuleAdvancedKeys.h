#pragma once

#include "KeyEntry.h"

#include <QWidget>
#include <array>
#include <memory>
#include <optional>

class Clock;
class ClockTimer;
class CustumSlider;
class DialogDeviceConnect;
class ModuleDKSAdjust;
class ModuleDKSItem;
class ModuleGenKeymapping;
class QAbstractButton;
class QButtonGroup;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QVBoxLayout;

// The key page's advanced keys (its page2): dynamic keystrokes (DKS), mod-tap (MT), toggle
// (TGL) and SnapKey, one tab each. A key clicked on the keyboard becomes the key of the open
// tab, and whatever the key already is loads into the tabs; each tab's save writes the key's
// layers and magnetism tables and says so, for the page to draw the keys again.
//
// The page is only the mode switch over it: the keys under edit and their functions live here.
class ModuleAdvancedKeys : public QWidget
{
    Q_OBJECT

public:
    enum Tab { DksTab = 0, MtTab = 1, TglTab = 2, SnapTab = 3 };
    static constexpr int kDksRows = 4;
    static constexpr double kDefaultTravel = 0.7; // mm
    static constexpr int kHoldInitial = 20;       // as the form is built
    static constexpr int kHoldDefault = 25;       // as the page sets it
    static constexpr int kHoldMaximum = 200;
    static constexpr int kTextDelayMs = 300;

    // pickerArea is what the key picker lies over (the key page); travelArea what the travel
    // popup dims (the keyboard's frame). clock null means real time.
    ModuleAdvancedKeys(DialogDeviceConnect* device, const ModuleGenKeymapping& keys, Clock* clock,
                       QWidget* pickerArea, QWidget* travelArea, QWidget* parent = nullptr);
    ~ModuleAdvancedKeys() override;

    // A key clicked on the keyboard while the advanced keys are shown.
    void onKeyClicked(const QString& text, quint8 code);

    QTabWidget* tabs() const { return tabWidgetAdv; }
    double travel() const { return DKSTravel; }

signals:
    // A save went out; the keyboard's cache holds it.
    void onSaved();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // ---- the form (ModuleAdvancedKeysForm.cpp)
    void buildForm();
    QWidget* buildDksTab();
    QWidget* buildMtTab();
    QWidget* buildTglTab();
    QWidget* buildSnapTab();
    QPushButton* newButton(QWidget* owner, const QString& name, const char* role);
    QLabel* newLabel(QWidget* owner, const QString& name, const char* role);
    QHBoxLayout* tabLayout(QWidget* tab);
    // A tab whose left column holds its key (pushButton_SUFFIX) over its save
    // (pushButton_OKSUFFIX).
    QHBoxLayout* keyedTab(QWidget* tab, const QString& suffix, QPushButton*& key,
                          QPushButton*& save);
    QVBoxLayout* keyColumn(QWidget* caption, QPushButton* key, QPushButton* save);
    QWidget* tipCard(QWidget* owner, QLabel* text);
    // A button that shows a key or a function: its text, or its own caption while the text is
    // empty (the caption follows the language).
    void showOn(QAbstractButton* button, const QString& text);
    void setEmptyCaptions();
    void retranslate();

    // ---- what the tabs do (ModuleAdvancedKeys.cpp)
    void loadKey(const QString& text, quint8 code);
    void openTravel(QLabel* label);
    void onTravelSaved(const QString& text);
    void showTravel();
    // Runs the key picker: its result if accepted.
    std::optional<KeyEntry> pickFunction();
    // The same, into an entry shown on a button.
    void pickInto(KeyEntry& entry, QAbstractButton* button);
    void onHoldText();
    void saveDks();
    void saveMt();
    void saveTgl();
    void saveSnap();
    KeyEntry entryAt(quint8 position, quint8 layer) const;

    DialogDeviceConnect* device;
    const ModuleGenKeymapping& keys;
    Clock* clock;
    QWidget* pickerArea;
    QWidget* travelArea;

    QTabWidget* tabWidgetAdv = nullptr;
    ModuleDKSAdjust* dksAdjust = nullptr;
    QLabel* travelLabel = nullptr; // the label the travel popup was opened from

    // DKS
    QPushButton* pushButton_DKS = nullptr;
    QPushButton* pushButton_OKDKS = nullptr;
    QLabel* labelPress1 = nullptr;
    QLabel* labelPress3 = nullptr;
    QLabel* labelRelease2 = nullptr;
    QLabel* labelRelease4 = nullptr;
    std::array<ModuleDKSItem*, kDksRows> frameDKS{};
    quint8 dksKey = 0;
    double DKSTravel = kDefaultTravel;
    std::array<KeyEntry, kDksRows> dksEntries{};

    // MT
    QPushButton* pushButton_MT = nullptr;
    QButtonGroup* buttonGroupMT = nullptr;
    QPushButton* pushButton_MT1 = nullptr;
    QPushButton* pushButton_MT2 = nullptr;
    CustumSlider* horizontalSlider = nullptr;
    QLineEdit* lineEditValue = nullptr;
    QPushButton* pushButton_OKMT = nullptr;
    std::unique_ptr<ClockTimer> holdTextDelay;
    quint8 mtKey = 0;
    std::array<KeyEntry, 2> mtEntries{};

    // TGL
    QPushButton* pushButton_TGL = nullptr;
    QButtonGroup* buttonGroupTGL = nullptr;
    QPushButton* pushButton_TGL1 = nullptr;
    QRadioButton* radioButton_TGL1 = nullptr;
    QRadioButton* radioButton_TGL2 = nullptr;
    QPushButton* pushButton_OKTGL = nullptr;
    quint8 tglKey = 0;
    KeyEntry tglEntry;

    // SnapKey
    QButtonGroup* buttonGroupSnap = nullptr;
    QPushButton* pushButton_Snap1 = nullptr;
    QPushButton* pushButton_Snap2 = nullptr;
    QRadioButton* radioButton_Snap1 = nullptr;
    QRadioButton* radioButton_Snap2 = nullptr;
    QPushButton* pushButton_OKSnap = nullptr;
    quint8 snapKeyA = 0;
    quint8 snapKeyB = 0;
};
