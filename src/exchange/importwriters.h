#pragma once
// How the file import writes one record of each kind. Every statement goes
// through the shared runners (ExecuteSql, ExecuteCycleSql), which keep quiet
// under the import window's caption, so a refused record is only counted.
// Each writer returns 0 when the record was taken, else a non-zero number.

#include "datformat.h"

namespace heft {

class EntryList;
class Session;

// The entries of cmb_whatlist, by index.
enum class ImportMode : int {
    Insert = 0,       // "Nein, keine (INS)": new entries only
    AllColumns = 1,   // "Alle Spalten (UPD)": every column replaced
    OnlyImported = 2, // "Nur Importierte (UPD)": only the columns the file fills
};

// Writes HEFTLIST. A taken record gets a new row at the end of the active
// list, filled from the collection; in the update modes the result is that
// of finding and refilling the entry's own row, so an entry the list does
// not show counts as refused even though the statement ran.
int WriteListRecord(Session& session, EntryList& list, const ListRecord& record, ImportMode mode);

// Writes ZYKLUSLISTE of the cycle file.
int WriteCycleRecord(Session& session, const CycleRecord& record, ImportMode mode);

// Writes Details, Gestaltung, Status and Links. `sum` lives for one file:
// with all columns replaced, an entry whose Details row could simply be
// inserted reports what the record before left in it.
int WriteDetailsRecord(Session& session, const DetailsRecord& record, ImportMode mode, int& sum);

} // namespace heft
