#pragma once
// The nineteen free attributes an entry can carry (rows of Status, keyed by
// Nr and ENum): their labels, how their values are typed, stored and shown.
// Everything that touches Status goes through this one table, so that the
// detail window, the filter, the statistics and the column fill agree on
// what an ENum means.

#include <QDate>
#include <QString>

#include <span>

namespace heft {

constexpr int StatusAttributeCount = 19;
// ENum 1 holds the moment of the last save; the program writes it.
constexpr int LastChangeENum = 1;
// The lending date, kept as yyyy-mm-dd.
constexpr int LendingDateENum = 18;
// A StatusWert holds at most this many characters.
constexpr int StatusValueLength = 128;

enum class StatusKind {
    Stamp,
    Text,
    WholeNumber,   // typed without a fraction
    DecimalNumber, // typed with a decimal point
    Date,
};

enum class StatusEditor {
    None,     // not editable
    TextBox,  // txt_float
    ComboBox, // cmb_float, offering the values already used
};

struct StatusAttribute {
    int enumber;
    QString label;        // in liv_status
    StatusKind kind;
    StatusEditor editor;
    int maxInput;         // characters the text box takes; 0 when the editor doesn't limit typing
    QString fillLabel;    // in the column fill's choice; empty when the attribute can't be filled
};

// All nineteen, in ENum order.
std::span<const StatusAttribute> StatusCatalog();
// The attribute of an ENum from 1 to 19.
const StatusAttribute& StatusAttributeOf(int enumber);
bool IsNumericStatus(int enumber);

// Whether a key with this text may be typed into the text box of the
// attribute. Keys that type no character (Backspace, Enter, the arrows)
// always pass.
bool AcceptsStatusKey(int enumber, const QString& typed);

// The form a value shown in the list is written to StatusWert in (unquoted).
QString StoredStatusValue(int enumber, const QString& shown);
// The form a StatusWert is shown in the list.
QString DisplayStatusValue(int enumber, const QString& stored);

struct StatusCheck {
    bool refused = false;
    QString value; // the normalised value to show; meaningless when refused
};
// Checks and normalises a value typed into the editor of the attribute.
StatusCheck ValidateStatusValue(int enumber, const QString& text, const QDate& today = QDate::currentDate());

} // namespace heft
