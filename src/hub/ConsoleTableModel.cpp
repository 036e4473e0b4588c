#include "ConsoleTableModel.h"

#include "ConsoleRows.h"

#include <QBrush>
#include <QColor>
#include <QFont>

namespace {

enum Column { NameColumn = 0, LengthColumn = 1, CommandColumn = 2 };

const QColor kNameColour(0x00, 0x00, 0xFF);
const QColor kMarkColour(0xFF, 0x00, 0x00);

} // namespace

ConsoleTableModel::ConsoleTableModel(ConsoleRows& store, QObject* parent)
    : QAbstractTableModel(parent), rows(store)
{
    retranslate();
}

void ConsoleTableModel::retranslate()
{
    // One literal, split at the commas; a line feed puts a header's second line under its first.
    headers = tr("命令,数据长度,Byte0\n命令号(Hex),Byte1\nEffect,Byte2\nSpeed,Byte3\nBrightness,"
                 "Byte4\nOption,Byte5\nR,Byte6\nG,Byte7\nB")
                  .split(QLatin1Char(','));
    headers.resize(kColumns);
    emit headerDataChanged(Qt::Horizontal, 0, kColumns - 1);
}

int ConsoleTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : rows.count();
}

int ConsoleTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kColumns;
}

QVariant ConsoleTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rows.count()) return {};
    const ConsoleRows::Row& row = rows.row(index.row());
    const int column = index.column();
    const bool marked = row.dataLength == kMarkedLength;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        // Text in both roles: the editor is a line edit, whatever number is typed.
        if (column == NameColumn) return row.name;
        if (column == LengthColumn) return QString::number(row.dataLength);
        if (column == CommandColumn)
            return QStringLiteral("%1").arg(row.command, 2, 16, QLatin1Char('0')).toUpper();
        return QString::number(rows.cell(index.row(), column - CommandColumn));
    case Qt::ForegroundRole:
        if (column == NameColumn) return QBrush(kNameColour);
        if (marked && (column == LengthColumn || column == CommandColumn))
            return QBrush(kMarkColour);
        return {};
    case Qt::FontRole:
        if (!marked || column > CommandColumn) return {};
        {
            QFont font;
            font.setBold(true);
            font.setItalic(column == NameColumn);
            return font;
        }
    case Qt::BackgroundRole:
        if (marked && column <= CommandColumn) return QBrush(Qt::white);
        return {};
    default:
        return {};
    }
}

QVariant ConsoleTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole) return QAbstractTableModel::headerData(section, orientation, role);
    if (orientation == Qt::Horizontal) return headers.value(section);
    return section + 1;
}

Qt::ItemFlags ConsoleTableModel::flags(const QModelIndex& index) const
{
    if (!index.isValid()) return Qt::NoItemFlags;
    const Qt::ItemFlags base = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return index.column() >= kFirstByteColumn ? base | Qt::ItemIsEditable : base;
}

bool ConsoleTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !index.isValid() || index.column() < kFirstByteColumn) return false;
    bool ok = false;
    const int number = value.toString().trimmed().toInt(&ok);
    if (!ok) return false;
    // The store tells rowChangedInStore, which repaints the row.
    rows.setCell(index.row(), index.column() - CommandColumn, number);
    return true;
}

void ConsoleTableModel::rowChangedInStore(int row)
{
    if (row < 0 || row >= rows.count()) return;
    emit dataChanged(index(row, kFirstByteColumn), index(row, kColumns - 1));
}
