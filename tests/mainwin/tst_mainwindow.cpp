#include "listfixture.h"
#include "testmain.h"

#include "mainwin/ui/mainwindow.h"
#include "mainwin/twips.h"
#include "mainwin/ui/statusbar.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

QList<TestEntry> Entries(int count)
{
    QList<TestEntry> entries;
    for (int nr = 1; nr <= count; ++nr)
        entries.append({nr, u"Konrad Velten"_s, u"Die Rückkehr des Wanderers, Teil %1"_s.arg(nr), nr % 4, u"IV"_s,
                        nr % 3 == 0});
    return entries;
}

} // namespace

class TestMainWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void loadList()
    {
        TempCollection collection(u"Valdorin"_s, u"Taschenbücher"_s);
        collection.Add(Entries(12));
        collection.Exec(u"UPDATE HEFTLIST SET Zyklus=NULL WHERE Nr=12;"_s);
        MainWindow window;
        window.LoadList(collection.session);

        QCOMPARE(window.windowTitle(), u"HEFTARIUM: Valdorin (Taschenbücher)"_s);
        auto* heftliste = Child<QTableView>(window, u"fg_heftliste"_s);
        auto* filter = Child<QTableView>(window, u"fg_filter"_s);
        QCOMPARE(heftliste->model()->rowCount(), 12);
        QVERIFY(!heftliste->isHidden() && filter->isHidden());
        QCOMPARE(window.StatusPanelText(3), u"1/12"_s);
        QCOMPARE(window.List().Heftliste.TextMatrix(12, ColZyklus), u"? ? ?"_s); // no cycle stored
        QCOMPARE(window.StatusPanelText(5), u"Fertig und Bereit."_s);
        QCOMPARE(window.StatusPanelText(6), u"-"_s);

        // A double click on a column's right border fits the column to its
        // widest text.
        const EntryGrid& grid = window.List().Heftliste;
        int border = 0;
        for (int col = ColNr; col <= ColTitel; ++col)
            border += grid.ColPixelWidth(col);
        QTest::mouseDClick(heftliste->horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(border, 4));
        const int widest = QFontMetrics(grid.Font()).horizontalAdvance(u"Die Rückkehr des Wanderers, Teil 12"_s) + 8;
        QVERIFY2(qAbs(grid.ColPixelWidth(ColTitel) - widest) <= 1,
                 qPrintable(QString::number(grid.ColPixelWidth(ColTitel))));

        // Other windows remove entries through the session.
        collection.session.RemoveEntryRows(5);
        QCOMPARE(heftliste->model()->rowCount(), 11);
    }

    // What mouse and keys do in the list and the status bar: a header click
    // sorts by its column, a click on a cycle names its number, Enter and a
    // double click edit, the right button takes the row and opens the popup
    // menu.
    void gridMouseAndKeys()
    {
        TempCollection collection;
        collection.Add(Entries(5));
        MainWindow window;
        window.LoadList(collection.session);
        QStringList ran;
        for (const QString& name : {u"mnu_edit"_s, u"mnu_goto"_s, u"mnu_help"_s})
            window.SetCommandHandler(name, [&ran, name] { ran << name; });
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* view = Child<QTableView>(window, u"fg_heftliste"_s);
        const EntryGrid& grid = window.List().Heftliste;
        const auto cell = [view](int row, int col) { return view->visualRect(view->model()->index(row, col)).center(); };

        QHeaderView* header = view->horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(header->sectionViewportPosition(ColAuflage) + 4, 4));
        // A new column sorts downward first.
        QCOMPARE(NrColumn(grid), (QStringList{u"3"_s, u"2"_s, u"1"_s, u"5"_s, u"4"_s}));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, cell(1, ColZyklus));
        QCOMPARE(grid.ToolTip(), u"Zyklus = 4"_s);
        QCOMPARE(window.StatusPanelText(3), u"2/5"_s);

        QTest::keyClick(view, Qt::Key_Return);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, cell(2, ColTitel));
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, cell(2, ColTitel));
        QCOMPARE(ran, (QStringList{u"mnu_edit"_s, u"mnu_edit"_s}));

        // The lock panels only show their keys; the selection panel goes to
        // an entry, the status panel to the help.
        auto* bar = window.findChild<StatusBar*>();
        for (int panel : {1, 3, 5})
            QTest::mouseClick(bar->childAt(bar->PanelGeometry(panel).center()), Qt::LeftButton);
        QCOMPARE(ran.mid(2), (QStringList{u"mnu_goto"_s, u"mnu_help"_s}));

        QTest::mouseClick(view->viewport(), Qt::RightButton, {}, cell(4, ColTitel));
        QCOMPARE(grid.TextMatrix(grid.Row(), ColNr), u"4"_s);
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        QApplication::activePopupWidget()->close();
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
        QCOMPARE(NrColumn(list.Heftliste), (QStringList{u"1"_s, u"3"_s, u"5"_s}));

        // A new entry saved in filter mode takes the empty row.
        list.AddGridRow(7);
        QCOMPARE(NrColumn(list.Filter), QStringList{u"7"_s});
    }

    void deleteAsksAndRemoves()
    {
        TempCollection c;
        c.Add({{1, u"A"_s, u"Eins"_s}, {2, u"B"_s, u"Zwei"_s}, {3, u"C"_s, u"Drei"_s}});
        c.Exec(u"INSERT INTO Details (Nr, Untertitel) VALUES (2, 'weg');"_s);
        MainWindow window;
        window.LoadList(c.session);
        window.List().FindAndShowRow(2);
        // Commands whose windows are not part of the program yet stay off.
        QVERIFY(!window.Command(u"mnu_detail"_s)->isEnabled() && !window.Command(u"zykinfo"_s)->isEnabled());

        c.prompter.answers = {Answer::Cancel};
        window.Command(u"mnu_delete"_s)->trigger();
        QCOMPARE(c.prompter.asked.value(0).title, u"Sicherheits Rückfrage"_s);
        QCOMPARE(c.prompter.asked.value(0).text, u"Willst Du Ausgabe Nr. 2:\n\n\"Zwei\"\n\nwirklich löschen?\r"_s);
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM HEFTLIST;"_s).toInt(), 3);

        c.prompter.answers = {Answer::Ok};
        window.Command(u"delete"_s)->trigger();
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM HEFTLIST;"_s).toInt(), 2);
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM Details;"_s).toInt(), 0);
        QCOMPARE(window.List().Heftliste.Rows(), 3);
        QCOMPARE(window.List().FindAndShowRow(2), -1);
        window.DisableEntryCommands();
        QVERIFY(!window.Command(u"mnu_delete"_s)->isEnabled() && window.Command(u"mnu_Beenden"_s)->isEnabled());
    }

    void closingWritesThePlacement()
    {
        TempCollection c;
        c.Add({{1, u"A"_s, u"T"_s}});
        {
            MainWindow window;
            window.LoadList(c.session);
            // One entry is too few for a statistic.
            window.StatisticsClick([] { QFAIL("statistics over one entry"); });
            QCOMPARE(c.prompter.asked.value(0).title, u"Dezenter Hinweis"_s);
            window.resize(700, 500);
            window.close();
        }
        QVERIFY(!c.session.CollectionDb);
        QFile log(c.session.log.Path());
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(log.readAll());
        QVERIFY2(text.contains(u"\r\n[Konfig]\r\nFB=%1\r\nFH=%2\r\n"_s.arg(PixelsToTwips(700)).arg(PixelsToTwips(500))),
                 qPrintable(text));
    }

};

HEFT_TEST(TestMainWindow)
#include "tst_mainwindow.moc"
