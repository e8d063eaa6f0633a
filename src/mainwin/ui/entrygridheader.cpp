#include "entrygridheader.h"

#include "mainwin/entrygridmodel.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyleOptionHeader>

namespace heft {

namespace {
// Distance in pixels between the sort picture and the cell's edge.
constexpr int PictureInset = 3;
} // namespace

EntryGridHeader::EntryGridHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    setHighlightSections(false);
}

void EntryGridHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const
{
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    // The style would always put the picture before the text; it is drawn
    // in paintSection instead.
    option->icon = QIcon();
}

void EntryGridHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const
{
    // The base leaves the painter clipped to nothing; the picture needs the
    // painter as it came.
    painter->save();
    QHeaderView::paintSection(painter, rect, logicalIndex);
    painter->restore();
    if (!model())
        return;
    const QPixmap picture = model()->headerData(logicalIndex, Qt::Horizontal, Qt::DecorationRole).value<QPixmap>();
    if (picture.isNull())
        return;
    const auto side = model()->headerData(logicalIndex, Qt::Horizontal, EntryGridModel::PictureAlignmentRole)
                          .value<Qt::Alignment>();
    const QRect area = rect.adjusted(PictureInset, 0, -PictureInset, 0);
    painter->drawPixmap(QStyle::alignedRect(layoutDirection(), side, picture.size(), area), picture);
}

void EntryGridHeader::mouseDoubleClickEvent(QMouseEvent* event)
{
    // Replaces the base behaviour, which would fit the column by its own
    // measure.
    Q_EMIT DoubleClicked(event->position().toPoint().x() + offset());
    event->accept();
}

} // namespace heft
