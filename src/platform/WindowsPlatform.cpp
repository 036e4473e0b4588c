#include "WindowsPlatform.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

void WindowsPlatform::setConsoleOutputUtf8()
{
#ifdef Q_OS_WIN
    SetConsoleOutputCP(CP_UTF8); // 65001
#endif
}

std::unique_ptr<Platform> Platform::create()
{
    return std::make_unique<WindowsPlatform>();
}
