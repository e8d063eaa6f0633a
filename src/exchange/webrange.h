#pragma once
// The number range of the web import as its two boxes hold it: texts, read
// with Val, kept in order, with the start never below the first issue the
// wiki has pages for.

#include <QString>

namespace heft {

inline constexpr int FirstWikiIssue = 1800;

struct WebRangeTexts {
    QString start;
    QString end;
};

// After the last issue of the list: the next number, up to the end of its
// decade (2400 -> 2401..2409, 2409 -> 2410..2419).
WebRangeTexts InitialWebRange(int lastNr);
// The start was stepped or left: not above the end, not below FirstWikiIssue.
void CheckRangeStart(WebRangeTexts& range);
// The end was stepped or left: not below the start.
void CheckRangeEnd(WebRangeTexts& range);
// A box's text as the number it reads as ("0042x" -> "42").
QString NormalisedNumber(const QString& text);

} // namespace heft
