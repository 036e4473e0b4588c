#include "MusicReport.h"

#include "AudioSampleBlock.h"
#include "CommandLayouts.h"
#include "Frame.h"

#include <algorithm>
#include <cmath>

namespace MusicReport {

quint8 level(float sample)
{
    const double scaled = std::fabs(double(sample)) * kScale;
    if (!std::isfinite(scaled)) return 0;
    const auto lowByte = static_cast<quint8>(std::fmod(std::trunc(scaled), 256.0));
    // The protocol's wrap: 255 becomes 0, so a loud enough sample goes dark instead of full.
    return std::min<quint8>(lowByte % 255, kMaxLevel);
}

Levels levels(const AudioSampleBlock& block)
{
    Levels out{};
    for (int i = 0; i < kLevelCount; ++i)
        out[std::size_t(i)] = level(block.at(i));
    return out;
}

QByteArray wiredReport(const Levels& levels)
{
    QByteArray command = CommandLayouts::plain(kCommand, kLevelOffset + kLevelCount);
    for (int i = 0; i < kLevelCount; ++i)
        command[kLevelOffset + i] = static_cast<char>(levels[std::size_t(i)]);
    return Frame::wrapWired(Frame::close(command));
}

} // namespace MusicReport
