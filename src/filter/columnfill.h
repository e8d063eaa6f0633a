#pragma once
// The column fill: one value written into one attribute of every entry of
// the filter list, from its last row to its first. The targets the grids
// show (Auflage, Zyklus, Gelesen, Bemerkung) change in both grids as well;
// the others go to Gestaltung and Status only. Every entry handled gets a
// new change stamp.

#include <QString>
#include <QStringList>

#include <functional>
#include <span>

namespace heft {

class Database;
class EntryList;
class Session;

// The caption of frm_insertfill. ExecuteSql keeps quiet under it, and the
// fill relies on that: a failing insert into Gestaltung is the way into the
// update, and a failing statement must not stop the walk.
QString ColumnFillCaption();

// Which value input a target takes.
enum class FillEditor {
    Aufl,  // cmb_aufl: "Keine", "-1-", ...; the list index is the printing
    Gel,   // cmb_gel: "Ja", "Nein"
    Text,  // txt_1, typed with a key filter and a length limit
    Univf, // cmb_univf: free text with the values already used
};

struct FillTarget {
    QString label;   // in cmb_choose; for Gestaltung also the column name
    FillEditor editor;
    int maxLength;   // characters txt_1 takes; 0 for the other inputs
    int gridColumn;  // the column both grids show it in, or -1
    int enumber;     // the Status attribute, 0 for HEFTLIST and Gestaltung
};

// The nineteen targets in the order of cmb_choose.
std::span<const FillTarget> FillTargets();
const FillTarget& FillTargetAt(int target);

// Whether a key typing `typed` may go into txt_1 for the target. Keys that
// type no character always pass.
bool FillAcceptsKey(int target, const QString& typed);

// The query whose values cmb_univf offers for the target.
QString FillSuggestionSql(int target);
// Those values trimmed, without the empty ones.
QStringList FillSuggestions(Database& db, int target);

// A typed cycle turned into what is written: a roman numeral, or "- - -".
// A text that had to become "- - -" is not accepted yet; handed in again
// as "- - -" it is.
struct CycleInput {
    QString text;
    bool accepted;
};
CycleInput NormalizeCycleInput(const QString& typed);

// The text typed for a numeric attribute as it is stored before padding: a
// number with a decimal point, or empty when the text is no number.
QString NumericFillText(int enumber, const QString& typed);

// What the user chose: the target and, by its editor, the list index of
// cmb_aufl or cmb_gel or the text of txt_1 or cmb_univf. A cycle must have
// been accepted by NormalizeCycleInput, a number rewritten by
// NumericFillText.
struct FillRequest {
    int target = 0;
    int listIndex = 0;
    QString text;
};

// How the walk reports: every tenth row the progress value, and after each
// row the question whether to stop (the window lets its events run there).
struct FillFeedback {
    std::function<void(int value)> progress;
    std::function<bool()> stopRequested;
};

// Fills the target over the rows of list.Filter, the active grid, from the
// last to the first, and returns how many entries were handled. Both grids
// are walked in number order; the filter list gets its sort back at the
// end, and the full list is noted to get its own back when the filter ends.
int FillColumn(Session& session, EntryList& list, const FillRequest& request, const FillFeedback& feedback);
// The same for entries given by number, with no list to keep up to date.
int FillEntries(Session& session, const FillRequest& request, const QList<int>& numbers);

} // namespace heft
