#include "TracedHidBackend.h"

#include "Clock.h"

TracedHidBackend::TracedHidBackend(std::unique_ptr<HidBackend> backend, std::unique_ptr<QFile> out)
    : TracedHidBackendTargets{std::move(backend), std::move(out)},
      TracingHidBackend(TracedHidBackendTargets::inner.get(), file.get(), QtClock::shared())
{
}
