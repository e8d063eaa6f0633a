// "Report": the numbers missing from the list, and the jubilee volumes
// (number 1 and every hundredth) present and missing.

#include "reportbuilders.h"

#include "core/session.h"
#include "core/textfuncs.h"

#include <vector>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Past this length the list of gaps stops growing; the count goes on.
constexpr qsizetype MissingListLimit = 20000;

std::vector<int> ListedNumbers(Session& session)
{
    std::vector<int> numbers;
    Query query = StatsQuery(session, u"SELECT Nr FROM HEFTLIST WHERE Nr>0 ORDER BY Nr;"_s);
    while (query.Next())
        numbers.push_back(static_cast<int>(query.Int(0)));
    return numbers;
}

struct Gaps {
    int missing = 0;
    QString text;
};

// Walks the numbers 1 to the highest and writes every run of gaps as one
// piece, "3-7 " for a run and "12 " for a single gap.
Gaps FindGaps(const ReportContext& context, int highest)
{
    const std::vector<int> numbers = ListedNumbers(context.session);
    WrappedList list(u" "_s);
    Gaps gaps;
    size_t next = 0;
    int runStart = 1, runEnd = 0;
    for (int i = 1; i <= highest; ++i) {
        if (i % 10 == 0)
            context.Progress(i);
        if (next < numbers.size() && numbers[next] == i && i != highest) {
            ++next;
            continue;
        }
        // The highest number is in the list, but passes here too, so that
        // the last run is written; it is taken off the count below.
        if (list.TextLength() < MissingListLimit) {
            if (i > runEnd + 1 || i == highest) {
                if (runEnd > 0)
                    list.Append(runStart == runEnd ? u"%1 "_s.arg(runEnd) : u"%1-%2 "_s.arg(runStart).arg(runEnd));
                runStart = i;
            }
            runEnd = i;
        }
        ++gaps.missing;
    }
    gaps.missing = MaxOf(gaps.missing - 1, 0);
    gaps.text = list.Finish();
    return gaps;
}

} // namespace

StatsResult BuildReport(const ReportContext& context)
{
    const int highest = context.lists.highestNr;
    context.Start(2 * highest + 1, u"Erzeuge Report (Fehlende)..."_s);
    ReportLines lines;
    ShareCounter shares;
    context.AddFirstLine(lines, shares);

    const Gaps gaps = FindGaps(context, highest);
    shares.FormatCount(gaps.missing, highest);
    lines.Add(u"Fehlende %1 in Liste"_s.arg(context.L()), shares.Tail());
    lines.AddPlain(gaps.text);

    context.Status(u"Erzeuge Report (Jubelbände)..."_s);
    WrappedList presentList, missingList;
    int present = 0, missing = 0;
    for (int n = 1; n <= highest; n = n == 1 ? 100 : n + 100) {
        const qint64 printing = StatsValue(context.session, u"SELECT Auflage FROM HEFTLIST WHERE Nr=%1;"_s.arg(n));
        if (printing > 0) {
            ++present;
            presentList.Append(u"%1;%2 "_s.arg(n).arg(printing));
        } else {
            ++missing;
            missingList.Append(u"%1 "_s.arg(n));
        }
        context.Progress(highest + n);
    }
    shares.FormatCount(present, present + missing);
    lines.Add(u"Jubelbände vorhanden"_s, shares.Tail());
    lines.AddPlain(presentList.Finish());
    lines.Add(u"Jubelbände fehlend"_s,
              u':' + RightAligned(missing, 5) + u" ["_s + RightAligned(PercentText(1 - shares.share), 6) + u']');
    lines.AddPlain(missingList.Finish());

    const QList<ChartRow> rows = {{u"Fehlende %1"_s.arg(context.L()), double(gaps.missing), {}},
                                  {u"Jubelbände vorhanden"_s, double(present), {}},
                                  {u"Jubelbände fehlend"_s, double(missing), {}}};
    StatsResult result{lines.Text(false), CountChart(u"Anzahl"_s, QColor(0, 0, 225), rows), {}, -1};
    result.chart.whiteLabels = true;
    return result;
}

} // namespace heft
