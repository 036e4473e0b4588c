#pragma once

#include <QLoggingCategory>

// Turn on with QT_LOGGING_RULES="orbe.device.debug=true" to see the protocol trace.
Q_DECLARE_LOGGING_CATEGORY(lcDevice)
