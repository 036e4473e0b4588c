#include "MiniaudioLoopbackCapture.h"

#include "AudioLog.h"

#define MINIAUDIO_IMPLEMENTATION
#include <miniaudio.h>

namespace {

constexpr ma_uint32 kChannels = 2;

} // namespace

struct MiniaudioLoopbackCapture::Private
{
    MiniaudioLoopbackCapture* q;
    ma_device_config config{};
    ma_device device{};
    bool started = false;
    bool initialised = false;

    // miniaudio's thread: one copy, the smaller of the block and the period that arrived.
    static void onData(ma_device* device, void*, const void* input, ma_uint32 frameCount)
    {
        auto* self = static_cast<Private*>(device->pUserData);
        if (input)
            self->q->samples.write(static_cast<const float*>(input),
                                   std::size_t(frameCount) * kChannels);
    }
};

MiniaudioLoopbackCapture::MiniaudioLoopbackCapture() : d(new Private{this}) {}

MiniaudioLoopbackCapture::~MiniaudioLoopbackCapture()
{
    if (d->initialised) ma_device_uninit(&d->device);
}

void MiniaudioLoopbackCapture::start()
{
    if (d->started) return;
    d->started = true;
    d->config = ma_device_config_init(ma_device_type_loopback);
    d->config.capture.format = ma_format_f32;
    d->config.capture.channels = kChannels;
    d->config.sampleRate = 0; // the device's own
    d->config.dataCallback = &Private::onData;
    d->config.pUserData = d.get();
    if (ma_device_init(nullptr, &d->config, &d->device) != MA_SUCCESS) {
        qCCritical(lcAudio, "%s", kCaptureStartError);
        return; // a device that failed to initialise can't be started
    }
    d->initialised = true;
    if (ma_device_start(&d->device) != MA_SUCCESS)
        qCWarning(lcAudio) << "the loopback device did not start; the music effect shows silence";
}
