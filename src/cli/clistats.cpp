#include "clicommands.h"
#include "clistats.h"

#include "core/config.h"
#include "core/session.h"
#include "stats/statistics.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The entry of `valid` that `given` names (case-blind), or a message that
// lists the valid ones.
bool PickFrom(const QStringList& valid, const QString& given, const QString& what, QString& picked,
              QTextStream& err)
{
    for (const QString& entry : valid) {
        if (entry.compare(given, Qt::CaseInsensitive) == 0) {
            picked = entry;
            return true;
        }
    }
    err << u"Unbekannte Angabe für %1: \"%2\". Möglich sind: %3\n"_s.arg(what, given, valid.join(u", "_s));
    return false;
}

QStringList CycleTexts(const StatsLists& lists)
{
    QStringList texts;
    for (const StatsCycle& cycle : lists.cycles)
        texts << cycle.text;
    return texts;
}

} // namespace

int StatsCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err)
{
    QStringList rest = words;
    const bool withRows = rest.removeAll(u"--rows"_s) > 0;
    QString author, cycle, priceValue, name;
    const bool authorGiven = TakeOption(rest, u"--author"_s, author);
    const bool cycleGiven = TakeOption(rest, u"--cycle"_s, cycle);
    const bool priceValueGiven = TakeOption(rest, u"--preiswert"_s, priceValue);
    if (rest.size() != 1 || !PickFrom(StatisticNames(), rest.value(0), u"die Statistik"_s, name, err))
        return 2;
    if (priceValueGiven && !PickFrom({u"0"_s, u"1"_s, u"2"_s}, priceValue, u"--preiswert"_s, priceValue, err))
        return 2;

    DbError error;
    if (!ReadConfiguration(session, &error)) {
        err << u"KONFIGURATION nicht lesbar: "_s << error.description << u'\n';
        return 1;
    }
    ReadParameters(session);
    const StatsLists lists = LoadStatsLists(session);
    StatsChoice choice;
    // Without a choice the window's first one: the last author, the first cycle.
    choice.author = lists.authors.value(lists.authors.size() - 1);
    choice.cycle = lists.cycles.isEmpty() ? QString() : lists.cycles.first().text;
    if (authorGiven && !PickFrom(lists.authors, author, u"--author"_s, choice.author, err))
        return 2;
    if (cycleGiven && !PickFrom(CycleTexts(lists), cycle, u"--cycle"_s, choice.cycle, err))
        return 2;
    if (priceValueGiven)
        choice.priceValue = priceValue.toInt();

    const auto statistic = static_cast<Statistic>(StatisticNames().indexOf(name));
    const StatsResult result = BuildStatistic(session, lists, statistic, choice);
    QString text = result.text;
    text.replace(u"\r\n"_s, u"\n"_s);
    out << text << (text.endsWith(u'\n') ? u""_s : u"\n"_s);
    if (withRows) {
        for (const ChartRow& row : result.chart.rows)
            out << row.series << u'\t' << row.label << u'\t' << QString::number(row.value) << u'\n';
    }
    return 0;
}

} // namespace heft
