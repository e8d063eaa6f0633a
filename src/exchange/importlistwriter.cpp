#include "importwriters.h"

#include "core/session.h"
#include "core/sqlwriters.h"
#include "core/textfuncs.h"
#include "mainwin/entrylist.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

int NumberOf(const ListRecord& r) { return static_cast<int>(Val(r.Nr)); }

// A row one above the highest number goes to the end of the list and is
// then filled from the entry's row in the collection.
void AppendListRow(Session& session, EntryList& list, int nr)
{
    list.AddGridRow(list.HighestNr + 1);
    BuildSelectEntrySql(session, nr);
    list.RefreshRowFromQuery(session, 1);
}

// 0 when the entry's row was found and refilled, else the number.
int RefillListRow(Session& session, EntryList& list, int nr)
{
    if (list.FindAndShowRow(nr) < 0)
        return nr;
    BuildSelectEntrySql(session, nr);
    list.RefreshRowFromQuery(session, 1);
    return 0;
}

QString ReadMark(const ListRecord& r) { return r.Gelesen ? u"255"_s : u"0"_s; }

QString OnlyImportedList(const ListRecord& r)
{
    QString set = u"Nr="_s + r.Nr;
    if (!r.Autor.isEmpty())
        set += u", Autor='"_s + QuoteSql(r.Autor) + u'\'';
    if (!r.Titel.isEmpty())
        set += u", Titel='"_s + QuoteSql(r.Titel) + u'\'';
    if (!r.IsEmpty(4))
        set += u", Auflage="_s + QString::number(r.AuflageNumber);
    // An empty cycle has become "- - -" and is written too.
    set += u", Zyklus='"_s + r.Zyklus + u'\'';
    if (!r.IsEmpty(6))
        set += u", GL="_s + ReadMark(r);
    if (!r.Bemerkung.isEmpty())
        set += u", Bemerkung='"_s + QuoteSql(r.Bemerkung) + u'\'';
    return set;
}

QString CycleSetList(const CycleRecord& r)
{
    QString set = u"Zyklus='"_s + r.Zyklus + u'\'';
    const auto add = [&set](const QString& column, const QString& value, bool text) {
        if (value.isEmpty())
            return;
        set += u", "_s + column + u'=' + (text ? u'\'' + QuoteSql(value) + u'\'' : value);
    };
    add(u"NrVon"_s, r.NrVon, false);
    add(u"NrBis"_s, r.NrBis, false);
    add(u"ZeitVon"_s, r.ZeitVon, false);
    add(u"ZeitBis"_s, r.ZeitBis, false);
    add(u"Bezeichnung"_s, r.Bezeichnung, true);
    add(u"Zyklusbereich"_s, r.Zyklusbereich, true);
    return set;
}

} // namespace

int WriteListRecord(Session& session, EntryList& list, const ListRecord& r, ImportMode mode)
{
    const QString autor = QuoteSql(r.Autor);
    const QString titel = QuoteSql(r.Titel);
    const QString bemerkung = QuoteSql(r.Bemerkung);
    const QString auflage = QString::number(r.AuflageNumber);
    // Each statement is filled in one pass, so that a value holding "%4"
    // stays as it is.
    int result = 0;
    switch (mode) {
    case ImportMode::Insert:
        result = ExecuteSql(session, u"INSERT INTO HEFTLIST (Nr, Autor, Titel, Auflage, Zyklus, GL, Bemerkung) VALUES (%1, "
                              "'%2', '%3', %4, '%5', %6, '%7');"_s.arg(r.Nr, autor, titel, auflage, r.Zyklus,
                                                                         ReadMark(r), bemerkung));
        break;
    case ImportMode::AllColumns:
        ExecuteSql(session, u"UPDATE HEFTLIST SET Nr=%1, Autor='%2', Titel='%3', Auflage=%4, Zyklus='%5', GL=%6, "
                     "Bemerkung='%7' WHERE Nr=%1;"_s.arg(r.Nr, autor, titel, auflage, r.Zyklus, ReadMark(r), bemerkung));
        result = RefillListRow(session, list, NumberOf(r));
        break;
    case ImportMode::OnlyImported:
        ExecuteSql(session, u"UPDATE HEFTLIST SET %1 WHERE Nr=%2;"_s.arg(OnlyImportedList(r), r.Nr));
        result = RefillListRow(session, list, NumberOf(r));
        break;
    }
    // In the update modes too: the entry then stands twice in the list
    // until the list is loaded again.
    if (result == 0)
        AppendListRow(session, list, NumberOf(r));
    return result;
}

int WriteCycleRecord(Session& session, const CycleRecord& r, ImportMode mode)
{
    const QString bezeichnung = QuoteSql(r.Bezeichnung);
    const QString bereich = QuoteSql(r.Zyklusbereich);
    switch (mode) {
    case ImportMode::Insert:
        session.CurrentSql = u"INSERT INTO ZYKLUSLISTE (Zyklus, NrVon, NrBis, ZeitVon, ZeitBis, Bezeichnung, "
                             "Zyklusbereich) VALUES ('%1', %2, %3, %4, %5, '%6', '%7');"_s.arg(
                                 r.Zyklus, r.NrVon, r.NrBis, r.ZeitVon, r.ZeitBis, bezeichnung, bereich);
        break;
    case ImportMode::AllColumns:
        session.CurrentSql = u"UPDATE ZYKLUSLISTE SET Zyklus='%1', NrVon=%2, NrBis=%3, ZeitVon=%4, ZeitBis=%5, "
                             "Bezeichnung='%6', Zyklusbereich='%7' WHERE Zyklus='%1';"_s.arg(
                                 r.Zyklus, r.NrVon, r.NrBis, r.ZeitVon, r.ZeitBis, bezeichnung, bereich);
        break;
    case ImportMode::OnlyImported:
        session.CurrentSql = u"UPDATE ZYKLUSLISTE SET %1 WHERE Zyklus='%2';"_s.arg(CycleSetList(r), r.Zyklus);
        break;
    }
    return ExecuteCycleSql(session);
}

} // namespace heft
