#include "detailrecord.h"

#include "erstdatum.h"

#include "core/session.h"
#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The first column of every row, trimmed; empty values are left out.
QStringList TrimmedValues(Session& session, const QString& sql)
{
    QStringList values;
    Query query = session.CollectionDb->Select(sql);
    while (query.Next()) {
        const QString value = Trim(query.Text(0));
        if (!value.isEmpty())
            values.append(value);
    }
    return values;
}

QString TextOf(const Query& query, const QString& column) { return query.Text(query.ColumnIndex(column)); }

} // namespace

std::optional<DetailsRow> ReadDetailsRow(Session& session, int nr)
{
    Query query = session.CollectionDb->Select(u"SELECT * FROM Details WHERE Nr=%1;"_s.arg(nr));
    if (!query.Next())
        return std::nullopt;
    DetailsRow row;
    row.Erstdatum = ErstdatumFromText(TextOf(query, u"Ersterscheinung"_s));
    row.Untertitel = TextOf(query, u"Untertitel"_s);
    for (int person = 1; person <= PersonCount; ++person)
        row.Persons.append(TextOf(query, u"Person%1"_s.arg(person)));
    row.Inhalt = TextOf(query, u"Inhalt"_s);
    return row;
}

std::optional<GestaltungRow> ReadGestaltungRow(Session& session, int nr)
{
    Query query = session.CollectionDb->Select(u"SELECT * FROM Gestaltung WHERE Nr=%1;"_s.arg(nr));
    if (!query.Next())
        return std::nullopt;
    return GestaltungRow{TextOf(query, u"TiBiZeichner"_s), TextOf(query, u"IlluZeichner"_s),
                         query.Int(query.ColumnIndex(u"RZ"_s)) != 0, TextOf(query, u"RiZeObjekt"_s),
                         TextOf(query, u"RiZeZeichner"_s)};
}

QStringList PersonNames(Session& session)
{
    QStringList selects;
    for (int person = 1; person <= PersonCount; ++person)
        selects.append(u"SELECT DISTINCT Person%1 FROM Details"_s.arg(person));
    return TrimmedValues(session, selects.join(u" UNION "_s) + u" ORDER BY Person1;"_s);
}

QStringList ArtistNames(Session& session, const QString& column)
{
    return TrimmedValues(session, u"SELECT DISTINCT %1 FROM Gestaltung ORDER BY %1;"_s.arg(column));
}

std::optional<QString> ReadLastChange(Session& session, int nr)
{
    Query query = session.CollectionDb->Select(u"SELECT StatusWert FROM Status WHERE Nr=%1 AND ENum=1;"_s.arg(nr));
    if (!query.Next())
        return std::nullopt;
    const QString stamp = query.Text(0);
    if (query.Next())
        return std::nullopt;
    return stamp;
}

QMap<int, QString> ReadStatusValues(Session& session, int nr)
{
    QMap<int, QString> values;
    // Read errors leave the values read so far; an unknown ENum is skipped.
    Query records = session.CollectionDb->Select(u"SELECT * FROM Status WHERE Nr=%1 ORDER BY ENum;"_s.arg(nr));
    const int enumColumn = records.ColumnIndex(u"ENum"_s);
    const int valueColumn = records.ColumnIndex(u"StatusWert"_s);
    while (records.Next()) {
        const auto enumber = static_cast<int>(records.Int(enumColumn));
        if (enumber >= 1 && enumber <= StatusCount)
            values.insert(enumber, records.Text(valueColumn));
    }
    return values;
}

QList<LinkValue> ReadLinks(Session& session, int nr)
{
    QList<LinkValue> links;
    Query records = session.CollectionDb->Select(u"SELECT * FROM Links WHERE Nr=%1 ORDER BY ENum;"_s.arg(nr));
    const int numberColumn = records.ColumnIndex(u"LinkNum"_s);
    const int textColumn = records.ColumnIndex(u"LinkText"_s);
    const int seriesColumn = records.ColumnIndex(u"LinkSerie"_s);
    while (records.Next())
        links.append({static_cast<int>(records.Int(numberColumn)), records.Text(textColumn), records.Text(seriesColumn)});
    return links;
}

} // namespace heft
