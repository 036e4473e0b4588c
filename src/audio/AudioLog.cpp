#include "AudioLog.h"

Q_LOGGING_CATEGORY(lcAudio, "orbe.audio", QtInfoMsg)
