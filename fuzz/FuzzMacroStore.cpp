// The macro store's files of any content, read as the store reads them from its folder, and
// every macro loaded packed for the keyboard. The first byte picks the file: even, the header
// (which loads the events of the macros it lists); odd, the event file of macro 0.

#include "FuzzSupport.h"
#include "MacroBlob.h"
#include "ModuleMacroManager.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0) return 0;
    ModuleMacroManager& store = FuzzSupport::scratchStore<ModuleMacroManager>();
    const char* content = reinterpret_cast<const char*>(data) + 1;
    if (data[0] % 2 == 0) {
        FuzzSupport::writeFile(store.headerPath(), content, size - 1);
        store.LoadHeader();
    } else {
        Macro* macro = store.FindMacro(0);
        if (!macro) macro = store.AddMacro();
        if (!macro) return 0;
        FuzzSupport::writeFile(store.eventPath(0), content, size - 1);
        store.LoadEvents(macro);
    }
    if (store.macros().size() > ModuleMacroManager::kMaxMacros) __builtin_trap();
    for (const Macro* macro : store.macros()) {
        const QByteArray stream = ModuleMacroManager::PackMacro(macro);
        const QByteArray blob = MacroBlob::build(macro->repeat, stream);
        const int pages = MacroBlob::pageCount(blob);
        if (blob.size() % MacroBlob::kPageSize != 0) __builtin_trap();
        for (int page = 0; page < pages; ++page)
            if (MacroBlob::page(blob, page).size() != MacroBlob::kPageSize) __builtin_trap();
    }
    return 0;
}
