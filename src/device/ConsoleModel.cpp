#include "ConsoleModel.h"

#include "Clock.h"
#include "DeviceLog.h"
#include "Frame.h"

#include <QSettings>

namespace {

constexpr const char* kVidKey = "lastVID";
constexpr const char* kPidKey = "lastPID";
constexpr const char* kDefaultVid = "3151";
constexpr const char* kDefaultPid = "502F";
constexpr int kLogGroup = 12; // characters of four bytes in hex with their blanks

} // namespace

ConsoleModel::ConsoleModel(Clock* clock, const QString& settingsPath, QObject* parent)
    : QObject(parent), settings(std::make_unique<QSettings>(settingsPath, QSettings::IniFormat))
{
    lineVid = storedId(kVidKey, kDefaultVid);
    linePid = storedId(kPidKey, kDefaultPid);
    consoleRows.changed = [this](int row) { emit rowChanged(row); };
    logClearTimer = clock->createTimer([this] { logClearPending = true; }, true);
}

ConsoleModel::~ConsoleModel() = default;

QString ConsoleModel::storedId(const char* key, const char* fallback) const
{
    // A value that is no id would reach hidapi as 0, which opens any vendor's device, and be
    // written back as 0000: it is named and left aside, and the file keeps it until the next
    // wired connect writes the ids in use.
    const QString text = settings->value(QLatin1String(key), QLatin1String(fallback)).toString();
    if (parseId(text)) return text;
    qCWarning(lcDevice).noquote() << QStringLiteral("%1: %2 \"%3\" is not a USB id (hexadecimal, "
                                                    "not 0); %4 is used instead")
                                         .arg(settings->fileName(), QLatin1String(key), text,
                                              QLatin1String(fallback));
    return QLatin1String(fallback);
}

std::optional<quint16> ConsoleModel::parseId(const QString& text)
{
    bool ok = false;
    const quint16 id = text.trimmed().toUShort(&ok, 16);
    if (!ok || id == 0) return std::nullopt;
    return id;
}

void ConsoleModel::setCommandLine(const QString& text)
{
    lineCommand = text;
    emit commandLineChanged(text);
}

void ConsoleModel::setVidText(const QString& text)
{
    lineVid = text;
    emit idsChanged();
}

void ConsoleModel::setPidText(const QString& text)
{
    linePid = text;
    emit idsChanged();
}

void ConsoleModel::setPidList(const QStringList& pids)
{
    comboPids = pids;
    // The list is filled with its signals blocked: the selection doesn't touch the PID text.
    const int match = pids.indexOf(linePid.trimmed().toUpper());
    comboIndex = match >= 0 ? match : (pids.isEmpty() ? -1 : 0);
    emit pidListChanged();
}

void ConsoleModel::selectPid(const QString& pidText)
{
    comboIndex = comboPids.indexOf(pidText);
    linePid = pidText;
    emit idsChanged();
}

void ConsoleModel::setVersion(quint16 version, quint32 deviceId)
{
    labelVersion = QString::asprintf("Ver:0x%03X Id:%d[%03X]", version, int(deviceId), deviceId);
    emit versionTextChanged(labelVersion);
}

void ConsoleModel::setLamps(bool inputOk, bool commandOk)
{
    lampInput = inputOk;
    lampCommand = commandOk;
    emit lampsChanged(inputOk, commandOk);
}

void ConsoleModel::rememberIds()
{
    settings->setValue(kVidKey, lineVid.trimmed());
    settings->setValue(kPidKey, linePid.trimmed());
    settings->sync();
    if (settings->status() != QSettings::NoError)
        qCWarning(lcDevice) << "could not write" << settings->fileName();
}

QString ConsoleModel::logText(const QByteArray& bytes)
{
    QString text = Frame::hexText(bytes);
    for (int i = text.size() - kLogGroup; i > 0; i -= kLogGroup)
        text.insert(i, QLatin1Char(' '));
    return text;
}

void ConsoleModel::log(const QByteArray& bytes, bool lineEnd)
{
    const QString text = logText(bytes);
    qCDebug(lcDevice).noquote() << text;
    if (logClearPending) {
        logClearPending = false;
        logKept.clear();
        emit logCleared();
    }
    logKept << text;
    if (lineEnd) logKept << QString();
    if (logKept.size() > kLogKeptLines) logKept.remove(0, logKept.size() - kLogKeptLines);
    emit logLine(text, lineEnd);
    logClearTimer->start(kLogClearMs);
}
