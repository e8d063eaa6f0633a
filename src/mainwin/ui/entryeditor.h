#pragma once
// Adding and changing one list entry through frm_edit; the writing itself is
// WriteEntry's.

class QComboBox;

namespace heft {

class MainWindow;
class Session;

// Shows frm_edit for the current row of the active list and writes what the
// user took. The caller sets session.EditMode (change or new) and
// session.EditRetry (re-opened after a declined overwrite).
void EditEntry(MainWindow& window);

// Writes session.Entry as the dialog left it (session.EditAccepted set) and
// brings both lists up to date; a declined overwrite opens the dialog again.
void SaveEntry(MainWindow& window);

// The number a new entry is offered: the first gap behind the entry of the
// current row, at most 99999.
int NextFreeNr(MainWindow& window);

// The known authors, trimmed, as the choices of the author box.
void FillAuthorList(Session& session, QComboBox& authors);

} // namespace heft
