#pragma once
// The builders behind BuildStatistic, one per statistic, and what they share.

#include "reporttext.h"
#include "statistics.h"

namespace heft {

struct ReportContext {
    Session& session;
    const StatsLists& lists;
    const StatsChoice& choice;
    const StatsFeedback& feedback;

    const QString& L() const { return lists.listName; }
    void Start(int steps, const QString& status) const;
    void Status(const QString& text) const;
    void Progress(int value) const;
    // "Anzahl der {L} in Liste": the list's entries against the highest number.
    void AddFirstLine(ReportLines& lines, ShareCounter& shares) const;
    QString FirstLineLabel() const;
};

StatsResult BuildGesamt(const ReportContext& context);
StatsResult BuildZyklen(const ReportContext& context);
StatsResult BuildAutoren(const ReportContext& context);
StatsResult BuildAutorZyklen(const ReportContext& context);
StatsResult BuildZyklusAutoren(const ReportContext& context);
StatsResult BuildReport(const ReportContext& context);
StatsResult BuildPreisWert(const ReportContext& context);
StatsResult BuildVerleihwesen(const ReportContext& context);

// The condition that picks a cycle's entries: "Zyklus='XL'", or
// "Zyklus=NULL" for the unknown cycle, which finds nothing.
QString CycleCondition(const QString& cycleText);

} // namespace heft
