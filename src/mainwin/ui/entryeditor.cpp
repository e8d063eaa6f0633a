#include "entryeditor.h"

#include "editdialog.h"
#include "mainwindow.h"

#include "core/session.h"
#include "core/textfuncs.h"
#include "mainwin/entrysave.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The highest number the editor can write (five digits).
constexpr int MaxEntryNr = 99999;

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
    switch (WriteEntry(session, window.List())) {
    case EntrySaveOutcome::Saved:
        break;
    case EntrySaveOutcome::OverwriteDeclined:
        session.EditRetry = true;
        EditEntry(window);
        return;
    case EntrySaveOutcome::Failed:
        return;
    }

    // A save into an emptied filter list gives the commands something to
    // work on again.
    const EntryGrid& grid = *window.List().ActiveGrid;
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
