#pragma once
// What the user is told when the collection file itself fails (full disk,
// damage, a vanished folder): in German, with the file's name, and in the
// log with the engine's own words.

#include "database.h"

namespace heft {

class Session;

// One German sentence on what is wrong with the file; empty for errors of
// a statement rather than of the file.
QString FileProblemText(const DbError& error);

// Logs the error and tells the user that the change did not reach the file
// and that the file stays as it was.
void ReportLostChange(Session& session, const Database& db, const DbError& error);

} // namespace heft
