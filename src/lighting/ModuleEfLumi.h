#pragma once

#include "EffectLevel.h"

// The brightness of the light effect, 0 to 4; the keyboard takes the same number.
class ModuleEfLumi : public EffectLevel
{
    Q_OBJECT

public:
    explicit ModuleEfLumi(QWidget* parent = nullptr);

    // Shows the keyboard's brightness without reporting it.
    void setBright(int bright) { setLevel(bright); }

signals:
    void onBrightChanged(int bright);

protected:
    void report(int value) override { emit onBrightChanged(value); }
    QString title() const override { return tr("灯光亮度"); }
};
