#include "BackupCommand.h"

#include "BackupFile.h"
#include "CliOptions.h"
#include "CliSession.h"
#include "DialogDeviceConnect.h"
#include "KeyboardReader.h"
#include "RestoreRunner.h"

#include <QTextStream>
#include <algorithm>

BackupCommand::BackupCommand(const CliOptions& o, DialogDeviceConnect& d, Clock& c,
                             QTextStream& outStream, QTextStream& errStream)
    : options(o), device(d), clock(c), out(outStream), err(errStream)
{
}

BackupCommand::~BackupCommand() = default;

bool BackupCommand::accepts(const KeyboardSnapshot& backup, const DialogDeviceConnect& device,
                            QString* reason)
{
    if (backup.deviceId == device.GetDeviceId()) return true;
    *reason = QStringLiteral("the backup is of keyboard id %1 (0x%2), the connected keyboard is "
                             "id %3 (0x%4); nothing was written")
                  .arg(backup.deviceId)
                  .arg(QString::number(backup.deviceId, 16).toUpper())
                  .arg(device.GetDeviceId())
                  .arg(QString::number(device.GetDeviceId(), 16).toUpper());
    return false;
}

void BackupCommand::backup(quint8 profile)
{
    reader = std::make_unique<KeyboardReader>(device, clock);
    connect(reader.get(), &KeyboardReader::failed, this, [this](const QString& why) {
        emit finished(CliSession::TimedOut, why + QStringLiteral("; no backup was written"));
    });
    connect(reader.get(), &KeyboardReader::done, this, [this] {
        const KeyboardSnapshot& s = reader->snapshot();
        if (!BackupFile::write(options.backupFile, s)) {
            emit finished(
                CliSession::Failed,
                QStringLiteral("cannot write %1; no backup was written").arg(options.backupFile));
            return;
        }
        out << QStringLiteral("backup of keyboard id %1 (0x%2), firmware 0x%3, written to %4\n")
                   .arg(s.deviceId)
                   .arg(QString::number(s.deviceId, 16).toUpper())
                   .arg(QString::number(s.firmwareVersion, 16).toUpper(), options.backupFile);
        out << QStringLiteral("not in the backup: the macros' events (the keyboard has no "
                              "read-back for its macro slots)\n")
            << Qt::flush;
        emit finished(CliSession::Done, QString());
    });
    reader->start(profile, true, profile);
}

void BackupCommand::restore(const KeyboardSnapshot& backup, quint8 profile)
{
    const quint16 version = KeyboardSnapshot::identityVersion(device.GetDeviceInfo());
    if (backup.firmwareVersion != version)
        err << QStringLiteral(
                   "note: the backup was made on firmware 0x%1, the keyboard runs 0x%2\n")
                   .arg(QString::number(backup.firmwareVersion, 16).toUpper(),
                        QString::number(version, 16).toUpper())
            << Qt::flush;
    runner = std::make_unique<RestoreRunner>(device, clock);
    connect(runner.get(), &RestoreRunner::failed, this,
            [this](const QString& why) { emit finished(CliSession::TimedOut, why); });
    connect(runner.get(), &RestoreRunner::planned, this, [this] {
        const RestorePlan& plan = runner->plan();
        if (plan.isEmpty()) {
            out << "the keyboard matches the backup: nothing to write\n" << Qt::flush;
            return;
        }
        printTable(plan.changes);
        out << QStringLiteral("%1 differences, %2 operations to write")
                   .arg(plan.changes.size())
                   .arg(plan.writeCount());
        if (plan.unwritableCount() > 0)
            out << QStringLiteral("; %1 marked * cannot be written by any operation of the "
                                  "keyboard")
                       .arg(plan.unwritableCount());
        out << (options.dryRun ? QStringLiteral("\ndry run: nothing was written\n")
                               : QStringLiteral("\n"))
            << Qt::flush;
    });
    connect(runner.get(), &RestoreRunner::done, this, &BackupCommand::restored);
    runner->start(backup, profile, options.dryRun);
}

void BackupCommand::restored()
{
    if (options.dryRun || runner->plan().isEmpty()) {
        emit finished(CliSession::Done, QString());
        return;
    }
    const RestorePlan& left = runner->remaining();
    if (left.isEmpty()) {
        out << "read back: the keyboard matches the backup\n" << Qt::flush;
        emit finished(CliSession::Done, QString());
        return;
    }
    out << "read back: the keyboard still differs from the backup:\n";
    printTable(left.changes);
    out.flush();
    emit finished(
        CliSession::Failed,
        QStringLiteral("%1 differences remain after the restore").arg(left.changes.size()));
}

void BackupCommand::printTable(const QList<BackupChange>& changes)
{
    const QString what = QStringLiteral("WHAT");
    const QString before = QStringLiteral("KEYBOARD");
    qsizetype w1 = what.size();
    qsizetype w2 = before.size();
    for (const BackupChange& c : changes) {
        w1 = std::max(w1, c.what.size() + 2);
        w2 = std::max(w2, c.before.size());
    }
    out << what.leftJustified(w1) << "  " << before.leftJustified(w2) << "  BACKUP\n";
    for (const BackupChange& c : changes)
        out << (c.writable ? c.what : c.what + QStringLiteral(" *")).leftJustified(w1) << "  "
            << c.before.leftJustified(w2) << "  " << c.after << '\n';
}
