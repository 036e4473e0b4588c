#pragma once

#include <QLoggingCategory>

// Which folder the hub keeps its own files in: QT_LOGGING_RULES="orbe.files.debug=true".
Q_DECLARE_LOGGING_CATEGORY(lcFiles)
