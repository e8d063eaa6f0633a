#pragma once
// What a connection needs to answer like Jet: the German case-blind text
// order under the collation name NOCASE, LIKE with Jet's wildcards, and
// DateValue for the date texts of the collection.

#include <QString>

#include <optional>

struct sqlite3;

namespace heft {

// Registers the collation and the functions; false if ICU has no collator.
bool RegisterJetFunctions(sqlite3* db);

// Jet's LIKE: * any run, ? one character, # one digit, [list], [!list];
// case-blind. % and _ are plain characters.
bool JetLike(QStringView pattern, QStringView text);

// The day number (days since 1899-12-30, as Jet counts) of a date text in
// the forms dd.mm.yyyy, dd.mm.yy, yyyy-mm-dd (a trailing time is ignored)
// and yyyy-{German month name}-dd; nothing for any other text.
std::optional<qint64> JetDateValue(const QString& text);

} // namespace heft
