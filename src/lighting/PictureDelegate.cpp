#include "PictureDelegate.h"

#include <QCache>
#include <QPainter>
#include <QPixmap>

namespace {

// Decoding a preview on every paint would cost a PNG decode per row per repaint. The picture is
// kept at the size it is shown (a few dozen KiB, not the keyboard's full size), under its own
// text, which changes whenever the work is updated.
QPixmap previewOf(const QString& base64, const QSize& box)
{
    static QCache<QString, QPixmap> cache(8 * 1024 * 1024); // bytes
    const QString key = QStringLiteral("%1x%2:").arg(box.width()).arg(box.height()) + base64;
    if (QPixmap* hit = cache.object(key)) return *hit;
    QPixmap picture;
    if (!picture.loadFromData(QByteArray::fromBase64(base64.toLatin1()), "PNG")) return picture;
    picture = picture.scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    const qsizetype cost = qsizetype(picture.width()) * picture.height() * 4;
    cache.insert(key, new QPixmap(picture), cost);
    return picture;
}

} // namespace

void PictureDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const QRect cell = option.rect.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    const QPixmap picture = previewOf(index.data(kImageRole).toString(), cell.size());
    if (picture.isNull()) return; // a work without a picture, or one that doesn't decode
    QRect target(QPoint(), picture.size());
    target.moveCenter(cell.center());
    painter->drawPixmap(target, picture);
}
