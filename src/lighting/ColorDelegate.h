#pragma once

#include <QStyledItemDelegate>

class QTableView;

// Draws the dots of the effect colour table, the centre one on its highlight and larger, and
// reports the column of each click.
class ColorDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int kCentreColumn = 3;
    static constexpr double kCentreScale = 1.3;

    explicit ColorDelegate(QTableView* view);

    int lastColumn() const { return m_lastColumn; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

signals:
    void onClicked(int column);

private:
    QTableView* m_view;
    int m_lastColumn = -1;
};
