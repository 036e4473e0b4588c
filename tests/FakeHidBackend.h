#pragma once

// A strict, scriptable HID backend for the protocol tests: it records every call in order and
// answers from a responder function, so tests can check the exact frames, their order and
// their timing against a ManualClock.

#include "Clock.h"
#include "HidBackend.h"
#include "TestSupport.h"

#include <QByteArray>
#include <QList>
#include <deque>
#include <functional>

// A keyboard's reply to 8F: id 0x0AF7 and the given firmware version.
inline QByteArray identity(quint16 version)
{
    QByteArray r = hex("8F F7 0A 00 00 00 00");
    r.append(char(version & 0xFF));
    r.append(char(version >> 8));
    r.resize(64, '\0');
    return r;
}

class FakeHidBackend : public HidBackend
{
public:
    struct Transfer
    {
        QString kind; // "feature>", "feature<", "write", "read", "open", "close", "nonblock"
        QByteArray bytes;
        qint64 at = 0;
        QByteArray path;
        const HidHandle* handle = nullptr; // the one opened, or the one used
    };

    explicit FakeHidBackend(Clock* c) : clock(c) {}

    // Enumeration entries; enumerate() filters them by vid/pid as hidapi does.
    QList<HidDeviceInfo> entries;
    // Paths that refuse to open.
    QList<QByteArray> failingPaths;
    // Builds the reply (logical, without report id/prefix) for a logical frame. Default: echo.
    std::function<QByteArray(const QByteArray&)> responder = [](const QByteArray& f) {
        return f.left(64);
    };
    // Raw reads to hand out first on the wireless path (whole reports, prefix included).
    std::deque<QByteArray> scriptedReads;
    // The next n reply reads give nothing.
    int failReplies = 0;
    // Reports for the input interface's non-blocking read.
    std::deque<QByteArray> inputReports;

    QList<Transfer> log;
    int enumerateCalls = 0;

    void addEntry(quint16 vid, quint16 pid, quint16 page, quint16 usage, const QByteArray& path)
    {
        HidDeviceInfo i;
        i.vendorId = vid;
        i.productId = pid;
        i.usagePage = page;
        i.usage = usage;
        i.path = path;
        entries.append(i);
    }
    void addWiredKeyboard(quint16 pid = 0x502F)
    {
        addEntry(0x3151, pid, 0xFFFF, 1, "in:" + QByteArray::number(pid, 16));
        addEntry(0x3151, pid, 0xFFFF, 2, "cmd:" + QByteArray::number(pid, 16));
    }

    // The logical frames sent so far (report id or prefix removed), first 8 bytes unless whole.
    QList<QByteArray> sentFrames(int bytes = 8) const
    {
        QList<QByteArray> out;
        for (const Transfer& t : log) {
            if (t.kind == "feature>")
                out.append(t.bytes.mid(1, bytes));
            else if (t.kind == "write")
                out.append(t.bytes.mid(2, bytes));
        }
        return out;
    }
    int count(const QString& kind) const
    {
        int n = 0;
        for (const Transfer& t : log)
            n += t.kind == kind;
        return n;
    }
    int openHandles() const { return opened - closed; }

    QList<HidDeviceInfo> enumerate(quint16 vid, quint16 pid) override
    {
        ++enumerateCalls;
        QList<HidDeviceInfo> out;
        for (const HidDeviceInfo& i : entries)
            if ((vid == 0 || i.vendorId == vid) && (pid == 0 || i.productId == pid)) out.append(i);
        return out;
    }
    HidHandle* openPath(const QByteArray& path) override
    {
        if (failingPaths.contains(path)) {
            record("open", {}, path);
            return nullptr;
        }
        ++opened;
        auto* h = new Handle(path);
        record("open", {}, path, h);
        return h;
    }
    void close(HidHandle* h) override
    {
        if (!h) return;
        record("close", {}, static_cast<Handle*>(h)->path, h);
        ++closed;
        delete h;
    }
    int setNonblocking(HidHandle* h, bool nonblocking) override
    {
        record("nonblock", QByteArray(1, nonblocking ? 1 : 0), path(h), h);
        return h ? 0 : -1;
    }
    int sendFeatureReport(HidHandle* h, const quint8* data, size_t length) override
    {
        const QByteArray bytes(reinterpret_cast<const char*>(data), int(length));
        record("feature>", bytes, path(h), h);
        pendingReply = responder(bytes.mid(1));
        return int(length);
    }
    int getFeatureReport(HidHandle* h, quint8* data, size_t length) override
    {
        if (failReplies > 0) {
            --failReplies;
            record("feature<", {}, path(h), h);
            return -1;
        }
        QByteArray reply = QByteArray(1, '\0') + pendingReply;
        reply = reply.left(int(length));
        std::copy(reply.begin(), reply.end(), data);
        record("feature<", reply, path(h), h);
        return reply.size();
    }
    int write(HidHandle* h, const quint8* data, size_t length) override
    {
        const QByteArray bytes(reinterpret_cast<const char*>(data), int(length));
        record("write", bytes, path(h), h);
        wirelessReplies.push_back(QByteArray("\x06\x55", 2) + responder(bytes.mid(2)));
        return int(length);
    }
    int read(HidHandle* h, quint8* data, size_t length) override
    {
        if (inputReports.empty()) return 0;
        const QByteArray r = inputReports.front().left(int(length));
        inputReports.pop_front();
        std::copy(r.begin(), r.end(), data);
        record("read", r, path(h), h);
        return r.size();
    }
    int readTimeout(HidHandle* h, quint8* data, size_t length, int) override
    {
        QByteArray r;
        if (!scriptedReads.empty()) {
            r = scriptedReads.front();
            scriptedReads.pop_front();
        } else if (failReplies > 0) {
            --failReplies;
        } else if (!wirelessReplies.empty()) {
            r = wirelessReplies.front();
            wirelessReplies.pop_front();
        }
        r = r.left(int(length));
        std::copy(r.begin(), r.end(), data);
        record("read", r, path(h), h);
        return r.size();
    }

private:
    struct Handle : HidHandle
    {
        explicit Handle(QByteArray p) : path(std::move(p)) {}
        QByteArray path;
    };
    static QByteArray path(HidHandle* h) { return h ? static_cast<Handle*>(h)->path : "null"; }
    void record(const char* kind, const QByteArray& bytes, const QByteArray& p,
                const HidHandle* h = nullptr)
    {
        log.append({QString::fromLatin1(kind), bytes, clock->elapsedMs(), p, h});
    }

    Clock* clock;
    QByteArray pendingReply;
    std::deque<QByteArray> wirelessReplies;
    int opened = 0;
    int closed = 0;
};
