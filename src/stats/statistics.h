#pragma once
// The eight statistics of the collection: each turns the whole of HEFTLIST
// and Status (a running filter has no effect) into a report text and the
// rows of its chart.

#include "chartdata.h"
#include "statslists.h"

#include <QDate>
#include <QList>
#include <QStringList>

#include <functional>

namespace heft {

class Session;

enum class Statistic { Gesamt, Zyklen, Autoren, AutorZyklen, ZyklusAutoren, Report, PreisWert, Verleihwesen };
inline constexpr int StatisticCount = 8;

// The names of cmb_stat, in the order of Statistic.
const QStringList& StatisticNames();
// The charts of "Preis/Wert", the entries of cmb_preiswert.
const QStringList& PriceValueChoices();
enum PriceValueChoice : int { PricesAlong = 0, ValuesAlong = 1, ValueAgainstPrice = 2 };

// Which of the choice controls a statistic shows, and whether the frame
// around them is on.
struct ChoiceControls {
    bool enabled = false;
    bool authors = false;
    bool cycles = false;
    bool priceValue = false;
};
ChoiceControls ChoiceControlsOf(Statistic statistic);

struct StatsChoice {
    QString author;      // for "Autor/Zyklen"
    QString cycle;       // for "Zyklus/Autoren"
    int priceValue = -1; // a PriceValueChoice; -1: the values when there are any, else the prices
    QDate today = QDate::currentDate();
};

// Status texts and progress while a statistic counts; each may be empty.
struct StatsFeedback {
    std::function<void(int steps)> start;
    std::function<void(int value)> progress;
    std::function<void(const QString& text)> status;
};

// Prices (ENum 5) and values (ENum 6) above 0, by entry number.
struct PriceValueRows {
    QList<QPair<int, double>> prices;
    QList<QPair<int, double>> values;
};

struct StatsResult {
    QString text;
    ChartData chart;
    PriceValueRows priceValues; // "Preis/Wert" only
    int priceValueChoice = -1;  // the chart drawn by "Preis/Wert"
};

StatsResult BuildStatistic(Session& session, const StatsLists& lists, Statistic statistic,
                           const StatsChoice& choice, const StatsFeedback& feedback = {});

// The chart of "Preis/Wert" for a choice of cmb_preiswert.
ChartData PriceValueChart(const PriceValueRows& rows, int choice);

} // namespace heft
