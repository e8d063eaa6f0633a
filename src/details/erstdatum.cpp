#include "erstdatum.h"

#include "core/jetfunctions.h"
#include "core/session.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace heft {

QDate MarkerDate() { return {1900, 12, 31}; }

QDate LatestErstdatum() { return {2199, 12, 31}; }

QDate ErstdatumFromText(const QString& text)
{
    // The import writes more forms than the picker does; DateValue reads
    // them all, as day numbers counted the way the database counts them.
    const std::optional<qint64> day = JetDateValue(text.trimmed());
    if (!day)
        return MarkerDate();
    const QDate date = QDate(1899, 12, 30).addDays(*day);
    return date < MarkerDate() || date > LatestErstdatum() ? MarkerDate() : date;
}

QString ShortDate(const QDate& date) { return date.toString(u"dd.MM.yyyy"_s); }

QString LongDate(const QDate& date)
{
    return QLocale(QLocale::German, QLocale::Germany).toString(date, u"dddd, d. MMMM yyyy"_s);
}

QDate SuggestedErstdatum(Session& session, int nr, const QDate& today)
{
    const QVariant previous =
        session.CollectionDb->SelectValue(u"SELECT Ersterscheinung FROM Details WHERE Nr=%1;"_s.arg(nr - 1));
    const QDate date = ErstdatumFromText(previous.toString());
    return date > MarkerDate() ? date.addDays(7) : today;
}

} // namespace heft
