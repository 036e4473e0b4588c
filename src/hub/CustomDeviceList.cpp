#include "CustomDeviceList.h"

#include "ConfigWarnings.h"
#include "OrbeDeviceBase.h"

#include <QFile>
#include <QStringList>
#include <QTextStream>
#include <array>
#include <optional>

namespace {

// Columns of a record line.
enum Column {
    DeviceIdColumn = 0,
    VendorColumn = 1,
    ProductColumn = 2,
    ProbeIdColumn = 3,
    TypeColumn = 4,
    ConnectionColumn = 5,
    NameColumn = 6,
};
constexpr int kMinimumFields = 6;

// The columns that must parse for the line to count, and what the warning calls them.
struct IdColumn
{
    Column column;
    const char* what;
    quint64 CustomDeviceList::Record::*field;
};
constexpr std::array<IdColumn, 4> kIdColumns{{
    {DeviceIdColumn, "device id", &CustomDeviceList::Record::deviceId},
    {VendorColumn, "vendor id", &CustomDeviceList::Record::vendorId},
    {ProductColumn, "product id", &CustomDeviceList::Record::productId},
    {ProbeIdColumn, "probe id", &CustomDeviceList::Record::probeId},
}};

struct LineContext
{
    const QByteArray& text;
    const QString& path;
    int number;    // from 1, as an editor counts
    int& problems; // lines named so far
};

// One line after the marker: null when it is skipped.
std::optional<CustomDeviceList::Record> parseLine(QString line, const LineContext& at)
{
    line.remove(QLatin1Char('{')).remove(QLatin1Char('}')).remove(QLatin1Char('"'));
    if (line.isEmpty()) return std::nullopt;
    const QStringList fields = line.trimmed().split(QLatin1Char(','), Qt::KeepEmptyParts);
    if (fields.size() < kMinimumFields) return std::nullopt;

    CustomDeviceList::Record r;
    for (const IdColumn& id : kIdColumns) {
        const QString field = fields.at(id.column).trimmed();
        const std::optional<quint64> value = OrbeDeviceBase::tryParseNumber(field);
        if (!value) {
            ConfigWarnings::warn(at.path, at.text,
                                 QStringLiteral("line %1: the %2 \"%3\" is not a number; the "
                                                "line is skipped")
                                     .arg(at.number)
                                     .arg(QLatin1String(id.what), field));
            ++at.problems;
            return std::nullopt;
        }
        r.*id.field = *value;
    }
    // Type and connection are not ids: one that doesn't parse counts as 0.
    r.deviceType = OrbeDeviceBase::parseNumber(fields.at(TypeColumn));
    r.connectionType = OrbeDeviceBase::parseNumber(fields.at(ConnectionColumn));
    if (fields.size() > NameColumn) r.name = fields.at(NameColumn).trimmed();
    return r;
}

} // namespace

QList<CustomDeviceList::Record> CustomDeviceList::parse(const QByteArray& text, const QString& path)
{
    QList<Record> records;
    QTextStream in(text);
    bool marked = false;
    QString line;
    int number = 0;
    int problems = 0;
    // Nothing before the marker line counts; after it every line is a record line, a repeated
    // marker included (it is skipped as too short).
    while (in.readLineInto(&line)) {
        ++number;
        if (!marked) {
            marked = line.trimmed() == QLatin1String(kMarker);
            continue;
        }
        if (auto record = parseLine(
                line, {.text = text, .path = path, .number = number, .problems = problems}))
            records.append(*record);
    }
    if (!marked) {
        ConfigWarnings::warn(path, text,
                             QStringLiteral("no line \"%1\": none of its devices is read")
                                 .arg(QLatin1String(kMarker)));
    } else if (problems == 0) {
        ConfigWarnings::clear(path);
    }
    return records;
}

QList<CustomDeviceList::Record> CustomDeviceList::read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        ConfigWarnings::warn(path, {},
                             QStringLiteral("cannot be read (%1): devices of the WS, BY and JM "
                                            "families are not recognised")
                                 .arg(file.errorString()));
        return {};
    }
    return parse(file.readAll(), path);
}
