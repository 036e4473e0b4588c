// The light works library of any content, read as the works page reads it, and every work's
// colour map taken from its text and written back.

#include "FuzzSupport.h"
#include "LightWorkStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <memory>

namespace {

struct Library
{
    QTemporaryDir dir{FuzzSupport::scratchRoot() + QStringLiteral("/orbe-fuzz-XXXXXX")};
    std::unique_ptr<LightWorkStore> store;
};

Library* shared = nullptr;

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FuzzSupport::quiet();
    shared = new Library; // kept to the end: the folder is reused by every input
    shared->store = std::make_unique<LightWorkStore>(shared->dir.path());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    LightWorkStore& store = *shared->store;
    {
        QFile file(store.filePath());
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return 0;
        file.write(reinterpret_cast<const char*>(data), qint64(size));
    }
    const QList<LightWork> works = store.load();
    if (store.loadedBroken() && !works.isEmpty()) __builtin_trap();
    for (const LightWork& work : works) {
        const QByteArray map = LightWorkStore::fromHex(work.data);
        // A map read back from its own text is the same map.
        if (LightWorkStore::fromHex(LightWorkStore::toHex(map)) != map) __builtin_trap();
    }
    return 0;
}
