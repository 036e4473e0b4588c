#pragma once

#include "AudioSampleBlock.h"

// What the machine plays, as the music report sees it: a capture that keeps the latest block of
// samples. The implementations (PulseAudio's monitor source on Linux, miniaudio's loopback device
// on Windows) live in src/audio; whoever builds the connection hands one in, and tests feed the
// block themselves.
class AudioCapture
{
public:
    virtual ~AudioCapture() = default;

    // Starts capturing and returns at once, whatever the sound server does meanwhile. The capture
    // then runs until the object is destroyed, whether or not the music effect is on. A failure
    // to start is logged once; the block then holds silence or stale samples.
    virtual void start() = 0;

    const AudioSampleBlock& block() const { return samples; }

protected:
    AudioSampleBlock samples;
};
