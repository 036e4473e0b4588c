#include "ModuleEfSpeed.h"

ModuleEfSpeed::ModuleEfSpeed(QWidget* parent)
    : EffectLevel(QStringLiteral("horiCyanSlider"), parent)
{
    retranslate();
}
