#pragma once

#include "AudioCapture.h"

#include <QByteArray>
#include <memory>

// The default output's monitor source through PulseAudio (which PipeWire systems serve too),
// in 32-bit float stereo at the output's own rate. Everything runs on PulseAudio's own thread:
// start() only asks for the connection, so a slow or absent sound server never holds up the
// caller. Each period that arrives is copied into the block; nothing else happens on that thread.
class PulseLoopbackCapture : public AudioCapture
{
public:
    // server: a PulseAudio server string such as "unix:/run/user/1000/pulse/native"; empty for
    // the user's own server, found the usual way (PULSE_SERVER, client.conf, the runtime folder).
    explicit PulseLoopbackCapture(const QByteArray& server = QByteArray());
    ~PulseLoopbackCapture() override;

    void start() override;

    // The monitor stream is connected and delivering.
    bool isStreaming() const;
    // The capture could not start, or the server went away; it is not retried.
    bool hasFailed() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
