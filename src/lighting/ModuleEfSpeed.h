#pragma once

#include "EffectLevel.h"

// The speed of the light effect as the user sees it, 0 (slow) to 4 (fast). The keyboard
// counts the other way; the connection turns it round.
class ModuleEfSpeed : public EffectLevel
{
    Q_OBJECT

public:
    explicit ModuleEfSpeed(QWidget* parent = nullptr);

    // Shows a speed (as the user counts it) without reporting it.
    void setSpeed(int speed) { setLevel(speed); }

signals:
    void onSpeedChanged(uchar speed);

protected:
    void report(int value) override { emit onSpeedChanged(uchar(value)); }
    QString title() const override { return tr("灯光速度"); }
};
