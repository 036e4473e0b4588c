#pragma once

#include <QLoggingCategory>

// The loopback capture: QT_LOGGING_RULES="orbe.audio.debug=true" tells why a capture stopped.
Q_DECLARE_LOGGING_CATEGORY(lcAudio)

// The one message a capture that can't start leaves, kept as the hub has always written it.
inline constexpr char kCaptureStartError[] = "ma_device_init ERROR --------";
