#include "HubLog.h"

Q_LOGGING_CATEGORY(lcHub, "orbe.hub", QtInfoMsg)
