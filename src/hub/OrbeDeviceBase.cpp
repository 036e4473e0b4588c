#include "OrbeDeviceBase.h"

#include "BrandCatalogue.h"
#include "CustomDeviceList.h"
#include "HubLog.h"
#include "InstallLayout.h"

#include <QList>

namespace {

constexpr quint16 kNotFoundType = 255;

QList<CustomDeviceList::Record> readCustomList(const QString& appDir)
{
    return CustomDeviceList::read(OrbeDeviceBase::rootDir(appDir) +
                                  QLatin1String(OrbeDeviceBase::kCustomListFile));
}

} // namespace

QString OrbeDeviceBase::rootDir(const QString& appDir)
{
    return appDir.isEmpty() ? InstallLayout().dataDir() : appDir;
}

std::optional<quint64> OrbeDeviceBase::tryParseNumber(const QString& text)
{
    const QString t = text.trimmed().toUpper();
    bool ok = false;
    const quint64 value =
        t.contains(QLatin1String("0X")) ? t.toULongLong(&ok, 16) : t.toULongLong(&ok, 10);
    if (!ok) return std::nullopt;
    return value;
}

quint64 OrbeDeviceBase::parseNumber(const QString& text)
{
    return tryParseNumber(text).value_or(0);
}

QString OrbeDeviceBase::lookupName(quint32 deviceId, quint16& deviceType, int selector,
                                   const QString& appDir)
{
    if (selector == kCustomList) {
        for (const CustomDeviceList::Record& r : readCustomList(appDir)) {
            if ((r.deviceId & 0xFFFF) == deviceId) {
                deviceType = quint16(r.deviceType);
                return r.name;
            }
        }
        deviceType = kNotFoundType;
        return QString();
    }
    const char* file = selector == kFirstBrand ? kFirstBrandFile : kSecondBrandFile;
    return BrandCatalogue::lookup(rootDir(appDir) + QLatin1String(file), deviceId, deviceType);
}

quint64 OrbeDeviceBase::lookupCustom(quint16 vendorId, quint16 productId, quint64 probeId,
                                     QString& name, quint16& deviceType, quint16& connectionType,
                                     const QString& appDir)
{
    for (const CustomDeviceList::Record& r : readCustomList(appDir)) {
        if ((r.vendorId & 0xFFFF) != vendorId || (r.productId & 0xFFFF) != productId ||
            r.probeId != probeId)
            continue;
        name = r.name;
        deviceType = quint16(r.deviceType);
        connectionType = quint16(r.connectionType);
        qCDebug(lcHub).nospace() << "custom list: " << Qt::hex << vendorId << ":" << productId
                                 << " probe " << probeId << " is " << name;
        return r.deviceId & 0xFFFF;
    }
    return 0;
}
