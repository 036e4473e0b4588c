#pragma once

#include <QByteArray>
#include <array>

class AudioSampleBlock;

// The music report (command 0D): 22 levels of 0 to 6 that the keyboard's music effect shows.
// The levels are deliberately not a spectrum: they are the first 22 raw samples of the latest
// block (the left and right samples of its first 11 frames), rectified and scaled, with the
// keyboard protocol's own wrap at 255 and cap at 6 kept as they are.
namespace MusicReport {

constexpr quint8 kCommand = 0x0D;
constexpr int kLevelCount = 22;
constexpr int kLevelOffset = 8; // in the logical frame, after the checksum
constexpr quint8 kMaxLevel = 6;
constexpr double kScale = 6.0;

// One round: the same report ten times, each followed by a 20 ms pause and a read that is thrown
// away; the next round starts 20 ms after the last read.
constexpr int kReportsPerRound = 10;
constexpr int kReportPauseMs = 20;
constexpr int kRoundPauseMs = 20;

using Levels = std::array<quint8, kLevelCount>;

// |sample| x 6, cut toward zero to its low 8 bits, modulo 255, at most 6. So 1.0 and above give
// 6, 42.5 gives 255 and then 0, and 43.0 gives 258, whose low byte is 2. Values that have no
// integer (NaN, infinities) give 0.
quint8 level(float sample);
Levels levels(const AudioSampleBlock& block);

// The report as it goes out on the wired transport: 65 bytes, report id 00, 0D, its checksum
// F2 at offset 8 (it covers only the command and its zero arguments) and the levels from 9.
QByteArray wiredReport(const Levels& levels);

} // namespace MusicReport
