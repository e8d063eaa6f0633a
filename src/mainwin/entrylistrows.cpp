#include "entrylist.h"

#include "entryrows.h"

#include "core/session.h"
#include "core/sqlwriters.h"
#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

int EntryList::FindAndShowRow(int nr)
{
    EntryGrid& grid = *ActiveGrid;
    const int found = grid.Model().FindNr(nr);
    if (found < 0)
        return -1;
    const int row = found + 1;
    // Half a page above the row, so that it stands in the middle.
    const int offset = grid.VisibleRows() / 2;
    grid.SetTopRow(std::max(1, row - std::max(1, offset) + 1));
    grid.SetRow(row);
    UpdateSelectionPanel();
    return row;
}

void EntryList::AddGridRow(int nr)
{
    EntryGrid& grid = *ActiveGrid;
    // The one empty row of an emptied list is used before a new one is added.
    if (grid.Rows() < 3 && grid.TextMatrix(1, ColNr).isEmpty()) {
        grid.SetRow(1);
    } else {
        grid.Model().AppendRow();
        grid.SetRow(grid.Rows() - 1);
        grid.SetTopRow(grid.Row());
    }
    grid.SetTextMatrix(grid.Row(), ColNr, QString::number(nr));
}

void EntryList::RefreshRowFromQuery(Session& session, int flag)
{
    EntryGrid& grid = *ActiveGrid;
    Query& record = session.SharedRecordset;
    record = session.CollectionDb->Select(session.CurrentSql);
    if (record.Next()) {
        EntryCells cells;
        for (int col = 0; col < EntryColumnCount; ++col)
            cells[static_cast<size_t>(col)] = grid.TextMatrix(grid.Row(), col);
        ReadEntryCells(record, EntryColumns::ByName(record), cells);
        grid.Model().SetRowCells(grid.Row() - 1, std::move(cells));
    }
    GetNrRange(session, u";"_s, LowestNr, HighestNr);
    if (flag == 0) {
        const int nr = static_cast<int>(Val(grid.TextMatrix(grid.Row(), ColNr)));
        ResortGrid();
        FindAndShowRow(nr);
    }
    record.Close();
}

int EntryList::RemoveEntryRows(int nr)
{
    if (FindAndShowRow(nr) < 1)
        return nr;
    // The full list mirrors every change made in the filter list.
    if (ActiveGrid == &Filter) {
        ActiveGrid = &Heftliste;
        if (FindAndShowRow(nr) >= 1)
            RemoveCurrentRow();
        ActiveGrid = &Filter;
    }
    RemoveCurrentRow();
    return 0;
}

void EntryList::RemoveCurrentRow()
{
    EntryGrid& grid = *ActiveGrid;
    // A grid keeps at least one data row: the last entry of a list gives way
    // to an empty row, and a filter list left so has nothing to work on.
    if (grid.Rows() < 3) {
        if (grid.IsFilterGrid())
            Q_EMIT EntryCommandsDisabled();
        grid.Model().AppendRow();
    }
    grid.Model().RemoveRow(grid.Row() - 1);
    grid.SetRow(std::min(grid.Row(), grid.Rows() - 1));
    UpdateSelectionPanel();
}

} // namespace heft
