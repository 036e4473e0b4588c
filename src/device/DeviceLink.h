#pragma once

#include "HidBackend.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <atomic>
#include <functional>
#include <memory>

class Clock;
class ClockTimer;
class HidExecutor;

// The wire to one native keyboard: its three HID handles, the send queue and its pump, the read
// step and the input poll. The state machine and its timers live on the thread that made the
// link; every HID call runs as a job on the executor and the machine goes on when the job's
// result is back. Jobs for handles that were closed since they were armed do nothing.
class DeviceLink : public QObject
{
    Q_OBJECT

public:
    static constexpr int kPollIntervalMs = 20;
    static constexpr int kDeferredKickMs = 5;
    static constexpr int kWiredReadDelayMs = 20;
    static constexpr int kWirelessReadDelayMs = 100;
    static constexpr int kPumpAfterReplyMs = 10;

    enum class Kick { Deferred, Immediate };

    // What a wired open found: which handles it got.
    struct WiredOpen
    {
        bool input = false;
        bool command = false;
        bool music = false;
        bool complete() const { return input && command && music; }
    };

    // What the link tells its owner, on the link's thread.
    struct Hooks
    {
        std::function<void(const QByteArray& reply)> reply;  // a reply came
        std::function<void(const QByteArray& report)> input; // the input poll read a report
        std::function<void()> drained; // a pump step found the queue empty while reading all
    };

    // hid and the executor must outlive the link.
    DeviceLink(HidBackend& hid, Clock& clock, HidExecutor& io, QObject* parent = nullptr);
    ~DeviceLink() override;

    void setHooks(Hooks hooks) { this->hooks = std::move(hooks); }

    // ---- Handles. Each open closes what was open first; done runs when the open is over.
    void openWireless(const QByteArray& path, std::function<void(bool opened)> done);
    // Enumerates vid and pid and opens the usage 1 interface for input and the usage 2
    // interface twice, for commands and music; done gets what was opened.
    void openWired(quint16 vid, quint16 pid, std::function<void(WiredOpen)> done);
    void enumerate(quint16 vid, quint16 pid, std::function<void(QList<HidDeviceInfo>)> done);
    void closeHandles();
    bool isConnected() const { return commandHandle != nullptr; }
    bool isWireless() const { return wireless; }
    void setWireless(bool on) { wireless = on; }

    // ---- Queue and pump.
    // Drops the command when nothing is connected (or it is empty).
    void enqueue(const QByteArray& command, Kick kick);
    void clearQueue() { sendQueue.clear(); }
    int queuedCount() const { return int(sendQueue.size()); }
    const QList<QByteArray>& queue() const { return sendQueue; }
    // The last frame sent, closed, before the transport's prefix.
    QByteArray lastCommand() const { return lastFrame; }
    // Takes a reply now, whatever was sent (the console's Read button).
    void readStep();

    // The music report's round on its own handle: times over, send the wrapped report, wait
    // gapMs on the clock, read the answer and drop it. It runs as one job, so the queue's
    // frames wait behind it as they would behind the round on one thread. done comes back here
    // when the round is over, whole or cut (below), or the connection changed meanwhile.
    // Nothing happens without the music handle (a wireless connection has none).
    void sendMusicRound(const QByteArray& wrappedReport, int times, int gapMs,
                        std::function<void()> done = {});
    bool hasMusicHandle() const { return musicHandle != nullptr; }
    // Cuts the round under way after the read it is at: the effect went off, so the keyboard's
    // next frames need not wait for the rest of it.
    void stopMusicRound();

    // The read sequence's flag: the input poll waits while it is up, and the pump step that
    // finds the queue empty reports the end of the sequence.
    bool isReadingAll() const { return readingAll; }
    void setReadingAll(bool on) { readingAll = on; }

    // Nothing queued, armed or under way.
    bool isIdle() const;
    // A step of the owner's that isIdle() should wait for.
    void holdIdle(int delta) { ownerSteps += delta; }

private:
    struct Handles
    {
        HidHandle* input = nullptr;
        HidHandle* command = nullptr;
        HidHandle* music = nullptr;
    };

    void pumpStep();
    void pollInput();
    void armStep(int milliseconds, void (DeviceLink::*step)());
    // Runs work on the executor unless the connection changed before it got there; then runs
    // done here, again only for the same connection. A result that comes back to a connection
    // that changed meanwhile goes to stale instead, if given.
    template <class Result>
    void job(std::function<Result()> work, std::function<void(Result)> done,
             std::function<void(Result)> stale = {});
    // Closes handles on the executor, behind every job already submitted.
    void closeLater(const Handles& handles);
    void adopt(const Handles& opened);

    HidBackend& hid;
    Clock& clock;
    HidExecutor& io;
    Hooks hooks;

    QList<QByteArray> sendQueue;
    HidHandle* inputHandle = nullptr;
    HidHandle* commandHandle = nullptr;
    HidHandle* musicHandle = nullptr;
    bool wireless = false;
    bool readingAll = false;
    QByteArray lastFrame;
    std::unique_ptr<ClockTimer> inputPollTimer;
    std::unique_ptr<ClockTimer> sendTimer;

    // Bumped whenever the handles close; a job or step of an older connection does nothing.
    // The executor's side reads it, hence atomic.
    std::shared_ptr<std::atomic<quint64>> generation;
    // Set to cut the music round under way; each round gets its own.
    std::shared_ptr<std::atomic<bool>> musicStop;

    // Over the receiver every frame's answer arrives as an input report, and the system keeps
    // only so many of them (64 on Linux's hidraw). After a burst of writes, a read that waited
    // its full limit in vain means that every frame sent before it began has had that long to
    // be answered: the reads still armed for those frames take what is there without waiting,
    // instead of holding the link for 400 ms each. Only the reads change; nothing else is sent.
    // Touched by the executor's jobs only, which run one at a time; one per connection.
    struct AirReads
    {
        quint64 sendsDone = 0;  // frames the executor has sent
        quint64 answeredBy = 0; // frames sent before the last read that waited in vain
    };
    std::shared_ptr<AirReads> airReads;
    quint64 airSends = 0; // frames handed to the executor, on the link's thread
    int armedSteps = 0;
    int jobsUnderWay = 0;
    int ownerSteps = 0;
};
