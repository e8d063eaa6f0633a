#include "roman.h"

#include <QLatin1String>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Value of one roman digit, either case; 0 for any other character.
int DigitValue(QChar c)
{
    switch (c.toUpper().unicode()) {
    case u'M': return 1000;
    case u'D': return 500;
    case u'C': return 100;
    case u'L': return 50;
    case u'X': return 10;
    case u'V': return 5;
    case u'I': return 1;
    default: return 0;
    }
}

struct RomanStep {
    int value;
    QLatin1String letters;
};

constexpr RomanStep Steps[] = {
    {1000, "M"_L1}, {900, "CM"_L1}, {500, "D"_L1}, {400, "CD"_L1}, {100, "C"_L1},
    {90, "XC"_L1},  {50, "L"_L1},   {40, "XL"_L1}, {10, "X"_L1},   {9, "IX"_L1},
    {5, "V"_L1},    {4, "IV"_L1},   {1, "I"_L1},
};

} // namespace

bool IsRomanDigit(const QString& text)
{
    return text.size() == 1 && DigitValue(text[0]) != 0;
}

bool IsRomanText(const QString& text)
{
    for (const QChar c : text) {
        if (DigitValue(c) == 0)
            return false;
    }
    return true;
}

QString RomanDigitValue(const QString& text)
{
    return IsRomanDigit(text) ? QString::number(DigitValue(text[0])) : QString();
}

// A subtractive step leaves the previous value where it was, so a digit
// smaller than two following ones is subtracted twice: IXC reads as 107.
// Reading stops at the first character that is no roman digit.
int RomanToNumber(const QString& text)
{
    int total = 0;
    int previous = 1000;
    for (const QChar c : text) {
        const int value = DigitValue(c);
        if (value == 0)
            break;
        if (previous < value) {
            total += value - 2 * previous;
        } else {
            total += value;
            previous = value;
        }
    }
    return total;
}

QString NumberToRoman(int& number)
{
    QString roman;
    for (const RomanStep& step : Steps) {
        while (number >= step.value) {
            roman += step.letters;
            number -= step.value;
        }
    }
    return roman;
}

QString NumberToRoman(int&& number)
{
    return NumberToRoman(number);
}

bool IsRomanKey(int keyCode)
{
    return keyCode > 0 && keyCode < 128 && "CDILMVXcdilmvx"_L1.contains(QChar(keyCode));
}

} // namespace heft
