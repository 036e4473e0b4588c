#pragma once

#include <QFrame>
#include <array>

class CustumSlider;
class QLabel;
class QLineEdit;
class QPushButton;

// Two vertical travel controls side by side, in millimetres: the left pane in tenths (its
// slider's top is 0), the right pane in steps of 0.005. A move of a slider or a press of its
// buttons reports the pane's value; typing in a box moves the slider and reports nothing.
class ModuleLinear : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kSliderMax = 4000; // thousandths of a millimetre
    static constexpr int kLeftStep = 100;
    static constexpr int kRightStep = 5;
    static constexpr int kLeftDefault = 3700; // 0.30 mm
    static constexpr int kRightDefault = 400; // 0.400 mm
    static constexpr int kRepeatMs = 100;

    explicit ModuleLinear(QWidget* parent = nullptr);

    void setPaneEnabled(bool left, bool enabled);
    // What stands in the pane's box, read as a number.
    float paneValue(bool left) const;
    // The two titles; "(mm)" is appended to each.
    void setPaneTitles(const QString& left, const QString& right);

signals:
    // value in millimetres; type 0 for the left pane and 1 for the right one.
    void onSetValue(float value, int type);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Pane
    {
        QFrame* pan = nullptr;
        QLabel* title = nullptr;
        CustumSlider* slider = nullptr;
        QPushButton* minus = nullptr;
        QLineEdit* edit = nullptr;
        QPushButton* plus = nullptr;
    };
    enum Side { Left = 0, Right = 1 };

    Pane buildPane(Side side);
    void retranslate();
    void onSliderChanged(Side side, int value);
    void onTextChanged(Side side, const QString& text);
    static QString textOf(Side side, int value);

    std::array<Pane, 2> panes;
    bool customTitles = false;
};
