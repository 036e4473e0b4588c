// A custom list of any content: every record it yields, and the matching rules over them.

#include "ConfigWarnings.h"
#include "CustomDeviceList.h"
#include "FuzzSupport.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString path = QStringLiteral("fuzz/CustomDeviceList.json");
    const QList<CustomDeviceList::Record> records =
        CustomDeviceList::parse(FuzzSupport::bytes(data, size), path);
    for (const CustomDeviceList::Record& r : records) {
        // Every record came from one line: its name is trimmed and holds no line break.
        if (r.name != r.name.trimmed() || r.name.contains(QLatin1Char('\n'))) __builtin_trap();
    }
    ConfigWarnings::clear(path);
    return 0;
}
