#pragma once

#include "AudioSampleBlock.h"
#include "DeviceParts.h"

#include <memory>

class AudioCapture;
class ClockTimer;

// The music report's timer: every 20 ms, while the music effect is chosen, the levels of what
// the machine plays go to the keyboard as one round of ten alike reports on the link's music
// handle. The round runs on the link's I/O thread with its pacing; the timer waits for it and
// starts again 20 ms after. The timer sleeps while the effect is off or the connection has no
// music handle (wireless), so that an idle hub doesn't wake fifty times a second: choosing the
// effect wakes it, and its first tick comes 20 ms later, as it would have on the running timer.
// The capture runs on regardless.
class MusicTimer
{
public:
    explicit MusicTimer(const DeviceParts& parts);
    ~MusicTimer();

    // Where the samples come from; null, or none given, sends silence. It must outlive this.
    void setCapture(const AudioCapture* source) { capture = source; }
    // The music effect was chosen: run the timer unless it runs already or a round is under way.
    void wake();

private:
    void tick();

    DeviceParts p;
    const AudioCapture* capture = nullptr;
    AudioSampleBlock silence;
    std::unique_ptr<ClockTimer> timer;
    bool roundUnderWay = false;
};
