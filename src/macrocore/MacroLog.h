#pragma once

#include <QLoggingCategory>

// File failures of the macro store: QT_LOGGING_RULES="orbe.macros.debug=true" for the detail.
Q_DECLARE_LOGGING_CATEGORY(lcMacros)
