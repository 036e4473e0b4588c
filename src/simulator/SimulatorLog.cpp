#include "SimulatorLog.h"

Q_LOGGING_CATEGORY(lcSimulator, "orbe.simulator", QtInfoMsg)
