#pragma once

#include "Platform.h"

// Win32 calls, and only here.
class WindowsPlatform : public Platform
{
public:
    void setConsoleOutputUtf8() override;
};
