#include "X11Windows.h"

// Built when the X11 headers are missing: the callers fall back to their logged no-ops.

bool X11Windows::available()
{
    return false;
}

quintptr X11Windows::find(const QString&, const QString&)
{
    return 0;
}

bool X11Windows::requestClose(quintptr)
{
    return false;
}
