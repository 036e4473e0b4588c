#pragma once

#include <QLoggingCategory>

// The lighting pages: the works file, the pipette, the side light's replies.
// QT_LOGGING_RULES="orbe.lighting.debug=true" for the detail.
Q_DECLARE_LOGGING_CATEGORY(lcLighting)
