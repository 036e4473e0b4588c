// The light works library of any content, read as the works page reads it, and every work's
// colour map taken from its text and written back.

#include "FuzzSupport.h"
#include "LightWorkStore.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    LightWorkStore& store = FuzzSupport::scratchStore<LightWorkStore>();
    FuzzSupport::writeFile(store.filePath(), reinterpret_cast<const char*>(data), size);
    const QList<LightWork> works = store.load();
    if (store.loadedBroken() && !works.isEmpty()) __builtin_trap();
    for (const LightWork& work : works) {
        const QByteArray map = LightWorkStore::fromHex(work.data);
        // A map read back from its own text is the same map.
        if (LightWorkStore::fromHex(LightWorkStore::toHex(map)) != map) __builtin_trap();
    }
    return 0;
}
