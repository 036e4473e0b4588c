#include "ScanDebounce.h"

#include "Clock.h"
#include "HubLog.h"

ScanDebounce::ScanDebounce(Clock* clock, std::function<void()> onQuiet, QObject* parent)
    : QObject(parent), request(std::move(onQuiet)),
      timer(clock->createTimer([this] { fire(); }, true))
{
}

ScanDebounce::~ScanDebounce() = default;

void ScanDebounce::onDevicePluggined(bool)
{
    timer->stop();
    timer->start(kQuietMs);
}

bool ScanDebounce::isPending() const
{
    return timer->isActive();
}

void ScanDebounce::fire()
{
    timer->stop();
    qCDebug(lcHub) << "devices changed: scan";
    if (request) request();
}
