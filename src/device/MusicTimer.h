#pragma once

#include "AudioSampleBlock.h"
#include "DeviceParts.h"

#include <memory>

class AudioCapture;
class ClockTimer;

// The music report's timer: every 20 ms, while the music effect is chosen, the levels of what
// the machine plays go to the keyboard as one round of ten alike reports on the link's music
// handle. The round runs on the link's I/O thread with its pacing; the timer waits for it and
// starts again 20 ms after. The tick does nothing when the effect is off or the connection has
// no music handle (wireless); the capture runs on regardless.
class MusicTimer
{
public:
    explicit MusicTimer(const DeviceParts& parts);
    ~MusicTimer();

    // Where the samples come from; null, or none given, sends silence. It must outlive this.
    void setCapture(const AudioCapture* source) { capture = source; }

private:
    void tick();

    DeviceParts p;
    const AudioCapture* capture = nullptr;
    AudioSampleBlock silence;
    std::unique_ptr<ClockTimer> timer;
};
