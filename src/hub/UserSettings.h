#pragma once

#include <QSettings>
#include <memory>

// The per-user values the hub shares with the sibling drivers: the registry key
// "HKEY_CURRENT_USER\Software\Orbe" (or "...\Tarnwick" for the second brand) on Windows, the
// native settings file of the same name elsewhere. Tests redirect it with
// QStandardPaths::setTestModeEnabled(true).
namespace UserSettings {

inline constexpr const char* kReturnKey = "OrbeReturn";
inline constexpr const char* kTarnwickReturnKey = "TarnwickReturn";

// A fresh handle each time, so that every thread may have its own.
std::unique_ptr<QSettings> open(bool tarnwickBuild);

} // namespace UserSettings
