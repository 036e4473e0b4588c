#pragma once

#include "HidBackend.h"

#include <QHash>
#include <QMutex>
#include <QString>
#include <memory>

// Wraps a backend and measures every call: the longest one of the run on each thread (the
// connection's I/O thread, discovery, the battery poller), what it was, and how many calls there
// were. For the stall watch, which sets the window's longest pause beside it.
class TimedHidBackend : public HidBackend
{
public:
    explicit TimedHidBackend(std::unique_ptr<HidBackend> inner);
    ~TimedHidBackend() override;

    HidBackend& inner() const { return *wrapped; }
    struct Longest
    {
        double ms = 0;
        QString call; // "readTimeout"
    };
    // The longest call so far, of all threads and by the name of the thread that made it.
    Longest longest() const;
    QHash<QString, Longest> longestByThread() const;
    int callCount() const;

    QList<HidDeviceInfo> enumerate(quint16 vendorId, quint16 productId) override;
    HidHandle* openPath(const QByteArray& path) override;
    void close(HidHandle* handle) override;
    int setNonblocking(HidHandle* handle, bool nonblocking) override;
    int sendFeatureReport(HidHandle* handle, const quint8* data, size_t length) override;
    int getFeatureReport(HidHandle* handle, quint8* data, size_t length) override;
    int write(HidHandle* handle, const quint8* data, size_t length) override;
    int read(HidHandle* handle, quint8* data, size_t length) override;
    int readTimeout(HidHandle* handle, quint8* data, size_t length, int milliseconds) override;

private:
    template <class Call> auto timed(const char* name, Call call);

    std::unique_ptr<HidBackend> wrapped;
    mutable QMutex mutex;
    Longest overall;
    QHash<QString, Longest> byThread;
    int calls = 0;
};
