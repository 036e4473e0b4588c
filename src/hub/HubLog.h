#pragma once

#include <QLoggingCategory>

// Turn on with QT_LOGGING_RULES="orbe.hub.debug=true" to follow discovery and hot-plug.
Q_DECLARE_LOGGING_CATEGORY(lcHub)
