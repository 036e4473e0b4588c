#pragma once

// What the reply target and its seeds share: the form of an input, and the way a connection is
// driven through it, as the hub and the tool drive it.
//
// An input is one byte of set-up, then chunks. The set-up byte's bit 0 picks the transport
// (1: wireless); its bits 1 to 7 pick operations run after the read sequence (kExtras). A chunk
// is a header byte and as many bytes as its low seven bits say (at most kMaxChunk): the whole
// report a read hands over, report id and prefix included. Bit 7 of the header sends the chunk
// to the wired input interface's poll instead of the command interface.

#include "DialogDeviceConnect.h"
#include "HidBackend.h"
#include "ManualClock.h"

#include <QByteArray>
#include <array>
#include <functional>

namespace ReplyScript {

constexpr quint8 kWirelessBit = 0x01;
constexpr quint8 kInputChunk = 0x80;
constexpr int kMaxChunk = 66; // a wireless report, the longest a read takes
constexpr quint16 kVendor = 0x3151;
constexpr quint16 kWiredProduct = 0x502F;
constexpr quint16 kWirelessProduct = 0x5030;
constexpr qint64 kReadLimitMs = 60000; // the read sequence takes seconds
constexpr qint64 kExtraLimitMs = 5000;
constexpr qint64 kStepMs = 50;

// Operations that make the keyboard answer with more than an echo, picked by set-up bits 1-7.
inline const std::array<std::function<void(DialogDeviceConnect&)>, 7>& extras()
{
    static const std::array<std::function<void(DialogDeviceConnect&)>, 7> table{
        [](DialogDeviceConnect& c) { c.DoReadUserPic(1); },
        [](DialogDeviceConnect& c) { c.DoStartKeyTest(); },
        [](DialogDeviceConnect& c) { c.DoStartCalibration(); },
        [](DialogDeviceConnect& c) { c.DoSetProfile(2); },
        [](DialogDeviceConnect& c) { c.DoSendCommand(0x91, 8, true); },
        [](DialogDeviceConnect& c) { c.DoSendHex(QStringLiteral("8A0000000300"), true); },
        [](DialogDeviceConnect& c) { c.DoFactoryReset(); },
    };
    return table;
}

// Connects to the keyboard as the hub does (the layer the chain reports is pressed), lets the
// read run, then runs the picked operations. settled() tells when there is nothing more to
// wait for; virtual time stops at the limits in any case.
inline void drive(DialogDeviceConnect& connection, ManualClock& clock, quint8 setup,
                  const std::function<bool()>& settled)
{
    QObject::connect(&connection, &DialogDeviceConnect::onUpdataLayer, &connection,
                     [&connection](int layer) { connection.DoSetProfile(quint8(layer)); });
    const bool wireless = setup & kWirelessBit;
    connection.DoConnectDevice(kVendor, wireless ? kWirelessProduct : kWiredProduct, wireless,
                               QStringLiteral("0AF7"),
                               wireless ? QStringLiteral("sim:3151:5030:FF55") : QString());
    clock.advanceUntil(settled, kReadLimitMs, kStepMs);
    for (std::size_t i = 0; i < extras().size(); ++i) {
        if (!(setup & (2u << i))) continue;
        extras()[i](connection);
        clock.advanceUntil(settled, kExtraLimitMs, kStepMs);
    }
}

// A chunk as the input holds it.
inline QByteArray chunk(const quint8* data, int size, bool input)
{
    const int n = size < kMaxChunk ? size : kMaxChunk;
    QByteArray c(1, char(quint8(n) | (input ? kInputChunk : 0)));
    c.append(reinterpret_cast<const char*>(data), n);
    return c;
}

} // namespace ReplyScript
