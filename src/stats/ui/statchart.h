#pragma once
// The statistics chart. Everything that knows the chart library is behind
// these two functions, so that another library replaces one file.

class QWidget;

namespace heft {

struct ChartData;

// A chart view with the fixed look of the statistics (colours, label
// layout), named chart_stat.
QWidget* CreateChartView(QWidget* parent);
// Replaces what the view shows with the rows of `data`.
void DrawChart(QWidget* chartView, const ChartData& data);

} // namespace heft
