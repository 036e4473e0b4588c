#pragma once

#include <QByteArray>
#include <QDialog>

class Clock;
class DialogDeviceConnect;
class ModuleKeyboard;
class QLabel;
class QPushButton;

// The travel calibration's progress view: the calibration text above a locked on-screen keyboard
// whose keys turn orange as the keyboard reports them calibrated. Finishing and cancelling both
// close it; the caller stops the calibration either way.
class LinearFixing2 : public QDialog
{
    Q_OBJECT

public:
    // A key is calibrated once its reading passes this; the one key of table index 92 has a far
    // smaller range.
    static constexpr quint16 kDoneAbove = 699;
    static constexpr quint16 kShortRangeDoneAbove = 63;
    static constexpr int kShortRangeIndex = 92;

    // screen is the guide's frame geometry, which this dialog takes as its fixed size.
    LinearFixing2(DialogDeviceConnect* device, Clock* clock, const QRect& screen,
                  QWidget* parent = nullptr);

    ModuleKeyboard* keyboard() const { return frameKeyboard; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    // One scan from the keyboard: a u16 per table index, as far as the data reaches.
    void onCalibration(const QByteArray& data);

    QWidget* MyContentWidget = nullptr;
    QLabel* labelTitle = nullptr;
    QLabel* labelText = nullptr;
    ModuleKeyboard* frameKeyboard = nullptr;
    QPushButton* pushButtonCancel = nullptr;
    QPushButton* pushButtonFinish = nullptr;
};
