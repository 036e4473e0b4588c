#include "PictureDelegate.h"

#include <QCache>
#include <QPainter>
#include <QPixmap>

namespace {

// Decoding a preview on every paint would cost a PNG decode per row per repaint; the text of a
// work's picture only changes when the work is updated, so it is its own key.
QPixmap previewOf(const QString& base64)
{
    static QCache<QString, QPixmap> cache(64);
    if (QPixmap* hit = cache.object(base64)) return *hit;
    QPixmap picture;
    picture.loadFromData(QByteArray::fromBase64(base64.toLatin1()), "PNG");
    cache.insert(base64, new QPixmap(picture));
    return picture;
}

} // namespace

void PictureDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const QPixmap picture = previewOf(index.data(kImageRole).toString());
    if (picture.isNull()) return; // a work without a picture, or one that doesn't decode
    const QRect cell = option.rect.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    QRect target(QPoint(), picture.size().scaled(cell.size(), Qt::KeepAspectRatio));
    target.moveCenter(cell.center());
    painter->save();
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(target, picture);
    painter->restore();
}
