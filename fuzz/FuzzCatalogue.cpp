// A brand catalogue of any content: the lookups of the native keyboards' ids and of an id taken
// from the input itself.

#include "BrandCatalogue.h"
#include "ConfigWarnings.h"
#include "FuzzSupport.h"

#include <QString>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray json = FuzzSupport::bytes(data, size);
    const QString path = QStringLiteral("fuzz/OrbeHubDevices.json");
    quint32 inputId = 0;
    for (size_t i = 0; i < size && i < 4; ++i)
        inputId = inputId << 8 | data[i];
    for (quint32 id : {0x0AF7u, 0x0EC3u, inputId}) {
        quint16 type = 0xFFFF;
        const QString name = BrandCatalogue::find(json, id, type, path);
        // The type of a known array, the caller's left alone (array root), or 255 (not found).
        if (type != 0 && type != 1 && type != 3 && type != 255 && type != 0xFFFF) __builtin_trap();
        if (type == 255 && !name.isEmpty()) __builtin_trap();
    }
    // What was told about this content is forgotten, or the memory of it grows with every input.
    ConfigWarnings::clear(path);
    return 0;
}
