#pragma once

#include <QFrame>
#include <memory>

class Clock;
class ClockTimer;
class CustumSlider;
class QLabel;
class QLineEdit;
class QPushButton;

// One rapid trigger travel of the travel page: a title, a horizontal slider in thousandths of a
// millimetre (0.005 to 2.000) between its two end labels, minus and plus buttons and a box in
// millimetres. Typing is taken 300 ms after the last change. A backward row shows 2.7 mm minus
// the slider's value, while a typed value sets the slider as it stands: the two directions
// deliberately disagree.
class RapidTravelRow : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kMinimum = 5;
    static constexpr int kMaximum = 2000;
    static constexpr int kStep = 5;
    static constexpr int kRepeatMs = 100;
    static constexpr int kTypingQuietMs = 300;
    // A typed value is kept to these before the slider's own range clamps it.
    static constexpr int kTypedFloor = 200;
    static constexpr int kTypedCap = 2500;
    static constexpr double kBackwardTop = 2.7;

    // number (1 or 2) completes the object names: horizontalSlider1, lineEditValue1...
    RapidTravelRow(int number, bool backward, Clock* clock, QWidget* parent = nullptr);
    ~RapidTravelRow() override;

    void setTitle(const QString& title);
    void setSliderValue(int value);
    CustumSlider* slider() const { return horizontalSlider; }
    // The box's text read as a number, which is what the apply step writes.
    float value() const;

private:
    void showValue(int value);
    void takeTypedText();

    bool backward;
    std::unique_ptr<ClockTimer> typingTimer;
    QLabel* labelTitle = nullptr;
    CustumSlider* horizontalSlider = nullptr;
    QLineEdit* lineEditValue = nullptr;
};
