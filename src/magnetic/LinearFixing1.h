#pragma once

#include <QDialog>

class Clock;
class DialogDeviceConnect;
class LinearFixing2;
class QLabel;
class QPushButton;

// The travel calibration guide, over the whole window on a grey veil: what to do, then cancel or
// start. Start begins the keyboard's calibration and opens the progress view over the guide;
// however that view is closed, the calibration is stopped and the guide goes too.
class LinearFixing1 : public QDialog
{
    Q_OBJECT

public:
    static constexpr QSize kBoxSize{426, 223};

    // clock paces the progress view's keyboard; null means real time.
    LinearFixing1(DialogDeviceConnect* device, Clock* clock = nullptr, QWidget* parent = nullptr);
    ~LinearFixing1() override;

    // The progress view while the calibration runs, else null.
    LinearFixing2* progress() const { return progressView; }

    // The calibration text that both dialogs show.
    static QString guideText();

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void startCalibration();

    DialogDeviceConnect* device;
    Clock* clock;
    LinearFixing2* progressView = nullptr;
    QWidget* pContentWidget = nullptr;
    QLabel* labelTitle = nullptr;
    QLabel* labelText = nullptr;
    QPushButton* pushButtonCancel = nullptr;
    QPushButton* pushButtonStart = nullptr;
};
