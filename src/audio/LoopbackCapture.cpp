#include "LoopbackCapture.h"

#if defined(ORBE_HAVE_PULSE)
#include "PulseLoopbackCapture.h"
#elif defined(ORBE_HAVE_MINIAUDIO)
#include "MiniaudioLoopbackCapture.h"
#else
#include "SilentLoopbackCapture.h"
#endif

std::unique_ptr<AudioCapture> createLoopbackCapture()
{
#if defined(ORBE_HAVE_PULSE)
    return std::make_unique<PulseLoopbackCapture>();
#elif defined(ORBE_HAVE_MINIAUDIO)
    return std::make_unique<MiniaudioLoopbackCapture>();
#else
    return std::make_unique<SilentLoopbackCapture>();
#endif
}
