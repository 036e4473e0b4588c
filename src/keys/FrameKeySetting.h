#pragma once

#include <QFrame>
#include <memory>

class Clock;
class ClockTimer;
class DialogDeviceConnect;
class ModuleAdvancedKeys;
class ModuleDeviceOptions;
class ModuleGenKeymapping;
class ModuleKeyboard;
class ModuleMacroManager;
class QButtonGroup;
class QLabel;
class QPushButton;
class QStackedWidget;

// The key page of a native keyboard: the on-screen keyboard above, four modes below (custom
// layer, advanced keys, device options, Fn layer). A click on a key opens the picker; what the
// user picks is written through the connection, and the keys are redrawn from its cache. The
// page keeps no model of its own.
class FrameKeySetting : public QFrame
{
    Q_OBJECT

public:
    enum Mode { Custom = 0, Advanced = 1, Options = 2, FnLayer = 3 };
    static constexpr int kCustomHoldMs = 500;
    static constexpr int kFnHoldMs = 800;

    // clock null means real time; it times how long the page counts as refreshing.
    FrameKeySetting(DialogDeviceConnect* device, const ModuleGenKeymapping& keys,
                    ModuleMacroManager& macros, Clock* clock = nullptr, QWidget* parent = nullptr);
    ~FrameKeySetting() override;

    // After the keyboard was read: the mode's layer is drawn again.
    void RefreshPage();
    void RefreshCustomLayer();
    void RefreshFnLayer();

    int currentMode() const { return mode; }
    bool isRefreshing() const { return refreshing; }
    ModuleKeyboard* keyboard() const { return frameKeyboard; }

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void buildForm();
    QWidget* buildCustomPage();
    void retranslate();
    void onModeChanged(int id);
    void onPickKey(const QString& text, uchar code);
    void onKeyChanged(uchar hid, uchar type, bool enable);
    void holdRefreshing(int milliseconds);

    DialogDeviceConnect* device;
    const ModuleGenKeymapping& keys;
    ModuleMacroManager& macros;
    Clock* clock;
    std::unique_ptr<ClockTimer> refreshRelease;

    ModuleKeyboard* frameKeyboard = nullptr;
    QButtonGroup* buttonGroupMode = nullptr;
    QStackedWidget* stackedWidget = nullptr;
    ModuleAdvancedKeys* advanced = nullptr;
    ModuleDeviceOptions* options = nullptr;
    QLabel* labelFunc = nullptr;
    QLabel* labelNote = nullptr;
    const char* funcTitle = nullptr; // source text of labelFunc
    int mode = Custom;
    bool refreshing = false;
};
