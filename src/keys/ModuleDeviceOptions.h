#pragma once

#include <QFrame>
#include <array>
#include <functional>

class DialogDeviceConnect;
class ModuleScrollValue;
class QLineEdit;
class QSlider;

// The keyboard's global options on the key page's third tab: report rate and the two
// backlight-off times on wheels, the two deep sleep times and debounce on slider rows. It keeps
// nothing itself: fill() shows the connection's cache, and every change is written at once.
class ModuleDeviceOptions : public QFrame
{
    Q_OBJECT

public:
    // The minutes of the backlight wheels, in wheel order.
    static constexpr std::array<int, 14> SleepMinutes{0,   5,   10,  15,  30,  45,  60,
                                                      120, 180, 240, 300, 600, 900, 1080};

    // writesHeld tells when the line edits must not write (the page is refreshing).
    ModuleDeviceOptions(DialogDeviceConnect* device, std::function<bool()> writesHeld,
                        QWidget* parent = nullptr);

    // Shows the cache: the wheels without a signal, the line edits as text.
    void fill();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Row
    {
        QLineEdit* edit;
        QSlider* slider;
        std::function<void(int)> write;
    };

    QWidget* buildWheel(int index, ModuleScrollValue*& wheel);
    QWidget* buildRow(int index);
    void onText(const Row& row, const QString& text);
    void retranslate();

    DialogDeviceConnect* device;
    std::function<bool()> writesHeld;
    std::array<ModuleScrollValue*, 3> wheels{};
    std::array<Row, 3> rows{};
};
