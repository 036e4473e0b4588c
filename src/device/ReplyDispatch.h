#pragma once

#include "DeviceParts.h"

#include <QByteArray>

// What a reply means. It follows from the command sent last, not from the reply's own bytes:
// the dispatch switches on byte 0 of the last frame and takes the table, page or layer from that
// frame too. Then the reply goes to the pages (onReadBack) and to the console's log.
class ReplyDispatch
{
public:
    explicit ReplyDispatch(const DeviceParts& parts) : p(parts) {}

    // One reply, as the read step took it.
    void take(const QByteArray& reply);

private:
    void dispatch(const QByteArray& reply);
    void showReadRow(const QByteArray& reply);
    void storeLedParams(const QByteArray& reply, bool side);
    void storeMagnetPage(const QByteArray& reply);

    DeviceParts p;
};
