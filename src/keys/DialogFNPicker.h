#pragma once

#include "DialogKeyPickerBase.h"

class ModuleGenKeymapping;
class ModuleMacroManager;
class QPushButton;
class QSpinBox;
class QRadioButton;
class QTabWidget;

// The full picker of the custom and Fn layers: a combination of up to three keys, a macro with
// its play mode, a system function or a mouse function, one tab each.
class DialogFNPicker : public DialogKeyPickerBase
{
    Q_OBJECT

public:
    static constexpr int kMacroButtons = 50;
    static constexpr int kSystemButtons = 21;
    static constexpr int kMouseButtons = 11;

    DialogFNPicker(const ModuleGenKeymapping& keys, const ModuleMacroManager& macros,
                   QWidget* parent = nullptr);

    // With the macro flag the entry's bytes are repeat, play mode and slot, not a key function.
    bool isMacro() const { return macro; }

protected:
    void keyPicked() override { macro = false; }

private:
    // A checkable choice of buttonGroupFN named prefix with two digits; kind picks its style.
    QPushButton* choiceButton(QWidget* frame, const char* prefix, int number, const char* kind);
    QWidget* buildMacroTab();
    QWidget* buildSystemTab();
    QWidget* buildMouseTab();
    void onFunctionButton(QAbstractButton* button);
    void onTabChanged(int index);

    const ModuleGenKeymapping& keys;
    const ModuleMacroManager& macros;
    bool macro = false;
    QButtonGroup* buttonGroupFN;
    QTabWidget* tabWidgetKey = nullptr;
    QSpinBox* spinBoxM = nullptr;
    QRadioButton* radioButtonM1 = nullptr;
    QRadioButton* radioButtonM2 = nullptr;
    QRadioButton* radioButtonM3 = nullptr;
};
