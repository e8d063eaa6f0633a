#include "entrygridview.h"

#include "entrygridheader.h"
#include "mainwin/entrylist.h"
#include "readmarkdelegate.h"
#include "mainwin/twips.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyle>
#include <QToolTip>

namespace heft {

namespace {
// Room in pixels above and below the text of a row.
constexpr int RowPadding = 6;
} // namespace

EntryGridView::EntryGridView(EntryList& list, EntryGrid& grid, QWidget* parent)
    : QTableView(parent), m_list(list), m_grid(grid)
{
    setHorizontalHeader(new EntryGridHeader(this));
    setModel(&grid.Model());
    setItemDelegateForColumn(ColGelesen, new ReadMarkDelegate(this));
    // The grid marks the cells of the current row itself; the user moves the
    // current cell. Row behaviour also keeps a header click from moving it.
    setSelectionMode(QAbstractItemView::NoSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setWordWrap(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + RowPadding);
    horizontalHeader()->setStretchLastSection(true);
    grid.SetFont(font());
    for (int column = 0; column < EntryColumnCount; ++column)
        ApplyColumnWidth(column);
    setVisible(grid.Visible());
    ConnectGrid();
    ConnectView();
}

void EntryGridView::ConnectGrid()
{
    connect(&m_grid, &EntryGrid::RowChanged, this, &EntryGridView::ShowCurrentRow);
    connect(&m_grid, &EntryGrid::TopRowChanged, this, &EntryGridView::ShowTopRow);
    connect(&m_grid, &EntryGrid::ColWidthChanged, this, &EntryGridView::ApplyColumnWidth);
    connect(&m_grid, &EntryGrid::VisibleChanged, this, &QWidget::setVisible);
    connect(&m_grid, &EntryGrid::ToolTipChanged, this, &QWidget::setToolTip);
    const EntryGridModel* model = &m_grid.Model();
    connect(model, &QAbstractItemModel::modelReset, this, [this] {
        ShowCurrentRow();
        ShowTopRow();
    });
    // A sort or a removal moves other entries under the current row number.
    connect(model, &QAbstractItemModel::layoutChanged, this, &EntryGridView::ShowCurrentRow);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &EntryGridView::ShowCurrentRow);
}

void EntryGridView::ConnectView()
{
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex& current) {
        if (m_following || !current.isValid())
            return;
        m_grid.SetRow(current.row() + 1);
        if (IsActive())
            m_list.UpdateSelectionPanel();
    });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        if (!m_following)
            m_grid.SetTopRow(value + 1);
    });
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int, int size) {
        if (!m_following)
            m_grid.SetColWidth(column, PixelsToTwips(size));
    });
    connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
        if (IsActive() && m_grid.CurrentRowHoldsEntry())
            m_list.GridClick(index.row() + 1, index.column());
    });
    connect(this, &QAbstractItemView::doubleClicked, this, [this] {
        if (m_grid.CurrentRowHoldsEntry())
            Q_EMIT EditRequested();
    });
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) {
        if (IsActive() && m_grid.CurrentRowHoldsEntry())
            m_list.GridClick(0, column);
    });
    auto* header = static_cast<EntryGridHeader*>(horizontalHeader());
    connect(header, &EntryGridHeader::DoubleClicked, this, [this](int x) {
        if (IsActive())
            m_list.ColumnBorderHit(x);
    });
}

bool EntryGridView::IsActive() const
{
    return m_list.ActiveGrid == &m_grid;
}

void EntryGridView::ShowCurrentRow()
{
    const int row = m_grid.Row() - 1;
    const QAbstractItemModel* gridModel = model();
    if (row < 0 || row >= gridModel->rowCount())
        return;
    m_following = true;
    const int column = currentIndex().isValid() ? currentIndex().column() : int(ColAutor);
    selectionModel()->setCurrentIndex(gridModel->index(row, column), QItemSelectionModel::NoUpdate);
    selectionModel()->select(QItemSelection(gridModel->index(row, ColAutor), gridModel->index(row, ColBemerkung)),
                             QItemSelectionModel::ClearAndSelect);
    m_following = false;
}

void EntryGridView::ShowTopRow()
{
    QScrollBar* bar = verticalScrollBar();
    // A row just added may lie beyond the range the view has measured yet.
    if (m_grid.TopRow() - 1 > bar->maximum())
        updateGeometries();
    m_following = true;
    bar->setValue(m_grid.TopRow() - 1);
    m_following = false;
}

void EntryGridView::ApplyColumnWidth(int column)
{
    m_following = true;
    setColumnWidth(column, m_grid.ColPixelWidth(column));
    m_following = false;
}

void EntryGridView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (m_grid.CurrentRowHoldsEntry())
            Q_EMIT EditRequested();
        event->accept();
        return;
    }
    QTableView::keyPressEvent(event);
}

void EntryGridView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::RightButton) {
        QTableView::mousePressEvent(event);
        return;
    }
    const QModelIndex index = indexAt(event->position().toPoint());
    event->accept();
    if (!index.isValid() || !IsActive())
        return;
    m_grid.SetRow(index.row() + 1);
    if (!m_grid.CurrentRowHoldsEntry())
        return;
    m_list.UpdateSelectionPanel();
    Q_EMIT PopupRequested(event->globalPosition().toPoint());
}

void EntryGridView::focusInEvent(QFocusEvent* event)
{
    QTableView::focusInEvent(event);
    Q_EMIT FocusChanged(true);
}

void EntryGridView::focusOutEvent(QFocusEvent* event)
{
    QTableView::focusOutEvent(event);
    Q_EMIT FocusChanged(false);
}

void EntryGridView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    // Column 6 is fitted for a full list, whose scroll bar takes its share
    // of the width; a short list without one lets the last column stretch.
    const int scrollBarShare = verticalScrollBar()->isVisible() ? 0 : style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    m_grid.SetClientWidth(viewport()->width() - scrollBarShare);
    m_grid.SetVisibleRows(std::max(1, viewport()->height() / verticalHeader()->defaultSectionSize()));
    // The top row may have been set before the view had its size.
    ShowTopRow();
}

bool EntryGridView::viewportEvent(QEvent* event)
{
    // The grid has one tooltip for all its cells (the cycle explained);
    // the cells themselves have none.
    if (event->type() == QEvent::ToolTip && !toolTip().isEmpty()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTip(), this);
        return true;
    }
    return QTableView::viewportEvent(event);
}

} // namespace heft
