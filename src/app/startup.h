#pragma once
// The start of a run up to the main window: data folder, log, collection,
// configuration, schema, the list snapshot and the cycle file.

#include "core/session.h"

#include <QString>

namespace heft {

struct StartOptions {
    QString userBase;        // raw per-user base folder
    QString allUsersSource;  // all-users copy of the shipped files
    QString appPath;         // the program's own folder
    QString commandLine;     // the database name given, if any
};

// "V{major}.{minor}.{patch}, {date}/{time} {system}/{major}/{minor}-{build}"
QString StartLine();

// Runs the start in its order. Returns false when the program must end; the
// failure has then been logged and told through session.prompter.
bool StartSession(Session& session, const StartOptions& options);

// Logs and tells that a table of the collection could not be opened.
void ReportDatabaseOpenFailure(Session& session, const QString& name, const DbError& error);

} // namespace heft
