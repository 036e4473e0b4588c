#pragma once

#include "AudioCapture.h"

// For a build with no capture library: the block stays silent, so the music effect shows a dark
// keyboard while its reports still go out. Starting it is logged as a capture that failed.
class SilentLoopbackCapture : public AudioCapture
{
public:
    void start() override;

private:
    bool started = false;
};
