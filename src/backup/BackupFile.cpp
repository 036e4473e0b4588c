#include "BackupFile.h"

#include "BackupLog.h"
#include "JsonFile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <cmath>
#include <limits>

namespace {

using Snapshot = KeyboardSnapshot;

const QString kMacroNote = QStringLiteral(
    "The keyboard has no read-back for its macro slots: key entries that run a macro (kind 09) "
    "are kept, the macros' events are not. Restore them from the hub's macro store.");

QString hex(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.toHex().toUpper());
}

QJsonArray entries(const QByteArray& layer)
{
    QJsonArray list;
    for (int i = 0; i + Snapshot::kEntrySize <= layer.size(); i += Snapshot::kEntrySize)
        list.append(hex(layer.mid(i, Snapshot::kEntrySize)));
    return list;
}

QString colour(const Snapshot::Light& l)
{
    return QString::asprintf("#%06X", l.rgb());
}

QJsonObject light(const Snapshot::Light& l, const char* optionName)
{
    return {{QStringLiteral("effect"), l.effect},
            {QStringLiteral("speed"), l.speed},
            {QStringLiteral("brightness"), l.brightness},
            {QLatin1String(optionName), l.option},
            {QStringLiteral("colour"), colour(l)}};
}

// Reads the document strictly; the first fault found ends the reading with its place.
class Reader
{
public:
    QString error;

    bool fail(const QString& where, const QString& what)
    {
        if (error.isEmpty()) error = QStringLiteral("%1: %2").arg(where, what);
        return false;
    }

    bool keys(const QJsonObject& o, const QString& where, const QStringList& known)
    {
        for (const QString& key : o.keys())
            if (!known.contains(key))
                return fail(where, QStringLiteral("unknown key \"%1\"").arg(key));
        for (const QString& key : known)
            if (!o.contains(key)) return fail(where, QStringLiteral("\"%1\" is missing").arg(key));
        return true;
    }

    bool number(const QJsonValue& v, const QString& where, quint64 max, quint64* out)
    {
        const double d = v.toDouble(-1);
        if (!v.isDouble() || d < 0 || d > double(max) || std::floor(d) != d)
            return fail(where, QStringLiteral("not a whole number from 0 to %1").arg(max));
        *out = quint64(d);
        return true;
    }
    template <class T> bool num(const QJsonValue& v, const QString& where, T* out)
    {
        quint64 n = 0;
        if (!number(v, where, std::numeric_limits<T>::max(), &n)) return false;
        *out = T(n);
        return true;
    }

    bool bytes(const QJsonValue& v, const QString& where, int size, QByteArray* out)
    {
        static const QRegularExpression hexDigits(QStringLiteral("^[0-9A-Fa-f]*$"));
        const QString s = v.toString();
        if (!v.isString() || s.size() != 2 * size || !hexDigits.match(s).hasMatch())
            return fail(where, QStringLiteral("not %1 bytes as hex digits").arg(size));
        *out = QByteArray::fromHex(s.toLatin1());
        return true;
    }

    bool array(const QJsonValue& v, const QString& where, int size, QJsonArray* out)
    {
        if (!v.isArray() || v.toArray().size() != size)
            return fail(where, QStringLiteral("not a list of %1").arg(size));
        *out = v.toArray();
        return true;
    }

    bool entryList(const QJsonValue& v, const QString& where, int count, QByteArray* out)
    {
        QJsonArray list;
        if (!array(v, where, count, &list)) return false;
        out->clear();
        for (int i = 0; i < count; ++i) {
            QByteArray entry;
            if (!bytes(list.at(i), QStringLiteral("%1[%2]").arg(where).arg(i), Snapshot::kEntrySize,
                       &entry))
                return false;
            out->append(entry);
        }
        return true;
    }

    bool colour(const QJsonValue& v, const QString& where, Snapshot::Light* l)
    {
        QByteArray rgb;
        const QString s = v.toString();
        if (!v.isString() || !s.startsWith(QLatin1Char('#')) || !bytes(s.mid(1), where, 3, &rgb))
            return fail(where, QStringLiteral("not a colour #RRGGBB"));
        l->red = quint8(rgb.at(0));
        l->green = quint8(rgb.at(1));
        l->blue = quint8(rgb.at(2));
        return true;
    }

    bool light(const QJsonValue& v, const QString& where, const QString& optionName,
               QStringList known, Snapshot::Light* l)
    {
        const QJsonObject o = v.toObject();
        known << QStringLiteral("effect") << QStringLiteral("speed") << QStringLiteral("brightness")
              << optionName << QStringLiteral("colour");
        if (!v.isObject()) return fail(where, QStringLiteral("not an object"));
        return keys(o, where, known) && num(o.value("effect"), where + ".effect", &l->effect) &&
               num(o.value("speed"), where + ".speed", &l->speed) &&
               num(o.value("brightness"), where + ".brightness", &l->brightness) &&
               num(o.value(optionName), where + '.' + optionName, &l->option) &&
               colour(o.value("colour"), where + ".colour", l);
    }

    bool magnetism(const QJsonValue& v, Snapshot* s)
    {
        s->hasMagnetism = !v.isNull();
        if (v.isNull()) return true;
        if (!v.isObject())
            return fail(QStringLiteral("magnetism"), QStringLiteral("not an object or null"));
        const QJsonObject o = v.toObject();
        QStringList names;
        for (const MagnetTables::Table& t : MagnetTables::kTables)
            if (Snapshot::keeps(t)) names << QString::fromLatin1(t.name);
        if (!keys(o, QStringLiteral("magnetism"), names)) return false;
        for (const MagnetTables::Table& t : MagnetTables::kTables) {
            if (!Snapshot::keeps(t)) continue;
            const QString where = QStringLiteral("magnetism.%1").arg(QLatin1String(t.name));
            QJsonArray list;
            if (!array(o.value(QLatin1String(t.name)), where, Snapshot::kPositions, &list))
                return false;
            QByteArray& table = s->magnetTables[MagnetTables::indexOf(t.number)];
            const quint64 max = (quint64(1) << (8 * t.width)) - 1;
            for (int pos = 0; pos < Snapshot::kPositions; ++pos) {
                quint64 value = 0;
                if (!number(list.at(pos), QStringLiteral("%1[%2]").arg(where).arg(pos), max,
                            &value))
                    return false;
                for (int b = 0; b < t.width; ++b)
                    table.append(char((value >> (8 * b)) & 0xFF));
            }
        }
        return true;
    }

    bool snapshot(const QJsonObject& o, Snapshot* s)
    {
        const QStringList known{"format",          "formatVersion", "created",    "deviceId",
                                "firmwareVersion", "activeProfile", "profiles",   "fnLayer",
                                "magnetism",       "lighting",      "sideLight",  "options",
                                "reportRate",      "debounce",      "sleepTimes", "userPictures",
                                "notInBackup"};
        if (!keys(o, QStringLiteral("backup"), known)) return false;
        if (!o.value("created").isString()) return fail("created", "not a text");
        if (!o.value("notInBackup").isObject()) return fail("notInBackup", "not an object");
        const QJsonObject notes = o.value("notInBackup").toObject();
        if (!keys(notes, "notInBackup", {"macros"})) return false;
        if (!notes.value("macros").isString()) return fail("notInBackup.macros", "not a text");

        QJsonArray profiles;
        if (!num(o.value("deviceId"), "deviceId", &s->deviceId) ||
            !num(o.value("firmwareVersion"), "firmwareVersion", &s->firmwareVersion) ||
            !num(o.value("activeProfile"), "activeProfile", &s->activeProfile) ||
            !array(o.value("profiles"), "profiles", Snapshot::kProfiles, &profiles))
            return false;
        if (s->activeProfile >= Snapshot::kProfiles)
            return fail("activeProfile", QStringLiteral("not a profile from 0 to 3"));
        for (int p = 0; p < Snapshot::kProfiles; ++p) {
            QJsonArray layers;
            const QString where = QStringLiteral("profiles[%1]").arg(p);
            if (!array(profiles.at(p), where, Snapshot::kLayers, &layers)) return false;
            for (int layer = 0; layer < Snapshot::kLayers; ++layer)
                if (!entryList(layers.at(layer), QStringLiteral("%1[%2]").arg(where).arg(layer),
                               Snapshot::kPositions, &s->keyLayers[p][layer]))
                    return false;
        }
        if (!entryList(o.value("fnLayer"), "fnLayer", Snapshot::kFnBytes / Snapshot::kEntrySize,
                       &s->fnLayer) ||
            !magnetism(o.value("magnetism"), s))
            return false;

        const QJsonObject lighting = o.value("lighting").toObject();
        if (!light(o.value("lighting"), "lighting", "option", {"on"}, &s->lighting)) return false;
        if (!lighting.value("on").isBool()) return fail("lighting.on", "not true or false");
        s->ledOn = lighting.value("on").toBool();
        if (!light(o.value("sideLight"), "sideLight", "mode", {}, &s->sideLight) ||
            !bytes(o.value("options"), "options", Snapshot::kOptionBytes, &s->options) ||
            !num(o.value("reportRate"), "reportRate", &s->reportRate) ||
            !num(o.value("debounce"), "debounce", &s->debounce))
            return false;

        QJsonArray sleep;
        QJsonArray pictures;
        if (!array(o.value("sleepTimes"), "sleepTimes", Snapshot::kSleepSlots, &sleep) ||
            !array(o.value("userPictures"), "userPictures", Snapshot::kPictureSlots, &pictures))
            return false;
        for (int i = 0; i < Snapshot::kSleepSlots; ++i)
            if (!num(sleep.at(i), QStringLiteral("sleepTimes[%1]").arg(i), &s->sleepTimes[i]))
                return false;
        for (int i = 0; i < Snapshot::kPictureSlots; ++i)
            if (!bytes(pictures.at(i), QStringLiteral("userPictures[%1]").arg(i),
                       Snapshot::kPictureBytes, &s->pictures[i]))
                return false;
        return true;
    }
};

} // namespace

namespace BackupFile {

QJsonDocument toJson(const KeyboardSnapshot& s, const QDateTime& created)
{
    QJsonObject o;
    o.insert("format", QLatin1String(kFormat));
    o.insert("formatVersion", kVersion);
    o.insert("created", created.toUTC().toString(Qt::ISODate));
    o.insert("deviceId", qint64(s.deviceId));
    o.insert("firmwareVersion", s.firmwareVersion);
    o.insert("activeProfile", s.activeProfile);
    QJsonArray profiles;
    for (const auto& layers : s.keyLayers) {
        QJsonArray list;
        for (const QByteArray& layer : layers)
            list.append(entries(layer));
        profiles.append(list);
    }
    o.insert("profiles", profiles);
    o.insert("fnLayer", entries(s.fnLayer));
    if (s.hasMagnetism) {
        QJsonObject tables;
        for (const MagnetTables::Table& t : MagnetTables::kTables) {
            if (!KeyboardSnapshot::keeps(t)) continue;
            QJsonArray values;
            const int index = MagnetTables::indexOf(t.number);
            for (int pos = 0; pos < KeyboardSnapshot::kPositions; ++pos)
                values.append(qint64(s.magnetValue(index, pos)));
            tables.insert(QLatin1String(t.name), values);
        }
        o.insert("magnetism", tables);
    } else {
        o.insert("magnetism", QJsonValue::Null);
    }
    QJsonObject lighting = light(s.lighting, "option");
    lighting.insert("on", s.ledOn);
    o.insert("lighting", lighting);
    o.insert("sideLight", light(s.sideLight, "mode"));
    o.insert("options", hex(s.options));
    o.insert("reportRate", s.reportRate);
    o.insert("debounce", s.debounce);
    QJsonArray sleep;
    for (quint16 t : s.sleepTimes)
        sleep.append(t);
    o.insert("sleepTimes", sleep);
    QJsonArray pictures;
    for (const QByteArray& p : s.pictures)
        pictures.append(hex(p));
    o.insert("userPictures", pictures);
    o.insert("notInBackup", QJsonObject{{"macros", kMacroNote}});
    return QJsonDocument(o);
}

std::optional<KeyboardSnapshot> parse(const QByteArray& bytes, QString* why)
{
    QString ignored;
    QString* error = why ? why : &ignored;
    QJsonParseError jsonError;
    const QJsonDocument doc = QJsonDocument::fromJson(bytes, &jsonError);
    if (jsonError.error != QJsonParseError::NoError) {
        *error = QStringLiteral("not a JSON document (%1 at byte %2)")
                     .arg(jsonError.errorString())
                     .arg(jsonError.offset);
        return std::nullopt;
    }
    const QJsonObject o = doc.object();
    if (!doc.isObject() || o.value("format").toString() != QLatin1String(kFormat)) {
        *error = QStringLiteral("not an OrbeHub keyboard backup (\"format\" is not \"%1\")")
                     .arg(QLatin1String(kFormat));
        return std::nullopt;
    }
    const double version = o.value("formatVersion").toDouble(-1);
    if (version > kVersion) {
        *error = QStringLiteral("written by a newer OrbeHub (format version %1; this one reads "
                                "version %2 and older)")
                     .arg(version)
                     .arg(kVersion);
        return std::nullopt;
    }
    if (version != kVersion) {
        *error = QStringLiteral("formatVersion: not a known version");
        return std::nullopt;
    }
    Reader reader;
    KeyboardSnapshot s;
    if (!reader.snapshot(o, &s)) {
        *error = reader.error;
        return std::nullopt;
    }
    return s;
}

bool write(const QString& path, const KeyboardSnapshot& snapshot)
{
    return JsonFile::write(path, toJson(snapshot, QDateTime::currentDateTimeUtc()), lcBackup);
}

std::optional<KeyboardSnapshot> read(const QString& path, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read %1: %2").arg(path, file.errorString());
        qCWarning(lcBackup).noquote() << *error;
        return std::nullopt;
    }
    if (file.size() > kLargestFile) {
        *error = QStringLiteral("%1 is too large for a backup").arg(path);
        qCWarning(lcBackup).noquote() << *error;
        return std::nullopt;
    }
    std::optional<KeyboardSnapshot> s = parse(file.read(kLargestFile + 1), error);
    if (!s) {
        *error = QStringLiteral("%1: %2").arg(path, *error);
        qCWarning(lcBackup).noquote() << "refused" << *error;
    }
    return s;
}

} // namespace BackupFile
