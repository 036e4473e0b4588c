#include "SilentLoopbackCapture.h"

#include "AudioLog.h"

void SilentLoopbackCapture::start()
{
    if (started) return;
    started = true;
    qCCritical(lcAudio, "%s", kCaptureStartError);
    qCDebug(lcAudio) << "this build has no loopback capture; the music effect shows silence";
}
