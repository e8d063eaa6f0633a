#include "entrysave.h"

#include "entrylist.h"

#include "core/changeunit.h"
#include "core/session.h"
#include "core/sqlwriters.h"
#include "core/textfuncs.h"

namespace heft {

namespace {

// Work done in the filter list is carried over to the full list, which
// always holds every entry. The filter result itself is not recomputed: an
// entry that no longer fits stays until the next filter run.
void MirrorIntoFullList(EntryList& list, bool added)
{
    const EntryGrid& filter = list.Filter;
    const int filterRow = filter.Row();
    const int nr = static_cast<int>(Val(filter.TextMatrix(filterRow, ColNr)));
    list.ActiveGrid = &list.Heftliste;
    if (added)
        list.AddGridRow(nr);
    list.ResortGrid();
    list.FindAndShowRow(nr);
    EntryGrid& full = list.Heftliste;
    for (int col = ColAutor; col < EntryColumnCount; ++col)
        full.SetTextMatrix(full.Row(), col, filter.TextMatrix(filterRow, col));
    list.ActiveGrid = &list.Filter;
}

} // namespace

EntrySaveOutcome WriteEntry(Session& session, EntryList& list)
{
    const int nr = session.Entry.Nr;
    const int oldNr = session.OldNr;

    // Everything the save writes, renumbering and overwrite included, lands
    // in the file as one change.
    ChangeUnit unit(session);
    // The insert always runs first; ExecuteSql turns the duplicate key into
    // the kind of save this is.
    const int result = InsertEntry(session);
    if (result < 0)
        return EntrySaveOutcome::Failed;
    if (result == ExecuteDone && session.EditMode) {
        // Renumbered to a free number: the entry now stands twice, and the
        // old row goes with everything that hung on it moved over.
        MoveEntryRows(session, oldNr, nr);
        list.RemoveEntryRows(oldNr);
        list.AddGridRow(nr);
    } else if (result > 0) {
        switch (result) {
        case ExecuteSameRecord:
            break;
        case ExecuteOverwriteAgreed:
            // The overwritten entry lost its own details in ExecuteSql; the
            // edited one brings its details along.
            if (session.EditMode) {
                MoveDetails(session, oldNr, nr);
                MoveDependents(session, oldNr, nr);
            }
            break;
        case ExecuteDeclined:
            // The unit ends with nothing written; the edit goes on.
            return EntrySaveOutcome::OverwriteDeclined;
        default:
            return EntrySaveOutcome::Failed;
        }
        UpdateEntry(session);
    }
    if (!session.EditMode)
        list.AddGridRow(nr);

    BuildSelectEntrySql(session, nr);
    // A filter list need not hold the number yet; an emptied one reuses its
    // single empty row.
    if (IsNumeric(list.ActiveGrid->TextMatrix(1, ColNr)) && list.FindAndShowRow(nr) < 0)
        list.AddGridRow(nr);
    list.RefreshRowFromQuery(session, 0);
    StampLastChange(session, nr);

    if (list.ActiveGrid == &list.Filter)
        MirrorIntoFullList(list, result == ExecuteDone);
    return EntrySaveOutcome::Saved;
}

} // namespace heft
