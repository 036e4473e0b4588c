#include "BackupLog.h"

Q_LOGGING_CATEGORY(lcBackup, "orbe.backup", QtInfoMsg)
