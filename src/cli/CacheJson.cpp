#include "CacheJson.h"

#include "ConsoleModel.h"
#include "DialogDeviceConnect.h"
#include "KeyboardSnapshot.h"
#include "MagnetTables.h"
#include "NativeKeyboardModel.h"

#include <QJsonArray>
#include <QString>
#include <array>

namespace {

constexpr int kKeyEntrySize = 4;
constexpr int kMacroSlots = 50;
// The two options of the option block that the hub uses: a switch and a choice of five.
constexpr int kUsedOptions[] = {2, 3};

QString hex(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.toHex().toUpper());
}

// One hex string per four-byte key entry, as `call` takes them.
QJsonArray entries(const QByteArray& matrix)
{
    QJsonArray list;
    for (int i = 0; i + kKeyEntrySize <= matrix.size(); i += kKeyEntrySize)
        list.append(hex(matrix.mid(i, kKeyEntrySize)));
    return list;
}

// Little-endian values of the table's width; a short tail is left out.
QJsonArray values(const QByteArray& table, int width)
{
    QJsonArray list;
    for (int i = 0; i + width <= table.size(); i += width) {
        quint32 v = 0;
        for (int b = width - 1; b >= 0; --b)
            v = (v << 8) | static_cast<quint8>(table.at(i + b));
        list.append(qint64(v));
    }
    return list;
}

QJsonObject blocks(int count, const QByteArray& (DialogDeviceConnect::*get)(int) const,
                   const DialogDeviceConnect& device)
{
    QJsonObject object;
    for (int i = 0; i < count; ++i)
        if (const QByteArray& block = (device.*get)(i); !block.isEmpty())
            object.insert(QString::number(i), hex(block));
    return object;
}

} // namespace

namespace CacheJson {

quint16 reportedFirmwareVersion(const DialogDeviceConnect& device)
{
    return KeyboardSnapshot::identityVersion(device.GetDeviceInfo());
}

QJsonObject fromConnection(const DialogDeviceConnect& d)
{
    QJsonObject o;
    o.insert(QStringLiteral("deviceId"), qint64(d.GetDeviceId()));
    // The connection's version field as the pages see it: 0 once a read sequence began, as the
    // protocol doesn't ask again until the next connect. The identity block keeps what the
    // keyboard said.
    o.insert(QStringLiteral("firmwareVersion"), d.GetFirmwareVersion());
    o.insert(QStringLiteral("identityVersion"), reportedFirmwareVersion(d));
    o.insert(QStringLiteral("versionText"), d.console().versionText());
    o.insert(QStringLiteral("versionAtLeast300"), d.VersionAtLeast300());
    o.insert(QStringLiteral("versionAtLeast400"), d.VersionAtLeast400());
    o.insert(QStringLiteral("travelScale"), d.GetTravelScale());
    o.insert(QStringLiteral("wireless"), d.isWirelessConnection());
    o.insert(QStringLiteral("currentProfile"), d.GetCurrentProfile());
    o.insert(QStringLiteral("reportRate"), d.GetReportRate());
    o.insert(QStringLiteral("debounce"), d.GetDebounce());
    QJsonArray sleep;
    for (quint16 s : d.GetSleepTimes())
        sleep.append(s);
    o.insert(QStringLiteral("sleepTimes"), sleep);
    o.insert(QStringLiteral("deviceInfo"), hex(d.GetDeviceInfo()));
    o.insert(QStringLiteral("kbOptions"), hex(d.GetKbOptions()));

    QJsonArray keys;
    QJsonArray fns;
    for (int slot = 0; slot < DialogDeviceConnect::kKeySlots; ++slot) {
        keys.append(entries(d.GetKeyMatrix(slot)));
        fns.append(entries(d.GetFnMatrix(slot)));
    }
    o.insert(QStringLiteral("keyMatrix"), keys);
    o.insert(QStringLiteral("fnMatrix"), fns);

    QJsonObject options;
    for (int index : kUsedOptions)
        options.insert(QString::number(index), d.GetKbOption(index));
    o.insert(QStringLiteral("kbOptionValues"), options);

    QJsonObject tables;
    for (const MagnetTables::Table& t : MagnetTables::kTables) {
        const int index = MagnetTables::indexOf(t.number);
        tables.insert(QString::asprintf("%02X %s", t.number, t.name),
                      values(d.GetMagnetTable(index), t.width));
    }
    o.insert(QStringLiteral("magnetTables"), tables);
    if (!d.GetUserPicture().isEmpty())
        o.insert(QStringLiteral("userPicture"), hex(d.GetUserPicture()));

    o.insert(QStringLiteral("ledParams"),
             blocks(DialogDeviceConnect::kLedSlots, &DialogDeviceConnect::GetLedParams, d));
    o.insert(QStringLiteral("sideLedParams"),
             blocks(DialogDeviceConnect::kSideLedSlots, &DialogDeviceConnect::GetSideLedParams, d));
    return o;
}

QJsonObject fromKeyboard(const NativeKeyboardModel& keyboard)
{
    QJsonObject pictures;
    for (int slot = 0; !keyboard.picture(slot).isEmpty(); ++slot)
        if (keyboard.picture(slot).count('\0') != keyboard.picture(slot).size())
            pictures.insert(QString::number(slot), hex(keyboard.picture(slot)));
    QJsonObject macros;
    for (int id = 0; id < kMacroSlots; ++id)
        if (!keyboard.macro(id).isEmpty())
            macros.insert(QString::number(id), hex(keyboard.macro(id)));
    QJsonObject o;
    o.insert(QStringLiteral("pictures"), pictures);
    o.insert(QStringLiteral("macros"), macros);
    return o;
}

} // namespace CacheJson
