// frm_filter on a real collection: when btn_ausf may run, a refused cycle
// value, runs that find nothing; and the filter mode of the main window it
// starts, ended by the same command, with the full list kept as it was.

#include "testmain.h"
#include "testsupport.h"

#include "filter/ui/filterdialog.h"
#include "filter/ui/filtermode.h"
#include "mainwin/listfixture.h"
#include "mainwin/ui/mainwindow.h"
#include "mainwin/ui/statusbar.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

struct OpenDialog {
    explicit OpenDialog(const QString& series = u"Valdorin"_s) : collection(series)
    {
        collection.Add({{1, u"Ada Quell"_s, u"Der Sonnenwächter"_s, 1, u"I"_s},
                        {2, u"Bert Lohmann"_s, u"Nacht über Kelvar"_s, 2, u"I"_s},
                        {3, u"Ada Quell"_s, u"Die gläserne Stadt"_s},
                        {4, u"Cora Wendt"_s, u"Sonnenfeuer"_s}});
        collection.Exec(u"INSERT INTO Status (Nr, ENum, StatusWert) "
                        "VALUES (1, 3, 'mäßig'), (2, 3, 'gut'), (3, 3, ' ');"_s);
        window.LoadList(collection.session);
        dialog.emplace(window, state);
        dialog->show();
    }
    template <typename T = QWidget> T* Find(const QString& name) { return dialog->findChild<T*>(name); }
    QPushButton* Ausf() { return Find<QPushButton>(u"btn_ausf"_s); }
    // Empty while no control has the focus, so that a check fails instead of crashing.
    QString Focus() { return dialog->focusWidget() ? dialog->focusWidget()->objectName() : QString(); }

    // User steps: "0:field=Autor" picks a field in row 0, "1:ver=ÄHNLICH",
    // "0:logic=UND" pick from the other lists, "0:type=12" types.
    void Apply(const QStringList& steps)
    {
        for (const QString& step : steps) {
            const QString row = step.left(1);
            const QString what = step.mid(2).section(u'=', 0, 0);
            const QString value = step.section(u'=', 1);
            if (what == u"type") {
                QTest::keyClicks(Find<QLineEdit>(u"txt_1"_s + row), value);
                continue;
            }
            auto* list = Find<QComboBox>(u"cmb_"_s + (what == u"field" ? u"choose"_s : what) + row);
            QVERIFY2(list && list->findText(value) >= 0, qPrintable(step));
            list->setCurrentIndex(list->findText(value));
        }
    }

    TempCollection collection;
    MainWindow window;
    FilterState state;
    std::optional<FilterDialog> dialog;
};

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

void CheckCommands(FilterWindow& f, bool filterOn)
{
    QCOMPARE(f.Command(u"filter"_s)->isChecked(), filterOn);
    QCOMPARE(f.Command(u"mnu_filter"_s)->isChecked(), filterOn);
    QCOMPARE(f.Command(u"mnu_filter"_s)->text(), filterOn ? u"&Filter"_s : u"&Filter ..."_s);
    QCOMPARE(f.Command(u"import"_s)->isEnabled(), !filterOn);
    QCOMPARE(f.Command(u"mnu_import"_s)->isEnabled(), !filterOn);
}

} // namespace

class TestFilterDialog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // btn_ausf follows the text boxes, and the field of row 0 alone says
    // whether a blank text will do, for every row.
    void enabling_data()
    {
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("number, nothing typed") << QStringList() << false;
        QTest::newRow("number typed, then erased") << QStringList{u"0:type=1"_s, u"0:type=\b"_s} << false;
        QTest::newRow("letters refused in a number") << QStringList{u"0:type=x"_s} << false;
        QTest::newRow("cycle takes roman letters only") << QStringList{u"0:field=Zyklus"_s, u"0:type=q"_s} << false;
        QTest::newRow("cycle typed roman") << QStringList{u"0:field=Zyklus"_s, u"0:type=iv"_s} << true;
        QTest::newRow("blank remark, blank number")
            << QStringList{u"0:field=Bemerkung"_s, u"0:logic=UND"_s, u"1:field=Nr"_s} << true;
        QTest::newRow("number, blank number") << QStringList{u"0:type=12"_s, u"0:logic=ODER"_s} << false;
        QTest::newRow("number, typed number")
            << QStringList{u"0:type=12"_s, u"0:logic=ODER"_s, u"1:type=7"_s} << true;
        QTest::newRow("number, blank number, rows closed again")
            << QStringList{u"0:type=12"_s, u"0:logic=UND"_s, u"0:logic=Keine"_s} << true;
        const QStringList authorLike = {u"0:field=Autor"_s, u"0:ver=ÄHNLICH"_s};
        QTest::newRow("author like, nothing typed") << authorLike << false;
        QTest::newRow("author like, typed") << authorLike + QStringList{u"0:type=Q"_s} << true;
        QTest::newRow("list, yes/no and date fields need no typing")
            << QStringList{u"0:field=Auflage"_s, u"0:logic=UND"_s, u"1:field=Gelesen"_s, u"1:logic=ODER"_s,
                           u"2:field=Datum"_s}
            << true;
    }
    void enabling()
    {
        QFETCH(QStringList, steps);
        QFETCH(bool, enabled);
        OpenDialog open;
        open.Apply(steps);
        QCOMPARE(open.Ausf()->isEnabled(), enabled);
        QCOMPARE(open.dialog->IsFilterComplete(), enabled);
    }

    // A refused cycle value sends the focus back to its box, and the release
    // of the Enter that ran the command must not send it on again; the
    // corrected value then runs.
    void refusedCycleValue()
    {
        OpenDialog open;
        open.Apply({u"0:field=Zyklus"_s, u"0:type=0"_s});
        auto* box = open.Find<QLineEdit>(u"txt_10"_s);
        open.Ausf()->setFocus();
        QTest::keyPress(open.Ausf(), Qt::Key_Return);
        QCOMPARE(box->text(), u"- - -"_s);
        QTest::keyRelease(box, Qt::Key_Return);
        QCOMPARE(open.Focus(), u"txt_10"_s);
        QVERIFY(open.dialog->isVisible());

        QTest::keyClick(box, Qt::Key_Return);
        QTest::keyPress(open.Ausf(), Qt::Key_Return);
        QCOMPARE(open.dialog->result(), int(QDialog::Accepted));
        QCOMPARE(open.window.List().Filter.Rows() - 1, 2);
    }

    // Enter goes from a row's value to its join word and, on "Keine" or in
    // the last row or an archive box, to btn_ausf, where it runs the filter.
    void enterMovesOn()
    {
        OpenDialog open;
        open.Apply({u"0:field=Auflage"_s, u"0:logic=UND"_s, u"1:field=Auflage"_s});
        for (const QString& step : {u"txt_archiv1>btn_ausf"_s, u"cmb_aufl0>cmb_logic0"_s, u"cmb_logic1>btn_ausf"_s,
                                    u"cmb_aufl1>cmb_logic1"_s, u"1:logic=UND"_s, u"2:field=Auflage"_s,
                                    u"cmb_aufl2>btn_ausf"_s}) {
            if (step.contains(u'=')) {
                open.Apply({step});
                continue;
            }
            QTest::keyClick(open.Find(step.section(u'>', 0, 0)), Qt::Key_Return);
            QCOMPARE(open.Focus(), step.section(u'>', 1));
        }
        QTest::keyClick(open.Ausf(), Qt::Key_Return);
        QCOMPARE(open.dialog->result(), int(QDialog::Accepted));
    }

    // Nothing found, or a condition the database refuses: the message, and
    // the dialog and the main window stay as they were.
    void emptyResult_data()
    {
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("no such number") << QStringList{u"0:type=999"_s} << u"Nummer = 999 "_s;
        QTest::newRow("blank number after a blank remark")
            << QStringList{u"0:field=Bemerkung"_s, u"0:logic=UND"_s, u"1:field=Nr"_s}
            << u"Bemerkung = <LEER> UND Nummer = <LEER> "_s;
    }
    void emptyResult()
    {
        QFETCH(QStringList, steps);
        OpenDialog open;
        EntryList& list = open.window.List();
        list.SortByColumn(ColTitel);
        list.FindAndShowRow(4);
        const QString selection = open.window.StatusPanelText(3);
        open.Apply(steps);
        open.Ausf()->click();

        QCOMPARE(open.collection.prompter.asked.size(), 1);
        const Message& message = open.collection.prompter.asked[0];
        QCOMPARE(message.title, u"Keine Einträge vorhanden"_s);
        QCOMPARE(message.text, u"Zu den gegebenen Filter-Kriterien konnten\rin der Datenbank leider keine "
                               "Einträge\rgefunden werden."_s);
        QVERIFY(open.dialog->isVisible());
        QCOMPARE(open.Focus(), u"cmb_choose0"_s);
        QTEST(open.state.FilterText, "sentence");

        QVERIFY(!open.window.IsFilterMode());
        QVERIFY(list.Heftliste.Visible());
        QCOMPARE(list.SortColumn, int(ColTitel));
        QCOMPARE(open.window.StatusPanelText(3), selection);
    }

    // The toolbar button starts and ends a filter; the menu item does the
    // same in the test after this one.
    void runAndEnd()
    {
        FilterWindow f;
        {
            // Closed without a run, the window leaves the commands as they were.
            ModalScript cancelled(u"frm_filter"_s);
            cancelled.Then([](QDialog& dialog) { dialog.reject(); });
            f.Command(u"filter"_s)->trigger();
            CheckCommands(f, false);
        }
        EntryList& list = f.List();
        list.Heftliste.SetColWidth(ColTitel, 4321);
        f.RunFilter();

        QVERIFY(f.window.IsFilterMode());
        QVERIFY(list.Filter.Visible() && !list.Heftliste.Visible());
        QCOMPARE(NrColumn(list.Filter), (QStringList{u"1"_s, u"3"_s, u"5"_s}));
        QCOMPARE(list.Filter.ColWidth(ColTitel), 4321);
        QCOMPARE(f.window.StatusPanelText(5), u"Fertig und Bereit [Filter ist AKTIV]."_s);
        CheckCommands(f, true);

        // A click on the filter panel shows the condition in force.
        ModalScript shown(u"frm_smfilter"_s);
        QString condition;
        shown.Then([&](QDialog& dialog) {
            condition = Child<QPlainTextEdit>(dialog, u"txt_filter"_s)->toPlainText();
            dialog.reject();
        });
        auto* bar = f.window.findChild<StatusBar*>();
        QTest::mouseClick(bar->childAt(bar->PanelGeometry(6).center()), Qt::LeftButton);
        QCOMPARE(condition, u"Autor = 'Ada Quell' "_s);

        f.Command(u"filter"_s)->trigger();
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
        FilterWindow f;
        EntryList& list = f.List();
        list.SortByColumn(ColTitel);
        list.FindAndShowRow(1);
        f.RunFilter(u"mnu_filter"_s);

        list.Heftliste.Model().SetText(list.Heftliste.Model().FindNr(5), ColTitel, u"Zauberwald"_s);
        list.ResortOnReturn = resort;
        list.Filter.SetColWidth(ColAutor, 2222);
        if (filterRow > 0)
            list.Filter.SetRow(filterRow);
        else
            list.Filter.Model().Reset(std::vector<EntryCells>(1));
        f.Command(u"mnu_filter"_s)->trigger();

        QCOMPARE(list.ActiveGrid, &list.Heftliste);
        QCOMPARE(list.SortColumn, int(ColTitel));
        QVERIFY(list.SortDescending);
        QTEST(NrColumn(list.Heftliste), "order");
        QTEST(list.Heftliste.TextMatrix(list.Heftliste.Row(), ColNr), "current");
        QCOMPARE(list.Heftliste.ColWidth(ColAutor), 2222);
        QCOMPARE(NrColumn(list.Filter), QStringList{QString()});
    }
};

HEFT_TEST(TestFilterDialog)
#include "tst_filterdialog.moc"
