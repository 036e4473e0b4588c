#pragma once

#include <QWidget>

class DialogDeviceConnect;
class QButtonGroup;
class QLabel;
class ToggleButton;

// The stabilisation page of the magnetic page (page3): the rapid trigger stabilisation level
// (option 3, 0 to 4) and the anti-mistouch switch (option 2). Both are written at once.
class MagicStabPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kStabOption = 3;
    static constexpr int kTouchOption = 2;
    static constexpr int kLevels = 5;

    explicit MagicStabPage(DialogDeviceConnect* device, QWidget* parent = nullptr);

    // Shows the keyboard's two options as the cache holds them, without writing.
    void refresh();

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void showTouch(bool on);

    DialogDeviceConnect* device;
    QLabel* labelTitle8 = nullptr;
    QLabel* labelMemo0 = nullptr;
    QButtonGroup* buttonGroupStab = nullptr;
    QLabel* labelTitle9 = nullptr;
    ToggleButton* checkBoxTouch = nullptr;
    QLabel* labelTunch = nullptr;
    QLabel* labelMemo1 = nullptr;
    bool touchShown = false; // the label has left its first text
};
