#pragma once

#include "NativeKeyboardModel.h"
#include "VirtualDevice.h"

#include <QByteArray>
#include <deque>
#include <optional>

// A native keyboard as the host sees it. Wired: an input interface (usage page FFFF, usage 1)
// that streams key-test reports, and a command interface (usage 2) spoken to with 65-byte
// feature reports; the music report may come on a second open of the command interface and
// leaves the queue's reply alone. Wireless: one interface (usage page FF55, usage 0202) spoken
// to with 66-byte output reports 06 55 + frame, whose answers queue up as input reports.
class VirtualKeyboard : public VirtualDevice
{
public:
    struct Identity
    {
        quint32 deviceId = 0x0AF7;
        quint16 firmwareVersion = 0x0300;
        quint16 vendorId = 0x3151;
        quint16 productId = 0x502F;
    };

    VirtualKeyboard(std::mutex& backendLock, Clock* clock, bool wireless, const Identity& identity,
                    const QByteArray& pathBase);

    // The firmware. Not locked: read it while nothing else drives the backend.
    NativeKeyboardModel& model() { return firmware; }
    const NativeKeyboardModel& model() const { return firmware; }

    QByteArray commandPath() const;
    QByteArray inputPath() const; // empty when wireless
    bool isWireless() const { return wireless; }
    quint16 vendorId() const { return vid; }
    quint16 productId() const { return pid; }

    // ---- Faults on demand.
    // The next n reads of a reply give nothing: a wired get fails, a wireless read waits out
    // its timeout. A wireless reply that was waiting is lost.
    void dropNextReplies(int n);
    // The next reply is cut to this many bytes, report id or prefix included.
    void shortNextReply(int length);
    // Wireless: the next read brings a stale 06 77 report, the read after it the reply.
    void staleReportNext();
    // Wireless: every blocking read on the link takes between min and max milliseconds before
    // it looks for a report (a deterministic spread, the same on every run). 0, 0 for none.
    void setLinkLatency(int minMs, int maxMs);

    // The charge the F7 status feature report gives (reply byte 2, with byte 6 = 1 for a live
    // link). Only the wireless keyboard answers it; the hub's cards poll it for the battery.
    void setBattery(quint8 percent);

    // The raw travel the key-test stream reports at a moment: a key going down to the bottom
    // and up again, over and over.
    static quint16 keyTestTravel(qint64 milliseconds);

protected:
    QList<HidDeviceInfo> interfaces() const override;
    int sendFeatureReport(int interfaceIndex, const quint8* data, size_t length) override;
    int getFeatureReport(int interfaceIndex, quint8* data, size_t length) override;
    int write(int interfaceIndex, const quint8* data, size_t length) override;
    int read(int interfaceIndex, quint8* data, size_t length) override;
    int readDelayMs(int interfaceIndex) override;
    void onUnplugged() override;

private:
    bool isCommandInterface(int interfaceIndex) const;
    QByteArray run(const QByteArray& frame);
    int readKeyTest(quint8* data, size_t length);
    int readReply(quint8* data, size_t length);
    // Copies a reply out, cut by a pending short-reply fault.
    int deliver(const QByteArray& report, quint8* data, size_t length);

    NativeKeyboardModel firmware;
    bool wireless;
    quint16 vid;
    quint16 pid;
    QByteArray pathBase;

    QByteArray featureBuffer;          // wired: the last reply, read as often as asked
    std::deque<QByteArray> replyQueue; // wireless: 06 55 + reply, oldest first
    std::optional<qint64> lastKeyReportMs;
    int dropCount = 0;
    std::optional<int> shortLength;
    bool stalePending = false;
    int latencyMinMs = 0;
    int latencyMaxMs = 0;
    quint32 latencySeed = 1;
    quint8 battery = 88;
};
