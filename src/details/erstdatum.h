#pragma once
// The first appearance of an entry (Details.Ersterscheinung): the date that
// stands for "unknown", the two forms a date is shown in, and the date
// offered for an entry that has none yet.

#include <QDate>
#include <QString>

namespace heft {

class Session;

// 31.12.1900 means "no date known"; it is also the earliest date the picker
// offers, so an unknown date is the picker's lower bound.
QDate MarkerDate();
// The latest date the picker offers.
QDate LatestErstdatum();

// The stored text as a date; an empty or unreadable text is the marker.
QDate ErstdatumFromText(const QString& text);
// The form the date is stored in: "01.03.2009".
QString ShortDate(const QDate& date);
// The form it is read in when it can't be picked: "Sonntag, 1. März 2009".
QString LongDate(const QDate& date);

// The issues of the series appear weekly: the previous entry's date + 7 days
// is the likely date of entry nr. Without a known previous date, today.
QDate SuggestedErstdatum(Session& session, int nr, const QDate& today);

} // namespace heft
