#pragma once

#include <QAbstractTableModel>

class ConsoleRows;

// The console's table over the connection's rows: it reads and writes the rows themselves, so
// that a cell edited here is the byte the next row write sends. Columns: name, data length,
// command (hex), then Byte1..Byte7 in decimal; only the byte cells can be edited.
class ConsoleTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int kColumns = 10;
    static constexpr int kFirstByteColumn = 3; // Byte1
    static constexpr int kRowHeight = 20;
    // Rows of this data length are marked in the table.
    static constexpr int kMarkedLength = 9;

    explicit ConsoleTableModel(ConsoleRows& rows, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // A byte cell takes a decimal number; other text is refused and the cell keeps its value.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    // The rows changed a row's cells: the view repaints it.
    void rowChangedInStore(int row);
    // Headers again in the current language.
    void retranslate();

private:
    ConsoleRows& rows;
    QStringList headers;
};
