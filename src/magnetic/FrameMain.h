#pragma once

#include <QFrame>

class QLabel;

// The home page of a native device: the keyboard's picture, with the global travel and the
// lighting controls beside it once those come. The picture stays hidden until one is given.
class FrameMain : public QFrame
{
    Q_OBJECT

public:
    explicit FrameMain(QWidget* parent = nullptr);

    // Shows the device's picture (a file beside the program).
    void setDevicePicture(const QString& path);

private:
    QLabel* labelPic;
};
