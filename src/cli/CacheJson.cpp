#include "CacheJson.h"

#include "DialogDeviceConnect.h"

#include <QJsonArray>
#include <QString>
#include <array>

namespace {

struct TableWidth
{
    quint8 table;
    int width; // bytes per key
};

// Every magnetism table, in the order the read sequence fetches them.
constexpr std::array<TableWidth, DialogDeviceConnect::kMagnetTables> kTableWidths{{
    {0x00, 2},
    {0x01, 2},
    {0x02, 2},
    {0x03, 2},
    {0x04, 2},
    {0x05, 1},
    {0x06, 2},
    {0x07, 1},
    {0x08, 1},
    {0x09, 1},
    {0x0A, 4},
    {0xFF, 2},
    {0xFE, 2},
    {0xFC, 1},
    {0xFB, 1},
}};

constexpr int kKeyEntrySize = 4;
constexpr int kIdentityVersionOffset = 7;

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
    const QByteArray& info = device.GetDeviceInfo();
    if (info.size() < kIdentityVersionOffset + 2) return 0;
    return static_cast<quint16>(static_cast<quint8>(info.at(kIdentityVersionOffset)) |
                                (static_cast<quint8>(info.at(kIdentityVersionOffset + 1)) << 8));
}

QJsonObject fromConnection(const DialogDeviceConnect& d)
{
    QJsonObject o;
    o.insert(QStringLiteral("deviceId"), qint64(d.GetDeviceId()));
    // The connection's own version field reads 0 once a read sequence began (the protocol
    // doesn't ask again); the identity block keeps what the keyboard said.
    o.insert(QStringLiteral("firmwareVersion"), reportedFirmwareVersion(d));
    o.insert(QStringLiteral("versionText"), d.versionText());
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

    QJsonObject tables;
    for (const TableWidth& t : kTableWidths) {
        const int index = DialogDeviceConnect::magnetTableIndex(t.table);
        tables.insert(QString::asprintf("%02X", t.table), values(d.GetMagnetTable(index), t.width));
    }
    o.insert(QStringLiteral("magnetTables"), tables);

    o.insert(QStringLiteral("ledParams"),
             blocks(DialogDeviceConnect::kLedSlots, &DialogDeviceConnect::GetLedParams, d));
    o.insert(QStringLiteral("sideLedParams"),
             blocks(DialogDeviceConnect::kSideLedSlots, &DialogDeviceConnect::GetSideLedParams, d));
    return o;
}

} // namespace CacheJson
