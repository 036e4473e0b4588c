#pragma once

#include "ConsoleRows.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

class Clock;
class ClockTimer;
class QSettings;

// What the engineering console shows of the connection: the command rows, the id texts with
// the product ids found, the command line, the lamps, the version label and the log. The
// connection writes it as it works; the console dialog is a view on it. device.ini, which
// seeds the id texts and keeps the last wired ids, lives here with them.
class ConsoleModel : public QObject
{
    Q_OBJECT

public:
    static constexpr int kLogClearMs = 500;
    static constexpr const char* kDefaultCommandLine = "8F 00 00 00 00 00 00 70";

    // settingsPath is the device.ini file.
    ConsoleModel(Clock* clock, const QString& settingsPath, QObject* parent = nullptr);
    ~ConsoleModel() override;

    ConsoleRows& rows() { return consoleRows; }
    const ConsoleRows& rows() const { return consoleRows; }
    int rowOfCommand(quint8 command) const { return consoleRows.rowOf(command); }

    QString vidText() const { return lineVid; }
    QString pidText() const { return linePid; }
    void setVidText(const QString& text);
    void setPidText(const QString& text);
    QString commandLine() const { return lineCommand; }
    void setCommandLine(const QString& text);
    QStringList pidList() const { return comboPids; }
    int pidListIndex() const { return comboIndex; }
    // Fills the list as the refresh found it and selects the PID text's entry, or the first.
    void setPidList(const QStringList& pids);
    // A product id chosen by hand: selected, and the PID text.
    void selectPid(const QString& pidText);
    QString versionText() const { return labelVersion; }
    void setVersion(quint16 version, quint32 deviceId);
    bool inputLampOk() const { return lampInput; }
    bool commandLampOk() const { return lampCommand; }
    void setLamps(bool inputOk, bool commandOk);

    // Keeps the trimmed id texts as the last wired device, in device.ini.
    void rememberIds();
    // An id text as a USB id: hexadecimal, blanks around it ignored. Nothing when it isn't one,
    // and for 0, which hidapi would take as "any device".
    static std::optional<quint16> parseId(const QString& text);

    // Logs bytes: to the debug stream, and as a console line (with an empty line after it when
    // lineEnd). After half a second without a line the next one clears the log first.
    void log(const QByteArray& bytes, bool lineEnd);
    // The log form of bytes: upper-case hex, an extra blank between groups of four bytes
    // counted from the end.
    static QString logText(const QByteArray& bytes);
    // The log as it stands since it was last cleared (an empty string for a line end), so that
    // a console opened late shows it; the oldest lines go past kLogKeptLines.
    QStringList logLines() const { return logKept; }
    static constexpr int kLogKeptLines = 2000;

signals:
    void logLine(const QString& text, bool lineEnd);
    void logCleared();
    void lampsChanged(bool inputOk, bool commandOk);
    void versionTextChanged(const QString& text);
    void commandLineChanged(const QString& text);
    void pidListChanged();
    void idsChanged();
    void rowChanged(int row);

private:
    QString storedId(const char* key, const char* fallback) const;

    std::unique_ptr<QSettings> settings;
    std::unique_ptr<ClockTimer> logClearTimer;
    bool logClearPending = true;
    ConsoleRows consoleRows;
    QStringList logKept;
    QString lineVid;
    QString linePid;
    QString lineCommand = QLatin1String(kDefaultCommandLine);
    QStringList comboPids;
    int comboIndex = -1;
    QString labelVersion = QStringLiteral("0x000");
    bool lampInput = false;
    bool lampCommand = false;
};
