#include "AudioSampleBlock.h"

#include <algorithm>

AudioSampleBlock::AudioSampleBlock()
{
    for (std::atomic<float>& s : samples)
        s.store(0.0f, std::memory_order_relaxed);
}

void AudioSampleBlock::write(const float* data, std::size_t count)
{
    if (!data) return;
    const std::size_t n = std::min<std::size_t>(count, kSamples);
    for (std::size_t i = 0; i < n; ++i)
        samples[i].store(data[i], std::memory_order_relaxed);
}

float AudioSampleBlock::at(int index) const
{
    if (index < 0 || index >= kSamples) return 0.0f;
    return samples[std::size_t(index)].load(std::memory_order_relaxed);
}
