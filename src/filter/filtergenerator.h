#pragma once
// Turns up to three criteria rows into the WHERE text of the filter, the
// sentence that tells the filter to the user, and the whole statement. The
// generator is plain logic: the dialog, the command line and the benchmark
// hand it the rows as values.

#include <QDate>
#include <QList>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace heft {

class Session;

// One row as the dialog's editors give it.
struct FilterCriterion {
    int field = 0;        // list index of the field list
    int compare = 0;      // list index of the comparison words
    QString text;         // the text box
    QString listText;     // the value list's text
    int listIndex = 0;    // the value list's index
    int listCount = 0;    // the value list's entry count
    int auflageIndex = 0; // printing list: 0 "Keine", n "-n-"
    int yesNoIndex = 0;   // 0 "Ja", 1 "Nein"
    QDate date;
    int join = 0;         // 0 Keine, 1 UND, 2 ODER, 3 EXOR
};

struct FilterOutcome {
    // A cycle value was refused: nothing else is valid; the dialog beeps and
    // puts the focus on that row's text box.
    bool rejected = false;
    int rejectedRow = -1;
    // The text box of each row after the generator rewrote it (stars added,
    // capped at 99999, capitals, roman numerals, "- - -").
    QList<QString> shownTexts;
    QString where; // ends with a blank
    QString text;  // the sentence
    QString sql;   // the whole statement
};

// The sorted cycle list: roman value and the text as stored.
using CycleList = std::vector<std::pair<int, QString>>;

class FilterGenerator {
public:
    // Lives as long as the dialog: the cycle list is read once, on the
    // first KLEINER/GRÖßER on a cycle.
    explicit FilterGenerator(Session& session);

    // Only the enabled rows, in order.
    FilterOutcome Generate(const QList<FilterCriterion>& rows);

private:
    const CycleList& Cycles();

    Session& m_session;
    std::optional<CycleList> m_cycles;
};

} // namespace heft
