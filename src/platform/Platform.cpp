#include "Platform.h"

#include <QObject>
#include <QTimer>

namespace {
std::unique_ptr<Platform>& slot()
{
    static std::unique_ptr<Platform> platform;
    return platform;
}
} // namespace

Platform& Platform::instance()
{
    std::unique_ptr<Platform>& platform = slot();
    if (!platform) platform = create();
    return *platform;
}

std::unique_ptr<Platform> Platform::replaceInstance(std::unique_ptr<Platform> platform)
{
    std::unique_ptr<Platform> previous = std::move(slot());
    slot() = std::move(platform);
    return previous;
}

void Platform::keepOnTopForAWhile(QObject* context, WindowId window, int fromMs, int untilMs)
{
    constexpr quint32 keepPlace = NoMove | NoSize;
    QTimer::singleShot(fromMs, context,
                       [this, window] { setWindowPos(window, ZOrder::TopMost, {}, keepPlace); });
    QTimer::singleShot(untilMs, context,
                       [this, window] { setWindowPos(window, ZOrder::NoTopMost, {}, keepPlace); });
}
