#pragma once
// The cycle editor's rules apart from its window: what it proposes for a new
// cycle, which keys its boxes take, the checks before writing, and the
// statements it writes.

#include "cyclelist.h"

namespace heft {

// The boxes of the editor, in the order of the record's fields.
enum class CycleBox { None, Zyklus, NrVon, NrBis, ZeitVon, ZeitBis, Bezeichnung, Zyklusbereich };

// The next cycle after the last grid row: its key follows from its position
// (lastNr + 1 as a roman numeral), its numbers start behind the last range
// and span fifty entries, and it takes over the last cycle's end year, title
// and big cycle as proposals to overwrite.
CycleRow ProposeNextCycle(int lastNr, const CycleRow& last);

// Whether a typed character may go into the box. Keys that type nothing
// (Backspace, the arrows) always pass; the key box takes none at all.
bool CycleBoxAcceptsKey(CycleBox box, const QString& typed);

// The checks of the accept button, in their order. A missing title becomes
// "*** Keine ***" and the checks go on; any other fault puts its correction
// into the record and names the box that must take the focus. None when the
// record may be written.
CycleBox CheckCycleInput(CycleRow& input);

// The numbers go in as typed; titles and keys are quoted.
QString InsertCycleSql(const CycleRow& row);
QString UpdateCycleSql(const CycleRow& row);

} // namespace heft
