#include "statchart.h"

#include "stats/chartdata.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QLegend>
#include <QLineSeries>
#include <QValueAxis>

#include <cmath>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The values of each series in the order of its rows, and the category
// names, taken from the rows of the first series.
struct SeriesValues {
    QStringList categories;
    QList<QList<double>> values; // per series of data.series
};

SeriesValues SplitBySeries(const ChartData& data)
{
    SeriesValues split;
    split.values.resize(data.series.size());
    QHash<QString, int> seen;
    for (const ChartRow& row : data.rows) {
        qsizetype index = 0;
        while (index < data.series.size() && data.series[index].name != row.series)
            ++index;
        if (index == data.series.size())
            continue;
        split.values[index].append(row.value);
        if (index != 0)
            continue;
        // The category axis keeps one category per name; two authors with
        // the same initials get names that differ by an invisible mark.
        const int earlier = seen[row.label]++;
        split.categories.append(row.label + QString(earlier, QChar(0x200B)));
    }
    return split;
}

void SetupChart(QChart& chart)
{
    chart.setTitle({});
    chart.setBackgroundBrush(QColor(240, 240, 0));
    chart.setPlotAreaBackgroundVisible(true);
    chart.setPlotAreaBackgroundBrush(QColor(208, 208, 208));
    chart.setMargins(QMargins(6, 6, 6, 6));
    QLegend* legend = chart.legend();
    legend->setAlignment(Qt::AlignTop);
    legend->setBackgroundVisible(true);
    legend->setBrush(QColor(160, 160, 160));
    legend->setPen(QPen(Qt::black));
}

QBarCategoryAxis* CategoryAxis(const ChartData& data, const QStringList& categories)
{
    auto* axis = new QBarCategoryAxis;
    axis->append(categories);
    if (data.tooFewData)
        return axis;
    // The labels stand upright, so that many short names fit side by side,
    // and are never cut to an ellipsis.
    axis->setLabelsAngle(-90);
    axis->setTruncateLabels(false);
    const qsizetype rows = categories.size();
    if (rows > ChartData::MaxScaledRows) {
        axis->setLabelsVisible(false);
        axis->setGridLineVisible(false);
    } else if (rows > 32) {
        QFont small = axis->labelsFont();
        small.setPointSizeF(small.pointSizeF() * 0.8);
        axis->setLabelsFont(small);
    }
    return axis;
}

QValueAxis* ValueAxis(const ChartData& data)
{
    double highest = 0;
    bool whole = true;
    for (const ChartRow& row : data.rows) {
        highest = std::max(highest, row.value);
        whole = whole && row.value == std::floor(row.value);
    }
    auto* axis = new QValueAxis;
    // Room above the highest bar for its label.
    axis->setRange(0, highest > 0 ? highest * 1.12 : 1);
    axis->applyNiceNumbers();
    axis->setLabelFormat(whole ? u"%.0f"_s : u"%.2f"_s);
    // Counts step by whole numbers, so that no label stands twice.
    if (whole && (axis->max() - axis->min()) / (axis->tickCount() - 1) < 1) {
        axis->setTickType(QValueAxis::TicksDynamic);
        axis->setTickAnchor(0);
        axis->setTickInterval(1);
    }
    return axis;
}

// White labels sit inside the bars; a bar too short to hold its label gets
// them black above it instead, for all bars alike.
bool LabelsFitInside(const ChartData& data)
{
    double highest = 0, lowest = 0;
    for (const ChartRow& row : data.rows) {
        highest = std::max(highest, row.value);
        lowest = row.value > 0 && (lowest == 0 || row.value < lowest) ? row.value : lowest;
    }
    return lowest >= highest * 0.08;
}

QAbstractSeries* BarSeries(const ChartData& data, const SeriesValues& split)
{
    const bool white = data.whiteLabels && LabelsFitInside(data);
    auto* bars = new QBarSeries;
    for (qsizetype i = 0; i < data.series.size(); ++i) {
        auto* set = new QBarSet(data.series[i].name);
        set->append(split.values[i]);
        set->setColor(data.series[i].colour);
        set->setBorderColor(data.series[i].colour.darker(130));
        set->setLabelColor(white ? Qt::white : Qt::black);
        bars->append(set);
    }
    bars->setLabelsVisible(data.valueLabels && !data.tooFewData);
    bars->setLabelsPosition(white ? QAbstractBarSeries::LabelsInsideEnd : QAbstractBarSeries::LabelsOutsideEnd);
    bars->setLabelsFormat(u"@value"_s);
    return bars;
}

QList<QAbstractSeries*> LineSeries(const ChartData& data, const SeriesValues& split)
{
    QList<QAbstractSeries*> lines;
    for (qsizetype i = 0; i < data.series.size(); ++i) {
        auto* line = new QLineSeries;
        line->setName(data.series[i].name);
        QList<QPointF> points;
        points.reserve(split.values[i].size());
        for (qsizetype x = 0; x < split.values[i].size(); ++x)
            points.append(QPointF(double(x), split.values[i][x]));
        line->replace(points);
        line->setPen(QPen(data.series[i].colour, 2));
        line->setPointsVisible(data.valueLabels);
        line->setPointLabelsVisible(data.valueLabels);
        line->setPointLabelsFormat(u"@yPoint"_s);
        line->setPointLabelsClipping(false);
        lines.append(line);
    }
    return lines;
}

} // namespace

QWidget* CreateChartView(QWidget* parent)
{
    auto* view = new QChartView(parent);
    view->setObjectName(u"chart_stat"_s);
    view->setRenderHint(QPainter::Antialiasing);
    view->setMinimumSize(520, 360);
    return view;
}

void DrawChart(QWidget* chartView, const ChartData& data)
{
    auto* view = qobject_cast<QChartView*>(chartView);
    if (view == nullptr)
        return;
    auto* chart = new QChart;
    SetupChart(*chart);
    const ChartData& shown = data.rows.isEmpty() ? TooFewDataChart() : data;
    const SeriesValues split = SplitBySeries(shown);
    QList<QAbstractSeries*> series;
    if (shown.kind == ChartKind::Lines)
        series = LineSeries(shown, split);
    else
        series = {BarSeries(shown, split)};
    QBarCategoryAxis* categories = CategoryAxis(shown, split.categories);
    QValueAxis* values = ValueAxis(shown);
    chart->addAxis(categories, Qt::AlignBottom);
    chart->addAxis(values, Qt::AlignLeft);
    for (QAbstractSeries* one : series) {
        chart->addSeries(one);
        one->attachAxis(categories);
        one->attachAxis(values);
    }
    // One series needs no legend; the space goes to the bars.
    chart->legend()->setVisible(shown.series.size() > 1);
    QChart* previous = view->chart();
    view->setChart(chart);
    delete previous;
}

} // namespace heft
