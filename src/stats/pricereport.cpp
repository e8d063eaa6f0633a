// "Preis/Wert": what the collection cost and what it is worth, from the
// price (ENum 5) and value (ENum 6) attributes.

#include "reportbuilders.h"

#include "core/session.h"
#include "core/textfuncs.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The amounts above 0 of one attribute, in order of the entry number. A
// comma is read as the decimal point: a value typed the German way means
// the same amount.
QList<QPair<int, double>> ReadAmounts(Session& session, int enumber)
{
    QList<QPair<int, double>> amounts;
    Query query = StatsQuery(session, u"SELECT StatusWert, Nr FROM Status WHERE ENum=%1 ORDER BY Nr;"_s.arg(enumber));
    while (query.Next()) {
        const double amount = Val(query.Text(0).replace(u',', u'.'));
        if (amount > 0)
            amounts.append({static_cast<int>(query.Int(1)), amount});
    }
    return amounts;
}

struct AmountWords {
    QString count;   // "Anzahl der {L} mit Preisinfo"
    QString maximum; // "Maximaler Preis der {L}"
    QString minimum;
    QString sum;
    QString average;
};

void AddAmountLines(ReportLines& lines, const QList<QPair<int, double>>& amounts, const AmountWords& words)
{
    if (amounts.isEmpty()) {
        lines.Add(words.count, u": Keine"_s);
        return;
    }
    QPair<int, double> highest = amounts.first(), lowest = amounts.first();
    double sum = 0;
    for (const auto& amount : amounts) {
        if (amount.second > highest.second)
            highest = amount;
        if (amount.second < lowest.second)
            lowest = amount;
        sum += amount.second;
    }
    const double average = std::round(sum / double(amounts.size()) * 100) / 100;
    lines.Add(words.count, u": "_s + RightAligned(amounts.size(), 7));
    lines.Add(words.maximum, u": "_s + AmountText(highest.second) + u" [#%1]"_s.arg(highest.first));
    lines.Add(words.minimum, u": "_s + AmountText(lowest.second) + u" [#%1]"_s.arg(lowest.first));
    lines.Add(words.sum, u": "_s + AmountText(sum));
    lines.Add(words.average, u": "_s + AmountText(average));
}

QList<ChartRow> AmountRows(const QList<QPair<int, double>>& amounts, const QString& series)
{
    QList<ChartRow> rows;
    rows.reserve(amounts.size());
    for (const auto& amount : amounts)
        rows.append({QString::number(amount.first), amount.second, series});
    return rows;
}

} // namespace

StatsResult BuildPreisWert(const ReportContext& context)
{
    context.Start(2, u"Erzeuge Preis/Wert Statistik ..."_s);
    ReportLines lines;
    ShareCounter shares;
    context.AddFirstLine(lines, shares);
    StatsResult result;
    result.priceValues.prices = ReadAmounts(context.session, 5);
    context.Progress(1);
    result.priceValues.values = ReadAmounts(context.session, 6);
    context.Progress(2);
    const QString& L = context.L();
    AddAmountLines(lines, result.priceValues.prices,
                   {u"Anzahl der %1 mit Preisinfo"_s.arg(L), u"Maximaler Preis der %1"_s.arg(L),
                    u"Minimaler Preis der %1"_s.arg(L), u"Summe der Preise der %1"_s.arg(L),
                    u"Durchschnitts Preis der %1"_s.arg(L)});
    AddAmountLines(lines, result.priceValues.values,
                   {u"Anzahl der %1 mit Wertinfo"_s.arg(L), u"Maximaler Wert der %1"_s.arg(L),
                    u"Minimaler Wert der %1"_s.arg(L), u"Summe der Werte der %1"_s.arg(L),
                    u"Durchschnitts Wert der %1"_s.arg(L)});
    result.text = lines.Text(true);

    // The values are what a collector looks at first, once there are any.
    result.priceValueChoice = context.choice.priceValue >= 0 ? context.choice.priceValue
                              : result.priceValues.values.isEmpty() ? PricesAlong
                                                                    : ValuesAlong;
    context.Status(u"Zeichne Preis/Wert Plot ..."_s);
    result.chart = PriceValueChart(result.priceValues, result.priceValueChoice);
    return result;
}

ChartData PriceValueChart(const PriceValueRows& rows, int choice)
{
    if (rows.prices.size() < 2 && rows.values.size() < 2)
        return TooFewDataChart();
    const ChartSeries price{u"Preis"_s, QColor(10, 10, 174)};
    const ChartSeries value{u"Wert"_s, QColor(10, 134, 10)};
    ChartData chart;
    chart.kind = ChartKind::Lines;
    switch (choice) {
    case PricesAlong:
        chart.series = {price};
        chart.rows = AmountRows(rows.prices, price.name);
        break;
    case ValuesAlong:
        chart.series = {value};
        chart.rows = AmountRows(rows.values, value.name);
        break;
    default: {
        // The entries with both, the price beside the value.
        QHash<int, double> priceOf;
        for (const auto& amount : rows.prices)
            priceOf.insert(amount.first, amount.second);
        QList<QPair<int, double>> pricesWithValue, valuesWithPrice;
        for (const auto& amount : rows.values) {
            if (!priceOf.contains(amount.first))
                continue;
            pricesWithValue.append({amount.first, priceOf.value(amount.first)});
            valuesWithPrice.append(amount);
        }
        if (valuesWithPrice.isEmpty())
            return TooFewDataChart();
        chart.series = {{price.name, QColor(10, 10, 174)}, {value.name, QColor(164, 10, 10)}};
        chart.rows = AmountRows(pricesWithValue, price.name) + AmountRows(valuesWithPrice, value.name);
        break;
    }
    }
    chart.valueLabels = chart.rows.size() / chart.series.size() <= ChartData::MaxLabelledRows;
    return chart;
}

} // namespace heft
