#pragma once

#include <QLoggingCategory>

// Turn on with QT_LOGGING_RULES="orbe.simulator.debug=true" to see what the virtual devices do.
Q_DECLARE_LOGGING_CATEGORY(lcSimulator)
