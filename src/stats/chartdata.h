#pragma once
// What a statistic's chart shows, as plain rows: a drawing library reads
// only this, so the reports and the command line never touch a chart.

#include <QColor>
#include <QList>
#include <QString>

namespace heft {

inline constexpr QStringView TooFewDataText = u"Zu wenig Daten für ein sinnvolles Diagramm vorhanden";

struct ChartRow {
    QString label;
    double value = 0;
    QString series;
};

struct ChartSeries {
    QString name;
    QColor colour;
};

enum class ChartKind { Bars, Lines };

struct ChartData {
    ChartKind kind = ChartKind::Bars;
    QList<ChartSeries> series; // the series of the rows, in drawing order
    QList<ChartRow> rows;      // in the order of the categories
    bool valueLabels = false;  // each point tells its value
    bool whiteLabels = false;  // the value labels are white on the bars
    bool tooFewData = false;   // the one message row instead of data

    // Labels stay readable on up to this many rows.
    static constexpr int MaxLabelledRows = 28;
    // Above this many rows the category scale is hidden.
    static constexpr int MaxScaledRows = 64;
};

// One series of bars; value labels on while the rows stay few.
ChartData CountChart(const QString& series, const QColor& colour, QList<ChartRow> rows);
// The single row that says there is too little to draw.
ChartData TooFewDataChart();

} // namespace heft
