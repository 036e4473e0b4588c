#include "LinuxPlatform.h"

std::unique_ptr<Platform> Platform::create()
{
    return std::make_unique<LinuxPlatform>();
}
