#include "sortpictures.h"

#include <QPainter>
#include <QPolygonF>

namespace heft {

QPixmap SortPicturePixmap(SortPicture picture)
{
    if (picture == SortPicture::None)
        return {};
    QPixmap pixmap(SortPictureSize, SortPictureSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(64, 64, 64));
    const double s = SortPictureSize;
    const QPolygonF arrow = picture == SortPicture::Up
                                ? QPolygonF({QPointF(s / 2, 2), QPointF(s - 1, s - 3), QPointF(1, s - 3)})
                                : QPolygonF({QPointF(1, 3), QPointF(s - 1, 3), QPointF(s / 2, s - 2)});
    painter.drawPolygon(arrow);
    return pixmap;
}

} // namespace heft
