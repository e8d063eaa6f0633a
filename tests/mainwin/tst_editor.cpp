#include "listfixture.h"
#include "testmain.h"

#include "mainwin/ui/editdialog.h"
#include "mainwin/ui/entryeditor.h"
#include "mainwin/ui/mainwindow.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

QLineEdit* Box(QDialog& dialog, const QString& name)
{
    if (name == u"cmb_autorlist"_s)
        return dialog.findChild<QComboBox*>(name)->lineEdit();
    return dialog.findChild<QLineEdit*>(name);
}

// Types into a box as the user would after tabbing into it: the old text is
// selected and goes.
void Type(QDialog& dialog, const QString& name, const QString& text)
{
    QLineEdit* box = Box(dialog, name);
    box->selectAll();
    if (text.isEmpty())
        box->del();
    QTest::keyClicks(box, text);
}

// What the dialog shows: caption, then the boxes from number to remark.
QStringList Shown(QDialog& dialog)
{
    QStringList shown{dialog.windowTitle()};
    for (const QString& name : {u"txt_nr"_s, u"cmb_autorlist"_s, u"txt_titel"_s})
        shown << Box(dialog, name)->text();
    shown << dialog.findChild<QComboBox*>(u"cmb_aufl"_s)->currentText() << Box(dialog, u"txt_zyklus"_s)->text()
          << dialog.findChild<QComboBox*>(u"cmb_gl"_s)->currentText() << Box(dialog, u"txt_bem"_s)->text();
    return shown;
}

void Press(QDialog& dialog, const QString& button)
{
    dialog.findChild<QPushButton*>(button)->click();
}

// Every table that hangs on an entry, with one row each for nr.
void AddDependents(TempCollection& collection, int nr, const QString& mark)
{
    for (const QString& sql : {u"INSERT INTO Details (Nr, Untertitel) VALUES (%1, '%2');"_s,
                               u"INSERT INTO Gestaltung (Nr, TiBiZeichner) VALUES (%1, '%2');"_s,
                               u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (%1, 7, '%2');"_s,
                               u"INSERT INTO Links (Nr, ENum, LinkNum, LinkText, LinkSerie) VALUES (%1, 1, 3, '%2', 'VN');"_s})
        collection.Exec(sql.arg(nr).arg(mark));
}

// The marks of the dependent rows of nr, table by table ("" where none).
QStringList Dependents(TempCollection& collection, int nr)
{
    return {collection.Value(u"SELECT Untertitel FROM Details WHERE Nr=%1;"_s.arg(nr)).toString(),
            collection.Value(u"SELECT TiBiZeichner FROM Gestaltung WHERE Nr=%1;"_s.arg(nr)).toString(),
            collection.Value(u"SELECT StatusWert FROM Status WHERE Nr=%1 AND ENum=7;"_s.arg(nr)).toString(),
            collection.Value(u"SELECT LinkText FROM Links WHERE Nr=%1;"_s.arg(nr)).toString()};
}

QList<TestEntry> Numbered(const QList<int>& numbers)
{
    QList<TestEntry> entries;
    for (int nr : numbers)
        entries.append({nr, u"Autor %1"_s.arg(nr), u"Titel %1"_s.arg(nr), nr % 3, u"IV"_s, nr % 2 == 0,
                        u"Bem %1"_s.arg(nr)});
    return entries;
}

struct Editor {
    explicit Editor(const QList<int>& numbers)
    {
        collection.Add(Numbered(numbers));
        window.LoadList(collection.session);
    }
    // Runs the command as the main window does, on the entry nr.
    void Run(int nr, bool editing)
    {
        QVERIFY(window.List().FindAndShowRow(nr) > 0);
        collection.session.EditMode = editing;
        collection.session.EditRetry = false;
        EditEntry(window);
    }
    QString Stored(const QString& column, int nr)
    {
        return collection.Value(u"SELECT %1 FROM HEFTLIST WHERE Nr=%2;"_s.arg(column).arg(nr)).toString();
    }
    // The filter list of the entries from nr on, as a filter run leaves it.
    void ShowFilter(int from)
    {
        Session& session = collection.session;
        session.SharedRecordset =
            session.CollectionDb->Select(u"SELECT * FROM HEFTLIST WHERE Nr>=%1 ORDER BY Nr;"_s.arg(from));
        EntryList& list = window.List();
        list.ActiveGrid = &list.Filter;
        list.SetupGridColumns();
        list.FillGrid(session);
    }
    const EntryGrid& Full() { return window.List().Heftliste; }
    QString Current(int col) { return Full().TextMatrix(Full().Row(), col); }

    TempCollection collection;
    MainWindow window;
};

} // namespace

class TestEditor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Changing an entry and inserting one run through the same dialog; a new
    // entry starts as a copy of the selected one. Work in the filter list
    // shows in the full list too.
    void editAndInsert_data()
    {
        QTest::addColumn<bool>("editing");
        QTest::addColumn<int>("filterFrom"); // 0: the full list is shown
        QTest::addColumn<QList<int>>("numbers");
        QTest::addColumn<int>("selected");
        QTest::addColumn<QStringList>("shown");
        QTest::addColumn<QStringList>("listed");
        QTest::newRow("edit") << true << 0 << QList<int>{1, 2, 3, 4, 5} << 4
                              << QStringList{u"Eintrag Editieren ..."_s, u"4"_s, u"Autor 4"_s, u"Titel 4"_s, u"-1-"_s,
                                             u"IV"_s, u"Ja"_s, u"Bem 4"_s}
                              << QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s};
        QTest::newRow("insert after the last row of a filter list")
            << false << 4 << QList<int>{1, 2, 4, 5} << 5
            << QStringList{u"Eintrag Einfügen ..."_s, u"6"_s, u"Autor 5"_s, u"- Kein Titel -"_s, u"-2-"_s, u"IV"_s,
                           u"Nein"_s, u"Bem 5"_s}
            << QStringList{u"1"_s, u"2"_s, u"4"_s, u"5"_s, u"6"_s};
    }
    void editAndInsert()
    {
        QFETCH(bool, editing);
        QFETCH(QList<int>, numbers);
        QFETCH(int, selected);
        QFETCH(QStringList, shown);
        QFETCH(int, filterFrom);
        Editor editor(numbers);
        if (filterFrom > 0)
            editor.ShowFilter(filterFrom);
        ModalScript script(u"frm_edit"_s);
        QStringList seen;
        bool detailsHidden = false;
        script.Then([&](QDialog& dialog) {
            seen = Shown(dialog);
            detailsHidden = dialog.findChild<QPushButton*>(u"btn_details"_s)->isHidden();
            Type(dialog, u"txt_titel"_s, u"Im Schatten von O'Taran"_s);
            Press(dialog, u"cmd_ok"_s);
        });
        editor.Run(selected, editing);

        const int nr = shown[1].toInt();
        QCOMPARE(seen, shown);
        QCOMPARE(detailsHidden, !editing);
        // A plain change asks nothing: the insert met its own row.
        QVERIFY(editor.collection.prompter.asked.isEmpty());
        QCOMPARE(editor.Stored(u"Titel"_s, nr), u"Im Schatten von O'Taran"_s);
        QCOMPARE(editor.Stored(u"GL"_s, nr), shown[6] == u"Ja"_s ? u"-1"_s : u"0"_s);
        QTEST(NrColumn(editor.Full()), "listed");
        QCOMPARE(editor.Current(ColNr), shown[1]);
        QCOMPARE(editor.Current(ColTitel), u"Im Schatten von O'Taran"_s);
        QCOMPARE(editor.Current(ColGelesen), shown[6] == u"Ja"_s ? ReadMarkText() : QString());
        QCOMPARE(editor.collection.Value(u"SELECT COUNT(*) FROM Status WHERE Nr=%1 AND ENum=1;"_s.arg(nr)).toInt(), 1);
    }

    // To a free number everything that hangs on the entry moves along; onto
    // a taken one (after Yes) the other entry and its own rows go first.
    void renumber_data()
    {
        QTest::addColumn<int>("target");
        QTest::addColumn<int>("questions");
        QTest::addColumn<QStringList>("numbers");
        QTest::addColumn<int>("otherRowsLeft");
        QTest::newRow("free number") << 7 << 0 << QStringList({u"1"_s, u"3"_s, u"4"_s, u"5"_s, u"7"_s}) << 4;
        QTest::newRow("taken number") << 4 << 1 << QStringList({u"1"_s, u"3"_s, u"4"_s, u"5"_s}) << 0;
    }
    void renumber()
    {
        QFETCH(int, target);
        Editor editor({1, 2, 3, 4, 5});
        AddDependents(editor.collection, 2, u"zwei"_s);
        AddDependents(editor.collection, 4, u"vier"_s);
        editor.collection.prompter.answers = {Answer::Yes};
        ModalScript script(u"frm_edit"_s);
        script.Then([&](QDialog& dialog) {
            Type(dialog, u"txt_nr"_s, QString::number(target));
            Press(dialog, u"cmd_ok"_s);
        });
        editor.Run(2, true);

        QTEST(int(editor.collection.prompter.asked.size()), "questions");
        QCOMPARE(editor.collection.Value(u"SELECT COUNT(*) FROM HEFTLIST WHERE Nr=2;"_s).toInt(), 0);
        QCOMPARE(editor.Stored(u"Titel"_s, target), u"Titel 2"_s);
        QCOMPARE(Dependents(editor.collection, target), QStringList({u"zwei"_s, u"zwei"_s, u"zwei"_s, u"zwei"_s}));
        QCOMPARE(Dependents(editor.collection, 2), QStringList({{}, {}, {}, {}}));
        QTEST(int(Dependents(editor.collection, 4).count(u"vier"_s)), "otherRowsLeft");
        QTEST(NrColumn(editor.Full()), "numbers");
        QCOMPARE(editor.Current(ColNr), QString::number(target));
    }

    // A declined overwrite brings the dialog back with what was typed; the
    // number is offered anew (the old one for a change, the next free one
    // for a new entry).
    void declinedOverwriteRetries_data()
    {
        QTest::addColumn<bool>("editing");
        QTest::addColumn<QString>("offeredNr");
        QTest::newRow("renumbering") << true << u"2"_s;
        QTest::newRow("new entry") << false << u"6"_s;
    }
    void declinedOverwriteRetries()
    {
        QFETCH(bool, editing);
        QFETCH(QString, offeredNr);
        Editor editor({1, 2, 3, 4, 5});
        editor.collection.prompter.answers = {Answer::No};
        ModalScript script(u"frm_edit"_s);
        script.Then([](QDialog& dialog) {
            Type(dialog, u"txt_nr"_s, u"4"_s);
            Type(dialog, u"txt_titel"_s, u"Gefahr aus dem All"_s);
            Type(dialog, u"cmb_autorlist"_s, u"K. O'Brien"_s);
            Type(dialog, u"txt_zyklus"_s, u"xii"_s);
            dialog.findChild<QComboBox*>(u"cmb_aufl"_s)->setCurrentIndex(3);
            Press(dialog, u"cmd_ok"_s);
        });
        QStringList shown;
        script.Then([&](QDialog& dialog) {
            shown = Shown(dialog).mid(1, 5);
            Press(dialog, u"cmd_nok"_s);
        });
        editor.Run(editing ? 2 : 5, editing);

        QCOMPARE(script.Pending(), 0);
        QCOMPARE(shown, QStringList({offeredNr, u"K. O'Brien"_s, u"Gefahr aus dem All"_s, u"-3-"_s, u"XII"_s}));
        QCOMPARE(editor.collection.prompter.asked.size(), 1);
        QCOMPARE(editor.Stored(u"Titel"_s, 4), u"Titel 4"_s);
        QCOMPARE(editor.Stored(u"Titel"_s, 2), u"Titel 2"_s);
        QCOMPARE(editor.collection.Value(u"SELECT COUNT(*) FROM HEFTLIST;"_s).toInt(), 5);
    }

    void nextFreeNr_data()
    {
        QTest::addColumn<int>("selected");
        QTest::addColumn<int>("expected");
        QTest::newRow("the gap behind, not the one before") << 5 << 7;
        QTest::newRow("highest possible") << 99999 << 99999;
    }
    void nextFreeNr()
    {
        QFETCH(int, selected);
        Editor editor({1, 2, 3, 5, 6, 9, 99999});
        editor.window.List().FindAndShowRow(selected);
        QTEST(NextFreeNr(editor.window), "expected");
        QCOMPARE(editor.window.StatusPanelText(5), u"Fertig und Bereit."_s);
    }

    // cmd_ok's checks: what the box shows after a refused press, and what is
    // stored once a press is taken (pressesToAccept 0: never).
    void okChecks_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("pressesToAccept");
        QTest::addColumn<QString>("shownAfterRefusal");
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("stored");
        QTest::newRow("empty title") << u"txt_titel"_s << u""_s << 2 << u"*** Unbekannt ***"_s << u"Titel"_s
                                     << u"*** Unbekannt ***"_s;
        QTest::newRow("long author cut") << u"cmb_autorlist"_s << u"Hans Joachim Alpers-Brandhorst"_s << 1 << u""_s
                                         << u"Autor"_s << u"Hans Joachim Alpers-Brand"_s;
        QTest::newRow("cycle as number") << u"txt_zyklus"_s << u"12"_s << 1 << u""_s << u"Zyklus"_s << u"XII"_s;
        QTest::newRow("cycle too high") << u"txt_zyklus"_s << u"1000"_s << 2 << u"- - -"_s << u"Zyklus"_s << u"- - -"_s;
        QTest::newRow("cycle mixed") << u"txt_zyklus"_s << u"1x"_s << 0 << u"1x"_s << u"Zyklus"_s << u"IV"_s;
        QTest::newRow("number zero") << u"txt_nr"_s << u"0"_s << 0 << u"0"_s << u"Titel"_s << u"Titel 1"_s;
        QTest::newRow("remark trimmed") << u"txt_bem"_s << u"  signiert  "_s << 1 << u""_s << u"Bemerkung"_s
                                        << u"signiert"_s;
    }
    void okChecks()
    {
        QFETCH(QString, box);
        QFETCH(QString, typed);
        QFETCH(int, pressesToAccept);
        QFETCH(QString, column);
        Editor editor({1});
        ModalScript script(u"frm_edit"_s);
        int presses = 0;
        QString shown;
        bool refusedBoxHasFocus = false;
        script.Then([&](QDialog& dialog) {
            QLineEdit* edit = Box(dialog, box);
            edit->setText(typed);
            for (presses = 1; presses <= 2; ++presses) {
                Press(dialog, u"cmd_ok"_s);
                if (!dialog.isVisible())
                    return;
                shown = edit->text();
                // The author's box hands its focus on to the combo box around it.
                refusedBoxHasFocus = dialog.focusWidget() == (edit->focusProxy() ? edit->focusProxy() : edit);
            }
            Press(dialog, u"cmd_nok"_s);
            presses = 0;
        });
        editor.Run(1, true);

        QCOMPARE(presses, pressesToAccept);
        if (pressesToAccept != 1) {
            QTEST(shown, "shownAfterRefusal");
            QVERIFY(refusedBoxHasFocus);
        }
        QCOMPARE(editor.collection.session.EditAccepted, pressesToAccept > 0);
        QTEST(editor.Stored(column, 1), "stored");
    }

};

HEFT_TEST(TestEditor)
#include "tst_editor.moc"
