#pragma once

#include "TracingHidBackend.h"

#include <QFile>
#include <memory>

// What the trace writes through and to, made before the trace itself.
struct TracedHidBackendTargets
{
    std::unique_ptr<HidBackend> inner;
    std::unique_ptr<QFile> file;
};

// The hub's --trace: a tracing backend that owns the backend it wraps and the file it writes,
// one line per transfer in the command-line tool's format.
class TracedHidBackend : private TracedHidBackendTargets, public TracingHidBackend
{
public:
    // file must be open for writing.
    TracedHidBackend(std::unique_ptr<HidBackend> inner, std::unique_ptr<QFile> file);

    HidBackend* innerBackend() const { return TracedHidBackendTargets::inner.get(); }
};
