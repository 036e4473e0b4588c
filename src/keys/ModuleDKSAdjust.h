#pragma once

#include <QFrame>
#include <memory>

class Clock;
class ClockTimer;
class CustumSlider;
class QLabel;
class QLineEdit;
class QPushButton;

// The travel popup of the dynamic keystroke editor: a vertical slider in thousandths of a
// millimetre, steps of 5 on the two buttons, and the value as text. Typed text reaches the slider
// 300 ms after the last change. Saving hands the text on as it stands.
class ModuleDKSAdjust : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kMaximum = 4000;
    static constexpr int kStep = 5;
    static constexpr int kPageStep = 1000;
    static constexpr int kInitial = 700;
    static constexpr int kTextDelayMs = 300;
    static constexpr int kRepeatMs = 100;

    // clock null means real time; it times the text's way to the slider.
    explicit ModuleDKSAdjust(Clock* clock = nullptr, QWidget* parent = nullptr);
    ~ModuleDKSAdjust() override;

    // What the popup opens with, in millimetres as text.
    void setValueText(const QString& text);
    QString valueText() const;
    int value() const;

signals:
    void onValueSave(QString text);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void onSliderValue(int value);
    void takeText();

    QLabel* labelTitleS1;
    QPushButton* pushButtonCancel;
    CustumSlider* verticalSlider1;
    QPushButton* pushButtonM1;
    QLineEdit* lineEditValue1;
    QPushButton* pushButtonP1;
    QPushButton* pushButtonOK;
    std::unique_ptr<ClockTimer> textDelay;
    bool sliderWriting = false; // the text is the slider's own: nothing to take back
};
