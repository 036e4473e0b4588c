#pragma once

#include <QLoggingCategory>

// Backups and restores: what was refused and why, what a restore wrote.
Q_DECLARE_LOGGING_CATEGORY(lcBackup)
