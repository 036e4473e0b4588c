#include "BrandCatalogue.h"

#include "ConfigWarnings.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <array>

namespace {

// The arrays of an object root, in the order they are searched.
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

// Where the search reports what it finds wrong on its way.
struct Search
{
    const QByteArray& json;
    const QString& path;
    quint32 deviceId;
    int problems = 0;

    void warn(const QString& problem)
    {
        ConfigWarnings::warn(path, json, problem);
        ++problems;
    }

    // The index of the entry with the id in the array, or -1. Every entry is looked at, so that
    // one that can never match is named wherever it stands.
    qsizetype findIn(const QJsonArray& entries, const QString& where)
    {
        qsizetype match = -1;
        for (qsizetype i = 0; i < entries.size(); ++i) {
            const QJsonValue id = entries.at(i).toObject().value(QLatin1String("id"));
            if (!id.isDouble()) {
                warn(QStringLiteral("entry %1 of %2 has no numeric \"id\"; it matches no device")
                         .arg(i)
                         .arg(where));
                continue;
            }
            if (match < 0 && qint64(id.toInt()) == qint64(deviceId)) match = i;
        }
        return match;
    }
};

QString nameOf(const QJsonValue& entry)
{
    return entry.toObject().value(QLatin1String("displayName")).toString().trimmed();
}

} // namespace

QString BrandCatalogue::find(const QByteArray& json, quint32 deviceId, quint16& deviceType,
                             const QString& path)
{
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        ConfigWarnings::warn(path, json,
                             QStringLiteral("not a JSON document (%1 at byte %2): none of its "
                                            "devices is recognised")
                                 .arg(error.errorString())
                                 .arg(error.offset));
        deviceType = kNotFoundType;
        return QString();
    }

    Search search{.json = json, .path = path, .deviceId = deviceId};
    QString name;
    bool found = false;
    if (doc.isObject()) {
        const QJsonObject root = doc.object();
        int arrays = 0;
        for (const CatalogueArray& array : kCatalogueArrays) {
            const QJsonValue value = root.value(QLatin1String(array.key));
            if (value.isUndefined()) continue;
            const QString where = QLatin1Char('"') + QLatin1String(array.key) + QLatin1Char('"');
            if (!value.isArray()) {
                search.warn(
                    QStringLiteral("%1 is not an array; its devices are not read").arg(where));
                continue;
            }
            ++arrays;
            const QJsonArray entries = value.toArray();
            const qsizetype match = search.findIn(entries, where);
            // The first array with a match wins: an id under "keyboard" and "mouse" is a keyboard.
            if (match >= 0 && !found) {
                found = true;
                deviceType = array.deviceType;
                name = nameOf(entries.at(match));
            }
        }
        if (arrays == 0)
            search.warn(QStringLiteral("none of the arrays \"keyboard\", \"mouse\", "
                                       "\"hitBoxKeyboard\", \"hitBoxScreen\": no device is read"));
    } else {
        const QJsonArray entries = doc.array();
        const qsizetype match = search.findIn(entries, QStringLiteral("the list"));
        if (match >= 0) {
            found = true;
            name = nameOf(entries.at(match));
        }
    }
    if (search.problems == 0) ConfigWarnings::clear(path);
    if (!found) deviceType = kNotFoundType;
    return name;
}

QString BrandCatalogue::lookup(const QString& path, quint32 deviceId, quint16& deviceType)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        ConfigWarnings::warn(path, {},
                             QStringLiteral("cannot be read (%1): no keyboard of the cloud "
                                            "family is recognised")
                                 .arg(file.errorString()));
        deviceType = kNotFoundType;
        return QString();
    }
    return find(file.readAll(), deviceId, deviceType, path);
}
