#pragma once

#include <QString>
#include <QtGlobal>

// Answers one question during discovery: is this probed device known, and under what name and
// type? It keeps nothing; every question reads the files again, so an edited catalogue takes
// effect at the next scan. The files lie in "config/" under the application directory; appDir
// overrides that directory (empty means QCoreApplication::applicationDirPath()).
class OrbeDeviceBase
{
public:
    // Selector of lookupName.
    static constexpr int kFirstBrand = 0;
    static constexpr int kCustomList = 255; // any other value: the second brand

    static constexpr const char* kFirstBrandFile = "/config/OrbeHubDevices.json";
    static constexpr const char* kSecondBrandFile = "/config/TRWHubDevices.json";
    static constexpr const char* kCustomListFile = "/config/CustomDeviceList.json";
    static constexpr const char* kCustomListMarker = "////CustomDeviceList////";

    // The display name of a device id, or empty when the id is not in the selected file (then
    // deviceType becomes 255). An object root sets deviceType from the array that matched; an
    // array root leaves it alone.
    static QString lookupName(quint32 deviceId, quint16& deviceType, int selector,
                              const QString& appDir = QString());

    // The custom list's device id (column 0, low 16 bits) for the first line whose vendor id,
    // product id and probe id match, or 0. On a match the outputs get columns 6, 4 and 5; on no
    // match they stay as they were.
    static quint64 lookupCustom(quint16 vendorId, quint16 productId, quint64 probeId, QString& name,
                                quint16& deviceType, quint16& connectionType,
                                const QString& appDir = QString());

    // The number rule of the hub's files: trim, upper-case; hexadecimal when the text contains
    // "0X", decimal otherwise. Text that does not parse gives 0.
    static quint64 parseNumber(const QString& text);

    // The directory the files are read from: appDir, or when empty the folder the program
    // ships them in (beside it, or the install prefix's data folder).
    static QString rootDir(const QString& appDir);
};
