#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <array>
#include <functional>

// The console's rows: one per named command, with the command byte and the seven byte cells
// Byte1..Byte7. They are the one store of the bytes of the commands that are written as a whole
// row (LED parameters, LED on/off, debounce, report rate, reset): an operation changes one cell
// and sends the row, so the other cells go out as they stand.
class ConsoleRows
{
public:
    struct Row
    {
        QString name;
        quint8 command = 0;
        quint8 dataLength = 8;
        std::array<int, 7> cells{}; // Byte1..Byte7 as the console shows them, in decimal
    };

    ConsoleRows(); // seeded from the command catalogue

    int count() const { return static_cast<int>(list.size()); }
    const Row& row(int index) const { return list[index]; }
    // The first row whose command byte matches, -1 if none.
    int rowOf(quint8 command) const;
    // byteIndex 1..7 is the cell of Byte1..Byte7; other indexes are ignored.
    void setCell(int row, int byteIndex, int value);
    int cell(int row, int byteIndex) const;
    // Byte0 and Byte1..Byte7, each cell cut to a byte.
    QByteArray bytes(int row) const;

    // Called after a cell changed, with the row.
    std::function<void(int)> changed;

private:
    QList<Row> list;
};
