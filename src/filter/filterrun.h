#pragma once
// Runs a filter statement into the filter list of the main window.

#include <QString>

namespace heft {

class EntryList;
class Session;

// Opens sql on the shared recordset and fills list.Filter from it, which
// becomes the active grid. Returns the number of entries found; on 0 or a
// failed statement (-1) the active grid, the sort and the selection panel
// are left as they were.
int RunFilterStatement(Session& session, EntryList& list, const QString& sql);

} // namespace heft
