#include "LightLog.h"

Q_LOGGING_CATEGORY(lcLighting, "orbe.lighting", QtInfoMsg)
