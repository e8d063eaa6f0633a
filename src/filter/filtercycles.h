#pragma once
// Cycles are stored as roman numerals, which the database cannot order, so
// KLEINER and GRÖßER on a cycle become a list of the cycles that qualify,
// taken from the cycles the collection uses.

#include "filtergenerator.h"

#include <QString>

namespace heft {

class Database;

// The cycles of the collection with their numbers, ascending. Entries
// without a cycle ("- - -", NULL) are no cycle and are not listed.
CycleList ReadCycleList(Database& db);

// Capitals; a number typed instead of a numeral becomes the numeral (12 is
// XII), nothing becomes "- - -". False when the text must be refused: it
// then holds what the user is to see.
bool NormaliseCycleText(QString& text);

// Where value stands in the list for the comparison (2 KLEINER, 3 GRÖßER):
// the first row whose number is not below value, or -1. A list of one row
// answers 0 or -1 for whether that row qualifies.
int FindCyclePosition(const CycleList& cycles, int value, int compare);

// The comparison operator and the right side, "='I' OR h.Zyklus='II'", or
// "=" and "'-0'" (no cycle has it) when none qualifies. GRÖßER skips the
// row found, so a value no cycle has also loses the next higher cycle;
// filters saved by users count on this.
struct CycleRange {
    QString op;
    QString right;
};
CycleRange CyclesBeyond(const CycleList& cycles, int value, bool smaller);

} // namespace heft
