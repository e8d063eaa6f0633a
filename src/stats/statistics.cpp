#include "statistics.h"

#include "reportbuilders.h"

#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

const QStringList& StatisticNames()
{
    static const QStringList names = {u"Gesamt"_s,         u"Zyklen"_s, u"Autoren"_s,    u"Autor/Zyklen"_s,
                                      u"Zyklus/Autoren"_s, u"Report"_s, u"Preis/Wert"_s, u"Verleihwesen"_s};
    return names;
}

const QStringList& PriceValueChoices()
{
    static const QStringList choices = {u"Preise Verlauf"_s, u"Werte Verlauf"_s, u"Wert vs Preis"_s};
    return choices;
}

ChoiceControls ChoiceControlsOf(Statistic statistic)
{
    switch (statistic) {
    case Statistic::AutorZyklen: return {true, true, false, false};
    case Statistic::ZyklusAutoren: return {true, false, true, false};
    case Statistic::PreisWert: return {true, false, false, true};
    default: return {false, true, false, false};
    }
}

StatsResult BuildStatistic(Session& session, const StatsLists& lists, Statistic statistic,
                           const StatsChoice& choice, const StatsFeedback& feedback)
{
    const ReportContext context{session, lists, choice, feedback};
    switch (statistic) {
    case Statistic::Gesamt: return BuildGesamt(context);
    case Statistic::Zyklen: return BuildZyklen(context);
    case Statistic::Autoren: return BuildAutoren(context);
    case Statistic::AutorZyklen: return BuildAutorZyklen(context);
    case Statistic::ZyklusAutoren: return BuildZyklusAutoren(context);
    case Statistic::Report: return BuildReport(context);
    case Statistic::PreisWert: return BuildPreisWert(context);
    case Statistic::Verleihwesen: return BuildVerleihwesen(context);
    }
    return {};
}

void ReportContext::Start(int steps, const QString& status) const
{
    if (feedback.start)
        feedback.start(steps);
    Status(status);
}

void ReportContext::Status(const QString& text) const
{
    if (feedback.status)
        feedback.status(text);
}

void ReportContext::Progress(int value) const
{
    if (feedback.progress)
        feedback.progress(value);
}

QString ReportContext::FirstLineLabel() const { return u"Anzahl der %1 in Liste"_s.arg(L()); }

void ReportContext::AddFirstLine(ReportLines& lines, ShareCounter& shares) const
{
    shares.FormatCount(lists.listCount, lists.highestNr);
    lines.Add(FirstLineLabel(), shares.Tail());
}

QString CycleCondition(const QString& cycleText)
{
    if (cycleText == UnknownCycleText)
        return u"Zyklus=NULL"_s;
    return u"Zyklus='%1'"_s.arg(QuoteSql(cycleText));
}

} // namespace heft
