#pragma once

#include <QFrame>

class QButtonGroup;
class QComboBox;
class QLabel;
class QScrollArea;
class ToggleButton;

// The effect list of the lighting panel: one button per effect, the effect's choice (direction,
// picture layer...) and the lights-off switch. It knows no device: it reports plain values.
class ModuleEfMode : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kOnOff = -1; // the mode reported for the switch
    static constexpr QSize kButtonSize{250, 28};

    explicit ModuleEfMode(QWidget* parent = nullptr);

    quint8 currentEffect() const { return effect; }
    // Shows an effect the keyboard reported without reporting it back. An id the list doesn't
    // have leaves the next click unreported: the keyboard only reports ids it was given.
    void setEffect(int id);

signals:
    // mode is an effect id and option the index of its choice; or mode kOnOff with option 1
    // when the switch is on (lights off) and 0 when it is off.
    void onModeChanged(int mode, uchar option);

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildForm();
    void retranslate();
    void onEffectClicked(int id);
    void fillChoices();

    QButtonGroup* group = nullptr;
    bool echo = false; // the next click comes from the keyboard: don't report it
    quint8 effect = 0;

    QLabel* labelTitle1 = nullptr;
    ToggleButton* checkBoxEFMode = nullptr;
    QScrollArea* scrollArea = nullptr;
    QLabel* labelPicture = nullptr;
    QComboBox* comboBoxPic = nullptr;
};
