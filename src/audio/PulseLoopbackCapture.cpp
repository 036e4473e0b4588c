#include "PulseLoopbackCapture.h"

#include "AudioLog.h"

#include <atomic>
#include <pulse/context.h>
#include <pulse/error.h>
#include <pulse/stream.h>
#include <pulse/thread-mainloop.h>

namespace {

constexpr char kClientName[] = "OrbeHub";
constexpr char kStreamName[] = "Music light";
// The server's name for whatever the default output's monitor is at the time of connecting.
constexpr char kDefaultMonitor[] = "@DEFAULT_MONITOR@";
constexpr uint8_t kChannels = 2;
// Only a placeholder: the stream takes the output's own rate (PA_STREAM_FIX_RATE).
constexpr uint32_t kPlaceholderRate = 48000;
// One period is one block: 480 stereo frames of 4-byte floats.
constexpr uint32_t kFragmentBytes = AudioSampleBlock::kSamples * sizeof(float);

} // namespace

struct PulseLoopbackCapture::Private
{
    PulseLoopbackCapture* q;
    QByteArray server;
    pa_threaded_mainloop* loop = nullptr;
    pa_context* context = nullptr;
    pa_stream* stream = nullptr;
    std::atomic<bool> streaming{false};
    std::atomic<bool> failed{false};

    // Logs the failure once, from whichever thread sees it first.
    void fail(const char* step, int error)
    {
        const bool wasStreaming = streaming.exchange(false);
        if (failed.exchange(true)) return;
        if (wasStreaming)
            qCWarning(lcAudio) << "the sound server went away; the music effect keeps the last"
                                  " samples";
        else
            qCCritical(lcAudio, "%s", kCaptureStartError);
        qCDebug(lcAudio) << "PulseAudio:" << step << pa_strerror(error);
    }

    void openStream()
    {
        const pa_sample_spec sampleFormat{PA_SAMPLE_FLOAT32NE, kPlaceholderRate, kChannels};
        stream = pa_stream_new(context, kStreamName, &sampleFormat, nullptr);
        if (!stream) {
            fail("stream", pa_context_errno(context));
            return;
        }
        pa_stream_set_state_callback(stream, &Private::onStreamState, this);
        pa_stream_set_read_callback(stream, &Private::onRead, this);
        pa_buffer_attr attr;
        attr.maxlength = uint32_t(-1);
        attr.tlength = uint32_t(-1);
        attr.prebuf = uint32_t(-1);
        attr.minreq = uint32_t(-1);
        attr.fragsize = kFragmentBytes;
        const auto flags = pa_stream_flags_t(PA_STREAM_FIX_RATE | PA_STREAM_ADJUST_LATENCY);
        if (pa_stream_connect_record(stream, kDefaultMonitor, &attr, flags) < 0)
            fail("record", pa_context_errno(context));
    }

    // ---- PulseAudio's thread, its lock held.
    static void onContextState(pa_context* c, void* user)
    {
        auto* self = static_cast<Private*>(user);
        switch (pa_context_get_state(c)) {
        case PA_CONTEXT_READY:
            self->openStream();
            break;
        case PA_CONTEXT_FAILED:
        case PA_CONTEXT_TERMINATED:
            self->fail("server", pa_context_errno(c));
            break;
        default:
            break;
        }
    }

    static void onStreamState(pa_stream* s, void* user)
    {
        auto* self = static_cast<Private*>(user);
        switch (pa_stream_get_state(s)) {
        case PA_STREAM_READY:
            self->streaming = true;
            qCDebug(lcAudio) << "capturing" << pa_stream_get_device_name(s) << "at"
                             << pa_stream_get_sample_spec(s)->rate << "Hz";
            break;
        case PA_STREAM_FAILED:
        case PA_STREAM_TERMINATED:
            self->fail("monitor stream", pa_context_errno(pa_stream_get_context(s)));
            break;
        default:
            break;
        }
    }

    static void onRead(pa_stream* s, size_t, void* user)
    {
        auto* self = static_cast<Private*>(user);
        const void* data = nullptr;
        size_t bytes = 0;
        while (pa_stream_readable_size(s) > 0) {
            if (pa_stream_peek(s, &data, &bytes) < 0 || bytes == 0) return;
            if (data) // null with a length is a hole in the stream: nothing to copy
                self->q->samples.write(static_cast<const float*>(data), bytes / sizeof(float));
            pa_stream_drop(s);
        }
    }
};

PulseLoopbackCapture::PulseLoopbackCapture(const QByteArray& server) : d(new Private{this, server})
{
}

PulseLoopbackCapture::~PulseLoopbackCapture()
{
    if (!d->loop) return;
    pa_threaded_mainloop_lock(d->loop);
    if (d->stream) {
        pa_stream_set_state_callback(d->stream, nullptr, nullptr);
        pa_stream_set_read_callback(d->stream, nullptr, nullptr);
        pa_stream_disconnect(d->stream);
        pa_stream_unref(d->stream);
    }
    if (d->context) {
        pa_context_set_state_callback(d->context, nullptr, nullptr);
        pa_context_disconnect(d->context);
        pa_context_unref(d->context);
    }
    pa_threaded_mainloop_unlock(d->loop);
    pa_threaded_mainloop_stop(d->loop);
    pa_threaded_mainloop_free(d->loop);
}

void PulseLoopbackCapture::start()
{
    if (d->loop || d->failed) return; // once
    d->loop = pa_threaded_mainloop_new();
    if (!d->loop) {
        d->fail("main loop", PA_ERR_INTERNAL);
        return;
    }
    d->context = pa_context_new(pa_threaded_mainloop_get_api(d->loop), kClientName);
    if (!d->context) {
        d->fail("context", PA_ERR_INTERNAL);
        return;
    }
    pa_context_set_state_callback(d->context, &Private::onContextState, d.get());
    // The hub never starts a sound server of its own.
    const char* server = d->server.isEmpty() ? nullptr : d->server.constData();
    if (pa_context_connect(d->context, server, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
        d->fail("connect", pa_context_errno(d->context));
        return;
    }
    if (pa_threaded_mainloop_start(d->loop) < 0) d->fail("main loop", PA_ERR_INTERNAL);
}

bool PulseLoopbackCapture::isStreaming() const
{
    return d->streaming;
}

bool PulseLoopbackCapture::hasFailed() const
{
    return d->failed;
}
