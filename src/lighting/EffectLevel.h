#pragma once

#include <QFrame>

class CustumSlider;
class QLabel;

// A level of the lighting panel, 0 to 4 shown as 0% to 100%: the common body of the
// brightness and the speed controls. A level the keyboard reports is shown without being
// reported back.
class EffectLevel : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kMaxLevel = 4;
    static constexpr int kPercentPerStep = 25;

    int level() const;

protected:
    EffectLevel(const QString& sliderName, QWidget* parent);

    // Shows a level without reporting it.
    void setLevel(int value);
    // The user moved the slider to value.
    virtual void report(int value) = 0;
    virtual QString title() const = 0;
    void retranslate();
    void changeEvent(QEvent* event) override;

private:
    void onValueChanged(int value);

    bool echo = false;
    QLabel* labelTitle1 = nullptr;
    QLabel* labelTitle2 = nullptr;
    CustumSlider* slider = nullptr;
    QLabel* labelTitleL1 = nullptr;
    QLabel* labelTitleL2 = nullptr;
};
