#pragma once

#include <QLoggingCategory>

// Start-up and the main window.
Q_DECLARE_LOGGING_CATEGORY(lcApp)
