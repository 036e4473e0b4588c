#include "ModuleEfLumi.h"

ModuleEfLumi::ModuleEfLumi(QWidget* parent)
    : EffectLevel(QStringLiteral("horizontalSlider"), parent)
{
    retranslate();
}
