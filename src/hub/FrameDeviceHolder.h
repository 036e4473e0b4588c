#pragma once

#include "DeviceEnumInfo.h"

#include <QFrame>
#include <QList>
#include <QString>
#include <memory>

class Clock;
class DialogDeviceConnect;
class FrameKeySetting;
class FrameLight;
class FrameMain;
class ModuleGenKeymapping;
class ModuleMacroManager;
class QButtonGroup;
class QLabel;
class QPushButton;
class SuperLabel;

// The page of a native keyboard: a navigation column, a toolbar with the device's name, badges
// and onboard profiles, and six pages. It is given the program's one connection, the key tables
// and the macro store, and hands them to its pages.
class FrameDeviceHolder : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kPageCount = 6;
    static constexpr QSize kPageSize{1124, 740};
    static constexpr int kLayerCount = 4;

    // device, keys, macros and clock (the pages' timers) must outlive the shell. worksFolder
    // holds the light page's works library.
    FrameDeviceHolder(DialogDeviceConnect* device, ModuleGenKeymapping& keys,
                      ModuleMacroManager& macros, const QString& worksFolder, Clock* clock,
                      QWidget* parent = nullptr);
    ~FrameDeviceHolder() override;

    DialogDeviceConnect* connection() const { return device; }
    ModuleGenKeymapping& keyTables() const { return keys; }
    ModuleMacroManager& macroStore() const { return macros; }
    // The record of the device shown, as the window handed it over.
    const DeviceEnumInfo& currentDevice() const { return current; }
    // The page shown, 0 to 5.
    int currentPage() const { return pageIndex; }
    QWidget* page(int index) const { return pages.value(index); }
    FrameKeySetting* keySetting() const { return frameKeySetting; }
    FrameLight* light() const { return frameLight; }

    void setDevice(const DeviceEnumInfo& device, const QString& deviceImage, const QString& name);
    // Ignored while the connection reads the keyboard; 6 and 7 leave the shell.
    void showPage(SuperLabel* label, int index);
    // Presses the button of an onboard profile, 0 to 3; other values do nothing.
    void setLayer(int layer);
    // A card's battery answer; ignored unless it is about the device shown.
    void showBattery(const QString& devicePath, const QString& battImg, const QString& typeImg,
                     const QString& tip, const QString& style);

signals:
    void onReturn();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildForm();
    QWidget* buildToolbar();
    void retranslate(bool languageChange);
    void onLayerClicked(int id);
    void openCalibration();

    DialogDeviceConnect* device;
    Clock* clock;
    ModuleGenKeymapping& keys;
    ModuleMacroManager& macros;
    DeviceEnumInfo current;
    QList<SuperLabel*> labels;
    QList<QWidget*> pages;
    FrameMain* frameMain = nullptr;
    FrameKeySetting* frameKeySetting = nullptr;
    FrameLight* frameLight = nullptr;
    int pageIndex = 0;

    QLabel* labelName = nullptr;
    QLabel* labelBatt = nullptr;
    QLabel* labelConn = nullptr;
    QWidget* horizontalFrame = nullptr;
    QButtonGroup* buttonGroupLayer = nullptr;
    QList<QPushButton*> layerButtons;
    QPushButton* pushButtonPairing = nullptr;
    QPushButton* pushButtonReset = nullptr;
    QPushButton* pushButtonFixline = nullptr;
};
