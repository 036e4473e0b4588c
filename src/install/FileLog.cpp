#include "FileLog.h"

Q_LOGGING_CATEGORY(lcFiles, "orbe.files", QtInfoMsg)
