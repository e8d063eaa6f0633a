// "Gesamt", "Zyklen" and "Autoren": the list counted by printing, by cycle
// and by author.

#include "reportbuilders.h"

#include "core/session.h"
#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

StatsResult BuildGesamt(const ReportContext& context)
{
    const StatsLists& lists = context.lists;
    context.Start(5, u"Erzeuge Gesamt Statistik ..."_s);
    ReportLines lines;
    ShareCounter shares;
    // The first line keeps its count only: the share against the highest
    // number says nothing next to the shares below.
    shares.FormatCount(lists.listCount, lists.highestNr);
    lines.Add(context.FirstLineLabel(), u':' + RightAligned(shares.countText, 5) + u' ');

    const int have = CountDBEntries(context.session, u"AUFLAGE"_s, u"<>0"_s);
    const int read = CountDBEntries(context.session, u"GL"_s, u"<>0"_s);
    context.Progress(1);
    shares.FormatCount(lists.listCount - have, lists.listCount);
    lines.Add(context.L() + u" fehlend"_s, shares.Tail());
    lines.Add(context.L() + u" vorhanden"_s, u':' + RightAligned(have, 5) + u" ["_s +
                                                  RightAligned(PercentText(1 - shares.share), 6) + u']');
    context.Progress(2);

    QList<ChartRow> rows = {{u"Gesamt"_s, double(lists.listCount), {}},
                            {u"Fehlend"_s, double(lists.listCount - have), {}},
                            {u"Vorhanden"_s, double(have), {}}};
    shares.StartList();
    for (qsizetype i = 0; i < lists.printings.size(); ++i) {
        const int printing = lists.printings[i];
        if (printing <= 0)
            continue;
        const int count = CountDBEntries(context.session, u"AUFLAGE"_s, u"=%1"_s.arg(printing));
        shares.FormatCount(count, have);
        if (i == lists.printings.size() - 1)
            shares.LastShareFix();
        lines.Add(u"- davon %1. Auflage"_s.arg(printing), shares.Tail());
        rows.append({u"%1. Auflage"_s.arg(printing), double(count), {}});
    }
    context.Progress(3);

    shares.FormatCount(read, lists.listCount);
    lines.Add(context.L() + u" gelesen"_s, shares.Tail());
    shares.FormatCount(lists.printings.size() - 1, lists.maxAuflage);
    lines.Add(u"Anzahl der Auflagen"_s, u':' + RightAligned(shares.countText, 5) +
                                             u" [ von %1]"_s.arg(lists.maxAuflage));
    context.Progress(4);
    shares.FormatCount(lists.cycles.size() - 1, 1);
    lines.Add(u"Anzahl der Zyklen"_s, u':' + RightAligned(shares.countText, 5));
    shares.FormatCount(lists.authors.size(), 1);
    lines.Add(u"Anzahl der Autoren"_s, u':' + RightAligned(shares.countText, 5));
    context.Progress(5);

    StatsResult result{lines.Text(false), CountChart(u"Anzahl"_s, QColor(200, 0, 0), rows), {}, -1};
    result.chart.valueLabels = true;
    result.chart.whiteLabels = true;
    return result;
}

StatsResult BuildZyklen(const ReportContext& context)
{
    const StatsLists& lists = context.lists;
    context.Start(static_cast<int>(lists.cycles.size()) + 1, u"Erzeuge Zyklus Statistik ..."_s);
    ReportLines lines;
    ShareCounter shares;
    context.AddFirstLine(lines, shares);
    lines.AddPlain({});
    shares.StartList();
    QList<ChartRow> rows;
    for (qsizetype i = 0; i < lists.cycles.size(); ++i) {
        const QString& text = lists.cycles[i].text;
        // The unknown cycle is asked for with "=NULL", which is never true:
        // its entries are not counted.
        const int count = text == UnknownCycleText
                              ? CountDBEntries(context.session, u"ZYKLUS"_s, u"=NULL;"_s)
                              : CountDBEntries(context.session, u"ZYKLUS"_s, u"='%1'"_s.arg(QuoteSql(text)));
        shares.FormatCount(count, lists.listCount);
        if (i == lists.cycles.size() - 1)
            shares.LastShareFix();
        lines.Add(u"- davon Zyklus "_s + LeftAligned(text, 10), shares.Tail());
        rows.append({text, double(count), {}});
        context.Progress(static_cast<int>(i) + 1);
    }
    return {lines.Text(false), CountChart(u"Anzahl"_s, QColor(0, 0, 200), rows), {}, -1};
}

StatsResult BuildAutoren(const ReportContext& context)
{
    const StatsLists& lists = context.lists;
    context.Start(static_cast<int>(lists.authors.size()) + 1, u"Erzeuge Autoren Statistik ..."_s);
    ReportLines lines;
    ShareCounter shares;
    context.AddFirstLine(lines, shares);
    lines.AddPlain({});
    shares.StartList();
    QList<ChartRow> rows;
    for (qsizetype i = 0; i < lists.authors.size(); ++i) {
        const QString& name = lists.authors[i];
        const int count = CountDBEntries(context.session, u"AUTOR"_s, u"='%1'"_s.arg(QuoteSql(name)));
        shares.FormatCount(count, lists.listCount);
        if (i == lists.authors.size() - 1)
            shares.LastShareFix();
        lines.Add(u"- davon "_s + LeftAligned(name, 26) + u" ("_s + lists.authorInitials[i] + u')', shares.Tail());
        rows.append({lists.authorInitials[i], double(count), {}});
        context.Progress(static_cast<int>(i) + 1);
    }
    return {lines.Text(false), CountChart(u"Anzahl"_s, QColor(0, 120, 0), rows), {}, -1};
}

} // namespace heft
