#pragma once

#include "IdleStepper.h"
#include "KeyboardSnapshot.h"

#include <QObject>

class Clock;
class DialogDeviceConnect;

// Reads the whole keyboard into a snapshot the way the hub reads one profile: each onboard
// profile is selected in turn (DoSetProfile) and its read sequence runs; then the four user
// pictures (DoReadUserPic) and the light switch (85). It ends on the profile asked for, read
// last, so that the settings in the snapshot are the freshest.
class KeyboardReader : public QObject
{
    Q_OBJECT

public:
    KeyboardReader(DialogDeviceConnect& device, Clock& clock, QObject* parent = nullptr);

    // current is the profile the keyboard is on; with currentIsFresh, the connection has just
    // read it whole and it isn't read again unless it is also last.
    void start(quint8 current, bool currentIsFresh, quint8 last);
    const KeyboardSnapshot& snapshot() const { return shot; }

signals:
    void done();
    void failed(const QString& why);

private:
    void takeReply(const QByteArray& reply);
    void finish();

    DialogDeviceConnect& device;
    IdleStepper steps;
    KeyboardSnapshot shot;
    QByteArray ledReply;
    QByteArray sideReply;
    QByteArray switchReply;
};
