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
    EntryGrid* previous = list.ActiveGrid;
    list.ActiveGrid = &list.Filter;
    list.SetupGridColumns();
    list.FillGrid(session);
    // The grid keeps one blank row for an empty result.
    const EntryGrid& grid = list.Filter;
    const int found = grid.Rows() == 2 && grid.TextMatrix(1, ColNr).isEmpty() ? 0 : grid.Rows() - 1;
    if (found == 0)
        list.ActiveGrid = previous;
    return found;
}

} // namespace heft
