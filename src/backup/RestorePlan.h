#pragma once

#include "KeyboardSnapshot.h"

#include <QList>
#include <QString>
#include <array>
#include <functional>

class DialogDeviceConnect;

// One difference between the keyboard and a backup, as a line of the table a restore prints.
struct BackupChange
{
    QString what;
    QString before; // the keyboard's
    QString after;  // the backup's
    // False when no operation of the connection can put the backup's value in place (a matrix
    // position no key code reaches, a byte the checksum overwrites...): shown, never pretended.
    bool writable = true;
};

// What differs between a keyboard and a backup, and the ordinary Do operations that make the
// keyboard equal to the backup. Key layers are written per profile, with that profile selected;
// everything else once, on the backup's active profile.
struct RestorePlan
{
    using Write = std::function<void(DialogDeviceConnect&)>;

    QList<BackupChange> changes;
    std::array<QList<Write>, KeyboardSnapshot::kProfiles> keyWrites;
    QList<Write> settingsWrites;
    quint8 targetProfile = 0;

    static RestorePlan build(const KeyboardSnapshot& keyboard, const KeyboardSnapshot& backup);

    bool isEmpty() const { return changes.isEmpty(); }
    int unwritableCount() const;
    int writeCount() const;
};
