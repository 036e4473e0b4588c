#pragma once

#include "KeyboardSnapshot.h"

#include <QObject>
#include <QString>
#include <memory>

class Clock;
class DialogDeviceConnect;
class KeyboardReader;
class QTextStream;
class RestoreRunner;
struct BackupChange;
struct CliOptions;

// backup FILE and restore FILE [--dry-run]: the session hands over once the connection has read
// the profile the keyboard is on, as the hub's first read does.
class BackupCommand : public QObject
{
    Q_OBJECT

public:
    BackupCommand(const CliOptions& options, DialogDeviceConnect& device, Clock& clock,
                  QTextStream& out, QTextStream& err);
    ~BackupCommand() override;

    void backup(quint8 profile);
    void restore(const KeyboardSnapshot& backup, quint8 profile);

    // Whether a restore may go on with the connected keyboard; a reason for the user if not.
    static bool accepts(const KeyboardSnapshot& backup, const DialogDeviceConnect& device,
                        QString* reason);

signals:
    // A status of CliSession::ExitStatus, with a message for stderr on failure.
    void finished(int status, const QString& message);

private:
    void printTable(const QList<BackupChange>& changes);
    void restored();

    const CliOptions& options;
    DialogDeviceConnect& device;
    Clock& clock;
    QTextStream& out;
    QTextStream& err;
    std::unique_ptr<KeyboardReader> reader;
    std::unique_ptr<RestoreRunner> runner;
};
