#pragma once

#include <QByteArray>
#include <QColor>
#include <QFrame>
#include <QList>
#include <memory>

class Clock;
class ClockTimer;
class ColorDelegate;
class ColorLabel;
class ColorSlider;
class ColorSquare;
class DialogColorPicker;
class NewTabWidget;
class QButtonGroup;
class QLabel;
class QStandardItemModel;
class QTableView;
class ToggleButton;

// The colour of the light effect (seven system colours on a turning wheel, or any colour from
// the square with eight swatches) and the side light: its effect, speed, brightness and colour.
// It knows no device: it reports a colour with its option, and the side light as a block.
class ModuleEfColor : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kSystemColors = 7;
    static constexpr int kCustomOption = 8; // the option of a colour given as red, green, blue
    static constexpr int kSwatches = 8;
    static constexpr int kSideBlockSize = 10;
    static constexpr int kSideSendDelayMs = 200;

    // clock paces the side light's colour while the picker is dragged; null means real time.
    explicit ModuleEfColor(QWidget* parent = nullptr, Clock* clock = nullptr);
    ~ModuleEfColor() override;

    // The seven system colours, the same for every instance.
    static const QList<QColor>& systemColors();
    // How far the system colours are turned, the same for every instance.
    static int rotation();
    // The colour the system table shows in the centre.
    QColor centreColor() const;

    // Shows the side light's state from the keyboard's 16-byte answer without sending it.
    void setSideLed(const QByteArray& data);
    // The side light's block as it would be sent now.
    QByteArray sideBlock() const;
    QColor sideColor() const { return color; }
    DialogColorPicker* picker() const { return dialogPicker; }

signals:
    void onSetColor(const QColor& color, int option);
    void onSetSideLed(const QByteArray& data);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // ModuleEfColorForm.cpp
    void buildForm();
    QWidget* buildSystemTab();
    QWidget* buildCustomTab();
    QWidget* buildSideTab();
    void retranslate();

    void onSystemClicked(int column);
    void recolorSystemTable();
    void onSquareColor(const QColor& color);
    void onSwatchPressed(const QColor& color);
    void onSideGroupClicked();
    void onPickerColor(const QColor& color);
    void sendSideBlock();
    void showSideColor();

    // The side light's state, as sent.
    QColor color;
    quint8 effect = 0;
    quint8 colorMode = 0;
    quint8 brightness = 0;
    quint8 speed = 0;
    bool blocking = false; // a reply is being shown: send nothing

    Clock* clock;
    std::unique_ptr<ClockTimer> pickerTimer;
    DialogColorPicker* dialogPicker = nullptr;

    NewTabWidget* tabWidget = nullptr;
    QTableView* tableView = nullptr;
    QLabel* labelPresetHint = nullptr;
    QStandardItemModel* model = nullptr;
    ColorDelegate* delegate = nullptr;
    ColorSquare* colorSquare = nullptr;
    ColorSlider* colorSlider = nullptr;
    QList<ColorLabel*> swatches;
    QWidget* frameSingle = nullptr;
    QLabel* labelSingle = nullptr;
    ToggleButton* checkBoxSingle = nullptr;
    QButtonGroup* buttonGroupS = nullptr;
    QButtonGroup* buttonGroupL = nullptr;
    QButtonGroup* buttonGroupC = nullptr;
    QButtonGroup* buttonGroupE = nullptr;
    QLabel* labelColor = nullptr;
    QLabel* labelPickup = nullptr;
    QList<QLabel*> sideTitles; // effect, speed, brightness, colour
};
