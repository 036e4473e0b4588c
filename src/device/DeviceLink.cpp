#include "DeviceLink.h"

#include "Clock.h"
#include "ConsoleModel.h"
#include "DeviceLog.h"
#include "Frame.h"
#include "HidExecutor.h"

#include <optional>

namespace {

constexpr quint16 kVendorUsagePage = 0xFFFF;
constexpr quint16 kInputUsage = 1;
constexpr quint16 kCommandUsage = 2;
constexpr int kInputReportLength = 64;

// What a reply read brought: got is false when there was none.
struct Reply
{
    bool got = false;
    QByteArray data;
};

} // namespace

DeviceLink::DeviceLink(HidBackend& backend, Clock& linkClock, HidExecutor& executor,
                       QObject* parent)
    : QObject(parent), hid(backend), clock(linkClock), io(executor),
      generation(std::make_shared<std::atomic<quint64>>(0))
{
    inputPollTimer = clock.createTimer([this] { pollInput(); }, true);
    sendTimer = clock.createTimer([this] { pumpStep(); }, true);
    // The poll's timer runs while there is an input handle to read (adopt), not before.
}

DeviceLink::~DeviceLink()
{
    closeHandles();
}

template <class Result>
void DeviceLink::job(std::function<Result()> work, std::function<void(Result)> done,
                     std::function<void(Result)> stale)
{
    const quint64 armed = *generation;
    ++jobsUnderWay;
    io.run<std::optional<Result>>(
        [gen = generation, armed, work = std::move(work)]() -> std::optional<Result> {
            if (*gen != armed) return std::nullopt;
            return work();
        },
        [this, armed, done = std::move(done),
         stale = std::move(stale)](std::optional<Result> result) {
            --jobsUnderWay;
            if (!result) return;
            if (armed == *generation)
                done(std::move(*result));
            else if (stale)
                stale(std::move(*result));
        });
}

bool DeviceLink::isIdle() const
{
    return sendQueue.isEmpty() && armedSteps == 0 && jobsUnderWay == 0 && ownerSteps == 0 &&
           !sendTimer->isActive() && !readingAll;
}

// ---------------------------------------------------------------- handles

void DeviceLink::closeHandles()
{
    ++*generation;
    closeLater({inputHandle, commandHandle, musicHandle});
    inputHandle = commandHandle = musicHandle = nullptr;
    inputPollTimer->stop(); // nothing to read: an idle hub doesn't wake for it
}

void DeviceLink::closeLater(const Handles& handles)
{
    if (!handles.input && !handles.command && !handles.music) return;
    // Queued behind every job of the old connection, which by then does nothing.
    io.submit(
        [&backend = hid, handles] {
            for (HidHandle* h : {handles.input, handles.command, handles.music})
                if (h) backend.close(h);
        },
        {});
}

void DeviceLink::adopt(const Handles& opened)
{
    inputHandle = opened.input;
    commandHandle = opened.command;
    musicHandle = opened.music;
    if (inputHandle && !inputPollTimer->isActive()) inputPollTimer->start(kPollIntervalMs);
}

void DeviceLink::openWireless(const QByteArray& path, std::function<void(bool)> done)
{
    closeHandles();
    airReads = std::make_shared<AirReads>();
    airSends = 0;
    job<Handles>(
        [&backend = hid, path] {
            Handles h;
            // One handle through the receiver; reads block up to their own limit.
            h.command = backend.openPath(path);
            if (h.command) backend.setNonblocking(h.command, false);
            return h;
        },
        [this, done](Handles opened) {
            adopt(opened);
            done(opened.command != nullptr);
        },
        [this](Handles opened) { closeLater(opened); });
}

void DeviceLink::openWired(quint16 vid, quint16 pid, std::function<void(WiredOpen)> done)
{
    closeHandles();
    job<Handles>(
        [&backend = hid, vid, pid] {
            Handles h;
            for (const HidDeviceInfo& e : backend.enumerate(vid, pid)) {
                if (h.input && h.command && h.music) break;
                if (e.usagePage != kVendorUsagePage) continue;
                if (e.usage == kInputUsage && !h.input) {
                    h.input = backend.openPath(e.path);
                    if (h.input) backend.setNonblocking(h.input, true);
                } else if (e.usage == kCommandUsage && !h.command) {
                    h.command = backend.openPath(e.path);
                    h.music = backend.openPath(e.path);
                }
            }
            return h;
        },
        [this, done](Handles opened) {
            adopt(opened);
            done({opened.input != nullptr, opened.command != nullptr, opened.music != nullptr});
        },
        [this](Handles opened) { closeLater(opened); });
}

void DeviceLink::enumerate(quint16 vid, quint16 pid, std::function<void(QList<HidDeviceInfo>)> done)
{
    job<QList<HidDeviceInfo>>([&backend = hid, vid, pid] { return backend.enumerate(vid, pid); },
                              std::move(done));
}

// ---------------------------------------------------------------- queue and pump

void DeviceLink::enqueue(const QByteArray& command, Kick kick)
{
    if (!commandHandle || command.isEmpty()) return;
    sendQueue.append(command);
    if (kick == Kick::Deferred) {
        sendTimer->stop();
        sendTimer->start(kDeferredKickMs);
    } else {
        pumpStep();
    }
}

void DeviceLink::armStep(int milliseconds, void (DeviceLink::*step)())
{
    ++armedSteps;
    const quint64 armed = *generation;
    clock.singleShot(milliseconds, this, [this, step, armed] {
        --armedSteps;
        if (armed == *generation && commandHandle) (this->*step)();
    });
}

void DeviceLink::pumpStep()
{
    if (sendQueue.isEmpty()) {
        if (readingAll && hooks.drained) hooks.drained();
        return;
    }
    if (!commandHandle) return;
    const QByteArray frame = Frame::close(sendQueue.takeFirst());
    lastFrame = frame;
    HidHandle* handle = commandHandle;
    if (wireless) {
        armStep(kWirelessReadDelayMs, &DeviceLink::readStep);
        ++airSends;
        job<bool>(
            [&backend = hid, handle, frame, air = airReads] {
                Frame::sendWireless(backend, handle, frame);
                if (air) ++air->sendsDone;
                return true;
            },
            [](bool) {});
    } else {
        // The read delay counts from the end of the transfer, as it always has.
        job<bool>(
            [&backend = hid, handle, frame] {
                Frame::sendWired(backend, handle, frame);
                return true;
            },
            [this](bool) { armStep(kWiredReadDelayMs, &DeviceLink::readStep); });
    }
}

void DeviceLink::readStep()
{
    if (!commandHandle) return;
    HidHandle* handle = commandHandle;
    const bool overAir = wireless;
    job<Reply>(
        [&backend = hid, handle, overAir, air = airReads, sentBefore = airSends] {
            Reply r;
            if (!overAir) {
                r.got = Frame::takeReplyWired(backend, handle, &r.data);
                return r;
            }
            const bool answeredAlready =
                air && air->answeredBy > 0 && sentBefore <= air->answeredBy;
            const quint64 sentAtStart = air ? air->sendsDone : 0;
            r.got = Frame::takeReplyWireless(backend, handle, &r.data,
                                             answeredAlready ? 0 : Frame::kWirelessReadTimeoutMs);
            if (!r.got && !answeredAlready && air) air->answeredBy = sentAtStart;
            return r;
        },
        [this](Reply r) {
            if (!r.got) {
                qCDebug(lcDevice) << "no reply to" << ConsoleModel::logText(lastFrame.left(8));
                return; // the pump stops here; the queue waits for the next kick
            }
            if (hooks.reply) hooks.reply(r.data);
            armStep(kPumpAfterReplyMs, &DeviceLink::pumpStep);
        });
}

void DeviceLink::sendMusicRound(const QByteArray& wrappedReport, int times, int gapMs,
                                std::function<void()> done)
{
    if (!musicHandle) return;
    HidHandle* handle = musicHandle;
    musicStop = std::make_shared<std::atomic<bool>>(false);
    ++jobsUnderWay;
    io.submit(
        [&backend = hid, &wait = clock, gen = generation, armed = quint64(*generation),
         stop = musicStop, handle, wrappedReport, times, gapMs] {
            const auto* bytes = reinterpret_cast<const quint8*>(wrappedReport.constData());
            // A send is always followed by its read; the round ends early only between two.
            for (int i = 0; i < times && *gen == armed && !*stop; ++i) {
                backend.sendFeatureReport(handle, bytes, size_t(wrappedReport.size()));
                wait.sleepMs(gapMs);
                quint8 answer[Frame::kReplyBufferSize] = {}; // read and dropped
                backend.getFeatureReport(handle, answer, Frame::kWiredLength);
            }
        },
        [this, done = std::move(done)] {
            --jobsUnderWay;
            if (done) done();
        });
}

void DeviceLink::stopMusicRound()
{
    if (musicStop) *musicStop = true;
}

// ---------------------------------------------------------------- input stream

void DeviceLink::pollInput()
{
    inputPollTimer->stop();
    if (!inputHandle) return; // closed since: the next adopt starts the poll again
    if (readingAll) {
        inputPollTimer->start(kPollIntervalMs);
        return;
    }
    HidHandle* handle = inputHandle;
    const quint64 armed = *generation;
    io.run<QByteArray>(
        [&backend = hid, handle, gen = generation, armed] {
            if (*gen != armed) return QByteArray();
            quint8 buffer[Frame::kReplyBufferSize] = {};
            const int n = backend.read(handle, buffer, kInputReportLength);
            return n > 0 ? QByteArray(reinterpret_cast<const char*>(buffer), n) : QByteArray();
        },
        [this, armed](QByteArray report) {
            if (!report.isEmpty() && armed == *generation && hooks.input) hooks.input(report);
            // Closed while the read was out: the poll stays stopped until the next adopt.
            if (inputHandle) inputPollTimer->start(kPollIntervalMs);
        });
}
