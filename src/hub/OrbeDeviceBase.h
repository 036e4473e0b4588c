#pragma once

#include <QString>
#include <QtGlobal>
#include <optional>

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

    // The display name of a device id, or empty when the id is not in the selected file (then
    // deviceType becomes 255). A file that can't be read or parsed, or an entry that can match
    // nothing, is named in a warning, once for each content of the file. An object root sets
    // deviceType from the array that matched; an array root leaves it alone.
    static QString lookupName(quint32 deviceId, quint16& deviceType, int selector,
                              const QString& appDir = QString());

    // The custom list's device id (column 0, low 16 bits) for the first line whose vendor id,
    // product id and probe id match, or 0. On a match the outputs get columns 6, 4 and 5; on no
    // match they stay as they were. A line whose ids don't parse is skipped and named.
    static quint64 lookupCustom(quint16 vendorId, quint16 productId, quint64 probeId, QString& name,
                                quint16& deviceType, quint16& connectionType,
                                const QString& appDir = QString());

    // The number rule of the hub's files: trim, upper-case; hexadecimal when the text contains
    // "0X", decimal otherwise. Text that does not parse gives 0.
    static quint64 parseNumber(const QString& text);
    // The same rule, with nothing for text that does not parse: for the values where 0 would
    // mean something (an id of 0 is "any device" to the HID enumeration).
    static std::optional<quint64> tryParseNumber(const QString& text);

    // The directory the files are read from: appDir, or when empty the folder the program
    // ships them in (beside it, or the install prefix's data folder).
    static QString rootDir(const QString& appDir);
};
