#pragma once

#include <QFrame>

// The lighting page of a native device. The shell creates it with the other pages; the effect
// controls and per-key painting come with the lighting.
class FrameLight : public QFrame
{
    Q_OBJECT

public:
    explicit FrameLight(QWidget* parent = nullptr);
};
