#include "MusicTimer.h"

#include "AudioCapture.h"
#include "Clock.h"
#include "DeviceCache.h"
#include "DeviceLink.h"
#include "MusicReport.h"

MusicTimer::MusicTimer(const DeviceParts& parts) : p(parts)
{
    timer = p.clock.createTimer([this] { tick(); }, false);
}

MusicTimer::~MusicTimer() = default;

void MusicTimer::wake()
{
    if (!roundUnderWay && !timer->isActive()) timer->start(MusicReport::kRoundPauseMs);
}

void MusicTimer::tick()
{
    if (!p.cache.musicOn || !p.link.hasMusicHandle()) {
        timer->stop(); // until the effect is chosen again
        return;
    }
    const MusicReport::Levels levels = MusicReport::levels(capture ? capture->block() : silence);
    // The next round is timed from the end of this one, however long its transfers took.
    timer->stop();
    roundUnderWay = true;
    p.link.sendMusicRound(MusicReport::wiredReport(levels), MusicReport::kReportsPerRound,
                          MusicReport::kReportPauseMs, [this] {
                              roundUnderWay = false;
                              timer->start(MusicReport::kRoundPauseMs);
                          });
}
