#pragma once

#include <QFrame>
#include <array>
#include <memory>

class Clock;
class ClockTimer;
class QLabel;
class QPushButton;

// One row of the dynamic keystroke editor: the button that chooses the row's key function, and
// four switches, one per point of the key's travel, that a click toggles and a drag across the
// row joins into a bar. The switches are only shown: what the keyboard is given for them is a
// fixed pattern, whatever they show.
class ModuleDKSItem : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kSwitches = 4;
    static constexpr int kWidth = 420;
    static constexpr int kHeight = 40;
    // Left edges of the switches; each is kSwitchSize square.
    static constexpr std::array<int, kSwitches> kSwitchX{143, 220, 298, 378};
    static constexpr int kSwitchSize = 21;

    // clock null means real time; it times the end of a drag that joined nothing.
    explicit ModuleDKSItem(Clock* clock = nullptr, QWidget* parent = nullptr);
    ~ModuleDKSItem() override;

    // The row's function as text; an empty text reads "no function set".
    void setKeyText(const QString& text);
    QString keyText() const;
    bool switchState(int index) const { return states.at(index); }
    QLabel* switchLabel(int index) const { return labelSwitch.at(index); }

signals:
    void onButtonClicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showState(int index);
    void showKeyText();

    QPushButton* pushButton_FuncKey;
    std::array<QLabel*, kSwitches> labelSwitch{};
    std::array<bool, kSwitches> states{true, true, true, true};
    QString keyFunction; // as set; empty shows the translated "no function set"
    std::unique_ptr<ClockTimer> dragEnd;
    int startX = 0; // 0: no start stored
    int currentX = 0;
    bool dragging = false;
};
