#include "filterrun.h"

#include "core/session.h"
#include "mainwin/entrylist.h"

namespace heft {

int RunFilterStatement(Session& session, EntryList& list, const QString& sql)
{
    DbError error;
    session.CurrentSql = sql;
    session.SharedRecordset = session.CollectionDb->Select(sql, &error);
    if (error)
        return -1;
    // Whether anything was found shows only after the fill, and a filter
    // that finds nothing must leave the main list as the user had it.
    EntryGrid* const previousGrid = list.ActiveGrid;
    const int previousColumn = list.SortColumn;
    const bool previousDescending = list.SortDescending;
    list.ActiveGrid = &list.Filter;
    list.SetupGridColumns();
    list.FillGrid(session);
    // The grid keeps one blank row for an empty result.
    const EntryGrid& grid = list.Filter;
    const int found = grid.Rows() == 2 && grid.TextMatrix(1, ColNr).isEmpty() ? 0 : grid.Rows() - 1;
    if (found == 0) {
        list.ActiveGrid = previousGrid;
        list.SortColumn = previousColumn;
        list.SortDescending = previousDescending;
        list.UpdateSelectionPanel();
    }
    return found;
}

} // namespace heft
