#pragma once
// The check of a whole collection file: SQLite's own check of its
// structure, then the rules the program keeps between its tables.

#include "database.h"

#include <QList>
#include <QStringList>

namespace heft {

// One German line per fault found, none when the file is sound. Rules:
// every row of Details, Gestaltung, Status and Links belongs to an entry of
// HEFTLIST; Details and Gestaltung hold at most one row per entry and
// Status one per attribute; GL and RZ are -1 or 0; the values of the
// numeric attributes (numericEnums) are zero-padded to seven characters.
QStringList CheckCollection(Database& db, const QList<int>& numericEnums);

} // namespace heft
