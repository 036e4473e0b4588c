#include "WidgetResources.h"

#include <QtGlobal>

// Q_INIT_RESOURCE must be used outside any namespace.
static void loadWidgetResources()
{
    Q_INIT_RESOURCE(widgets);
}

void WidgetResources::ensureLoaded()
{
    static const bool loaded = (loadWidgetResources(), true);
    Q_UNUSED(loaded);
}
