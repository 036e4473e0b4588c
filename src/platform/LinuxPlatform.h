#pragma once

#include "Platform.h"

// The same operations on Linux, with Qt and udev.
class LinuxPlatform : public Platform
{
public:
    // Terminals speak UTF-8 already; there is no code page to set.
    void setConsoleOutputUtf8() override {}
};
