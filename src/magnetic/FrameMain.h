#pragma once

#include <QFrame>

class Clock;
class DialogDeviceConnect;
class ModuleLinear;
class ModuleRtSet;
class QLabel;

// The home page of a native device: the keyboard's picture, travel for all keys at once and the
// lighting panel. Every change is written at once; there is no apply button.
class FrameMain : public QFrame
{
    Q_OBJECT

public:
    // Key code FF: the keyboard takes the write for every key.
    static constexpr quint8 kAllKeys = 0xFF;

    // clock paces the side light's colour; null means real time.
    FrameMain(DialogDeviceConnect* device, QWidget* parent = nullptr, Clock* clock = nullptr);

    // Shows the device's picture (a file beside the program).
    void setDevicePicture(const QString& path);

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* buildTop();
    void retranslate();
    void writeAllKeys(quint8 table, float millimetres);

    DialogDeviceConnect* device;
    QLabel* labelPic = nullptr;
    ModuleRtSet* frameRTSetting = nullptr;
    QLabel* labelTitle1 = nullptr;
    ModuleLinear* frameLinearSet = nullptr;
};
