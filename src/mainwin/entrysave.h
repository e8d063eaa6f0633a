#pragma once
// Writing the edited entry into the collection and the lists. Every save
// begins with an INSERT, and the database's answer (duplicate key or not,
// and what the user said to overwriting) decides whether the save was a new
// entry, a plain change, a renumbering or an overwrite.

namespace heft {

class EntryList;
class Session;

enum class EntrySaveOutcome {
    Saved,
    // The user kept the entry the number belongs to; the edit goes on.
    OverwriteDeclined,
    // The database refused; nothing changed in the lists.
    Failed,
};

// Writes session.Entry (session.EditMode: change or new, session.OldNr: the
// number the edit began on) and brings the active list up to date, and the
// full list too when the filter list is active.
EntrySaveOutcome WriteEntry(Session& session, EntryList& list);

} // namespace heft
