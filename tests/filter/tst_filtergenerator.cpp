// The WHERE text and the sentence each field and comparison word give, the
// joins of several rows, the cycle comparison over the cycles a collection
// uses, and the entries the statements find in a real collection.

#include "testmain.h"
#include "testsupport.h"

#include "filter/filterfields.h"
#include "filter/filtergenerator.h"
#include "filter/filterrun.h"
#include "mainwin/entrylist.h"

#include <QTest>

using namespace Qt::StringLiterals;
using heft::FilterCriterion;
using heft::FilterGenerator;

namespace {

enum Compare { Ist, Ungleich, Kleiner, Grosser, Ahnlich = 2 };

const QDate Day(1975, 3, 12);

FilterCriterion Text(int field, int compare, const QString& text, int join = 0)
{
    FilterCriterion row;
    row.field = field;
    row.compare = compare;
    row.text = text;
    row.join = join;
    return row;
}

FilterCriterion List(int field, int compare, const QString& entry, int index, int count)
{
    FilterCriterion row = Text(field, compare, compare == Ahnlich ? entry : QString());
    row.listText = entry;
    row.listIndex = index;
    row.listCount = count;
    return row;
}

FilterCriterion Choice(int field, int compare, int auflage, int yesNo, int join = 0)
{
    FilterCriterion row = Text(field, compare, {}, join);
    row.auflageIndex = auflage;
    row.yesNoIndex = yesNo;
    return row;
}

FilterCriterion Dated(int field, int compare, QDate date = Day)
{
    FilterCriterion row = Text(field, compare, {});
    row.date = date;
    return row;
}

// A collection whose cycles are I, II and V, beside entries without one.
struct CycleCollection {
    CycleCollection()
    {
        c.Add({{1, u"Ava Lind"_s, u"Eins"_s, 0, u"I"_s},
               {2, u"Ava Lind"_s, u"Zwei"_s, 0, u"II"_s},
               {3, u"Ava Lind"_s, u"Drei"_s, 0, u"- - -"_s},
               {4, u"Ava Lind"_s, u"Vier"_s, 0, u"V"_s},
               {5, u"Ava Lind"_s, u"Fünf"_s, 0, u"II"_s}});
    }
    heft::test::TempCollection c;
};

// Five entries with details (but 4), change stamps and values.
void Fill(heft::test::TempCollection& c)
{
    c.Add({{1, u"Ava Lind"_s, u"Sonnenwind"_s, 1, u"I"_s, true},
           {2, u"Bo Kern"_s, u"Mondnacht"_s, 2, u"II"_s, false},
           {3, u"Ava Lind"_s, u"Sternsonne"_s, 0, u"- - -"_s, true},
           {4, u"Cy Ott"_s, u"Eiswelt"_s, 1, u"V"_s, false},
           {5, u"Bo Kern"_s, u"Glut"_s, 1, u"II"_s, true}});
    const QList<std::tuple<int, QString, QString, QString>> details = {
        {1, u"12.03.1975"_s, u"Meier"_s, QString()},
        {2, u"01.01.1980"_s, QString(), u"Meier"_s},
        {3, u"05.06.1985"_s, u"Kraus"_s, QString()},
        {5, u"20.02.1975"_s, u"Lenz"_s, QString()}};
    for (const auto& [nr, date, person1, person2] : details)
        c.Exec(u"INSERT INTO Details VALUES (%1, '%2', '', '%3', '%4', '', '', '', '', '', '', '', '');"_s.arg(nr)
                   .arg(date, person1, person2));
    c.Exec(u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (1, 1, '2023-04-01 um 10:00:00'), "
           "(2, 1, '2023-04-02 um 08:00:00'), (3, 1, '2023-04-01 um 23:59:59'), "
           "(1, 6, '0000020'), (2, 6, '0000150'), (3, 6, '0000007'), (5, 6, '');"_s);
}

} // namespace

Q_DECLARE_METATYPE(FilterCriterion)

class TestFilterGenerator : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void valueLists()
    {
        heft::test::TempCollection c;
        c.Add({{1, u"Ava Lind"_s, u"Eins"_s}, {2, u" Bo Kern "_s, u"Zwei"_s}, {3, u" "_s, u"Drei"_s}});
        c.Exec(u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (1, 3, 'gut'), (2, 3, ''), (3, 3, 'mäßig');"_s);
        c.Exec(u"INSERT INTO Gestaltung (Nr, TiBiZeichner) VALUES (1, 'Hal Torn'), (2, '');"_s);
        // Blank values are dropped, the rest trimmed after the query sorted
        // them; only Autor has no <LEER>.
        QCOMPARE(heft::ValueListEntries(*c.session.CollectionDb, 1), (QStringList{u"Bo Kern"_s, u"Ava Lind"_s}));
        QCOMPARE(heft::ValueListEntries(*c.session.CollectionDb, 18),
                 (QStringList{u"gut"_s, u"mäßig"_s, u"<LEER>"_s}));
        QCOMPARE(heft::ValueListEntries(*c.session.CollectionDb, 37), QStringList{u"<LEER>"_s});
        QCOMPARE(heft::ValueListEntries(*c.session.CollectionDb, 11), (QStringList{u"Hal Torn"_s, u"<LEER>"_s}));
    }

    void oneRow_data()
    {
        QTest::addColumn<FilterCriterion>("row");
        QTest::addColumn<QString>("where");
        QTest::addColumn<QString>("sentence");
        QTest::addColumn<QString>("shown");

        auto add = [](const char* name, const FilterCriterion& row, const QString& where, const QString& sentence,
                      const QString& shown = QString()) {
            QTest::newRow(name) << row << where << sentence << (shown.isNull() ? row.text : shown);
        };
        add("Nr capped", Text(0, Ist, u"123456"_s), u"h.Nr=99999 "_s, u"Nummer = 99999 "_s, u"99999"_s);
        add("Autor apostrophe", List(1, Ungleich, u"O'Brien"_s, 1, 3), u"h.Autor<>'O''Brien' "_s,
            u"Autor ungleich 'O''Brien' "_s);
        add("Titel own pattern", Text(2, Ahnlich, u"*Sonne"_s), u"h.Titel LIKE '*Sonne' "_s,
            u"Titel ähnlich wie '*Sonne' "_s);
        add("Auflage second", Choice(3, Kleiner, 2, 0), u"h.Auflage<2 "_s, u"Auflage kleiner als 2 "_s);
        add("Zyklus capitals", Text(4, Ist, u"ii"_s), u"h.Zyklus='II' "_s, u"Zyklus = 'II' "_s, u"II"_s);
        add("Zyklus number", Text(4, Grosser, u"12"_s), u"(h.Zyklus='-0') "_s, u"Zyklus größer als 'XII' "_s,
            u"XII"_s);
        add("Person ungleich", Text(8, Ungleich, u"Meier"_s),
            u"(d.Person1<>'Meier' AND d.Person2<>'Meier' AND d.Person3<>'Meier' AND d.Person4<>'Meier' "
            "AND d.Person5<>'Meier' AND d.Person6<>'Meier' AND d.Person7<>'Meier' AND d.Person8<>'Meier' "
            "AND d.Person9<>'Meier' ) "_s,
            u"Person ungleich 'Meier'  "_s);
        add("Inhalt like nothing", Text(9, Ahnlich, QString()), u"d.Inhalt LIKE '**' "_s,
            u"Inhalt ähnlich wie '**' "_s, u"**"_s);
        add("Datum", Dated(10, Grosser), u"d.Ersterscheinung>DateValue('12.03.1975') "_s,
            u"Ersterscheinung größer als 12-03-1975 "_s);
        add("TiBiZeichner guarded", List(11, Ist, u"Hal Torn"_s, 0, 3),
            u"g.TiBiZeichner='Hal Torn' AND g.TiBiZeichner<>'' "_s, u"TiBiZeichner = 'Hal Torn' "_s);
        add("Rißzeichnung", Choice(13, Ist, 0, 1), u"g.RZ=0 "_s, u"Rißzeichnung = Nein "_s);
        // The hidden list stands at its first entry, so the guard stays.
        add("RiZeZeichner like", List(15, Ahnlich, u"Torn"_s, 0, 2),
            u"g.RiZeZeichner LIKE '*Torn*' AND g.RiZeZeichner<>'' "_s, u"RiZeZeichner ähnlich wie '*Torn*' "_s,
            u"*Torn*"_s);
        add("Stamp after", Dated(16, Grosser), u"(s.StatusWert>'1975-03-12' AND s.ENum=1) "_s,
            u"Letzte Änderung größer als 12-03-1975 "_s);
        add("Stamp ungleich", Dated(16, Ungleich), u"(s.StatusWert NOT LIKE '1975-03-12*' AND s.ENum=1) "_s,
            u"Letzte Änderung ungleich 12-03-1975 "_s);
        add("Exemplare blanks", Text(17, Grosser, u" 3 "_s),
            u"(s.StatusWert>'0000003' AND s.StatusWert<>'' AND s.ENum=2) "_s, u"Exemplare größer als  3  "_s);
        add("Zustand empty", List(18, Ist, u"<LEER>"_s, 2, 3), u"(s.StatusWert='' AND s.ENum=3) "_s,
            u"Zustand = <LEER> "_s);
        add("Zustand gut", List(18, Ist, u"gut"_s, 0, 3),
            u"(s.StatusWert='gut' AND s.StatusWert<>'' AND s.ENum=3) "_s, u"Zustand = 'gut' "_s);
        add("Verkäufer like, list of one", List(19, Ahnlich, u"*Hof"_s, 0, 1),
            u"(s.StatusWert LIKE '*Hof' AND s.ENum=4) "_s, u"Verkäufer ähnlich wie '*Hof' "_s);
        add("Kaufpreis loses its front", Text(20, Kleiner, u"123456789"_s),
            u"(s.StatusWert<'3456789' AND s.StatusWert<>'' AND s.ENum=5) "_s,
            u"Kaufpreis kleiner als 123456789 € "_s);
        add("ISBN not padded", Text(23, Ist, u"3453"_s),
            u"(s.StatusWert='3453' AND s.StatusWert<>'' AND s.ENum=8) "_s, u"ISBN = 3453 "_s);
        add("Originaltitel apostrophe", Text(31, Ist, u"Kim's"_s), u"(s.StatusWert='Kim''s' AND s.ENum=16) "_s,
            u"Originaltitel = 'Kim''s' "_s);
        add("Verleihdatum", Dated(33, Kleiner), u"(s.StatusWert<'1975-03-12' AND s.StatusWert<>'' AND s.ENum=18) "_s,
            u"Verleihdatum kleiner als 12-03-1975 "_s);
        add("Serienlink empty", List(37, Ist, u"<LEER>"_s, 0, 1), u"l.LinkSerie='' "_s, u"Serienlink = <LEER> "_s);
        add("Serienlink guarded", List(37, Ist, u"VN"_s, 0, 2), u"l.LinkSerie='VN' AND l.LinkSerie<>'' "_s,
            u"Serienlink = 'VN' "_s);
        add("Exemplare empty", Text(17, Ist, QString()), u"(s.StatusWert='' AND s.ENum=2) "_s,
            u"Exemplare = <LEER> "_s);
    }

    void oneRow()
    {
        QFETCH(FilterCriterion, row);
        QFETCH(QString, where);
        QFETCH(QString, shown);
        CycleCollection cycles;
        const heft::FilterOutcome outcome = FilterGenerator(cycles.c.session).Generate({row});
        QVERIFY(!outcome.rejected);
        QCOMPARE(outcome.where, where);
        QTEST(outcome.text, "sentence");
        QCOMPARE(outcome.shownTexts, QList<QString>{shown});
    }

    void joinedRows_data()
    {
        QTest::addColumn<QList<FilterCriterion>>("rows");
        QTest::addColumn<QString>("where");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("UND") << QList<FilterCriterion>{Text(2, Ahnlich, u"Sonne"_s, 1), Text(21, Grosser, u"20"_s)}
                             << u"h.Titel LIKE '*Sonne*' AND (s.StatusWert>'0000020' AND s.StatusWert<>'' AND "
                                "s.ENum=6) "_s
                             << u"Titel ähnlich wie '*Sonne*' UND Wert größer als 20 € "_s;
        FilterCriterion read = Choice(5, Ist, 0, 0);
        read.join = 3;
        QTest::newRow("EXOR then ODER, left to right")
            << QList<FilterCriterion>{read, Text(0, Kleiner, u"5"_s, 2), Text(8, Ist, u"Kern"_s)}
            << u"h.GL=-1 XOR h.Nr<5 OR (d.Person1='Kern' OR d.Person2='Kern' OR d.Person3='Kern' OR "
               "d.Person4='Kern' OR d.Person5='Kern' OR d.Person6='Kern' OR d.Person7='Kern' OR d.Person8='Kern' "
               "OR d.Person9='Kern' ) "_s
            << u"Gelesen = Ja ENTWEDER ODER Nummer kleiner als 5 ODER Person = 'Kern'  "_s;
    }

    void joinedRows()
    {
        QFETCH(QList<FilterCriterion>, rows);
        QFETCH(QString, where);
        CycleCollection cycles;
        const heft::FilterOutcome outcome = FilterGenerator(cycles.c.session).Generate(rows);
        QCOMPARE(outcome.where, where);
        QTEST(outcome.text, "sentence");
        QCOMPARE(outcome.sql, u"SELECT DISTINCT h.nr, h.autor, h.titel, h.auflage, h.zyklus, h.gl, h.bemerkung "
                              "FROM ((((HEFTLIST h LEFT JOIN DETAILS d ON h.nr=d.nr) LEFT JOIN Gestaltung g ON "
                              "h.nr=g.nr) LEFT JOIN Status s ON h.nr=s.nr) LEFT JOIN Links l ON h.nr=l.nr) WHERE "_s +
                                  where + u"ORDER BY h.Nr;"_s);
    }

    void cycles_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("compare");
        QTest::addColumn<QString>("where");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("below the lowest") << u"I"_s << int(Kleiner) << u"(h.Zyklus='-0') "_s
                                          << u"Zyklus kleiner als 'I' "_s;
        QTest::newRow("below a gap") << u"III"_s << int(Kleiner) << u"(h.Zyklus='I' OR h.Zyklus='II') "_s
                                     << u"Zyklus kleiner als 'III' "_s;
        QTest::newRow("above the lowest") << u"I"_s << int(Grosser) << u"(h.Zyklus='II' OR h.Zyklus='V') "_s
                                          << u"Zyklus größer als 'I' "_s;
        // A value between cycles loses the next higher one as well.
        QTest::newRow("above a gap finds nothing") << u"III"_s << int(Grosser) << u"(h.Zyklus='-0') "_s
                                                   << u"Zyklus größer als 'III' "_s;
        QTest::newRow("none compared as text") << u"- - -"_s << int(Grosser) << u"h.Zyklus>'- - -' "_s
                                               << u"Zyklus größer als '- - -' "_s;
    }

    void cycles()
    {
        QFETCH(QString, value);
        QFETCH(int, compare);
        QFETCH(QString, where);
        CycleCollection cycles;
        FilterGenerator generator(cycles.c.session);
        const heft::FilterOutcome outcome = generator.Generate({Text(4, compare, value)});
        QCOMPARE(outcome.where, where);
        QTEST(outcome.text, "sentence");
        // The operator blanked for the cycle list does not outlive its row.
        QCOMPARE(generator.Generate({Text(4, compare, value, 1), Text(0, compare, u"7"_s)}).where,
                 where + u"AND h.Nr"_s + (compare == Kleiner ? u"<"_s : u">"_s) + u"7 "_s);
    }

    // With a single cycle, a value on it is beyond it on both sides; with
    // none, nothing is.
    void singleCycle_data()
    {
        QTest::addColumn<QString>("cycle"); // of the only entry
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("compare");
        QTest::addColumn<QString>("where");
        QTest::newRow("below it") << u"II"_s << u"II"_s << int(Kleiner) << u"(h.Zyklus='-0') "_s;
        QTest::newRow("below a higher value") << u"II"_s << u"III"_s << int(Kleiner) << u"(h.Zyklus='II') "_s;
        QTest::newRow("above it") << u"II"_s << u"II"_s << int(Grosser) << u"(h.Zyklus='-0') "_s;
        QTest::newRow("above a lower value") << u"II"_s << u"I"_s << int(Grosser) << u"(h.Zyklus='II') "_s;
        QTest::newRow("no cycle at all") << u"- - -"_s << u"I"_s << int(Kleiner) << u"(h.Zyklus='-0') "_s;
    }
    void singleCycle()
    {
        QFETCH(QString, cycle);
        QFETCH(QString, value);
        QFETCH(int, compare);
        heft::test::TempCollection c;
        c.Add({{1, u"Ava Lind"_s, u"Eins"_s, 0, cycle}});
        QTEST(FilterGenerator(c.session).Generate({Text(4, compare, value)}).where, "where");
    }

    void refusedCycle()
    {
        CycleCollection cycles;
        FilterGenerator generator(cycles.c.session);
        const heft::FilterOutcome outcome =
            generator.Generate({Text(2, Ist, u"Sonne"_s, 1), Text(4, Kleiner, u"0"_s)});
        QVERIFY(outcome.rejected);
        QCOMPARE(outcome.rejectedRow, 1);
        QVERIFY(outcome.sql.isEmpty());
        QCOMPARE(outcome.shownTexts[1], u"- - -"_s);
    }

    void found_data()
    {
        QTest::addColumn<QList<FilterCriterion>>("rows");
        QTest::addColumn<QList<int>>("numbers");
        QTest::newRow("first appearance before 1980")
            << QList<FilterCriterion>{Dated(10, Kleiner, QDate(1980, 1, 1))} << QList<int>{1, 5};
        QTest::newRow("changed on a day, any time")
            << QList<FilterCriterion>{Dated(16, Ist, QDate(2023, 4, 1))} << QList<int>{1, 3};
        // Padded, "150" stays above "20"; the empty value is no number.
        QTest::newRow("value above 19") << QList<FilterCriterion>{Text(21, Grosser, u"19"_s)} << QList<int>{1, 2};
        // No person may be Meier; an entry without details has no persons.
        QTest::newRow("person not Meier") << QList<FilterCriterion>{Text(8, Ungleich, u"Meier"_s)}
                                          << QList<int>{3, 5};
    }

    void found()
    {
        QFETCH(QList<FilterCriterion>, rows);
        QFETCH(QList<int>, numbers);
        heft::test::TempCollection c;
        Fill(c);
        heft::EntryList list;
        const heft::FilterOutcome outcome = FilterGenerator(c.session).Generate(rows);
        QCOMPARE(heft::RunFilterStatement(c.session, list, outcome.sql), numbers.size());
        QCOMPARE(list.ActiveGrid, &list.Filter);
        QList<int> shown;
        for (int r = 1; r < list.Filter.Rows(); ++r)
            shown << list.Filter.TextMatrix(r, heft::ColNr).toInt();
        QCOMPARE(shown, numbers);
    }
};

HEFT_TEST(TestFilterGenerator)
#include "tst_filtergenerator.moc"
