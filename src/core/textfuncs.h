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
// Understands a sign, digits (blanks, tabs and line feeds inside are
// skipped), one point (never a comma), an exponent with E or D, and the
// prefixes &H and &O (up to &HFFFF a signed 16-bit value, so &HFFFF is -1).
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
// Applies a character mask: each "@" is one place, filled from the right
// (blanks before the value); a leading "!" fills from the left (blanks after
// it). Other mask characters stand as they are. A value longer than the
// places is cut to its first characters, whichever way the mask fills.
QString FormatMask(const QString& value, const QString& mask);
// Whole-number division and remainder as the runtime does them (both
// operands rounded half to even first, results truncated toward zero, the
// remainder taking the sign of a). A divisor of 0 gives 0.
qint64 IntDiv(double a, double b);
qint64 Mod(double a, double b);
// The number divided by 100, remainder dropped; 0 for numbers below 100.
int HundredsOf(int number);
// True when the text, trimmed, is nothing but a number as Val reads it, without
// blanks inside; a comma may stand for the point, since the German number
// format reads "3,5" as a number too. The empty text is no number.
bool IsNumeric(const QString& text);

template <typename T> T MaxOf(const T& a, const T& b) { return a > b ? a : b; }
template <typename T> T MinOf(const T& a, const T& b) { return a < b ? a : b; }

} // namespace heft
