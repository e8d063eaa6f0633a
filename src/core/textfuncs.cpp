#include "textfuncs.h"

#include <QByteArray>

#include <cmath>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Val drops blanks, tabs and line feeds wherever they stand in the number.
bool IsValBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n';
}

struct NumberScan {
    double value = 0;
    qsizetype end = 0; // index behind the last character that belongs to the number
    bool hasDigits = false;
};

// Reads the number at the start of text the way the runtime's Val does.
// blanksInside: skip blanks between the characters of the number (Val does,
// IsNumeric doesn't). commaIsPoint: a comma may stand for the decimal point.
class NumberScanner {
public:
    NumberScanner(QStringView text, bool blanksInside, bool commaIsPoint)
        : m_text(text), m_blanksInside(blanksInside), m_commaIsPoint(commaIsPoint)
    {
    }

    NumberScan Scan()
    {
        while (m_pos < m_text.size() && IsValBlank(m_text[m_pos]))
            ++m_pos;
        if (Peek() == u'&')
            return ScanRadix();
        return ScanDecimal();
    }

private:
    QChar Peek() const { return m_pos < m_text.size() ? m_text[m_pos] : QChar(); }

    void Advance()
    {
        ++m_pos;
        while (m_blanksInside && m_pos < m_text.size() && IsValBlank(m_text[m_pos]))
            ++m_pos;
    }

    bool AtDigit() const { return Peek() >= u'0' && Peek() <= u'9'; }

    // Appends the run of decimal digits to digits; true if there was one.
    bool ReadDigits(QByteArray& digits)
    {
        bool any = false;
        for (; AtDigit(); Advance()) {
            digits += static_cast<char>(Peek().unicode());
            any = true;
        }
        return any;
    }

    NumberScan ScanDecimal()
    {
        NumberScan scan;
        QByteArray number;
        if (Peek() == u'-' || Peek() == u'+') {
            number += static_cast<char>(Peek().unicode());
            Advance();
        }
        scan.hasDigits = ReadDigits(number);
        if (Peek() == u'.' || (m_commaIsPoint && Peek() == u',')) {
            number += '.';
            Advance();
            scan.hasDigits = ReadDigits(number) || scan.hasDigits;
        }
        if (!scan.hasDigits)
            return scan;
        scan.end = m_pos;
        ReadExponent(number, scan);
        scan.value = number.toDouble();
        return scan;
    }

    // "E" or "D", an optional sign and at least one digit; without the digit
    // the letter is not part of the number.
    void ReadExponent(QByteArray& number, NumberScan& scan)
    {
        const QChar letter = Peek().toUpper();
        if (letter != u'E' && letter != u'D')
            return;
        QByteArray exponent("e");
        Advance();
        if (Peek() == u'-' || Peek() == u'+') {
            exponent += static_cast<char>(Peek().unicode());
            Advance();
        }
        if (ReadDigits(exponent)) {
            number += exponent;
            scan.end = m_pos;
        }
    }

    // &H and &O: up to four digits' worth of value is a 16-bit integer, more
    // a 32-bit one, both signed, so &HFFFF is -1 as in the runtime.
    NumberScan ScanRadix()
    {
        NumberScan scan;
        Advance();
        const QChar letter = Peek().toUpper();
        const int radix = letter == u'H' ? 16 : letter == u'O' ? 8 : 0;
        if (radix == 0)
            return scan;
        Advance();
        quint32 value = 0;
        int digit = 0;
        while ((digit = DigitValue(Peek())) >= 0 && digit < radix) {
            value = value * static_cast<quint32>(radix) + static_cast<quint32>(digit);
            scan.hasDigits = true;
            Advance();
            scan.end = m_pos;
        }
        scan.value = value <= 0xFFFF ? static_cast<qint16>(value) : static_cast<qint32>(value);
        return scan;
    }

    static int DigitValue(QChar c)
    {
        const char16_t u = c.toUpper().unicode();
        if (u >= u'0' && u <= u'9')
            return u - u'0';
        if (u >= u'A' && u <= u'F')
            return u - u'A' + 10;
        return -1;
    }

    QStringView m_text;
    bool m_blanksInside;
    bool m_commaIsPoint;
    qsizetype m_pos = 0;
};

} // namespace

QString QuoteSql(const QString& text)
{
    QString quoted = text;
    return quoted.replace(u'\'', "''"_L1);
}

QString StripLineBreaks(const QString& text)
{
    QString stripped = text;
    return stripped.replace(u'\r', u' ').replace(u'\n', u' ');
}

double Val(const QString& text)
{
    return NumberScanner(text, true, false).Scan().value;
}

QString Left(const QString& text, qsizetype n)
{
    return text.left(qMax<qsizetype>(n, 0));
}

QString Right(const QString& text, qsizetype n)
{
    return text.right(qMax<qsizetype>(n, 0));
}

QString Mid(const QString& text, qsizetype start, qsizetype length)
{
    const qsizetype from = qMax<qsizetype>(start, 1) - 1;
    if (from >= text.size())
        return QString();
    return length < 0 ? text.mid(from) : text.mid(from, length);
}

qsizetype InStr(const QString& text, const QString& what, qsizetype start)
{
    const qsizetype from = qMax<qsizetype>(start, 1);
    if (from > text.size())
        return 0;
    return text.indexOf(what, from - 1) + 1;
}

QString Trim(const QString& text)
{
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && text[begin] == u' ')
        ++begin;
    while (end > begin && text[end - 1] == u' ')
        --end;
    return text.mid(begin, end - begin);
}

QString FormatMask(const QString& value, const QString& mask)
{
    const bool fromLeft = mask.startsWith(u'!');
    const QStringView places = fromLeft ? QStringView(mask).mid(1) : QStringView(mask);
    const qsizetype count = places.count(u'@');
    const QString cut = value.left(count);
    const QString filled = fromLeft ? cut.leftJustified(count) : cut.rightJustified(count);

    QString result;
    result.reserve(places.size());
    qsizetype next = 0;
    for (const QChar c : places)
        result += c == u'@' ? filled[next++] : c;
    return result;
}

// std::llrint rounds half to even, as the runtime does when it turns a
// fraction into a whole number.
qint64 IntDiv(double a, double b)
{
    const qint64 divisor = std::llrint(b);
    return divisor == 0 ? 0 : std::llrint(a) / divisor;
}

qint64 Mod(double a, double b)
{
    const qint64 divisor = std::llrint(b);
    return divisor == 0 ? 0 : std::llrint(a) % divisor;
}

int HundredsOf(int number)
{
    return number > 0 ? number / 100 : 0;
}

bool IsNumeric(const QString& text)
{
    const QString trimmed = Trim(text);
    const NumberScan scan = NumberScanner(trimmed, false, true).Scan();
    return scan.hasDigits && scan.end == trimmed.size();
}

} // namespace heft
