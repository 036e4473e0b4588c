#pragma once

#include "AudioCapture.h"

#include <memory>

// Windows: miniaudio's loopback device on the default output, 32-bit float stereo at the
// device's own rate. Built only when miniaudio.h was found at configure time. miniaudio's thread
// does nothing but copy each period into the block.
class MiniaudioLoopbackCapture : public AudioCapture
{
public:
    MiniaudioLoopbackCapture();
    ~MiniaudioLoopbackCapture() override;

    void start() override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
