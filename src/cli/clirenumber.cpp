// heftarium-cli --db PATH renumber OLD NEW [OLD NEW ...]: gives entries new,
// free numbers as the editor's save does, each as one change with its
// details, artists, attributes and links.

#include "clihelp.h"
#include "clisafety.h"

#include "core/changeunit.h"
#include "core/session.h"
#include "core/sqlwriters.h"
#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The entry as the editor would hold it; false if there is none.
bool LoadEntry(Session& session, int nr)
{
    BuildSelectEntrySql(session, nr);
    Query row = session.CollectionDb->Select(session.CurrentSql);
    if (!row.Next())
        return false;
    EntryRecord& entry = session.Entry;
    entry.Autor = QuoteSql(row.Text(1));
    entry.Titel = QuoteSql(row.Text(2));
    entry.Auflage = static_cast<int>(row.Int(3));
    entry.Zyklus = QuoteSql(row.Text(4));
    entry.GL = row.Int(5) != 0;
    entry.Bemerkung = QuoteSql(row.Text(6));
    return true;
}

// The save of the editor for a renumbered entry; 0 when it was done.
int Renumber(Session& session, int oldNr, int newNr)
{
    if (!LoadEntry(session, oldNr))
        return 1;
    session.EditMode = true;
    session.OldNr = oldNr;
    session.Entry.Nr = newNr;
    ChangeUnit unit(session);
    if (const int result = InsertEntry(session); result != ExecuteDone)
        return result;
    MoveEntryRows(session, oldNr, newNr);
    StampLastChange(session, newNr);
    return unit.Commit().number;
}

} // namespace

int RenumberCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err)
{
    if (words.isEmpty() || words.size() % 2 != 0) {
        return UsageError(err, u"renumber"_s);
    }
    // The cli asks nothing: a number that is taken is refused, not overwritten.
    session.ActiveCaption = [] { return u"Daten Import"_s; };
    int failed = 0;
    for (qsizetype i = 0; i < words.size(); i += 2) {
        const int oldNr = words[i].toInt(), newNr = words[i + 1].toInt();
        if (const int result = Renumber(session, oldNr, newNr)) {
            err << u"Nr. %1 nicht nach %2 umnummeriert (Fehler %3)\n"_s.arg(oldNr).arg(newNr).arg(result);
            ++failed;
        } else {
            out << u"Nr. %1 ist jetzt Nr. %2\n"_s.arg(oldNr).arg(newNr);
        }
        out.flush();
    }
    return failed > 0 ? 1 : 0;
}

} // namespace heft
