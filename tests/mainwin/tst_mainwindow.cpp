#include "listfixture.h"
#include "testmain.h"

#include "mainwin/ui/entrygridview.h"
#include "mainwin/ui/mainwindow.h"
#include "mainwin/twips.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

QList<TestEntry> Entries(int count)
{
    static const QStringList authors{u"Konrad Velten"_s, u"Egon Valtin"_s, u"Hella Kornmann"_s, u"Claas Dorwig"_s};
    static const QStringList cycles{u"I"_s, u"II"_s, u"IV"_s, u"- - -"_s, u"XII"_s};
    QList<TestEntry> entries;
    for (int nr = 1; nr <= count; ++nr)
        entries.append({nr, authors[nr % authors.size()], u"Die Rückkehr des Wanderers, Teil %1"_s.arg(nr), nr % 4,
                        cycles[nr % cycles.size()], nr % 3 == 0, nr % 7 == 0 ? u"Erstauflage, Umschlag leicht berieben"_s : QString()});
    return entries;
}

QPoint CellCenter(QTableView* view, int row, int col)
{
    return view->visualRect(view->model()->index(row, col)).center();
}

} // namespace

class TestMainWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void loadList()
    {
        TempCollection collection(u"Valdorin"_s, u"Taschenbücher"_s);
        collection.Add(Entries(12));
        MainWindow window;
        window.LoadList(collection.session);

        QCOMPARE(window.objectName(), u"frm_heftarium"_s);
        QCOMPARE(window.windowTitle(), u"HEFTARIUM: Valdorin (Taschenbücher)"_s);
        auto* heftliste = window.findChild<QTableView*>(u"fg_heftliste"_s);
        auto* filter = window.findChild<QTableView*>(u"fg_filter"_s);
        QVERIFY(heftliste && filter);
        QCOMPARE(heftliste->model()->rowCount(), 12);
        QVERIFY(!heftliste->isHidden());
        QVERIFY(filter->isHidden());
        QCOMPARE(window.StatusPanelText(3), u"1/12"_s);
        QCOMPARE(window.StatusPanelText(5), u"Fertig und Bereit."_s);
        QCOMPARE(window.StatusPanelText(6), u"-"_s);
        QVERIFY(window.findChild<QProgressBar*>(u"pbar_load"_s)->isHidden());
        QCOMPARE(window.findChild<QTimer*>(u"tim_sgrid"_s)->interval(), 1000);
        QCOMPARE(window.List().LowestNr, 1);
        QCOMPARE(window.List().HighestNr, 12);
        QVERIFY(!collection.session.SharedRecordset.IsOpen());
        QCOMPARE(window.minimumSize(), QSize(TwipsToPixels(6000), TwipsToPixels(2500)));

        // Other windows remove entries through the session.
        collection.session.RemoveEntryRows(5);
        QCOMPARE(heftliste->model()->rowCount(), 11);
    }

    void statusPanels_data()
    {
        QTest::addColumn<int>("panel");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("selection") << 3 << u"4/10"_s << u"4/10"_s << u"Mausklick = Gehe zu ..."_s;
        QTest::newRow("progress panel keeps its text") << 4 << u"x"_s << u"- - - - -"_s << QString();
        QTest::newRow("filter on") << 6 << u"F"_s << u"F"_s << u"Mausklick = FILTER anzeigen"_s;
        QTest::newRow("filter off") << 6 << u"-"_s << u"-"_s << u"Filter: KEINER"_s;
    }
    void statusPanels()
    {
        QFETCH(int, panel);
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QFETCH(QString, toolTip);
        MainWindow window;
        window.SetStatusPanel(panel, text);
        const auto* label = window.findChild<QLabel*>(u"sbar_panel%1"_s.arg(panel));
        QCOMPARE(label->text(), shown);
        QCOMPARE(label->toolTip(), toolTip);
    }

    void gridEvents()
    {
        TempCollection collection;
        collection.Add(Entries(30));
        MainWindow window;
        window.resize(900, 600);
        window.LoadList(collection.session);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* view = window.findChild<QTableView*>(u"fg_heftliste"_s);
        const EntryGrid& grid = window.List().Heftliste;

        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, CellCenter(view, 3, ColTitel));
        QCOMPARE(grid.Row(), 4);
        QCOMPARE(window.StatusPanelText(3), u"4/30"_s);
        QCOMPARE(window.List().SelectedNr, 4);
        QVERIFY(window.findChild<QTimer*>(u"tim_sgrid"_s)->isActive());

        // A header click sorts "Nr" downward and keeps entry 4 in sight.
        QHeaderView* header = view->horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(ColNr) + 5, header->height() / 2));
        QCOMPARE(grid.TextMatrix(1, ColNr), u"30"_s);
        QCOMPARE(grid.TextMatrix(grid.Row(), ColNr), u"4"_s);
        QCOMPARE(view->currentIndex().row(), grid.Row() - 1);
        QVERIFY(view->rowViewportPosition(grid.Row() - 1) >= 0);
        QVERIFY(view->rowViewportPosition(grid.Row() - 1) < view->viewport()->height());

        // Enter and a double click open the editor; it is closed again as
        // soon as it shows, and so is the pop-up menu.
        QStringList opened;
        QTimer closer;
        connect(&closer, &QTimer::timeout, this, [&] {
            for (QWidget* shown : {QApplication::activeModalWidget(), QApplication::activePopupWidget()})
                if (shown) {
                    opened << shown->objectName();
                    shown->close();
                }
        });
        closer.start(20);
        QSignalSpy edits(&window, &MainWindow::EditRequested);
        QSignalSpy popups(&window, &MainWindow::PopupRequested);
        QTest::keyClick(view, Qt::Key_Return);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, CellCenter(view, 2, ColAutor));
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, CellCenter(view, 2, ColAutor));
        QCOMPARE(edits.size(), 2);
        QCOMPARE(opened, (QStringList{u"frm_edit"_s, u"frm_edit"_s}));
        QTest::mouseClick(view->viewport(), Qt::RightButton, {}, CellCenter(view, 6, ColAutor));
        QCOMPARE(popups.size(), 1);
        QTRY_COMPARE(opened.size(), 3);
        QCOMPARE(opened.last(), u"mnu_bearbeiten"_s);
        closer.stop();
        QCOMPARE(grid.Row(), 7);

        // The cycle tooltip of a click on column 4 goes to the grid.
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, CellCenter(view, 3, ColZyklus));
        QCOMPARE(view->toolTip(), u"Zyklus = 4"_s); // entry 27 has cycle IV
    }

    void emptyFilterListIgnoresCommands()
    {
        TempCollection collection;
        collection.Add(Entries(3));
        MainWindow window;
        window.LoadList(collection.session);
        EntryList& list = window.List();
        collection.session.SharedRecordset = collection.session.CollectionDb->Select(u"SELECT * FROM HEFTLIST WHERE Nr=2;"_s);
        list.ActiveGrid = &list.Filter;
        list.SetupGridColumns();
        list.FillGrid(collection.session);
        list.ShowFilterGrid(true);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        list.RemoveEntryRows(2);

        auto* view = window.findChild<QTableView*>(u"fg_filter"_s);
        QVERIFY(view->isVisible());
        QSignalSpy edits(&window, &MainWindow::EditRequested);
        QSignalSpy popups(&window, &MainWindow::PopupRequested);
        QTest::keyClick(view, Qt::Key_Return);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, CellCenter(view, 0, ColAutor));
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, CellCenter(view, 0, ColAutor));
        QTest::mouseClick(view->viewport(), Qt::RightButton, {}, CellCenter(view, 0, ColAutor));
        QCOMPARE(edits.size(), 0);
        QCOMPARE(popups.size(), 0);
        QCOMPARE(window.List().Heftliste.Rows(), 3);
    }

    // A look at the window with a list of realistic size; the picture is
    // for the eye (/tmp/mainwin.png), the checks for the layout.
    void screenshot()
    {
        TempCollection collection;
        collection.session.CollectionDb->BeginBulk();
        collection.Add(Entries(2500));
        collection.session.CollectionDb->EndBulk();
        MainWindow window;
        window.LoadList(collection.session);
        window.resize(1000, 640);
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.List().FindAndShowRow(1234);
        QTest::qWait(50);
        auto* view = window.findChild<QTableView*>(u"fg_heftliste"_s);
        QVERIFY(view->mapTo(&window, view->rect().bottomLeft()).y() < window.statusBar()->geometry().top());
        QVERIFY(view->horizontalHeader()->length() <= view->viewport()->width() + 1);
        window.grab().save(u"/tmp/mainwin.png"_s);
    }
};

HEFT_TEST(TestMainWindow)
#include "tst_mainwindow.moc"
