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
    void sortClicks_data()
    {
        QTest::addColumn<QList<int>>("clicks");
        QTest::addColumn<bool>("descending");
        QTest::addColumn<QString>("firstNr");
        QTest::addColumn<SortPicture>("picture");
        QTest::newRow("Nr first sorts downward") << QList<int>{0} << true << u"40"_s << SortPicture::Down;
        QTest::newRow("Nr twice sorts upward") << QList<int>{0, 0} << false << u"1"_s << SortPicture::Up;
        QTest::newRow("new column starts downward") << QList<int>{0, 1} << true << u"1"_s << SortPicture::Down;
        QTest::newRow("back to Nr starts downward again") << QList<int>{1, 1, 0} << true << u"40"_s << SortPicture::Down;
    }
    void sortClicks()
    {
        QFETCH(QList<int>, clicks);
        QFETCH(bool, descending);
        QFETCH(QString, firstNr);
        QFETCH(SortPicture, picture);
        TempCollection collection;
        collection.Add(Entries(40));
        EntryList list;
        list.Heftliste.SetVisibleRows(10);
        LoadEntryList(collection, list, list.Heftliste);
        list.FindAndShowRow(25);
        QSignalSpy panels(&list, &EntryList::StatusPanelChanged);
        for (int col : clicks)
            list.GridClick(0, col);

        const EntryGrid& grid = list.Heftliste;
        QCOMPARE(list.SortColumn, clicks.last());
        QCOMPARE(list.SortDescending, descending);
        QCOMPARE(grid.TextMatrix(1, ColNr), firstNr);
        for (int col = 0; col < EntryColumnCount; ++col) {
            QCOMPARE(grid.Model().HeaderBold(col), col == clicks.last());
            QCOMPARE(grid.Model().HeaderPicture(col), col == clicks.last() ? picture : SortPicture::None);
        }
        // The selected entry stays current and in sight.
        QCOMPARE(grid.TextMatrix(grid.Row(), ColNr), u"25"_s);
        QVERIFY(grid.Row() >= grid.TopRow() && grid.Row() < grid.TopRow() + grid.VisibleRows());
        QList<QVariantList> panel5;
        for (const QVariantList& call : panels)
            if (call[0].toInt() == 5)
                panel5 << call;
        QCOMPARE(panel5.size(), 2 * clicks.size());
        QCOMPARE(panel5.first()[1].toString(), u"Sortiere nach %1 ..."_s.arg(EntryGridModel::HeaderText(clicks.first())));
        QCOMPARE(panel5.last()[1].toString(), u"Fertig und Bereit."_s);
    }

    void findAndShowRow_data()
    {
        QTest::addColumn<int>("nr");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("topRow");
        QTest::newRow("near the start the list stays at its top") << 3 << 3 << 1;
        QTest::newRow("further down the row stands in the middle") << 30 << 30 << 26;
        QTest::newRow("missing number") << 41 << -1 << 1;
    }
    void findAndShowRow()
    {
        QFETCH(int, nr);
        QFETCH(int, row);
        QFETCH(int, topRow);
        TempCollection collection;
        collection.Add(Entries(40));
        EntryList list;
        list.Heftliste.SetVisibleRows(10);
        LoadEntryList(collection, list, list.Heftliste);
        list.SortByColumn(ColAutor); // the numbers no longer match the rows
        list.SortByColumn(ColAutor);
        QCOMPARE(list.FindAndShowRow(nr), row == -1 ? -1 : 41 - row);
        if (row != -1) {
            QCOMPARE(list.Heftliste.TextMatrix(list.Heftliste.Row(), ColNr), QString::number(nr));
            QCOMPARE(list.SelectedNr, nr);
        }
        list.SortByColumn(ColNr);
        list.SortByColumn(ColNr);
        QCOMPARE(list.FindAndShowRow(nr), row);
        QCOMPARE(list.Heftliste.TopRow(), topRow);
    }

    void addGridRow()
    {
        TempCollection collection;
        collection.Add(Entries(3));
        EntryList list;
        LoadEntryList(collection, list, list.Heftliste);
        list.AddGridRow(9);
        QCOMPARE(NrColumn(list.Heftliste), (QStringList{u"1"_s, u"2"_s, u"3"_s, u"9"_s}));
        QCOMPARE(list.Heftliste.Row(), 4);
        QCOMPARE(list.Heftliste.TopRow(), 4);
    }

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

    void removeCurrentRowKeepsOneRow()
    {
        TempCollection collection;
        collection.Add(Entries(2));
        EntryList list;
        LoadEntryList(collection, list, list.Heftliste);
        QSignalSpy disabled(&list, &EntryList::EntryCommandsDisabled);
        list.Heftliste.SetRow(2);
        list.RemoveCurrentRow();
        QCOMPARE(list.Heftliste.Row(), 1);
        list.RemoveCurrentRow();
        QCOMPARE(list.Heftliste.Rows(), 2);
        QVERIFY(list.Heftliste.TextMatrix(1, ColNr).isEmpty());
        QCOMPARE(disabled.size(), 0); // only a filter list switches the commands off
    }

    void refreshRowFromQuery_data()
    {
        QTest::addColumn<int>("flag");
        QTest::addColumn<QStringList>("order");
        QTest::addColumn<int>("row");
        QTest::newRow("flag 0 sorts again and follows the entry") << 0 << QStringList{u"3"_s, u"2"_s, u"1"_s} << 1;
        QTest::newRow("other flags leave the order") << 1 << QStringList{u"2"_s, u"1"_s, u"3"_s} << 3;
    }
    void refreshRowFromQuery()
    {
        QFETCH(int, flag);
        QFETCH(QStringList, order);
        QFETCH(int, row);
        TempCollection collection;
        collection.Add({{1, u"Berg"_s, u"A"_s}, {2, u"Ahrens"_s, u"B"_s}, {3, u"Brand"_s, u"C"_s, 2, u"IV"_s, true}});
        EntryList list;
        LoadEntryList(collection, list, list.Heftliste);
        list.SortByColumn(ColAutor);
        list.SortByColumn(ColAutor); // ascending: Ahrens, Berg, Brand
        list.FindAndShowRow(3);
        collection.Exec(u"UPDATE HEFTLIST SET Autor='Aachen', Auflage=0, GL=0, Zyklus='V' WHERE Nr=3;"_s);
        collection.Exec(u"INSERT INTO HEFTLIST VALUES (9, 'X', 'Y', 0, 'I', 0, NULL);"_s);
        BuildSelectEntrySql(collection.session, 3);
        list.RefreshRowFromQuery(collection.session, flag);

        const EntryGrid& grid = list.Heftliste;
        QCOMPARE(NrColumn(grid), order);
        QCOMPARE(grid.Row(), row);
        QCOMPARE(grid.TextMatrix(row, ColAutor), u"Aachen"_s);
        QCOMPARE(grid.TextMatrix(row, ColAuflage), QString());
        QCOMPARE(grid.TextMatrix(row, ColGelesen), QString());
        QCOMPARE(grid.TextMatrix(row, ColZyklus), u"V"_s);
        QVERIFY(!collection.session.SharedRecordset.IsOpen());
        QCOMPARE(list.LowestNr, 1);
        QCOMPARE(list.HighestNr, 9);
    }

    void cycleToolTip_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("col");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("roman numeral") << 1 << int(ColZyklus) << u"Zyklus = 4"_s;
        QTest::newRow("no cycle") << 2 << int(ColZyklus) << QString();
        QTest::newRow("unknown cycle") << 3 << int(ColZyklus) << QString();
        QTest::newRow("other column") << 1 << int(ColTitel) << QString();
    }
    void cycleToolTip()
    {
        QFETCH(int, row);
        QFETCH(int, col);
        QFETCH(QString, toolTip);
        TempCollection collection;
        collection.Add({{1, u"A"_s, u"T"_s, 0, u"IV"_s}, {2, u"A"_s, u"T"_s}, {3, u"A"_s, u"T"_s}});
        collection.Exec(u"UPDATE HEFTLIST SET Zyklus=NULL WHERE Nr=3;"_s);
        EntryList list;
        LoadEntryList(collection, list, list.Heftliste);
        list.Heftliste.SetToolTip(u"Zyklus = 9"_s); // left over from an earlier click
        list.Heftliste.SetRow(row);
        list.GridClick(row, col);
        QCOMPARE(list.Heftliste.ToolTip(), toolTip);
    }

    void autoSizeColumn_data()
    {
        QTest::addColumn<int>("col");
        QTest::addColumn<QString>("cell");
        QTest::addColumn<int>("reserve");
        QTest::newRow("Nr header with its picture") << int(ColNr) << u"1"_s << 18;
        QTest::newRow("Zyklus header with its picture") << int(ColZyklus) << u"I"_s << 21;
        QTest::newRow("remark wider than its header") << int(ColBemerkung)
                                                      << u"Eine recht lange Bemerkung zu diesem Heft"_s << -1;
    }
    void autoSizeColumn()
    {
        QFETCH(int, col);
        QFETCH(QString, cell);
        QFETCH(int, reserve);
        EntryList list;
        EntryCells cells;
        cells[static_cast<size_t>(col)] = cell;
        list.Heftliste.Model().Reset({cells, EntryCells{}});
        list.AutoSizeColumn(col);
        const QFontMetrics metrics(list.Heftliste.Font());
        const int text = reserve < 0 ? metrics.horizontalAdvance(cell)
                                     : metrics.horizontalAdvance(EntryGridModel::HeaderText(col)) + reserve;
        QCOMPARE(list.Heftliste.ColWidth(col), (text + 8) * TwipsPerPixel());
    }

    void columnBorderHit_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("hit");
        QTest::newRow("on the border") << 0 << int(ColTitel);
        QTest::newRow("one pixel left") << -1 << int(ColTitel);
        QTest::newRow("one pixel right") << 1 << int(ColTitel);
        QTest::newRow("two pixels off") << 2 << -1;
    }
    void columnBorderHit()
    {
        QFETCH(int, offset);
        QFETCH(int, hit);
        EntryList list;
        list.Heftliste.Model().Reset({EntryCells{}});
        list.SetupGridColumns();
        const int border = list.Heftliste.ColPixelWidth(0) + list.Heftliste.ColPixelWidth(1) + list.Heftliste.ColPixelWidth(2);
        const int before = list.Heftliste.ColWidth(ColTitel);
        QCOMPARE(list.ColumnBorderHit(border + offset), hit);
        QCOMPARE(list.Heftliste.ColWidth(ColTitel) != before, hit == ColTitel);
    }
};

HEFT_TEST(TestEntryList)
#include "tst_entrylist.moc"
