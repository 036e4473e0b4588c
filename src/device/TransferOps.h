#pragma once

#include "DeviceParts.h"

#include <QByteArray>

// Paged transfers: macros to a keyboard slot, and user pictures both ways.
class TransferOps
{
public:
    explicit TransferOps(const DeviceParts& parts) : p(parts) {}

    void DoSetMacro(quint8 keyCode, quint16 repeat, quint8 mode, quint8 macroId,
                    const QByteArray& stream);
    void DoWriteUserPic(quint8 slot, const QByteArray& colourMap);
    void DoReadUserPic(quint8 slot);

private:
    DeviceParts p;
};
