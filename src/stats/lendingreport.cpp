// "Verleihwesen": how many entries are lent out, the longest and the latest
// lending, and who has how many.

#include "reportbuilders.h"

#include "core/jetfunctions.h"
#include "core/session.h"
#include "core/textfuncs.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

const QDate DayZero(1899, 12, 30);

// The lending date of a StatusWert: its last eleven characters, when they
// read as a date.
std::optional<QDate> LendingDate(const QString& stored)
{
    if (const auto days = JetDateValue(Trim(Right(stored, 11))))
        return DayZero.addDays(*days);
    return std::nullopt;
}

struct Lending {
    int nr = 0;
    QDate date;
};

QString LendingRest(const Lending& lending, const QDate& today)
{
    if (lending.nr == 0)
        return u": Keine"_s;
    return u": "_s + RightAligned(lending.nr, 5) +
           u" [%1/%2T]"_s.arg(lending.date.toString(u"dd-MM-yy"_s)).arg(lending.date.daysTo(today));
}

} // namespace

StatsResult BuildVerleihwesen(const ReportContext& context)
{
    Session& session = context.session;
    context.Start(3, u"Erzeuge Verleihwesen Statistik ..."_s);
    ReportLines lines;
    ShareCounter shares;
    context.AddFirstLine(lines, shares);

    // One pass over the lending dates answers both the oldest and newest
    // lending and, for every borrower row below, whether its entry is lent.
    Lending oldest{0, QDate(2099, 12, 31)}, newest{0, QDate(100, 1, 1)};
    QHash<int, bool> lentEntries;
    int lent = 0;
    Query dates = StatsQuery(session, u"SELECT Nr, StatusWert FROM Status WHERE ENum=18 ORDER BY Nr;"_s);
    while (dates.Next()) {
        const int nr = static_cast<int>(dates.Int(0));
        const std::optional<QDate> date = LendingDate(dates.Text(1));
        if (!lentEntries.contains(nr))
            lentEntries.insert(nr, date.has_value());
        if (!date)
            continue;
        ++lent;
        if (*date > newest.date)
            newest = {nr, *date};
        if (*date < oldest.date)
            oldest = {nr, *date};
    }
    dates.Close();
    context.Progress(1);

    lines.Add(u"Anzahl der verliehenen %1"_s.arg(context.L()),
              lent > 0 ? u": "_s + RightAligned(lent, 5) : u": Keine"_s);
    lines.Add(u"Am längsten verliehene Ausgabe"_s, LendingRest(oldest, context.choice.today));
    lines.Add(u"Als letztes verliehene Ausgabe"_s, LendingRest(newest, context.choice.today));

    // The borrowers stand below a blank line, one row per borrower and
    // entry: a name lent out on several entries stands once for each of
    // them, each time with all of its entries.
    QList<ChartRow> rows;
    const auto addBorrower = [&](const QString& name, const QString& initials, int count) {
        if (rows.isEmpty())
            lines.AddPlain({});
        lines.Add(u"- an "_s + LeftAligned(name.left(23), 23), u": "_s + RightAligned(count, 5),
                  u" ("_s + initials + u')');
        rows.append({initials, double(count), {}});
    };
    QHash<QString, int> countOf;
    int counted = 0;
    Query names = StatsQuery(session, u"SELECT DISTINCT StatusWert, Nr FROM Status WHERE ENum=17 AND "
                                      "StatusWert<> '' ORDER BY StatusWert;"_s);
    while (names.Next()) {
        const QString name = names.Text(0);
        if (!lentEntries.value(static_cast<int>(names.Int(1))))
            continue;
        if (!countOf.contains(name))
            countOf.insert(name, static_cast<int>(StatsValue(
                                     session, u"SELECT COUNT(*) FROM Status WHERE StatusWert='%1' AND ENum=17;"_s.arg(
                                                  QuoteSql(name)))));
        addBorrower(name, AuthorInitialsOf(name), countOf.value(name));
        counted += countOf.value(name);
    }
    names.Close();
    context.Progress(2);
    // Lent entries without a borrower's name.
    if (counted < lent)
        addBorrower(u"*** Unbekannt ***"_s, u"**"_s, lent - counted);
    context.Progress(3);
    StatsResult result{lines.Text(rows.isEmpty()), {}, {}, -1};
    result.chart = rows.isEmpty() ? TooFewDataChart() : CountChart(u"Anzahl"_s, QColor(90, 90, 240), rows);
    return result;
}

} // namespace heft
