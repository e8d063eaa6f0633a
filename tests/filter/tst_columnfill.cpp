// The column fill over a real filter list in the main window: both lists
// and the collection change, the sorts survive, stamps are written, the
// cycle is refused once, and Esc stops a fill at the next row.

#include "mainwin/listfixture.h"
#include "testmain.h"

#include "filter/columnfill.h"
#include "filter/ui/columnfilldialog.h"
#include "filter/ui/filtermode.h"
#include "filter/filterrun.h"
#include "mainwin/ui/mainwindow.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

const QString Finished = u"Fertig und Bereit [Filter ist AKTIV]."_s;

// The main window over `count` entries by two authors, in filter mode on
// the odd numbers, which Ada Quell wrote. Every entry starts with values
// that no fill below writes.
struct FillWindow {
    explicit FillWindow(int count = 8)
    {
        const QStringList titles{u"Nebelhafen"_s, u"Glutwüste"_s, u"Aschefeld"_s, u"Sternenriff"_s,
                                 u"Kaltes Licht"_s, u"Bernsteinmond"_s, u"Eisenwald"_s, u"Dunkle Flut"_s};
        QList<TestEntry> entries;
        for (int nr = 1; nr <= count; ++nr)
            entries << TestEntry(nr, nr % 2 ? u"Ada Quell"_s : u"Bert Lohmann"_s, titles[(nr - 1) % 8], 1, u"II"_s,
                                 false, u"alt"_s);
        collection.Add(entries);
        collection.session.ActiveCaption = [] {
            const QWidget* modal = QApplication::activeModalWidget();
            return modal ? modal->windowTitle() : QString();
        };
        window.LoadList(collection.session);
        InstallFilterMode(window);
    }
    EntryList& List() { return window.List(); }
    // What the filter window does before and after its run.
    void EnterFilter()
    {
        EntryList& list = List();
        list.SavedSortColumn = list.SortColumn;
        list.SavedSortDescending = list.SortDescending;
        list.ResortOnReturn = false;
        QVERIFY(RunFilterStatement(collection.session, list,
                                   u"SELECT * FROM HEFTLIST WHERE Autor='Ada Quell' ORDER BY Nr;"_s) > 0);
        list.ShowFilterGrid(true);
    }
    int Stamps(const QString& where)
    {
        return collection.Value(u"SELECT COUNT(*) FROM Status WHERE ENum=1 AND "_s + where).toInt();
    }

    TempCollection collection;
    MainWindow window;
};

// Chooses the target and puts the value into whichever input it shows;
// into txt_1 it is typed, through the key filter.
void SetValue(QWidget& dialog, const QString& label, const QString& value)
{
    auto* choose = Child<QComboBox>(dialog, u"cmb_choose"_s);
    choose->setCurrentIndex(choose->findText(label));
    if (auto* text = Child<QLineEdit>(dialog, u"txt_1"_s); text->isVisibleTo(&dialog))
        QTest::keyClicks(text, value);
    else if (auto* free = Child<QComboBox>(dialog, u"cmb_univf"_s); free->isVisibleTo(&dialog))
        free->setEditText(value);
    for (const QString& name : {u"cmb_aufl"_s, u"cmb_gel"_s}) {
        if (auto* list = Child<QComboBox>(dialog, name); list->isVisibleTo(&dialog))
            list->setCurrentIndex(list->findText(value));
    }
}

} // namespace

class TestColumnFill : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void gridTargets_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("cell");
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("stored");
        QTest::newRow("Auflage -3-") << u"Auflage"_s << u"-3-"_s << u"3"_s << u"Auflage"_s << u"3"_s;
        QTest::newRow("Zyklus from a number") << u"Zyklus"_s << u"12"_s << u"XII"_s << u"Zyklus"_s << u"XII"_s;
        QTest::newRow("Zyklus 0, refused once") << u"Zyklus"_s << u"0"_s << u"- - -"_s << u"Zyklus"_s << u"- - -"_s;
        QTest::newRow("Bemerkung, quoted")
            << u"Bemerkung"_s << u"Kim's Fund %1"_s << u"Kim's Fund %1"_s << u"Bemerkung"_s << u"Kim's Fund %1"_s;
    }

    // Both lists sorted otherwise: the filter list by title, the full list
    // by author. The fill must reach the right rows of both.
    void gridTargets()
    {
        QFETCH(QString, label);
        QFETCH(QString, value);
        QFETCH(QString, cell);
        QFETCH(QString, column);
        QFETCH(QString, stored);
        FillWindow f;
        EntryList& list = f.List();
        list.SortByColumn(ColAutor);
        f.EnterFilter();
        list.SortByColumn(ColTitel);
        const QStringList filterOrder = NrColumn(list.Filter);

        ColumnFillDialog dialog(f.window);
        dialog.show();
        SetValue(dialog, label, value);
        // Enter in the input goes on to btn_ok rather than filling; Enter
        // there fills.
        auto* ok = Child<QPushButton>(dialog, u"btn_ok"_s);
        QTest::keyClick(Child<QWidget>(dialog, label == u"Auflage" ? u"cmb_aufl"_s : u"txt_1"_s), Qt::Key_Return);
        QCOMPARE(dialog.focusWidget(), ok);
        QTest::keyClick(ok, Qt::Key_Return);
        if (value == u"0"_s) {
            // "- - -" stands in the box, whose Enter is not passed on; the
            // next press writes it.
            QTest::keyRelease(Child<QWidget>(dialog, u"txt_1"_s), Qt::Key_Return);
            QCOMPARE(dialog.focusWidget()->objectName(), u"txt_1"_s);
            QTest::keyClick(ok, Qt::Key_Return);
        }

        QCOMPARE(NrColumn(list.Filter), filterOrder);
        QCOMPARE(NrColumn(list.Heftliste),
                 (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s}));
        QVERIFY(list.ResortOnReturn);
        const int col = FillTargetAt(Child<QComboBox>(dialog, u"cmb_choose"_s)->currentIndex()).gridColumn;
        for (int row = 1; row <= 4; ++row)
            QCOMPARE(list.Filter.TextMatrix(row, col), cell);
        for (int nr = 1; nr <= 8; ++nr) {
            const bool filtered = nr % 2 == 1;
            QCOMPARE(list.Heftliste.TextMatrix(nr, col) == cell, filtered);
            const QString inDb =
                f.collection.Value(u"SELECT %1 FROM HEFTLIST WHERE Nr=%2;"_s.arg(column).arg(nr)).toString();
            QCOMPARE(inDb == stored, filtered);
        }
        QCOMPARE(f.Stamps(u"Nr IN (1, 3, 5, 7);"_s), 4);
        QCOMPARE(f.Stamps(u"Nr IN (2, 4, 6, 8);"_s), 0);
    }

    void statusTargets_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown"); // txt_1 after the fill
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("before"); // what the entries outside the filter keep
        const QString price = u"SELECT StatusWert FROM Status WHERE ENum=5 AND Nr=%1;"_s;
        QTest::newRow("price") << u"Preis"_s << u"2.5"_s << u"2.5"_s << price << u"00002.5"_s << u"0000010"_s;
        QTest::newRow("empty box empties") << u"Preis"_s << QString() << QString() << price << QString()
                                           << u"0000010"_s;
        QTest::newRow("text trimmed") << u"Lagerort"_s << u" Regal %1 "_s << QString()
                                      << u"SELECT StatusWert FROM Status WHERE ENum=7 AND Nr=%1;"_s << u"Regal %1"_s
                                      << QString();
        // The value is not quoted: the insert fails after the delete, and
        // the stamps are written all the same.
        QTest::newRow("apostrophe fails quietly") << u"Genre"_s << u"Kim's Saga"_s << QString()
                                                  << u"SELECT StatusWert FROM Status WHERE ENum=13 AND Nr=%1;"_s
                                                  << QString() << u"alt"_s;
        QTest::newRow("Gestaltung, insert or update")
            << u"TiBiZeichner"_s << u"Ina Roth"_s << QString()
            << u"SELECT TiBiZeichner FROM Gestaltung WHERE Nr=%1;"_s << u"Ina Roth"_s << QString();
    }

    void statusTargets()
    {
        QFETCH(QString, label);
        QFETCH(QString, typed);
        QFETCH(QString, query);
        QFETCH(QString, stored);
        QFETCH(QString, before);
        FillWindow f;
        for (int nr = 1; nr <= 8; ++nr)
            f.collection.Exec(u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (%1, 5, '0000010'), "
                              "(%1, 13, 'alt');"_s.arg(nr));
        f.collection.Exec(u"INSERT INTO Gestaltung (Nr, TiBiZeichner) VALUES (3, 'Ole Brandt');"_s);
        f.EnterFilter();

        ColumnFillDialog dialog(f.window);
        dialog.show();
        SetValue(dialog, label, typed);
        Child<QPushButton>(dialog, u"btn_ok"_s)->click();

        if (auto* text = Child<QLineEdit>(dialog, u"txt_1"_s); text->isVisibleTo(&dialog))
            QTEST(text->text(), "shown");
        for (int nr = 1; nr <= 8; ++nr)
            QCOMPARE(f.collection.Value(query.arg(nr)).toString(), nr % 2 == 1 ? stored : before);
        QCOMPARE(f.Stamps(u"Nr IN (1, 3, 5, 7);"_s), 4);
        QCOMPARE(f.collection.Value(u"SELECT COUNT(*) FROM Status WHERE ENum=5;"_s).toInt(), 8);
        QVERIFY(f.collection.prompter.asked.isEmpty());
    }

    // Opened by "insert" in the filter list. Esc during the fill stops it
    // after the row in work, the window stays open and ends the run as
    // usual; a second Esc closes it.
    void escapeStopsFill()
    {
        FillWindow f(60);
        f.EnterFilter();
        bool opened = false, openAfterEsc = false, closedBySecondEsc = false, progressHidden = false;
        QString status;
        QTimer::singleShot(0, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            opened = dialog && dialog->objectName() == u"frm_insertfill" &&
                     dialog->windowTitle() == u"Spalte füllen mit ...";
            if (!opened)
                return;
            SetValue(*dialog, u"Gelesen"_s, u"Ja"_s);
            QTimer::singleShot(0, [dialog] { QTest::keyClick(dialog, Qt::Key_Escape); });
            Child<QPushButton>(*dialog, u"btn_ok"_s)->click();
            openAfterEsc = dialog->isVisible();
            status = f.window.StatusPanelText(5);
            progressHidden = !f.window.findChild<QProgressBar*>(u"pbar_load"_s)->isVisible();
            QTest::keyClick(dialog, Qt::Key_Escape);
            closedBySecondEsc = !dialog->isVisible();
        });
        f.window.Command(u"mnu_insert"_s)->trigger();

        QVERIFY(opened);
        QVERIFY(openAfterEsc);
        QCOMPARE(status, Finished);
        QVERIFY(progressHidden);
        QVERIFY(closedBySecondEsc);
        // The walk starts at the last row: only entry 59 was done.
        QCOMPARE(f.collection.Value(u"SELECT Nr FROM HEFTLIST WHERE GL<>0;"_s).toInt(), 59);
        QCOMPARE(f.Stamps(u"1=1;"_s), 1);
        QCOMPARE(f.List().Filter.TextMatrix(30, ColGelesen), u"ü"_s);
        QCOMPARE(f.List().Filter.TextMatrix(29, ColGelesen), QString());
    }
};

HEFT_TEST(TestColumnFill)
#include "tst_columnfill.moc"
