#include "ReadSequence.h"

#include "Clock.h"
#include "CommandLayouts.h"
#include "ConsoleModel.h"
#include "DeviceCache.h"
#include "DeviceLink.h"
#include "DialogDeviceConnect.h"

using namespace CommandLayouts;
using Kick = DeviceLink::Kick;

namespace {

constexpr int kReadFrameLength = 8;
constexpr int kKeyPages = 8;
constexpr int kFnPages = 10;
constexpr std::uint8_t kSettingReads[] = {CMD_GET_REPORT, CMD_GET_LEDPARAM, CMD_GET_SLEDPARAM,
                                          CMD_GET_DEBOUNCE, CMD_GET_SLEEPTIME};

} // namespace

void ReadSequence::later(int milliseconds, void (ReadSequence::*fn)())
{
    p.link.holdIdle(1);
    p.clock.singleShot(milliseconds, &p.link, [this, fn] {
        p.link.holdIdle(-1);
        (this->*fn)();
    });
}

void ReadSequence::DoSetProfile(quint8 layer)
{
    p.cache.currentProfile = layer;
    p.link.enqueue(bytes(ProfileSet{.profile = layer}), Kick::Immediate);
    later(kProfileReadDelayMs, &ReadSequence::DoReadAll);
}

void ReadSequence::DoReadAll()
{
    emit p.front.onReadAll();
    p.link.setReadingAll(true);
    p.cache.musicOn = false; // only a new choice of the effect starts the music report again
    p.link.stopMusicRound();
    p.link.clearQueue();
    // The version is not asked again: it reads 0 until the next connect.
    p.cache.travelScale = 10;
    p.cache.firmwareVersion = 0;
    // The matrices the pages use keep their content until the end, so they never see holes.
    for (int i = 0; i < DeviceCache::kKeySlots; ++i) {
        p.cache.keyPages[i].clear();
        p.cache.fnPages[i].clear();
    }
    for (QByteArray& t : p.cache.magnetTables)
        t.clear();

    for (const std::uint8_t command : kSettingReads)
        p.link.enqueue(plain(command, kReadFrameLength), Kick::Deferred);
    for (u8 layer = 0; layer < DeviceCache::kKeyLayers; ++layer)
        for (u8 page = 0; page < kKeyPages; ++page)
            p.link.enqueue(bytes(KeyMatrixRead{
                               .profile = p.cache.currentProfile, .page = page, .layer = layer}),
                           Kick::Deferred);
    for (u8 page = 0; page < kFnPages; ++page)
        p.link.enqueue(bytes(FnRead{.page = page}), Kick::Deferred);

    if (!p.cache.versionAtLeast300) return;
    for (const MagnetTables::Table& t : MagnetTables::kTables)
        for (u8 page = 0; page < t.pages; ++page)
            p.link.enqueue(bytes(MagnetRead{.table = t.number, .page = page}), Kick::Deferred);
}

void ReadSequence::finish()
{
    p.link.setReadingAll(false);
    for (int i = 0; i < DeviceCache::kKeySlots; ++i) {
        p.cache.keyMatrix[i] = p.cache.keyPages[i];
        p.cache.fnMatrix[i] = p.cache.fnPages[i];
    }
    later(kReadDoneDelayMs, &ReadSequence::emitReadDone);
}

void ReadSequence::emitReadDone()
{
    emit p.front.onReadDone();
}

void ReadSequence::DoFactoryReset()
{
    p.cache.restoreDefaultMatrices();
    p.front.BuildRowCommand(p.console.rowOfCommand(CMD_SET_RESET), true);
    DoReadAll();
}
