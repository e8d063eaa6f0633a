#include "cyclelist.h"

#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

std::array<QString*, CycleFieldCount> CycleFields(CycleRow& row)
{
    return {&row.Zyklus, &row.NrVon, &row.NrBis, &row.ZeitVon, &row.ZeitBis, &row.Bezeichnung, &row.Zyklusbereich};
}

std::array<const QString*, CycleFieldCount> CycleFields(const CycleRow& row)
{
    return {&row.Zyklus, &row.NrVon, &row.NrBis, &row.ZeitVon, &row.ZeitBis, &row.Bezeichnung, &row.Zyklusbereich};
}

bool ReadCycles(Database& db, QList<CycleRow>& rows, DbError* error)
{
    rows.clear();
    Query query = db.Select(u"SELECT * FROM ZyklusListe ORDER BY NrVon;"_s, error);
    if (*error)
        return false;
    // The columns are read by position, as the table was laid out.
    while (query.Next()) {
        CycleRow row;
        const auto fields = CycleFields(row);
        const int columns = std::min(query.ColumnCount(), CycleFieldCount);
        for (int column = 0; column < columns; ++column)
            *fields[column] = query.Text(column);
        rows.append(row);
    }
    *error = query.Error();
    return !*error;
}

int CycleRowIndexOf(const QList<CycleRow>& rows, const QString& zyklus)
{
    for (qsizetype index = rows.size() - 1; index >= 0; --index) {
        if (rows[index].Zyklus == zyklus)
            return static_cast<int>(index);
    }
    return 0;
}

QString DeleteCycleQuestion(int nr, const CycleRow& row)
{
    return u"Zykluseintrag #%1 (%2)\r'%3'\rwirklich löschen?"_s.arg(nr).arg(row.Zyklus, row.Bezeichnung);
}

QString DeleteCycleSql(const QString& zyklus)
{
    return u"DELETE FROM ZyklusListe WHERE Zyklus='%1';"_s.arg(QuoteSql(zyklus));
}

} // namespace heft
