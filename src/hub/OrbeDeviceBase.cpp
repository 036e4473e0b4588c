#include "OrbeDeviceBase.h"

#include "HubLog.h"
#include "InstallLayout.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QTextStream>
#include <array>
#include <optional>

namespace {

// The arrays of an object-root catalogue, in the order they are searched.
struct CatalogueArray
{
    const char* key;
    quint16 deviceType;
};

constexpr std::array<CatalogueArray, 4> kCatalogueArrays{{
    {.key = "keyboard", .deviceType = 0},
    {.key = "mouse", .deviceType = 1},
    {.key = "hitBoxKeyboard", .deviceType = 3},
    {.key = "hitBoxScreen", .deviceType = 3},
}};

constexpr quint16 kNotFoundType = 255;

// Columns of a custom-list line.
enum CustomColumn {
    DeviceIdColumn = 0,
    VendorColumn = 1,
    ProductColumn = 2,
    ProbeIdColumn = 3,
    TypeColumn = 4,
    ConnectionColumn = 5,
    NameColumn = 6,
};
constexpr int kMinimumFields = 6;

struct CustomRecord
{
    quint64 deviceId = 0;
    quint64 vendorId = 0;
    quint64 productId = 0;
    quint64 probeId = 0;
    quint64 deviceType = 0;
    quint64 connectionType = 0;
    QString name; // empty on a line of six fields
};

// One line after the marker: null when it is skipped.
std::optional<CustomRecord> parseCustomLine(QString line)
{
    line.remove(QLatin1Char('{')).remove(QLatin1Char('}')).remove(QLatin1Char('"'));
    if (line.isEmpty()) return std::nullopt;
    const QStringList fields = line.trimmed().split(QLatin1Char(','), Qt::KeepEmptyParts);
    if (fields.size() < kMinimumFields) return std::nullopt;
    auto number = [&fields](int column) { return OrbeDeviceBase::parseNumber(fields.at(column)); };
    CustomRecord r;
    r.deviceId = number(DeviceIdColumn);
    r.vendorId = number(VendorColumn);
    r.productId = number(ProductColumn);
    r.probeId = number(ProbeIdColumn);
    r.deviceType = number(TypeColumn);
    r.connectionType = number(ConnectionColumn);
    if (fields.size() > NameColumn) r.name = fields.at(NameColumn).trimmed();
    return r;
}

// The records of the custom list, in file order. Nothing before the marker line counts; after
// it every line is a record line, a repeated marker included (it is skipped as too short).
QList<CustomRecord> readCustomList(const QString& appDir)
{
    QList<CustomRecord> records;
    QFile file(OrbeDeviceBase::rootDir(appDir) + QLatin1String(OrbeDeviceBase::kCustomListFile));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return records;
    QTextStream in(&file);
    bool marked = false;
    QString line;
    while (in.readLineInto(&line)) {
        if (!marked) {
            marked = line.trimmed() == QLatin1String(OrbeDeviceBase::kCustomListMarker);
            continue;
        }
        if (auto record = parseCustomLine(line)) records.append(*record);
    }
    return records;
}

bool sameId(const QJsonValue& element, quint32 deviceId)
{
    return qint64(element.toObject().value(QLatin1String("id")).toInt()) == qint64(deviceId);
}

QString nameOf(const QJsonValue& element)
{
    return element.toObject().value(QLatin1String("displayName")).toString().trimmed();
}

QString lookupBrand(const QString& path, quint32 deviceId, quint16& deviceType)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        deviceType = kNotFoundType;
        return QString();
    }
    // UTF-8 text; a malformed document parses to an empty one and matches nothing.
    const QJsonDocument doc = QJsonDocument::fromJson(file.readAll());
    if (doc.isObject()) {
        const QJsonObject root = doc.object();
        for (const CatalogueArray& array : kCatalogueArrays) {
            for (const QJsonValue& element : root.value(QLatin1String(array.key)).toArray()) {
                if (sameId(element, deviceId)) {
                    deviceType = array.deviceType;
                    return nameOf(element);
                }
            }
        }
    } else if (doc.isArray()) {
        for (const QJsonValue& element : doc.array())
            if (sameId(element, deviceId)) return nameOf(element);
    }
    deviceType = kNotFoundType;
    return QString();
}

} // namespace

QString OrbeDeviceBase::rootDir(const QString& appDir)
{
    return appDir.isEmpty() ? InstallLayout().dataDir() : appDir;
}

quint64 OrbeDeviceBase::parseNumber(const QString& text)
{
    const QString t = text.trimmed().toUpper();
    bool ok = false;
    const quint64 value =
        t.contains(QLatin1String("0X")) ? t.toULongLong(&ok, 16) : t.toULongLong(&ok, 10);
    return ok ? value : 0;
}

QString OrbeDeviceBase::lookupName(quint32 deviceId, quint16& deviceType, int selector,
                                   const QString& appDir)
{
    if (selector == kCustomList) {
        for (const CustomRecord& r : readCustomList(appDir)) {
            if ((r.deviceId & 0xFFFF) == deviceId) {
                deviceType = quint16(r.deviceType);
                return r.name;
            }
        }
        deviceType = kNotFoundType;
        return QString();
    }
    const char* file = selector == kFirstBrand ? kFirstBrandFile : kSecondBrandFile;
    return lookupBrand(rootDir(appDir) + QLatin1String(file), deviceId, deviceType);
}

quint64 OrbeDeviceBase::lookupCustom(quint16 vendorId, quint16 productId, quint64 probeId,
                                     QString& name, quint16& deviceType, quint16& connectionType,
                                     const QString& appDir)
{
    for (const CustomRecord& r : readCustomList(appDir)) {
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
