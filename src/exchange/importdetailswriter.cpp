#include "importwriters.h"

#include "core/session.h"
#include "core/sqlwriters.h"
#include "core/textfuncs.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

QString Quoted(const QString& value) { return u'\'' + value + u'\''; }

// The values of one record as they go into the statements: texts with their
// apostrophes doubled, subtitle and content on one line, the date as
// yyyy-mm-dd where it reads as one.
struct DetailsValues {
    explicit DetailsValues(const DetailsRecord& r)
        : nr(r.Nr), date(QuoteSql(FormatDatDate(r.Ersterscheinung))),
          untertitel(QuoteSql(StripLineBreaks(r.Untertitel))), inhalt(QuoteSql(StripLineBreaks(r.Inhalt))),
          tibi(QuoteSql(r.TiBiZeichner)), illu(QuoteSql(r.IlluZeichner)), rz(r.Rz ? u"255"_s : u"0"_s),
          objekt(QuoteSql(r.RiZeObjekt)), zeichner(QuoteSql(r.RiZeZeichner))
    {
        for (size_t i = 0; i < persons.size(); ++i)
            persons[i] = QuoteSql(r.Persons[i]);
    }
    QString nr, date, untertitel, inhalt, tibi, illu, rz, objekt, zeichner;
    std::array<QString, 9> persons;
};

QString PersonColumn(size_t i) { return u"Person"_s + QString::number(i + 1); }

QString InsertDetailsSql(const DetailsValues& v)
{
    QStringList columns{u"Nr"_s, u"Ersterscheinung"_s, u"Untertitel"_s};
    QStringList values{v.nr, Quoted(v.date), Quoted(v.untertitel)};
    for (size_t i = 0; i < v.persons.size(); ++i) {
        columns << PersonColumn(i);
        values << Quoted(v.persons[i]);
    }
    columns << u"Inhalt"_s;
    values << Quoted(v.inhalt);
    return u"INSERT INTO Details ("_s + columns.join(u", "_s) + u") VALUES ("_s + values.join(u", "_s) + u");"_s;
}

QString UpdateDetailsSql(const DetailsValues& v)
{
    QString set = u"Nr="_s + v.nr + u", Ersterscheinung="_s + Quoted(v.date) + u", Untertitel="_s +
                  Quoted(v.untertitel);
    for (size_t i = 0; i < v.persons.size(); ++i)
        set += u", "_s + PersonColumn(i) + u'=' + Quoted(v.persons[i]);
    set += u", Inhalt="_s + Quoted(v.inhalt);
    return u"UPDATE Details SET "_s + set + u" WHERE Nr="_s + v.nr + u';';
}

QString InsertGestaltungSql(const DetailsValues& v)
{
    return u"INSERT INTO Gestaltung (Nr, TiBiZeichner, IlluZeichner, RZ, RiZeObjekt, RiZeZeichner) VALUES ("_s +
           v.nr + u", "_s + Quoted(v.tibi) + u", "_s + Quoted(v.illu) + u", "_s + v.rz + u", "_s +
           Quoted(v.objekt) + u", "_s + Quoted(v.zeichner) + u");"_s;
}

QString InsertStatusSql(const QString& nr, int enumber, const QString& value)
{
    return u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES ("_s + nr + u", "_s + QString::number(enumber) +
           u", "_s + Quoted(QuoteSql(value)) + u");"_s;
}

QString InsertLinkSql(const QString& nr, int enumber, const DatLink& link)
{
    return u"INSERT INTO Links (Nr, ENum, LinkNum, LinkText, LinkSerie) VALUES ("_s + nr + u", "_s +
           QString::number(enumber) + u", "_s + QString::number(link.Num) + u", "_s +
           Quoted(QuoteSql(link.Text)) + u", "_s + Quoted(QuoteSql(link.Serie)) + u");"_s;
}

bool HasRow(Session& session, const QString& table, const QString& nr, int enumber)
{
    Query query = session.CollectionDb->Select(u"SELECT * FROM "_s + table + u" WHERE Nr="_s + nr +
                                               u" AND Enum="_s + QString::number(enumber));
    return query.Next();
}

// The link triples of the line, up to the first without a number.
template <typename Write> void ForEachLink(const DetailsRecord& r, Write write)
{
    for (int i = 0; i < r.LinksRead && r.Links[static_cast<size_t>(i)].Num != 0; ++i)
        write(i + 1, r.Links[static_cast<size_t>(i)]);
}

int InsertNew(Session& session, const DetailsRecord& r)
{
    const DetailsValues v(r);
    if (const int result = ExecuteSql(session, InsertDetailsSql(v)))
        return result;
    if (const int result = ExecuteSql(session, InsertGestaltungSql(v)))
        return result;
    // Attributes and links the entry has already stay; the results of
    // these statements don't count.
    if (r.HasStatus) {
        for (int n = 1; n <= StatusCount; ++n)
            if (!HasRow(session, u"Status"_s, v.nr, n))
                ExecuteSql(session, InsertStatusSql(v.nr, n, r.Status[static_cast<size_t>(n - 1)]));
    }
    ForEachLink(r, [&](int n, const DatLink& link) {
        if (!HasRow(session, u"Links"_s, v.nr, n))
            ExecuteSql(session, InsertLinkSql(v.nr, n, link));
    });
    return 0;
}

void ReplaceAll(Session& session, const DetailsRecord& r, int& sum)
{
    const DetailsValues v(r);
    if (ExecuteSql(session, InsertDetailsSql(v)) != 0)
        sum = ExecuteSql(session, UpdateDetailsSql(v));
    if (ExecuteSql(session, InsertGestaltungSql(v)) != 0)
        sum += ExecuteSql(session, u"UPDATE Gestaltung SET Nr="_s + v.nr + u", TiBiZeichner="_s + Quoted(v.tibi) +
                                u", IlluZeichner="_s + Quoted(v.illu) + u", RZ="_s + v.rz + u", RiZeObjekt="_s +
                                Quoted(v.objekt) + u", RizeZeichner="_s + Quoted(v.zeichner) + u" WHERE Nr="_s +
                                v.nr + u';');
    if (!r.HasStatus)
        return;
    ExecuteSql(session, u"DELETE FROM Status WHERE Nr="_s + v.nr + u';');
    for (int n = 1; n <= StatusCount; ++n)
        sum += ExecuteSql(session, InsertStatusSql(v.nr, n, r.Status[static_cast<size_t>(n - 1)]));
    ExecuteSql(session, u"DELETE FROM Links WHERE Nr="_s + v.nr + u';');
    ForEachLink(r, [&](int n, const DatLink& link) { sum += ExecuteSql(session, InsertLinkSql(v.nr, n, link)); });
}

// ", Column='value'" for a text the line filled.
void AddText(QString& set, const QString& column, const QString& raw, const QString& value)
{
    if (!raw.isEmpty())
        set += u", "_s + column + u'=' + Quoted(value);
}

int UpdateImported(Session& session, const DetailsRecord& r)
{
    const DetailsValues v(r);
    // Makes the rows if there are none yet; both fail on an existing row.
    ExecuteSql(session, u"INSERT INTO Details (Nr, Ersterscheinung) VALUES ("_s + v.nr + u", '31.12.1900');"_s);
    QString set = u"Nr="_s + v.nr;
    AddText(set, u"Ersterscheinung"_s, r.Ersterscheinung, v.date);
    AddText(set, u"Untertitel"_s, r.Untertitel, v.untertitel);
    for (size_t i = 0; i < v.persons.size(); ++i)
        AddText(set, PersonColumn(i), r.Persons[i], v.persons[i]);
    AddText(set, u"Inhalt"_s, r.Inhalt, v.inhalt);
    int sum = ExecuteSql(session, u"UPDATE Details SET "_s + set + u" WHERE Nr="_s + v.nr + u';');

    ExecuteSql(session, u"INSERT INTO Gestaltung (Nr) VALUES ("_s + v.nr + u");"_s);
    set = u"Nr="_s + v.nr;
    AddText(set, u"TiBiZeichner"_s, r.TiBiZeichner, v.tibi);
    AddText(set, u"IlluZeichner"_s, r.IlluZeichner, v.illu);
    if (!r.RZ.isEmpty())
        set += u", RZ="_s + v.rz;
    AddText(set, u"RiZeObjekt"_s, r.RiZeObjekt, v.objekt);
    AddText(set, u"RiZeZeichner"_s, r.RiZeZeichner, v.zeichner);
    sum += ExecuteSql(session, u"UPDATE Gestaltung SET "_s + set + u" WHERE Nr="_s + v.nr + u';');

    if (r.HasStatus) {
        for (int n = 1; n <= StatusCount; ++n) {
            const QString& value = r.Status[static_cast<size_t>(n - 1)];
            if (value.isEmpty())
                continue;
            const QString number = QString::number(n);
            if (HasRow(session, u"Status"_s, v.nr, n))
                sum += ExecuteSql(session, u"UPDATE Status SET StatusWert="_s + Quoted(QuoteSql(value)) + u" WHERE Nr="_s +
                                        v.nr + u" AND ENum="_s + number + u';');
            else
                sum += ExecuteSql(session, u"INSERT INTO Status (Nr, ENum,  StatusWert) VALUES ("_s + v.nr + u", "_s +
                                        number + u", "_s + Quoted(QuoteSql(value)) + u");"_s);
        }
    }
    ForEachLink(r, [&](int n, const DatLink& link) {
        if (HasRow(session, u"Links"_s, v.nr, n))
            sum += ExecuteSql(session, u"UPDATE Links SET LinkNum="_s + QString::number(link.Num) + u", LinkText="_s +
                                    Quoted(QuoteSql(link.Text)) + u", LinkSerie="_s + Quoted(QuoteSql(link.Serie)) +
                                    u" WHERE Nr="_s + v.nr + u" AND ENum="_s + QString::number(n) + u';');
        else
            sum += ExecuteSql(session, InsertLinkSql(v.nr, n, link));
    });
    return sum;
}

} // namespace

int WriteDetailsRecord(Session& session, const DetailsRecord& record, ImportMode mode, int& sum)
{
    switch (mode) {
    case ImportMode::Insert:
        return InsertNew(session, record);
    case ImportMode::AllColumns:
        ReplaceAll(session, record, sum);
        return sum;
    case ImportMode::OnlyImported:
        return UpdateImported(session, record);
    }
    return 0;
}

} // namespace heft
