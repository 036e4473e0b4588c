#pragma once

#include <QFrame>

// The key settings page of a native device. The shell creates it with the other pages; its
// keyboard and pickers come with the key configuration.
class FrameKeySetting : public QFrame
{
    Q_OBJECT

public:
    explicit FrameKeySetting(QWidget* parent = nullptr);
};
