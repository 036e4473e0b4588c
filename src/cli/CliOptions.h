#pragma once

#include "CallRegistry.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

// The command line of orbehub-cli, read and checked before anything touches a device.
struct CliOptions
{
    enum class Command { Info, Dump, Call, List, Backup, Restore };

    bool simulate = false;
    bool wireless = false;
    bool timing = false;
    bool help = false;
    bool simSilent = false; // the virtual keyboard that never answers 8F
    // An interface of the virtual wired keyboard (usage 1 input, 2 command) not listed, or
    // listed and refusing to open; 0 for none.
    int simMissingUsage = 0;
    int simDeniedUsage = 0;
    quint32 simDeviceId = 0x0AF7;
    quint16 simFirmwareVersion = 0x0300;
    // What each read on the virtual wireless link takes, in milliseconds.
    int simLatencyMinMs = 4;
    int simLatencyMaxMs = 30;
    std::optional<quint16> vid;
    std::optional<quint16> pid;
    QString traceFile;
    Command command = Command::Info;
    QList<PlannedCall> calls;
    QString backupFile;  // backup and restore
    bool dryRun = false; // restore: show the differences, write nothing

    // args without the program name. False with a one-line error.
    static bool parse(const QStringList& args, CliOptions* options, QString* error);
    static QString usage();
};
