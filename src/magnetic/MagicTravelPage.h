#pragma once

#include <QWidget>

class Clock;
class ModuleLinear;
class QFrame;
class QLabel;
class QPushButton;
class RapidTravelRow;
class ToggleButton;

// The travel page of the magnetic page (page0): actuation on press and release in the double
// travel control, the two rapid trigger travels and the full-travel switch, with the rules that
// enable one control from another. It writes nothing itself; the magnetic page applies values()
// to the selected keys when the apply button is pressed.
class MagicTravelPage : public QWidget
{
    Q_OBJECT

public:
    // What the apply step writes, in millimetres, read from the boxes (never the sliders).
    struct Values
    {
        float press = 0;
        float release = 0;
        float rapidPress = 0;
        float rapidRelease = 0;
        bool fullTravel = false;
    };

    explicit MagicTravelPage(Clock* clock, QWidget* parent = nullptr);

    Values values() const;
    QPushButton* applyButton() const { return pushButtonSetRT; }
    void setSelectionText(const QString& text);

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* buildActuation();
    QWidget* buildRapidTrigger(Clock* clock);
    void retranslate();
    void onFullTravelClicked(bool on);

    QLabel* labelTitle0 = nullptr;
    QLabel* labelSelectRTKey = nullptr;
    QPushButton* pushButtonSetRT = nullptr;
    QLabel* labelUnpress = nullptr;
    ToggleButton* checkBoxUnpress = nullptr;
    ModuleLinear* frameLinear = nullptr;
    QLabel* labelFullRT = nullptr;
    ToggleButton* checkBoxFullRT = nullptr;
    QLabel* label_7 = nullptr;
    QFrame* frame0 = nullptr;
    QLabel* labelRTPress = nullptr;
    ToggleButton* checkBoxRTPress = nullptr;
    QFrame* frame1 = nullptr;
    QFrame* frame2 = nullptr;
    RapidTravelRow* row1 = nullptr;
    RapidTravelRow* row2 = nullptr;
};
