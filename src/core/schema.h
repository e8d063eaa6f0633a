#pragma once
// The tables of a collection file. A new file gets the four base tables
// written here and then the upgrade statements, exactly as an old file is
// brought up to date at every start.

#include "database.h"

#include <QStringList>

namespace heft {

class Session;

// The attributes an entry can carry: ENum 1 to StatusCount of Status.
constexpr int StatusCount = 19;
// Authors are kept to this many characters wherever they come in: the
// editor, the exchange files and the web import.
constexpr int AuthorLength = 25;

// The statements run by UpgradeSchema, in their order.
const QStringList& UpgradeStatements();
// Runs the upgrade statements one after another through ExecuteSqlQuiet;
// a table or index that exists already is the normal case and is ignored.
void UpgradeSchema(Session& session);

// Makes a new collection file with all tables, one KONFIGURATION row and the
// Parameter rows with their defaults. Returns nullptr with *error on failure.
std::unique_ptr<Database> CreateCollectionFile(const QString& path, const QString& seriesName,
                                               const QString& listKind, DbError* error);

// Makes a new cycle file with its empty table ZyklusListe.
std::unique_ptr<Database> CreateCycleFile(const QString& path, DbError* error);

} // namespace heft
