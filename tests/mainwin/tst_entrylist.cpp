#include "listfixture.h"
#include "testmain.h"

#include "mainwin/twips.h"

#include "core/sqlwriters.h"

#include <QFontMetrics>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

// Entries 1..count, authors in reverse alphabetical order of their numbers.
QList<TestEntry> Entries(int count)
{
    QList<TestEntry> entries;
    for (int nr = 1; nr <= count; ++nr)
        entries.append({nr, u"Autor %1"_s.arg(count - nr, 3, 10, QChar(u'0')), u"Titel %1"_s.arg(nr)});
    return entries;
}

} // namespace

class TestEntryList : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void removeEntryRows()
    {
        TempCollection collection;
        collection.Add(Entries(5));
        EntryList list;
        LoadEntryList(collection, list, list.Heftliste);
        collection.session.SharedRecordset =
            collection.session.CollectionDb->Select(u"SELECT * FROM HEFTLIST WHERE Nr IN (2, 4) ORDER BY Nr;"_s);
        list.ActiveGrid = &list.Filter;
        list.SetupGridColumns();
        list.FillGrid(collection.session);
        QSignalSpy disabled(&list, &EntryList::EntryCommandsDisabled);

        QCOMPARE(list.RemoveEntryRows(3), 3); // not in the filter list: nothing happens
        QCOMPARE(NrColumn(list.Heftliste).size(), 5);
        QCOMPARE(list.RemoveEntryRows(4), 0);
        QCOMPARE(NrColumn(list.Filter), QStringList{u"2"_s});
        QCOMPARE(NrColumn(list.Heftliste), (QStringList{u"1"_s, u"2"_s, u"3"_s, u"5"_s}));
        QCOMPARE(disabled.size(), 0);

        // The filter list's last entry leaves one empty row behind, and the
        // entry commands go off.
        QCOMPARE(list.RemoveEntryRows(2), 0);
        QCOMPARE(list.Filter.Rows(), 2);
        QCOMPARE(list.Filter.TextMatrix(1, ColNr), QString());
        QVERIFY(!list.Filter.CurrentRowHoldsEntry());
        QCOMPARE(disabled.size(), 1);
        QCOMPARE(list.ActiveGrid, &list.Filter);
        QCOMPARE(NrColumn(list.Heftliste), (QStringList{u"1"_s, u"3"_s, u"5"_s}));

        // A new entry saved in filter mode takes the empty row.
        list.AddGridRow(7);
        QCOMPARE(NrColumn(list.Filter), QStringList{u"7"_s});
    }

};

HEFT_TEST(TestEntryList)
#include "tst_entrylist.moc"
