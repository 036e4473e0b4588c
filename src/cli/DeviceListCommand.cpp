#include "DeviceListCommand.h"

#include "CliSession.h"
#include "Clock.h"
#include "DeviceRegistry.h"

#include <QTextStream>

QString DeviceListCommand::line(const DeviceEnumInfo& r)
{
    return QStringList{
        QString::number(r.family),
        QString::number(r.connectionType),
        QStringLiteral("0x") +
            QString::number(r.deviceId, 16).toUpper().rightJustified(4, QLatin1Char('0')),
        QString::number(r.online ? 1 : 0),
        r.displayName,
        r.vendorPath,
        r.devicePath}
        .join(QLatin1Char('\t'));
}

int DeviceListCommand::run(HidBackend& hid, Clock& clock, QTextStream& out, QTextStream& err)
{
    DeviceRegistry registry(&hid, &clock);
    const qint64 start = clock.elapsedMs();
    const bool done = registry.enumerateDevices(
        [&clock, start] { return clock.elapsedMs() - start > kPassLimitMs; });
    if (!done) {
        err << QStringLiteral("orbehub-cli: the discovery pass did not end within %1 s: a device "
                              "never answers its identity request")
                   .arg(kPassLimitMs / 1000)
            << Qt::endl;
        return CliSession::TimedOut;
    }
    for (const DeviceEnumInfo& record : registry.records())
        out << line(record) << '\n';
    out.flush();
    return CliSession::Done;
}
