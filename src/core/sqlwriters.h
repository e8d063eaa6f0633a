#pragma once
// The routines that write the collection: each builds its statement text in
// session.CurrentSql and runs it, so that an error entry in the log always
// shows the statement that was last run.

#include "database.h"

#include <QString>

namespace heft {

class Session;

// ExecuteSql's own results besides 0 and the engine's error numbers.
enum ExecuteResult : int {
    ExecuteDone = 0,
    ExecuteSameRecord = 1,     // the insert of a plain edit met its own row
    ExecuteOverwriteAgreed = 3022,
    ExecuteDeclined = 4711,    // the user did not want the existing entry overwritten
};

// Opens the collection file exclusively into session.CollectionDb.
DbError OpenCollectionDatabase(Session& session, const QString& path);

void BuildSelectEntrySql(Session& session, int nr);
void BuildDeleteEntrySql(Session& session, int nr);
void BuildInsertEntrySql(Session& session);
void BuildUpdateEntrySql(Session& session);

int InsertEntry(Session& session);
int UpdateEntry(Session& session);
int DeleteEntry(Session& session, int nr);
int DeleteDetails(Session& session, int nr);
void DeleteDependents(Session& session, int nr);
int DeleteEntryCascade(Session& session, int nr);
int MoveDetails(Session& session, int oldNr, int newNr);
void MoveDependents(Session& session, int oldNr, int newNr);
// An entry renumbered to a free number, after the insert of its new row:
// the old row goes, stray details under the new number give way (they must
// not block the move), and everything that hung on the old number moves.
void MoveEntryRows(Session& session, int oldNr, int newNr);
// Rewrites attribute 1, "Letzte Änderung", with the present moment.
void StampLastChange(Session& session, int nr);
// The stamp text of a moment: "{yyyy-mm-dd} um {hh:mm:ss}".
QString LastChangeStamp(const class QDateTime& moment);
// MIN and MAX of Nr over HEFTLIST with the given tail (a WHERE clause or ";").
void GetNrRange(Session& session, const QString& tail, int& lowest, int& highest);

// Runs CurrentSql on the collection. Talks to the user (overwrite question,
// empty-field message) unless a batch window is active; see the .cpp.
int ExecuteSql(Session& session);
// ExecuteSql with the statement given: it becomes CurrentSql first.
int ExecuteSql(Session& session, const QString& sql);
// Runs CurrentSql and returns the error number; shows and logs nothing.
int ExecuteSqlQuiet(Session& session);
// The same on the cycle file; an absent cycle file is an error too.
int ExecuteCycleSql(Session& session);
void CloseDatabases(Session& session);

// The field name of a zero-length-string description, with its closing
// apostrophe: "Field 'HEFTLIST.Autor' cannot ..." gives "Autor'".
QString FieldOfZeroLengthError(const QString& description);

} // namespace heft
