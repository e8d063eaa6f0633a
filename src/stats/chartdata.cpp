#include "chartdata.h"

using namespace Qt::StringLiterals;

namespace heft {

ChartData CountChart(const QString& series, const QColor& colour, QList<ChartRow> rows)
{
    ChartData chart;
    chart.series = {{series, colour}};
    for (ChartRow& row : rows)
        row.series = series;
    chart.valueLabels = rows.size() <= ChartData::MaxLabelledRows;
    chart.rows = std::move(rows);
    return chart;
}

ChartData TooFewDataChart()
{
    ChartData chart;
    chart.series = {{u"Anzahl"_s, QColor(0, 0, 0)}};
    chart.rows = {{TooFewDataText.toString(), 0, u"Anzahl"_s}};
    chart.tooFewData = true;
    return chart;
}

} // namespace heft
