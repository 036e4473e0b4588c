#pragma once

#include <memory>

// What the hub asks of the operating system, behind one interface: the Windows implementation
// makes the Win32 calls, the Linux one does the same work with Qt and udev. Tests can replace it
// with a recording fake.
class Platform
{
public:
    virtual ~Platform() = default;

    // Console output in UTF-8, so that the debug stream shows the Chinese texts unharmed.
    virtual void setConsoleOutputUtf8() = 0;

    // The implementation for the system the program was built for.
    static std::unique_ptr<Platform> create();
};
