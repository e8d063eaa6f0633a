#include "detailsave.h"

#include "erstdatum.h"

#include "core/changeunit.h"
#include "core/session.h"
#include "core/sqlwriters.h"
#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

QString Text(const QString& value) { return QuoteSql(Trim(value)); }

// The number goes in first in every statement: a text placed before it
// could hold "%1" of its own, which the next arg() would then fill.

SaveStep DetailsStep(const DetailValues& values)
{
    const DetailsRow& row = values.Details;
    QStringList persons;
    QStringList personSets;
    for (int i = 0; i < PersonCount; ++i) {
        const QString person = Text(row.Persons.value(i));
        persons.append(u"'"_s + person + u"'"_s);
        personSets.append(u"Person%1='%2'"_s.arg(i + 1).arg(person));
    }
    const QString date = ShortDate(row.Erstdatum);
    const QString untertitel = Text(row.Untertitel);
    const QString inhalt = Text(row.Inhalt);
    return {u"INSERT INTO Details (Nr, Ersterscheinung, Untertitel, Person1, Person2, Person3, Person4, Person5, "
            "Person6, Person7, Person8, Person9, Inhalt) VALUES (%1, '%2', '%3', %4, '%5');"_s.arg(values.Nr)
                .arg(date, untertitel, persons.join(u", "_s), inhalt),
            u"UPDATE Details SET Ersterscheinung='%2', Untertitel='%3', %4, Inhalt='%5' WHERE Nr=%1;"_s.arg(values.Nr)
                .arg(date, untertitel, personSets.join(u", "_s), inhalt)};
}

SaveStep GestaltungStep(const DetailValues& values)
{
    const GestaltungRow& row = values.Gestaltung;
    const QString tibi = Text(row.TiBiZeichner);
    const QString illu = Text(row.IlluZeichner);
    const QString rz = row.RZ ? u"255"_s : u"0"_s;
    const QString objekt = Text(row.RiZeObjekt);
    const QString zeichner = Text(row.RiZeZeichner);
    // The insert spells the last column RizeZeichner, the update
    // RiZeZeichner; column names are case-blind, so both reach the same one.
    return {u"INSERT INTO Gestaltung (Nr, TiBiZeichner, IlluZeichner, RZ, RiZeObjekt, RizeZeichner) "
            "VALUES (%1, '%2', '%3', %4, '%5', '%6');"_s.arg(values.Nr)
                .arg(tibi, illu, rz, objekt, zeichner),
            u"UPDATE Gestaltung SET TiBiZeichner='%2', IlluZeichner='%3', RZ=%4, RiZeObjekt='%5', "
            "RiZeZeichner='%6' WHERE Nr=%1;"_s.arg(values.Nr)
                .arg(tibi, illu, rz, objekt, zeichner)};
}

} // namespace

QList<SaveStep> DetailSaveSteps(const DetailValues& values)
{
    const int nr = values.Nr;
    QList<SaveStep> steps{DetailsStep(values), GestaltungStep(values)};
    // Attributes and links have no key of their own: all rows of the entry
    // go and are written anew. Every attribute gets its row, empty or not.
    steps.append({u"DELETE FROM Status WHERE Nr=%1"_s.arg(nr), {}});
    for (int enumber = 1; enumber <= StatusCount; ++enumber)
        steps.append({u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (%1, %2, '%3');"_s.arg(nr).arg(enumber).arg(
                          QuoteSql(values.Status.value(enumber - 1))),
                      {}});
    steps.append({u"DELETE FROM Links WHERE Nr=%1"_s.arg(nr), {}});
    int position = 0;
    for (const LinkValue& link : values.Links)
        steps.append({u"INSERT INTO Links (Nr, ENum, LinkNum, LinkText, LinkSerie) VALUES (%1, %2, %3, '%4', '%5');"_s
                          .arg(nr)
                          .arg(++position)
                          .arg(link.Number)
                          .arg(QuoteSql(link.Text), QuoteSql(link.Series)),
                      {}});
    return steps;
}

void SaveDetails(Session& session, const DetailValues& values)
{
    ChangeUnit unit(session);
    for (const SaveStep& step : DetailSaveSteps(values)) {
        session.CurrentSql = step.Sql;
        if (ExecuteSql(session) != ExecuteDone && !step.OnError.isEmpty()) {
            session.CurrentSql = step.OnError;
            ExecuteSql(session);
        }
    }
    StampLastChange(session, values.Nr);
}

} // namespace heft
