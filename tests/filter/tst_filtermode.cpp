// Filter mode of the main window: started from the toolbar button or the
// menu through frm_filter, ended by the same command, with the full list kept
// as it was.

#include "mainwin/listfixture.h"
#include "testmain.h"

#include "filter/ui/filtermode.h"
#include "mainwin/ui/mainwindow.h"

#include <QAction>
#include <QComboBox>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

// The window with its filter command, and import switched on as the
// program has it.
struct FilterWindow {
    FilterWindow()
    {
        collection.Add({{1, u"Ada Quell"_s, u"Der Sonnenwächter"_s},
                        {2, u"Bert Lohmann"_s, u"Nacht über Kelvar"_s},
                        {3, u"Ada Quell"_s, u"Die gläserne Stadt"_s},
                        {4, u"Cora Wendt"_s, u"Sonnenfeuer"_s},
                        {5, u"Ada Quell"_s, u"Das Echo von Tarsis"_s}});
        window.SetCommandHandler(u"mnu_import"_s, [] {});
        window.LoadList(collection.session);
        for (const QString& name : {u"mnu_import"_s, u"import"_s})
            window.Command(name)->setEnabled(true);
        InstallFilterMode(window);
    }
    EntryList& List() { return window.List(); }
    QAction* Command(const QString& name) { return window.Command(name); }
    // The filter "Autor IST Ada Quell" through the command of that name.
    void RunFilter(const QString& command = u"filter"_s)
    {
        ModalScript run(u"frm_filter"_s);
        run.Then([](QDialog& dialog) {
            auto* field = dialog.findChild<QComboBox*>(u"cmb_choose0"_s);
            field->setCurrentIndex(field->findText(u"Autor"_s));
            dialog.findChild<QPushButton*>(u"btn_ausf"_s)->click();
        });
        Command(command)->trigger();
        QCOMPARE(run.opened, 1);
        QVERIFY(!run.leftOpen);
    }

    TempCollection collection;
    MainWindow window;
};

// The commands as filter mode leaves them: button, menu item and import.
void CheckCommands(FilterWindow& f, bool filterOn)
{
    QCOMPARE(f.Command(u"filter"_s)->isChecked(), filterOn);
    QCOMPARE(f.Command(u"mnu_filter"_s)->isChecked(), filterOn);
    QCOMPARE(f.Command(u"mnu_filter"_s)->text(), filterOn ? u"&Filter"_s : u"&Filter ..."_s);
    QCOMPARE(f.Command(u"import"_s)->isEnabled(), !filterOn);
    QCOMPARE(f.Command(u"mnu_import"_s)->isEnabled(), !filterOn);
}

void AddCommandColumn()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("toolbar button") << u"filter"_s;
    QTest::newRow("menu") << u"mnu_filter"_s;
}

} // namespace

class TestFilterMode : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // The same command starts and ends a filter, from the toolbar button
    // and from the menu alike.
    void runAndEnd_data() { AddCommandColumn(); }
    void runAndEnd()
    {
        QFETCH(QString, command);
        FilterWindow f;
        EntryList& list = f.List();
        list.Heftliste.SetColWidth(ColTitel, 4321);
        f.RunFilter(command);

        QVERIFY(f.window.IsFilterMode());
        QVERIFY(list.Filter.Visible() && !list.Heftliste.Visible());
        QCOMPARE(NrColumn(list.Filter), (QStringList{u"1"_s, u"3"_s, u"5"_s}));
        QCOMPARE(list.Filter.ColWidth(ColTitel), 4321);
        QCOMPARE(f.window.StatusPanelText(5), u"Fertig und Bereit [Filter ist AKTIV]."_s);
        CheckCommands(f, true);
        QCOMPARE(FilterStateOf(f.window)->FilterText, u"Autor = 'Ada Quell' "_s);

        f.Command(command)->trigger();
        QVERIFY(!f.window.IsFilterMode());
        QVERIFY(list.Heftliste.Visible() && !list.Filter.Visible());
        QCOMPARE(f.window.StatusPanelText(5), u"Fertig und Bereit."_s);
        CheckCommands(f, false);
        // The sentence outlives the filter, for the heads of prints.
        QCOMPARE(FilterStateOf(f.window)->FilterText, u"Autor = 'Ada Quell' "_s);
    }

    // Back in the full list: its sort, the entry chosen in the filter list,
    // and the column widths of the filter list.
    void endKeepsTheEntryAndTheSort_data()
    {
        QTest::addColumn<int>("filterRow");
        QTest::addColumn<bool>("resort");
        QTest::addColumn<QStringList>("order");
        QTest::addColumn<QString>("current");
        // Sorted by title, downwards; entry 5 is retitled "Zauberwald" while
        // the filter is on.
        const QStringList sorted = {u"4"_s, u"2"_s, u"3"_s, u"1"_s, u"5"_s};
        QTest::newRow("entry 3 chosen") << 2 << false << sorted << u"3"_s;
        QTest::newRow("entry 5 chosen, list to be sorted again")
            << 3 << true << QStringList{u"5"_s, u"4"_s, u"2"_s, u"3"_s, u"1"_s} << u"5"_s;
        QTest::newRow("filter list ran empty") << 0 << false << sorted << u"1"_s;
    }
    void endKeepsTheEntryAndTheSort()
    {
        QFETCH(int, filterRow);
        QFETCH(bool, resort);
        QFETCH(QStringList, order);
        QFETCH(QString, current);
        FilterWindow f;
        EntryList& list = f.List();
        list.SortByColumn(ColTitel);
        list.FindAndShowRow(1);
        f.RunFilter();

        list.Heftliste.Model().SetText(list.Heftliste.Model().FindNr(5), ColTitel, u"Zauberwald"_s);
        list.ResortOnReturn = resort;
        list.Filter.SetColWidth(ColAutor, 2222);
        if (filterRow > 0)
            list.Filter.SetRow(filterRow);
        else
            list.Filter.Model().Reset(std::vector<EntryCells>(1));
        f.Command(u"filter"_s)->trigger();

        QCOMPARE(list.ActiveGrid, &list.Heftliste);
        QCOMPARE(list.SortColumn, int(ColTitel));
        QVERIFY(list.SortDescending);
        QCOMPARE(NrColumn(list.Heftliste), order);
        QCOMPARE(list.Heftliste.TextMatrix(list.Heftliste.Row(), ColNr), current);
        QCOMPARE(list.Heftliste.ColWidth(ColAutor), 2222);
        QCOMPARE(NrColumn(list.Filter), QStringList{QString()});
    }
};

HEFT_TEST(TestFilterMode)
#include "tst_filtermode.moc"
