#include "statslists.h"

#include "core/roman.h"
#include "core/session.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// A statement that fails is logged behind itself; the statistic goes on with
// what it has.
void LogFailure(Session& session, const DbError& error)
{
    if (error)
        session.WriteLog(error.number, u"Statistik: "_s + error.description);
}

void FetchAuthors(Session& session, StatsLists& lists)
{
    Query query = StatsQuery(session, u"SELECT DISTINCT AUTOR FROM HEFTLIST ORDER BY AUTOR;"_s);
    while (query.Next()) {
        // An entry without an author can be neither chosen nor counted by
        // name, so it gets no row of its own.
        if (query.IsNull(0))
            continue;
        lists.authors << query.Text(0);
        lists.authorInitials << AuthorInitialsOf(lists.authors.last());
    }
}

void FetchCycles(Session& session, StatsLists& lists)
{
    Query query = StatsQuery(session, u"SELECT DISTINCT ZYKLUS FROM HEFTLIST ORDER BY ZYKLUS;"_s);
    bool unknownListed = false;
    while (query.Next()) {
        const QString text = query.IsNull(0) ? QString() : query.Text(0);
        if (!text.isEmpty()) {
            lists.cycles.append({RomanToNumber(text), text});
        } else if (!unknownListed) {
            // Null and the empty text both mean "no cycle": one row for both.
            lists.cycles.append({-1, UnknownCycleText.toString()});
            unknownListed = true;
        }
    }
    std::stable_sort(lists.cycles.begin(), lists.cycles.end(),
                     [](const StatsCycle& a, const StatsCycle& b) { return a.number < b.number; });
}

void FetchPrintings(Session& session, StatsLists& lists)
{
    Query query = StatsQuery(session, u"SELECT DISTINCT AUFLAGE FROM HEFTLIST ORDER BY AUFLAGE;"_s);
    while (query.Next()) {
        const int printing = query.IsNull(0) ? 0 : static_cast<int>(query.Int(0));
        if (lists.printings.isEmpty() || lists.printings.last() != printing)
            lists.printings << printing;
    }
}

} // namespace

StatsLists LoadStatsLists(Session& session)
{
    StatsLists lists;
    lists.listName = session.Config.ListKind;
    lists.maxAuflage = session.Config.MaxAuflage;
    lists.listCount = static_cast<int>(StatsValue(session, u"SELECT COUNT(*) FROM HEFTLIST;"_s));
    lists.highestNr = static_cast<int>(StatsValue(session, u"SELECT MAX(Nr) FROM HEFTLIST;"_s));
    FetchAuthors(session, lists);
    FetchCycles(session, lists);
    FetchPrintings(session, lists);
    return lists;
}

QString AuthorInitialsOf(const QString& name)
{
    if (name.isEmpty())
        return {};
    qsizetype behind = name.lastIndexOf(u' ');
    if (behind < 0)
        behind = name.lastIndexOf(u'/');
    if (behind >= 0 && behind + 1 < name.size())
        return name.left(1) + name[behind + 1];
    return name.left(2);
}

int CountDBEntries(Session& session, const QString& field, const QString& condition)
{
    return static_cast<int>(StatsValue(session, u"SELECT COUNT(*) FROM HEFTLIST WHERE "_s + field + condition));
}

Query StatsQuery(Session& session, const QString& sql)
{
    session.CurrentSql = sql;
    DbError error;
    Query query = session.CollectionDb->Select(sql, &error);
    LogFailure(session, error);
    return query;
}

qint64 StatsValue(Session& session, const QString& sql)
{
    session.CurrentSql = sql;
    DbError error;
    const QVariant value = session.CollectionDb->SelectValue(sql, &error);
    LogFailure(session, error);
    return value.toLongLong();
}

} // namespace heft
