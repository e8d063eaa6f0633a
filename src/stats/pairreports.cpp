// "Autor/Zyklen" and "Zyklus/Autoren": one author across the cycles, one
// cycle across the authors.

#include "reportbuilders.h"

#include "core/session.h"
#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

StatsResult BuildAutorZyklen(const ReportContext& context)
{
    const StatsLists& lists = context.lists;
    const QString& author = context.choice.author;
    const QString authorCondition = u"Autor='%1'"_s.arg(QuoteSql(author));
    context.Start(static_cast<int>(lists.cycles.size()) + 1, u"Erzeuge Autor vs Zyklen Statistik ..."_s);
    ReportLines lines;
    ShareCounter shares;
    context.AddFirstLine(lines, shares);

    const int total = CountDBEntries(context.session, authorCondition, {});
    lines.Add(u"%1 von %2"_s.arg(context.L(), author), u':' + RightAligned(total, 5));
    const qint64 first = StatsValue(context.session, u"SELECT MIN(Nr) FROM HEFTLIST WHERE "_s + authorCondition + u';');
    const qint64 last = StatsValue(context.session, u"SELECT MAX(Nr) FROM HEFTLIST WHERE "_s + authorCondition + u';');
    lines.Add(u"Erster Roman mit Nummer"_s, u':' + RightAligned(first, 5));
    lines.Add(u"Letzter Roman mit Nummer"_s, u':' + RightAligned(last, 5));
    // How densely the author's numbers lie between his first and his last.
    const double density = total > 0 && last >= first ? double(total) / double(last - first + 1) : 0;
    lines.Add(u"Romandichte im Nummernbereich"_s, u':' + RightAligned(PercentText(density), 8));

    QList<ChartRow> rows;
    for (qsizetype i = 0; i < lists.cycles.size(); ++i) {
        const QString& text = lists.cycles[i].text;
        const int count = CountDBEntries(context.session, authorCondition + u" AND "_s + CycleCondition(text), {});
        context.Progress(static_cast<int>(i) + 1);
        if (count <= 0)
            continue;
        // The share is the author's part of the cycle, not of his work.
        shares.FormatCount(count, CountDBEntries(context.session, CycleCondition(text), {}));
        lines.Add(u"- davon im Zyklus "_s + LeftAligned(text, 9), shares.Tail());
        rows.append({text, double(count), {}});
    }
    return {lines.Text(false), CountChart(u"Anzahl"_s, QColor(0, 100, 160), rows), {}, -1};
}

StatsResult BuildZyklusAutoren(const ReportContext& context)
{
    const StatsLists& lists = context.lists;
    const QString& cycle = context.choice.cycle;
    const QString cycleCondition = CycleCondition(cycle);
    context.Start(static_cast<int>(lists.authors.size()) + 1, u"Erzeuge Zyklus vs Autoren Statistik ..."_s);
    ReportLines lines;
    ShareCounter shares;
    context.AddFirstLine(lines, shares);

    const int total = CountDBEntries(context.session, cycleCondition, {});
    lines.Add(u"%1 im Zyklus "_s.arg(context.L()) + LeftAligned(cycle, 9), u':' + RightAligned(total, 5));
    QList<int> counts;
    for (qsizetype i = 0; i < lists.authors.size(); ++i) {
        counts << CountDBEntries(context.session,
                                 cycleCondition + u" AND Autor='%1'"_s.arg(QuoteSql(lists.authors[i])), {});
        context.Progress(static_cast<int>(i) + 1);
    }
    // Only the authors of the cycle get a row; the last of them takes what
    // is left of 100 %.
    qsizetype lastRow = counts.size() - 1;
    while (lastRow >= 0 && counts[lastRow] <= 0)
        --lastRow;
    shares.StartList();
    QList<ChartRow> rows;
    for (qsizetype i = 0; i < counts.size(); ++i) {
        if (counts[i] <= 0)
            continue;
        shares.FormatCount(counts[i], total);
        if (i == lastRow)
            shares.LastShareFix();
        lines.Add(u"- davon "_s + LeftAligned(lists.authors[i], 26) + u" ("_s + lists.authorInitials[i] + u')',
                  shares.Tail());
        rows.append({lists.authorInitials[i], double(counts[i]), {}});
    }
    return {lines.Text(false), CountChart(u"Anzahl"_s, QColor(0, 130, 100), rows), {}, -1};
}

} // namespace heft
