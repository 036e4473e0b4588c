#include "ConsoleRows.h"

#include "CommandCatalogue.h"

ConsoleRows::ConsoleRows()
{
    for (const CommandRow& c : CommandCatalogue::rows()) {
        Row r;
        r.name = QString::fromLatin1(c.name);
        r.command = c.command;
        r.dataLength = c.dataLength;
        for (int i = 0; i < 7; ++i)
            r.cells[i] = c.bytes[i];
        list.append(r);
    }
}

int ConsoleRows::rowOf(quint8 command) const
{
    for (int i = 0; i < list.size(); ++i)
        if (list[i].command == command) return i;
    return -1;
}

void ConsoleRows::setCell(int row, int byteIndex, int value)
{
    if (row < 0 || row >= list.size() || byteIndex < 1 || byteIndex > 7) return;
    list[row].cells[byteIndex - 1] = value;
    if (changed) changed(row);
}

int ConsoleRows::cell(int row, int byteIndex) const
{
    if (row < 0 || row >= list.size() || byteIndex < 1 || byteIndex > 7) return 0;
    return list[row].cells[byteIndex - 1];
}

QByteArray ConsoleRows::bytes(int row) const
{
    QByteArray out;
    if (row < 0 || row >= list.size()) return out;
    out.append(static_cast<char>(list[row].command));
    for (int v : list[row].cells)
        out.append(static_cast<char>(static_cast<quint8>(v)));
    return out;
}
