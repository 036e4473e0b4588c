#pragma once

#include "CliOptions.h"
#include "KeyboardSnapshot.h"
#include "ModuleGenKeymapping.h"

#include <QObject>
#include <memory>
#include <optional>

class Clock;
class ClockTimer;
class DialogDeviceConnect;
class VirtualKeyboard;
class HidBackend;
class BackupCommand;
class QFile;
class QTextStream;

// What a test hands the session in place of the real clock and a backend of its own: the
// virtual keyboard outlives the session, so one keyboard sees several runs, and the HID calls
// run inline, in virtual time.
struct CliHarness
{
    Clock* clock = nullptr;
    HidBackend* hid = nullptr;
    VirtualKeyboard* keyboard = nullptr;
};

// One run of the tool: opens the backend, connects, lets the first command chain and the read
// sequence run as the hub does, carries out the command, and ends the event loop with the exit
// status.
class CliSession : public QObject
{
    Q_OBJECT

public:
    enum ExitStatus {
        Done = 0,
        Failed = 1,
        BadUsage = 2,
        NotFound = 3,
        NotOpened = 4,
        TimedOut = 5,
        Refused = 6, // a backup file that is damaged, newer or of another keyboard
    };
    static constexpr int kDeadlineMs = 30000;
    static constexpr int kIdlePollMs = 5;

    // With a harness, --simulate uses its keyboard and clock.
    CliSession(const CliOptions& options, QTextStream& out, QTextStream& err,
               const CliHarness* harness = nullptr);
    ~CliSession() override;

    // Call with the event loop running (or about to run); ended() comes once, when done.
    void start();

signals:
    void ended(int status);

private:
    bool openBackend();
    bool connectKeyboard();
    void onLayer(int layer);
    void onReadStarted();
    void onReadFinished();
    void runNextCall();
    void checkIdle();
    void printInfo(int layer);
    void printCache();
    void startBackupCommand();
    void armDeadline(const QString& what);
    void finish(int status, const QString& message = QString());

    CliOptions options;
    const CliHarness* harness;
    QTextStream& out;
    QTextStream& err;
    Clock* clock;
    ModuleGenKeymapping keys;

    std::unique_ptr<HidBackend> backend;
    std::unique_ptr<QFile> traceFile;
    std::unique_ptr<HidBackend> tracer;
    HidBackend* hid = nullptr;
    std::unique_ptr<DialogDeviceConnect> device;
    VirtualKeyboard* simulated = nullptr; // the keyboard in use with --simulate
    std::unique_ptr<ClockTimer> idlePoll;
    std::unique_ptr<ClockTimer> deadline;
    std::optional<KeyboardSnapshot> restoreFrom;
    std::unique_ptr<BackupCommand> backupCommand;

    quint16 vid = 0;
    quint16 pid = 0;
    bool opened = false;
    bool readDone = false;
    bool finished = false;
    int nextCall = 0;
    qint64 readStartedMs = -1;
};
