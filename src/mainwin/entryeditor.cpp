#include "entryeditor.h"

#include "editdialog.h"
#include "mainwindow.h"

#include "core/changeunit.h"
#include "core/session.h"
#include "core/sqlwriters.h"
#include "core/textfuncs.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The highest number the editor can write (five digits).
constexpr int MaxEntryNr = 99999;

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

void FocusActiveGrid(MainWindow& window)
{
    const QString name = window.IsFilterMode() ? u"fg_filter"_s : u"fg_heftliste"_s;
    if (auto* grid = window.findChild<QWidget*>(name))
        grid->setFocus();
}

} // namespace

void EditEntry(MainWindow& window)
{
    Session& session = window.CurrentSession();
    session.EditAccepted = false;
    {
        EditDialog dialog(window);
        dialog.exec();
    }
    if (session.EditAccepted)
        SaveEntry(window);
}

void SaveEntry(MainWindow& window)
{
    Session& session = window.CurrentSession();
    EntryList& list = window.List();
    const int nr = session.Entry.Nr;
    const int oldNr = session.OldNr;

    // Everything the save writes, renumbering and overwrite included, lands
    // in the file as one change.
    ChangeUnit unit(session);
    // The insert always runs first; ExecuteSql turns the duplicate key into
    // the kind of save this is.
    const int result = InsertEntry(session);
    if (result < 0)
        return;
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
            unit.Commit();
            session.EditRetry = true;
            EditEntry(window);
            return;
        default:
            return;
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

    if (window.IsFilterMode())
        MirrorIntoFullList(list, result == ExecuteDone);

    // A save into an emptied filter list gives the commands something to
    // work on again.
    const EntryGrid& grid = *list.ActiveGrid;
    if (!window.IsCommandEnabled(u"mnu_goto"_s) && IsNumeric(grid.TextMatrix(grid.Row(), ColNr)))
        window.EnableEntryCommands();
    FocusActiveGrid(window);
}

int NextFreeNr(MainWindow& window)
{
    const EntryGrid& grid = *window.List().ActiveGrid;
    const int start = static_cast<int>(Val(grid.TextMatrix(grid.Row(), ColNr)));
    if (start >= MaxEntryNr)
        return MaxEntryNr;

    window.SetStatusPanel(5, u"Suche den nächsten fehlenden Eintrag ..."_s);
    // The search starts behind the entry the user is on, not at 1: a new
    // issue usually belongs right after the one selected.
    Query numbers = window.CurrentSession().CollectionDb->Select(
        u"SELECT Nr FROM HEFTLIST WHERE Nr>%1 ORDER BY Nr;"_s.arg(start));
    int previous = start;
    while (numbers.Next()) {
        const int nr = static_cast<int>(numbers.Int(0));
        if (nr - previous > 1)
            break;
        previous = nr;
    }
    numbers.Close();
    window.SetStatusPanel(5, u"Fertig und Bereit."_s);
    return previous + 1;
}

void FillAuthorList(Session& session, QComboBox& authors)
{
    Query names = session.CollectionDb->Select(u"SELECT DISTINCT Autor FROM HEFTLIST ORDER BY Autor;"_s);
    QStringList list;
    while (names.Next())
        list.append(Trim(names.Text(0)));
    authors.addItems(list);
}

} // namespace heft
