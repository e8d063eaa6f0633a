#pragma once
// The small text routines the whole program shares, with the semantics of the
// BASIC runtime the data formats were designed around (1-based positions,
// Val's leading-number rule, "@"/"!" masks).

#include <QString>

namespace heft {

// Doubles every apostrophe, for SQL string literals.
QString QuoteSql(const QString& text);
// Each CR and each LF becomes one blank.
QString StripLineBreaks(const QString& text);
// The number at the start of the text (after leading blanks, tabs and line
// feeds), stopping at the first character that can't belong to it; 0 if none.
// Understands a sign, digits (blanks inside are skipped), one point, an
// exponent, and the prefixes &H and &O.
double Val(const QString& text);
// Left/Right: the first/last n characters (all of them if n is larger).
QString Left(const QString& text, qsizetype n);
QString Right(const QString& text, qsizetype n);
// Mid with a 1-based start; length < 0 means "to the end".
QString Mid(const QString& text, qsizetype start, qsizetype length = -1);
// 1-based position of what in text, searched from start; 0 if not found.
qsizetype InStr(const QString& text, const QString& what, qsizetype start = 1);
// Drops leading and trailing blanks (spaces only, as the runtime does).
QString Trim(const QString& text);
// Applies a character mask: each "@" is one place, filled from the right;
// a leading "!" fills from the left. Longer values are cut.
QString FormatMask(const QString& value, const QString& mask);
// Whole-number division and remainder as the runtime does them (both
// operands rounded to whole numbers first, results truncated toward zero).
qint64 IntDiv(double a, double b);
qint64 Mod(double a, double b);
// The number divided by 100, remainder dropped.
int HundredsOf(int number);
// True when the text reads as a number for the runtime (IsNumeric).
bool IsNumeric(const QString& text);

template <typename T> T MaxOf(const T& a, const T& b) { return a > b ? a : b; }
template <typename T> T MinOf(const T& a, const T& b) { return a < b ? a : b; }

} // namespace heft
