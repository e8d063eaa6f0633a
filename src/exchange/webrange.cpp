#include "webrange.h"

#include "core/textfuncs.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace heft {

WebRangeTexts InitialWebRange(int lastNr)
{
    const int next = lastNr + 1;
    // The tenth goes through the system's number format and back through
    // Val, which stops at the decimal comma: that cuts the fraction.
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const QString tenth = locale.toString(next / 10.0, 'f', QLocale::FloatingPointShortest);
    const auto end = static_cast<qint64>(Val(tenth) * 10 + 9);
    return {QString::number(next), QString::number(end)};
}

void CheckRangeStart(WebRangeTexts& range)
{
    if (Val(range.end) < Val(range.start))
        range.start = range.end;
    if (Val(range.start) < FirstWikiIssue)
        range.start = QString::number(FirstWikiIssue);
}

void CheckRangeEnd(WebRangeTexts& range)
{
    if (Val(range.start) > Val(range.end))
        range.end = range.start;
}

QString NormalisedNumber(const QString& text) { return QString::number(static_cast<qint64>(Val(text))); }

} // namespace heft
