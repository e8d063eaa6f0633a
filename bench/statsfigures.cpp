// The statistics over a large, varied collection: each of the eight reports
// with its chart rows (no drawing), and all eight in a row as the user who
// steps through them waits for them.

#include "benchsupport.h"
#include "collectiongenerator.h"

#include "core/config.h"
#include "core/session.h"
#include "stats/statistics.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int Entries = 30000;

// 60 authors, 300 cycles and 200 lent entries; made once per run.
QString StatsCollection()
{
    static QTemporaryDir folder;
    static const QString path = [] {
        const QString file = folder.filePath(u"stats-30k.mdb"_s);
        if (!heft::GenerateCollection(file, Entries, {60, 300, Entries / 200}))
            qFatal("bench statistics collection not generated");
        return file;
    }();
    return path;
}

// Median time of one statistic, or of all of them when none is named, each
// time from reading the lists on, as the window does when it opens.
double StatsMs(std::optional<heft::Statistic> only)
{
    heft::Session session;
    heft::bench::OpenCollection(session, StatsCollection());
    heft::DbError error;
    heft::ReadConfiguration(session, &error);
    heft::ReadParameters(session);
    qsizetype written = 0;
    const double ms = heft::bench::MedianMs(3, [&] {
        const heft::StatsLists lists = heft::LoadStatsLists(session);
        heft::StatsChoice choice;
        choice.author = lists.authors.value(lists.authors.size() / 2);
        choice.cycle = lists.cycles.value(lists.cycles.size() / 2).text;
        for (int i = 0; i < heft::StatisticCount; ++i) {
            const auto statistic = static_cast<heft::Statistic>(i);
            if (!only || *only == statistic)
                written += heft::BuildStatistic(session, lists, statistic, choice).text.size();
        }
    });
    if (written == 0)
        qFatal("bench statistics wrote no report");
    return ms;
}

} // namespace

HEFT_BENCH_FIGURE(stats_all_30k_ms, [] { return StatsMs(std::nullopt); })
HEFT_BENCH_FIGURE(stats_gesamt_30k_ms, [] { return StatsMs(heft::Statistic::Gesamt); })
HEFT_BENCH_FIGURE(stats_zyklen_30k_ms, [] { return StatsMs(heft::Statistic::Zyklen); })
HEFT_BENCH_FIGURE(stats_autoren_30k_ms, [] { return StatsMs(heft::Statistic::Autoren); })
HEFT_BENCH_FIGURE(stats_autor_zyklen_30k_ms, [] { return StatsMs(heft::Statistic::AutorZyklen); })
HEFT_BENCH_FIGURE(stats_zyklus_autoren_30k_ms, [] { return StatsMs(heft::Statistic::ZyklusAutoren); })
HEFT_BENCH_FIGURE(stats_report_30k_ms, [] { return StatsMs(heft::Statistic::Report); })
HEFT_BENCH_FIGURE(stats_preis_wert_30k_ms, [] { return StatsMs(heft::Statistic::PreisWert); })
HEFT_BENCH_FIGURE(stats_verleihwesen_30k_ms, [] { return StatsMs(heft::Statistic::Verleihwesen); })
