#pragma once

#include <QLoggingCategory>

// Which folder the files a user makes are kept in.
Q_DECLARE_LOGGING_CATEGORY(lcFiles)
