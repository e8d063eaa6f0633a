#include "readmarkdelegate.h"

#include "mainwin/entrygridmodel.h"

#include <QApplication>
#include <algorithm>
#include <QPainter>
#include <QPainterPath>

namespace heft {

void ReadMarkDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (index.data().toString() != ReadMarkText()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.text.clear();
    const QStyle* style = cell.widget ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

    const double size = std::min(cell.rect.height() - 4, 14);
    const QRectF box(cell.rect.center().x() - size / 2, cell.rect.center().y() - size / 2, size, size);
    QPainterPath tick;
    tick.moveTo(box.left() + size * 0.12, box.top() + size * 0.55);
    tick.lineTo(box.left() + size * 0.40, box.top() + size * 0.85);
    tick.lineTo(box.left() + size * 0.90, box.top() + size * 0.15);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(QColor(0, 128, 0), std::max(2.0, size / 6), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(tick);
    painter->restore();
}

} // namespace heft
