#include "MusicTimer.h"

#include "AudioCapture.h"
#include "Clock.h"
#include "DeviceCache.h"
#include "DeviceLink.h"
#include "MusicReport.h"

MusicTimer::MusicTimer(const DeviceParts& parts) : p(parts)
{
    timer = p.clock.createTimer([this] { tick(); }, false);
    timer->start(MusicReport::kRoundPauseMs);
}

MusicTimer::~MusicTimer() = default;

void MusicTimer::tick()
{
    if (!p.cache.musicOn || !p.link.hasMusicHandle()) return;
    const MusicReport::Levels levels = MusicReport::levels(capture ? capture->block() : silence);
    // The next round is timed from the end of this one, however long its transfers took.
    timer->stop();
    p.link.sendMusicRound(MusicReport::wiredReport(levels), MusicReport::kReportsPerRound,
                          MusicReport::kReportPauseMs,
                          [this] { timer->start(MusicReport::kRoundPauseMs); });
}
