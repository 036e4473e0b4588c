#pragma once

#include <QFrame>
#include <QRect>

class QLabel;
class QLineEdit;
class QPushButton;
class ToggleButton;

// A ruler for one travel in millimetres, 0.2 to 2.5 in steps of 0.005: drag the pointer along
// the ruler, press minus or plus, or type. The value is one for the whole program.
class ModuleRtSet : public QFrame
{
    Q_OBJECT

public:
    static constexpr double kMinimum = 0.2;
    static constexpr double kMaximum = 2.5;
    static constexpr double kStep = 0.005;
    static constexpr QRect kRuler{20, 50, 260, 40};
    static constexpr int kTicks = 20;
    static constexpr int kRepeatMs = 100;

    explicit ModuleRtSet(QWidget* parent = nullptr);

    void setTitle(const QString& title);
    // The stored value; what the ruler paints is the box's.
    static double value();
    // Rounds down to the step, keeps to the range, shows, reports and repaints.
    void setValue(double value);

signals:
    // type is always 0.
    void onSetValue(float value, int type);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    // The box's number; out of the range, the range's end is set (and reported) instead.
    double readText();
    void onTextEdited();
    bool onRuler(const QPointF& position) const;
    double valueAtX(qreal x) const;

    bool dragging = false;
    QLabel* labelTitle = nullptr;
    ToggleButton* checkBoxRTMode = nullptr;
    QFrame* frameBt = nullptr;
    QPushButton* pushButtonMinus = nullptr;
    QLineEdit* lineEdit = nullptr;
    QPushButton* pushButtonPlug = nullptr;
    QLabel* labelHint = nullptr;
};
