#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QtGlobal>

// The custom list, "config/CustomDeviceList.json": despite its name a text file with one record
// a line after the marker line, matched by USB ids and probe id. A line whose ids don't parse
// is skipped and named (one that stood as 0 would match what it never meant to); too short a
// line is skipped quietly.
namespace CustomDeviceList {

inline constexpr const char* kMarker = "////CustomDeviceList////";

struct Record
{
    quint64 deviceId = 0;
    quint64 vendorId = 0;
    quint64 productId = 0;
    quint64 probeId = 0;
    quint64 deviceType = 0;
    quint64 connectionType = 0;
    QString name; // empty on a line of six fields
};

// The records of the file's text, in order. path names the file in warnings.
QList<Record> parse(const QByteArray& text, const QString& path);

// The records of the file; none, and a warning, when it can't be read.
QList<Record> read(const QString& path);

} // namespace CustomDeviceList
