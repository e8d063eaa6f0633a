#include "entrylist.h"

#include "twips.h"

#include <QCursor>
#include <QFontMetrics>
#include <QGuiApplication>

namespace heft {

namespace {

// Room in pixels for the sort picture in each header cell.
constexpr std::array<int, EntryColumnCount> PictureReserve{18, 6, 6, 17, 21, 17, 32};
// Margin in pixels added to the widest text.
constexpr int FitMargin = 8;

} // namespace

void EntryList::AutoSizeColumn(int col)
{
    EntryGrid& grid = *ActiveGrid;
    const QFontMetrics metrics(grid.Font());
    int widest = metrics.horizontalAdvance(grid.TextMatrix(0, col)) + PictureReserve[static_cast<size_t>(col)];
    const EntryGridModel& model = grid.Model();
    for (int row = 0; row < model.rowCount(); ++row)
        widest = std::max(widest, metrics.horizontalAdvance(model.Text(row, col)));
    grid.SetColWidth(col, PixelsToTwips(widest + FitMargin));
}

int EntryList::ColumnBorderHit(int x)
{
    const EntryGrid& grid = *ActiveGrid;
    int border = 0;
    for (int col = 0; col < EntryColumnCount; ++col) {
        border += grid.ColPixelWidth(col);
        if (std::abs(x - border) <= 1) {
            QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
            AutoSizeColumn(col);
            QGuiApplication::restoreOverrideCursor();
            return col;
        }
    }
    return -1;
}

} // namespace heft
