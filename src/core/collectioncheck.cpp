#include "collectioncheck.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

struct Rule {
    QString sql;  // counts the rows that break the rule
    QString text; // what is wrong, with %1 for the count
};

QList<Rule> Rules(const QList<int>& numericEnums)
{
    QList<Rule> rules;
    for (const char16_t* table : {u"Details", u"Gestaltung", u"Status", u"Links"})
        rules.append({u"SELECT COUNT(*) FROM %1 WHERE Nr NOT IN (SELECT Nr FROM HEFTLIST);"_s.arg(table),
                      u"%1: %2 Zeile(n) ohne Eintrag in HEFTLIST"_s.arg(table)});
    for (const char16_t* table : {u"Details", u"Gestaltung"})
        rules.append({u"SELECT COUNT(*) FROM (SELECT Nr FROM %1 GROUP BY Nr HAVING COUNT(*) > 1);"_s.arg(table),
                      u"%1: %2 Eintrag/Einträge mit mehr als einer Zeile"_s.arg(table)});
    rules.append({u"SELECT COUNT(*) FROM (SELECT Nr FROM Status GROUP BY Nr, ENum HAVING COUNT(*) > 1);"_s,
                  u"Status: %1 Attribut(e) mehrfach bei einem Eintrag"_s});
    rules.append({u"SELECT COUNT(*) FROM HEFTLIST WHERE GL NOT IN (-1, 0) OR GL IS NULL;"_s,
                  u"HEFTLIST: %1 Zeile(n) mit GL weder -1 noch 0"_s});
    rules.append({u"SELECT COUNT(*) FROM Gestaltung WHERE RZ NOT IN (-1, 0);"_s,
                  u"Gestaltung: %1 Zeile(n) mit RZ weder -1 noch 0"_s});
    QStringList numbers;
    for (int enumber : numericEnums)
        numbers << QString::number(enumber);
    if (!numbers.isEmpty())
        rules.append({u"SELECT COUNT(*) FROM Status WHERE ENum IN (%1) AND StatusWert <> '' AND "
                      "length(StatusWert) <> 7;"_s.arg(numbers.join(u", "_s)),
                      u"Status: %1 Zahlenwert(e) nicht auf sieben Stellen mit Nullen aufgefüllt"_s});
    return rules;
}

} // namespace

QStringList CheckCollection(Database& db, const QList<int>& numericEnums)
{
    QStringList faults;
    for (const QString& fault : db.IntegrityFaults(false))
        faults << u"Dateistruktur: "_s + fault;
    for (const Rule& rule : Rules(numericEnums)) {
        DbError error;
        const qint64 count = db.SelectValue(rule.sql, &error).toLongLong();
        if (error)
            faults << rule.text.arg(u"?"_s) + u" (nicht prüfbar: "_s + error.description + u')';
        else if (count > 0)
            faults << rule.text.arg(count);
    }
    return faults;
}

} // namespace heft
