#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

// A brand catalogue, "config/OrbeHubDevices.json" or "config/TRWHubDevices.json": a JSON
// document whose root is an object of four arrays, by device type, or one array. What makes the
// file useless, or an entry that can match nothing, is named in a warning.
namespace BrandCatalogue {

// The trimmed display name of the first entry with the id, searching "keyboard", "mouse",
// "hitBoxKeyboard", "hitBoxScreen" in that order; an object root sets deviceType from the array
// that matched, an array root leaves it. Not found: empty, and deviceType becomes 255. path
// names the file in warnings.
QString find(const QByteArray& json, quint32 deviceId, quint16& deviceType, const QString& path);

// The same with the file's content; a file that can't be read finds nothing.
QString lookup(const QString& path, quint32 deviceId, quint16& deviceType);

} // namespace BrandCatalogue
