#include "ColorDelegate.h"

#include <QEvent>
#include <QPainter>
#include <QPixmap>
#include <QTableView>

ColorDelegate::ColorDelegate(QTableView* view) : QStyledItemDelegate(view), m_view(view) {}

void ColorDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    // The item's text is a dot of its font's size; it is drawn as a true circle so that it
    // sits in the middle of the highlight whatever the font's glyph looks like.
    qreal diameter = index.data(Qt::FontRole).value<QFont>().pointSizeF();
    if (index.column() == kCentreColumn) {
        static const QPixmap highlight(QStringLiteral(":/images/Color-picked.png"));
        const QSize size = highlight.size().scaled(option.rect.size(), Qt::KeepAspectRatio);
        QRect target(QPoint(), size);
        target.moveCenter(option.rect.center());
        painter->drawPixmap(target, highlight);
        diameter *= kCentreScale;
    }
    painter->setPen(Qt::NoPen);
    painter->setBrush(index.data(Qt::ForegroundRole).value<QBrush>().color());
    painter->drawEllipse(QRectF(option.rect).center(), diameter / 2, diameter / 2);
    painter->restore();
}

bool ColorDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() == QEvent::MouseButtonRelease && index.isValid()) {
        m_lastColumn = index.column();
        emit onClicked(m_lastColumn);
        m_view->viewport()->update();
        return true;
    }
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}
