#pragma once
// The fields a filter row can test: what the row's field list shows, which
// editor takes the value, which comparison words are offered, and how the
// value becomes a condition. The dialog, the command line and the generator
// all read this one table, so a field is described in one place only.

#include <QString>
#include <QStringList>
#include <QStringView>

#include <array>

namespace heft {

class Database;

enum class FilterEditor { Txt, Univ, Aufl, Gel, Dtp };

// Which keys the text box takes: digits (plus Backspace and Enter), digits
// and the roman letters C D I L M V X, anything, or none (no text box).
enum class FilterKeys { Digits, DigitsRoman, Free, None };

// How the row's value turns into the right side of the condition.
enum class FilterForm {
    Number,       // h.Nr, l.LinkNum: capped at 99999
    Quoted,       // a text in apostrophes, stars added for ÄHNLICH
    QuotedStatus, // the same on a status attribute
    Person,       // the same over d.Person1 .. d.Person9
    Padded,       // a status number, padded to seven digits
    StatusText,   // a status number compared as typed (ISBN)
    ListIndex,    // the printing: list index of the printing list
    YesNo,        // -1 / 0
    DateValue,    // DateValue('dd.MM.yyyy')
    Stamp,        // the change stamp: the day alone counts
    LendingDate,  // the lending date as yyyy-MM-dd
    Cycle,        // roman numerals, KLEINER/GRÖßER over the cycle list
    List,         // a value out of the list (Autor)
    ListGuardG,   // the same on Gestaltung, not-empty guard
    ListGuardL,   // the same on Links, not-empty guard
    ListStatus,   // the same on a status attribute
};

struct FilterField {
    QStringView entry;     // text in the field list; doubles as column name
    FilterEditor editor;
    int compareCount;      // 4, 3 or 1 comparison words
    FilterForm form;
    QStringView left;      // left side in the SQL text
    int eNum;              // status attribute number, 0 for other tables
    FilterKeys keys;
    bool mayStayEmpty;
    QStringView label;     // name of the field in the sentence
};

inline constexpr int FilterFieldCount = 38;
inline constexpr int FilterRowCount = 3;

const std::array<FilterField, FilterFieldCount>& FilterFields();

// "IST", "UNGLEICH", "KLEINER", "GRÖßER" (first compareCount of them for
// fields with four, "IST", "UNGLEICH", "ÄHNLICH" for three, "IST" for one).
QStringList CompareWords(int field);
// "Keine", "UND", "ODER", "EXOR".
QStringList JoinWords();
// "Keine", "-1-", ... "-{maxAuflage}-".
QStringList AuflageEntries(int maxAuflage);
// "Ja", "Nein".
QStringList YesNoEntries();

// The query that fills the value list of a list field; empty for the
// fields without a list.
QString ValueListSql(int field);
// The value list itself: each non-blank value trimmed, in the order of the
// query, then "<LEER>" as the last entry for every field but Autor.
QStringList ValueListEntries(Database& db, int field);

} // namespace heft
