#pragma once

#include "DeviceParts.h"

#include <QStringList>

// Key matrix and Fn layer writes. The cache is written by the sender at once: the keyboard is
// taken to have accepted, and the next read sequence replaces the cache with what it holds.
class KeyOps
{
public:
    explicit KeyOps(const DeviceParts& parts) : p(parts) {}

    void DoSetKey(quint8 keyCode, const quint8 entry[4], quint8 layer, quint8 last);
    void DoSetFn(quint8 keyCode, const quint8 entry[4]);
    void DoSetKeyCode(quint8 keyCode, bool enabled, quint8 layer);
    void DoSetFnCode(quint8 keyCode, bool enabled);
    void DoResetKey(quint8 keyCode);
    void GetKeyDisplay(QStringList& out, quint8 keyCode) const;
    // The console's "Save Matrix": slot 0 of the key matrix becomes the default key matrix, and
    // its 128 entries are printed as source lines to paste in as a new default table.
    QStringList SaveMatrix();

private:
    DeviceParts p;
};
