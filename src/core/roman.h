#pragma once
// Cycle keys are roman numerals. The reader is deliberately forgiving and
// keeps the quirks of the original routine (see the tests).

#include <QString>

namespace heft {

bool IsRomanDigit(const QString& text);
bool IsRomanText(const QString& text);
QString RomanDigitValue(const QString& text);
int RomanToNumber(const QString& text);
// The argument is used up and ends at 0.
QString NumberToRoman(int& number);
QString NumberToRoman(int&& number);
// Key codes of C D I L M V X and c d i l m v x.
bool IsRomanKey(int keyCode);

} // namespace heft
