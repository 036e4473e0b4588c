#pragma once

#include "KeyEntry.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <optional>

// One row of the function or mouse list. The name is kept as its source text and translated
// when it is read, so a language chosen later reaches it.
struct KeyFunctionRow
{
    const char* sourceName;
    KeyEntry entry;

    QString name() const;
};

// The key functions a key can be given and the one way from a KeyEntry to a text. The window
// makes one and passes it to the connection and the pages; its texts are translated in this
// class's context.
class ModuleGenKeymapping
{
    Q_DECLARE_TR_FUNCTIONS(ModuleGenKeymapping)

public:
    ModuleGenKeymapping();

    // The pickers address rows by number.
    const QList<KeyFunctionRow>& FunctionKeyList() const { return functionKeyList; }
    const QList<KeyFunctionRow>& MouseKeyList() const { return mouseKeyList; }
    std::optional<KeyFunctionRow> FunctionEntryAt(quint8 row) const;
    std::optional<KeyFunctionRow> MouseEntryAt(quint8 row) const;

    // What a key does, as one line: empty for no function, the macro text for a macro, a
    // function or mouse row by name, otherwise a combination of up to three key names
    // ("组合: " in front when prefix is set).
    QString KeyEntryText(const KeyEntry& entry, bool prefix) const;

private:
    QList<KeyFunctionRow> functionKeyList;
    QList<KeyFunctionRow> mouseKeyList;
};
