#pragma once
// What every statistic reads before it counts: the collection's authors,
// cycles and printings in use, the size of the list and its highest number.
// Read once when the statistics window opens.

#include "core/database.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace heft {

class Session;

// The text a cycle row gets for an entry without a cycle.
inline constexpr QStringView UnknownCycleText = u"? ? ?";

struct StatsCycle {
    int number = 0; // the roman numeral's value; -1 for the unknown cycle
    QString text;
};

struct StatsLists {
    QString listName; // L, the list kind of the configuration
    int maxAuflage = 0;
    int listCount = 0; // entries in the list
    int highestNr = 0;
    QStringList authors;
    QStringList authorInitials;
    QList<StatsCycle> cycles; // sorted by number
    QList<int> printings;     // rising, Null read as 0
};

// Reads the lists from session.CollectionDb; errors are logged and leave a
// list short.
StatsLists LoadStatsLists(Session& session);

// Two letters for a name: its first character and the one behind its last
// blank, else behind its last "/", else its second character.
QString AuthorInitialsOf(const QString& name);

// "SELECT COUNT(*) FROM HEFTLIST WHERE {field}{condition}": field and
// condition are pasted together, so a whole condition may stand in field.
int CountDBEntries(Session& session, const QString& field, const QString& condition);
// The first value of a statement's first row as a number, 0 when there is
// none; an engine error is logged with the statement.
qint64 StatsValue(Session& session, const QString& sql);
// Opens a SELECT; a failing statement is logged and gives no rows.
Query StatsQuery(Session& session, const QString& sql);

} // namespace heft
