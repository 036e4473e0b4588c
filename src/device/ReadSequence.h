#pragma once

#include "DeviceParts.h"

#include <QtGlobal>

// The connect-time read: the whole state of the keyboard pulled into the cache, one page per
// command, after a profile was selected; and the factory reset, which reads again after it.
class ReadSequence
{
public:
    static constexpr int kProfileReadDelayMs = 500;
    static constexpr int kReadDoneDelayMs = 50;

    explicit ReadSequence(const DeviceParts& parts) : p(parts) {}

    void DoSetProfile(quint8 layer);
    void DoReadAll();
    void DoFactoryReset();
    // The pump found the queue empty while the sequence ran: the pages get the new matrices,
    // and onReadDone follows 50 ms later.
    void finish();

private:
    // Runs fn after the delay on the connection's thread; the connection stays busy until then.
    void later(int milliseconds, void (ReadSequence::*fn)());
    void emitReadDone();

    DeviceParts p;
};
