#pragma once

#include <QStyledItemDelegate>

// Draws a work's preview in the works table: the cell as usual, then the picture kept in the
// item as base64 PNG text, fitted into the cell with a small margin.
class PictureDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int kImageRole = Qt::UserRole + 1; // 257
    static constexpr int kMargin = 4;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};
