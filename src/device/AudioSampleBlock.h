#pragma once

#include <array>
#include <atomic>
#include <cstddef>

// The one block of captured samples the music report reads: 480 stereo frames, interleaved left
// and right. The capture's own thread writes it while the connection reads it, without a lock:
// a reader may see parts of two blocks, which does no harm to a light that changes five times a
// second. Each sample is atomic so that this mixing is the worst that can happen.
class AudioSampleBlock
{
public:
    static constexpr int kSamples = 960;

    AudioSampleBlock();

    // Copies the smaller of count and the block from the front; samples past what arrived keep
    // their values. A capture period of any length is taken this way.
    void write(const float* data, std::size_t count);
    // The sample at index; 0 outside the block.
    float at(int index) const;

private:
    std::array<std::atomic<float>, kSamples> samples;
};
