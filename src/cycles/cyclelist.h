#pragma once
// The cycle list as the cycle window shows it: the rows of ZyklusListe as
// texts, which of them belongs to the current entry, and the rule that only
// the youngest cycle may be removed.

#include "core/database.h"
#include "exchange/datformat.h"

#include <QList>
#include <QString>

#include <array>

namespace heft {

// One row of ZyklusListe as the grid shows it; Bits is not used here.
using CycleRow = CycleRecord;

// The seven fields in the order of the table's columns, which is also the
// order of the grid's columns 1 to 7 and of the editor's boxes.
constexpr int CycleFieldCount = 7;
std::array<QString*, CycleFieldCount> CycleFields(CycleRow& row);
std::array<const QString*, CycleFieldCount> CycleFields(const CycleRow& row);

// Reads ZyklusListe ordered by the first entry number, every column as
// text (a null as an empty text). False and *error when it can't be read.
bool ReadCycles(Database& db, QList<CycleRow>& rows, DbError* error);

// The index of the row to show for an entry of the given cycle: the last row
// with that key, else the first row.
int CycleRowIndexOf(const QList<CycleRow>& rows, const QString& zyklus);

// Only the youngest cycle can be removed, and never the only one left.
constexpr bool CanDeleteLastCycle(int cycleCount)
{
    return cycleCount >= 2;
}
// nr is the row's running number in the grid.
QString DeleteCycleQuestion(int nr, const CycleRow& row);
QString DeleteCycleSql(const QString& zyklus);

} // namespace heft
