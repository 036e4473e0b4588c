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
        const QString holder = registry.unansweredDevice();
        const QString why =
            holder.isEmpty()
                ? QStringLiteral("no device held it, there were only too many to ask in that time")
                : QStringLiteral("the device at %1 never answered its identity request (it holds "
                                 "the pass for as long as it is plugged in)")
                      .arg(holder);
        err << QStringLiteral("orbehub-cli: the discovery pass did not end within %1 s: %2")
                   .arg(kPassLimitMs / 1000)
                   .arg(why)
            << Qt::endl;
        return CliSession::TimedOut;
    }
    for (const DeviceEnumInfo& record : registry.records())
        out << line(record) << '\n';
    out.flush();
    return CliSession::Done;
}
