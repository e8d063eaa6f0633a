// Filter statements run against a real collection: the entries they find,
// and the filter list that takes them.

#include "testmain.h"
#include "testsupport.h"

#include "filter/filtergenerator.h"
#include "filter/filterrun.h"
#include "mainwin/entrylist.h"

#include <QTest>

using namespace Qt::StringLiterals;
using heft::FilterCriterion;

namespace {

FilterCriterion Row(int field, int compare, const QString& text = {}, int join = 0)
{
    FilterCriterion row;
    row.field = field;
    row.compare = compare;
    row.text = text;
    row.join = join;
    return row;
}

FilterCriterion Dated(int field, int compare, QDate date)
{
    FilterCriterion row = Row(field, compare);
    row.date = date;
    return row;
}

FilterCriterion Picked(int field, int auflage, int yesNo, int join = 0)
{
    FilterCriterion row = Row(field, 0, {}, join);
    row.auflageIndex = auflage;
    row.yesNoIndex = yesNo;
    return row;
}

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

QList<int> Numbers(const heft::EntryGrid& grid)
{
    QList<int> numbers;
    for (int r = 1; r < grid.Rows(); ++r)
        numbers << grid.TextMatrix(r, heft::ColNr).toInt();
    return numbers;
}

} // namespace

Q_DECLARE_METATYPE(FilterCriterion)

class TestFilterRun : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void found_data()
    {
        QTest::addColumn<QList<FilterCriterion>>("rows");
        QTest::addColumn<QList<int>>("numbers");
        QTest::newRow("first appearance before 1980")
            << QList<FilterCriterion>{Dated(10, 2, QDate(1980, 1, 1))} << QList<int>{1, 5};
        QTest::newRow("changed on a day, any time")
            << QList<FilterCriterion>{Dated(16, 0, QDate(2023, 4, 1))} << QList<int>{1, 3};
        // Padded, "150" stays above "20"; the empty value is no number.
        QTest::newRow("value above 19") << QList<FilterCriterion>{Row(21, 3, u"19"_s)} << QList<int>{1, 2};
        // No person may be Meier; an entry without details has no persons.
        QTest::newRow("person not Meier") << QList<FilterCriterion>{Row(8, 1, u"Meier"_s)} << QList<int>{3, 5};
        QTest::newRow("read EXOR first printing")
            << QList<FilterCriterion>{Picked(5, 0, 0, 3), Picked(3, 1, 0)} << QList<int>{3, 4};
        QTest::newRow("cycle below V") << QList<FilterCriterion>{Row(4, 2, u"V"_s)} << QList<int>{1, 2, 5};
        QTest::newRow("title like, read")
            << QList<FilterCriterion>{Row(2, 2, u"sonne"_s, 1), Picked(5, 0, 0)} << QList<int>{1, 3};
    }

    void found()
    {
        QFETCH(QList<FilterCriterion>, rows);
        QFETCH(QList<int>, numbers);
        heft::test::TempCollection c;
        Fill(c);
        heft::EntryList list;
        const heft::FilterOutcome outcome = heft::FilterGenerator(c.session).Generate(rows);
        QCOMPARE(heft::RunFilterStatement(c.session, list, outcome.sql), numbers.size());
        QCOMPARE(list.ActiveGrid, &list.Filter);
        QCOMPARE(Numbers(list.Filter), numbers);
    }
};

HEFT_TEST(TestFilterRun)
#include "tst_filterrun.moc"
