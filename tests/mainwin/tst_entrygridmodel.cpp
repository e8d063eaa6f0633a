#include "listfixture.h"
#include "testmain.h"

#include "mainwin/entryrows.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

class TestEntryGridModel : public QObject {
    Q_OBJECT

private:
    // Rows given as "Nr|text of the sorted column".
    static std::vector<EntryCells> RowsOf(int column, const QStringList& rows)
    {
        std::vector<EntryCells> cells;
        for (const QString& row : rows) {
            const QStringList parts = row.split(u'|');
            EntryCells entry;
            entry[ColNr] = parts[0];
            entry[static_cast<size_t>(column)] = parts.value(1, parts[0]);
            cells.push_back(entry);
        }
        return cells;
    }

private Q_SLOTS:
    void sort_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<QStringList>("expectedNr");
        QTest::newRow("numbers by value, not by text")
            << int(ColNr) << int(SortNumericAscending) << QStringList{u"100"_s, u"9"_s, u"20"_s} << QStringList{u"9"_s, u"20"_s, u"100"_s};
        QTest::newRow("empty printing counts as 0, ties keep their order")
            << int(ColAuflage) << int(SortNumericAscending) << QStringList{u"1|2"_s, u"2|"_s, u"3|1"_s, u"4|"_s}
            << QStringList{u"2"_s, u"4"_s, u"3"_s, u"1"_s};
        QTest::newRow("case-blind, umlaut beside its letter")
            << int(ColAutor) << int(SortGenericAscending)
            << QStringList{u"1|Zander"_s, u"2|ärger"_s, u"3|Bauer"_s, u"4|Apfel"_s, u"5|arndt"_s}
            << QStringList{u"4"_s, u"2"_s, u"5"_s, u"3"_s, u"1"_s};
        QTest::newRow("digit runs by value")
            << int(ColTitel) << int(SortGenericAscending) << QStringList{u"1|Teil 10"_s, u"2|Teil 9"_s, u"3|Teil 2"_s}
            << QStringList{u"3"_s, u"2"_s, u"1"_s};
        QTest::newRow("equal texts keep their order, also descending")
            << int(ColAutor) << int(SortGenericDescending) << QStringList{u"1|Maar"_s, u"2|Zahn"_s, u"3|MAAR"_s, u"4|maar"_s}
            << QStringList{u"2"_s, u"1"_s, u"3"_s, u"4"_s};
    }
    void sort()
    {
        QFETCH(int, column);
        QFETCH(int, mode);
        QFETCH(QStringList, rows);
        EntryGridModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.Reset(RowsOf(column, rows));
        const QPersistentModelIndex first = model.index(0, column);
        const QString firstText = first.data().toString();
        model.Sort(column, static_cast<SortMode>(mode));
        QStringList numbers;
        for (int row = 0; row < model.rowCount(); ++row)
            numbers << model.Text(row, ColNr);
        QTEST(numbers, "expectedNr");
        // Views keep their place on the entry, wherever it went.
        QCOMPARE(first.data().toString(), firstText);
        QCOMPARE(model.FindNr(numbers.last().toInt()), model.rowCount() - 1);
    }

};

HEFT_TEST(TestEntryGridModel)
#include "tst_entrygridmodel.moc"
