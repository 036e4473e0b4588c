#include "EffectCatalogue.h"

#include <QCoreApplication>

namespace EffectCatalogue {

QStringList choices(quint8 id)
{
    QStringList out;
    for (const EffectOptions& entry : kOptions) {
        if (entry.id != id) continue;
        for (const char* choice : entry.choices)
            if (choice) out << QCoreApplication::translate("ModuleEfMode", choice);
    }
    return out;
}

int rowOf(quint8 id)
{
    for (int row = 0; row < int(kEffects.size()); ++row)
        if (kEffects[row].id == id) return row;
    return -1;
}

} // namespace EffectCatalogue
