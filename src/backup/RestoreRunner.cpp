#include "RestoreRunner.h"

#include "BackupLog.h"
#include "DialogDeviceConnect.h"

RestoreRunner::RestoreRunner(DialogDeviceConnect& d, Clock& clock, QObject* parent)
    : QObject(parent), device(d), reader(d, clock), checker(d, clock), steps(d, clock)
{
    connect(&reader, &KeyboardReader::failed, this, &RestoreRunner::failed);
    connect(&checker, &KeyboardReader::failed, this, &RestoreRunner::failed);
    connect(&reader, &KeyboardReader::done, this, [this] {
        before = RestorePlan::build(reader.snapshot(), backup);
        emit planned();
        if (dryRun || before.isEmpty()) {
            after = before;
            emit done();
            return;
        }
        write();
    });
    connect(&checker, &KeyboardReader::done, this, [this] {
        after = RestorePlan::build(checker.snapshot(), backup);
        emit done();
    });
}

void RestoreRunner::start(const KeyboardSnapshot& b, quint8 current, bool dry)
{
    backup = b;
    dryRun = dry;
    reader.start(current, true, dryRun ? current : backup.activeProfile);
}

void RestoreRunner::write()
{
    // The reader ended on the backup's profile; the others are visited first and it comes last.
    const quint8 target = before.targetProfile;
    bool left = false;
    auto writeAll = [this](const QList<RestorePlan::Write>& writes) {
        for (const RestorePlan::Write& w : writes)
            w(device);
    };
    for (quint8 p = 0; p < KeyboardSnapshot::kProfiles; ++p) {
        if (p == target || before.keyWrites[p].isEmpty()) continue;
        left = true;
        steps.add(QStringLiteral("selecting profile %1").arg(p),
                  [this, p] { device.DoSetProfile(p); });
        steps.add(QStringLiteral("writing the keys of profile %1").arg(p),
                  [writeAll, w = before.keyWrites[p]] { writeAll(w); });
    }
    if (left)
        steps.add(QStringLiteral("selecting profile %1").arg(target),
                  [this, target] { device.DoSetProfile(target); });
    steps.add(QStringLiteral("writing profile %1 and the settings").arg(target),
              [this, writeAll, target] {
                  writeAll(before.keyWrites[target]);
                  writeAll(before.settingsWrites);
              });
    qCInfo(lcBackup) << "restoring" << before.changes.size() << "differences in"
                     << before.writeCount() << "operations";
    steps.run([this, target] { checker.start(target, false, target); },
              [this](const QString& why) { emit failed(why); });
}
