#pragma once

#include "KeyboardState.h"

#include <QByteArray>
#include <QList>

// The native keyboard's firmware: it keeps the state that the protocol reads and writes,
// answers every read from that state and applies every write to it. It knows nothing of the
// transport; a virtual device hands it the logical frame (command byte at offset 0) and sends
// back the 64-byte answer.
class NativeKeyboardModel
{
public:
    static constexpr int kReplySize = 64;

    explicit NativeKeyboardModel(quint32 deviceId = 0x0AF7, quint16 firmwareVersion = 0x0300);

    // Runs one command. Reads answer from the state; writes and commands the firmware doesn't
    // know answer with the first 64 bytes of the frame, as the keyboard echoes them.
    QByteArray handle(const QByteArray& frame);

    // The owner's clock; the calibration scan follows it.
    void setNow(qint64 milliseconds);

    // Back to the factory state; the identity stays.
    void factoryReset();
    void setDeviceId(quint32 id);
    void setFirmwareVersion(quint16 version);

    // Every frame handled, as received (at least 64 bytes each), oldest first.
    const QList<QByteArray>& receivedFrames() const { return received; }
    void clearReceivedFrames() { received.clear(); }

    // ---- State, for tests comparing the keyboard with what the host believes.
    const KeyboardState& state() const { return s; }
    quint32 deviceId() const;
    quint16 firmwareVersion() const;
    QByteArray infoBlock() const { return s.info; }
    QByteArray optionBlock() const { return s.options; }
    quint8 profile() const { return s.profile; }
    quint8 reportRate() const { return s.reportRate; }
    quint8 debounce() const { return s.debounce; }
    bool ledOn() const { return s.ledOnOff[0] != 0; }
    quint8 ledEffect() const { return s.ledEffect; }
    LedParams ledParams(quint8 effect) const { return s.led[effect]; }
    quint8 sideLedEffect() const { return s.sideEffect; }
    LedParams sideLedParams(quint8 effect) const { return s.sideLed[effect]; }
    quint16 sleepTime(int slot) const { return s.sleepTimes.at(slot); }
    // 512 bytes; empty for a profile or layer the keyboard doesn't have.
    QByteArray keyMap(int profile, int layer) const;
    // Four bytes; zeros outside the matrix.
    QByteArray keyEntry(int profile, int layer, int position) const;
    QByteArray fnMap() const { return s.fnMap; }
    QByteArray fnEntry(int position) const;
    // The value as the keyboard keeps it, cut to the table's width; 0 for an unknown table.
    quint32 magnetValue(quint8 table, int position) const;
    // The packed table, 128 values; empty for an unknown table.
    QByteArray magnetTable(quint8 table) const;
    QByteArray picture(int slot) const;
    QByteArray macro(int id) const;
    QByteArray musicLevels() const { return s.musicLevels; }
    bool keyTestOn() const { return s.keyTest; }
    bool calibrating() const { return s.calibrating; }

    // ---- For the device: live values the firmware produces itself.
    void setMagnetValue(quint8 table, int position, quint32 value);

private:
    void updateCalibration();

    KeyboardState s;
    QList<QByteArray> received;
};
