#pragma once

#include <QColor>
#include <QDialog>
#include <QImage>
#include <QPoint>
#include <functional>
#include <memory>

class Clock;
class ClockTimer;
class ColorPipette;
class ColorSlider;
class ColorSquare;
class QLabel;
class QLineEdit;
class QPushButton;

// A small frameless picker: the saturation-value square, the hue bar, red, green and blue as
// numbers, the hexadecimal form, and a pipette that takes a colour from anywhere on the screen.
// Every colour the user reaches is reported with onPickupColor (twice: listeners have always
// been called twice per colour).
class DialogColorPicker : public QDialog
{
    Q_OBJECT

public:
    static constexpr int kPipetteTickMs = 10;
    static constexpr int kFocusDelayMs = 200;
    static constexpr int kCursorDelayMs = 100;

    // Where the pointer is, and a picture of the screen at a point (1 by 1 pixel; null when
    // the platform refuses).
    using PointerSource = std::function<QPoint()>;
    using ScreenGrab = std::function<QImage(const QPoint& global)>;

    // clock paces the pipette; null means real time.
    explicit DialogColorPicker(QWidget* parent = nullptr, Clock* clock = nullptr);
    ~DialogColorPicker() override;

    QColor color() const { return m_color; }
    // Shows a colour without reporting it: the square, the hue bar and the boxes follow.
    void setColor(const QColor& color);
    // Shows the dialog with its top edge at y and centred on x; with either at -1, at the
    // pointer.
    void showAt(int x, int y);

    // Replaces how the pipette reads the pointer and the screen (the defaults ask Qt).
    void setScreenSource(PointerSource pointer, ScreenGrab grab);
    // False where the platform gave no picture of the screen (some Wayland sessions); the
    // pipette then stays off and its tooltip says why.
    bool pipetteAvailable() const { return m_pipetteAvailable; }
    ColorPipette* pipette() const { return m_pipette; }

signals:
    void onPickupColor(const QColor& color);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildForm();
    void retranslate();
    void onColorSelected(const QColor& color);
    void onChannelEdited(int channel, const QString& text);
    void updateColor();
    void showColor();
    void pipetteTick();
    void probeScreen();
    void finish();

    QColor m_color;
    QString m_hex;
    ColorSquare* square = nullptr;
    ColorSlider* horizontalSlider = nullptr;
    QLabel* labelColor = nullptr;
    QLabel* labelPick = nullptr;
    QLineEdit* lineEditR = nullptr;
    QLineEdit* lineEditG = nullptr;
    QLineEdit* lineEditB = nullptr;
    QLineEdit* lineEditHex = nullptr;
    QPushButton* pushButton = nullptr;
    bool m_pipetteAvailable = true;
    ColorPipette* m_pipette = nullptr;
    QImage m_screen;

    Clock* m_clock;
    std::unique_ptr<ClockTimer> m_pipetteTimer;
    PointerSource m_pointer;
    ScreenGrab m_grab;
    QPoint m_lastPointer{-1, -1};
};
