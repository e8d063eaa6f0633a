#include "testmain.h"
#include "testsupport.h"

#include "details/ui/detailopener.h"
#include "details/ui/detailwindow.h"
#include "details/erstdatum.h"
#include "mainwin/ui/mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include <memory>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

// A question as one comparable text: title, text, icon, buttons.
QString Described(const Message& message)
{
    return u"%1|%2|%3|%4"_s.arg(message.title, message.text)
        .arg(static_cast<int>(message.icon))
        .arg(static_cast<int>(message.buttons));
}

const QString CloseQuestion = Described(
    {u"Sicherheits Rückfrage"_s, u"Es wurden Änderungen an den\rDetaildaten vorgenommen.\r\rSchließen ohne zu speichern?"_s,
     MessageIcon::Question, MessageButtons::OkCancel});

// Five entries in the list; details only where a test adds them.
struct Fixture {
    Fixture()
    {
        QList<TestEntry> entries;
        for (int nr = 1; nr <= 5; ++nr)
            entries.append({nr, u"Hal Merrow"_s, u"Sternfeuer %1"_s.arg(nr)});
        collection.Add(entries);
        window.LoadList(collection.session);
    }
    // The window on entry nr, shown as the user sees it.
    std::unique_ptr<DetailWindow> Open(int nr, bool edit)
    {
        window.List().FindAndShowRow(nr);
        auto details = std::make_unique<DetailWindow>(collection.session, window.List(), edit);
        DetailWindow* shown = details.get();
        collection.session.ActiveCaption = [shown] { return shown->windowTitle(); };
        details->show();
        details->activateWindow();
        if (!QTest::qWaitForWindowActive(details.get()))
            qWarning("the detail window did not become active");
        return details;
    }
    QVariant Value(const QString& sql) { return collection.Value(sql); }
    int Count(const QString& table, int nr)
    {
        return Value(u"SELECT COUNT(*) FROM %1 WHERE Nr=%2;"_s.arg(table).arg(nr)).toInt();
    }

    TempCollection collection;
    MainWindow window;
};

QTreeWidget* Persons(QWidget& window) { return Child<QTreeWidget>(window, u"liv_personen"_s); }

void DoubleClickPerson(QWidget& window, int row)
{
    QTreeWidget* list = Persons(window);
    const QPoint at = list->visualItemRect(list->topLevelItem(row)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
}

// Types into a box as the user does, after giving it the focus.
void TypeInto(QWidget& window, const QString& name, const QString& text)
{
    QWidget* box = Child<QWidget>(window, name);
    box->setFocus();
    QTest::keyClicks(box, text);
}

void Click(QWidget& window, const QString& name) { QTest::mouseClick(Child<QWidget>(window, name), Qt::LeftButton); }

} // namespace

class TestDetailWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entryWithoutDetails_data()
    {
        QTest::addColumn<bool>("edit");
        QTest::addColumn<QString>("previous"); // Ersterscheinung of entry 2; null: no row
        QTest::addColumn<QDate>("expected");
        QTest::newRow("edit, previous dated") << true << u"01.03.2009"_s << QDate(2009, 3, 8);
        QTest::newRow("edit, previous imported") << true << u"2009-12-28"_s << QDate(2010, 1, 4);
        QTest::newRow("view, previous unknown") << false << u"31.12.1900"_s << QDate::currentDate();
        QTest::newRow("view, no previous") << false << QString() << QDate::currentDate();
    }
    void entryWithoutDetails()
    {
        QFETCH(bool, edit);
        QFETCH(QString, previous);
        QFETCH(QDate, expected);
        Fixture f;
        if (!previous.isNull())
            f.collection.Exec(u"INSERT INTO Details (Nr, Ersterscheinung) VALUES (2, '%1');"_s.arg(previous));
        const auto w = f.Open(3, edit);

        QCOMPARE(w->windowTitle(), u"Detailinfo [#3]"_s);
        QCOMPARE(Child<QGroupBox>(*w, u"frm_det"_s)->title(), u"Zu Valdorin Nummer 3"_s);
        QCOMPARE(Persons(*w)->findItems(QString(), Qt::MatchExactly).size(), 9);
        QCOMPARE(Child<QDateEdit>(*w, u"cal_erst"_s)->date(), expected);
        QCOMPARE(Child<QLineEdit>(*w, u"txt_erst"_s)->text(), LongDate(expected));
        // A suggestion counts as known only where the user can confirm it.
        QCOMPARE(Child<QCheckBox>(*w, u"chk_valid"_s)->isChecked(), edit);
        QCOMPARE(Child<QDateEdit>(*w, u"cal_erst"_s)->isVisible(), edit);
        QVERIFY(!Child<QPushButton>(*w, u"btn_ok"_s)->isEnabled());
    }

    void textsSurviveSave_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("column"); // Table.Column
        QTest::addColumn<QString>("stored");
        QTest::newRow("content pasted with line breaks") << u"txt_inhalt"_s << u"Erste Zeile\nzweite Zeile\rdritte"_s
                                                         << u"Details.Inhalt"_s << u"Erste Zeile zweite Zeile dritte"_s;
        QTest::newRow("person, taken with Enter") << u"cmb_floatP"_s << u"D'Arcy Vell"_s << u"Details.Person3"_s
                                                  << u"D'Arcy Vell"_s;
        QTest::newRow("illustrator") << u"cmb_illu"_s << u"Ann Vo"_s << u"Gestaltung.IlluZeichner"_s << u"Ann Vo"_s;
        QTest::newRow("content pasted beyond its limit") << u"txt_inhalt"_s << u"Anfang\n"_s + QString(260, u'y')
                                                         << u"Details.Inhalt"_s << u"Anfang "_s + QString(248, u'y');
        QTest::newRow("person edited in place, trimmed and cut")
            << u"liv_personen"_s << u"  Bartholomew von Eichenhain-Lornberg"_s << u"Details.Person3"_s
            << u"Bartholomew von Eichenhain-Lornb"_s;
        QTest::newRow("draughtsman") << u"cmb_rize"_s << u"Uwe Rall"_s << u"Gestaltung.RiZeZeichner"_s << u"Uwe Rall"_s;
        QTest::newRow("drawn object") << u"txt_objekt"_s << u"Kreuzer 'Stella'"_s << u"Gestaltung.RiZeObjekt"_s
                                      << u"Kreuzer 'Stella'"_s;
    }
    void textsSurviveSave()
    {
        QFETCH(QString, control);
        QFETCH(QString, typed);
        QFETCH(QString, column);
        QFETCH(QString, stored);
        Fixture f;
        // What the file held already must come back unchanged.
        f.collection.Exec(u"INSERT INTO Details (Nr, Ersterscheinung, Untertitel, Person1) VALUES (4, '01.03.2009', 'Erbe', 'Kapitän Lorn');"_s);
        f.collection.Exec(u"INSERT INTO Gestaltung (Nr, TiBiZeichner, RZ) VALUES (4, 'Jo O''Kell', 0);"_s);
        const auto w = f.Open(4, true);
        if (control == u"cmb_floatP"_s) {
            DoubleClickPerson(*w, 2);
        } else if (control == u"liv_personen"_s) {
            // Shift+Enter edits the name in the list itself.
            Persons(*w)->setCurrentItem(Persons(*w)->topLevelItem(2));
            QTest::keyClick(Persons(*w), Qt::Key_Return, Qt::ShiftModifier);
            QTest::keyClicks(QApplication::focusWidget(), typed);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            // The item view takes the name on its next round.
            QTRY_COMPARE(Persons(*w)->topLevelItem(2)->text(0), stored);
        } else if (control == u"txt_objekt"_s || control == u"cmb_rize"_s) {
            Child<QTabWidget>(*w, u"tab_detail"_s)->setCurrentIndex(1);
            Click(*w, u"chk_rize"_s);
        }
        if (typed.contains(u'\n') || typed.contains(u'\r')) {
            // Line breaks come in with a paste only: Enter leaves the box.
            QApplication::clipboard()->setText(typed);
            Child<QWidget>(*w, control)->setFocus();
            QTest::keySequence(Child<QWidget>(*w, control), QKeySequence::Paste);
        } else if (control != u"liv_personen"_s) {
            TypeInto(*w, control, typed);
        }
        if (control == u"cmb_floatP"_s)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QPushButton* save = Child<QPushButton>(*w, u"btn_ok"_s);
        QVERIFY(save->isEnabled());
        save->click();
        QVERIFY(!save->isEnabled());
        const QStringList table = column.split(u'.');
        QCOMPARE(f.Value(u"SELECT %1 FROM %2 WHERE Nr=4;"_s.arg(table[1], table[0])).toString(), stored);
        QCOMPARE(f.Value(u"SELECT RZ FROM Gestaltung WHERE Nr=4;"_s).toInt(), table[1].startsWith(u"RiZe"_s) ? -1 : 0);
        QCOMPARE(f.Value(u"SELECT Ersterscheinung || Untertitel || Person1 || TiBiZeichner FROM Details JOIN Gestaltung "
                         "USING (Nr) WHERE Nr=4;"_s),
                 u"01.03.2009ErbeKapitän LornJo O'Kell"_s);
        QVERIFY(f.collection.prompter.asked.isEmpty());
    }

    // A stored design with a cutaway drawing shows in both modes; each tab
    // shows its own sections, and the content box can take the whole frame.
    void storedDesignShown_data()
    {
        QTest::addColumn<bool>("edit");
        QTest::newRow("edit") << true;
        QTest::newRow("view") << false;
    }
    void storedDesignShown()
    {
        QFETCH(bool, edit);
        Fixture f;
        f.collection.Exec(u"INSERT INTO Gestaltung (Nr, TiBiZeichner, IlluZeichner, RZ, RiZeZeichner, RiZeObjekt) "
                          "VALUES (2, 'Jo Kell', 'Ann Vo', -1, 'Rudi Lenz', 'Kreuzer');"_s);
        f.collection.Exec(u"INSERT INTO Details (Nr, Ersterscheinung) VALUES (2, '31.12.1900');"_s);
        const auto w = f.Open(2, edit);
        QVERIFY(!Child<QCheckBox>(*w, u"chk_valid"_s)->isChecked()); // the date stands for "unknown"
        QStringList shown;
        for (const QString& name : {u"tibi"_s, u"illu"_s, u"rize"_s})
            shown << (edit ? Child<QComboBox>(*w, u"cmb_"_s + name)->currentText()
                           : Child<QLineEdit>(*w, u"txt_"_s + name)->text());
        shown << Child<QLineEdit>(*w, u"txt_objekt"_s)->text();
        QCOMPARE(shown, (QStringList{u"Jo Kell"_s, u"Ann Vo"_s, u"Rudi Lenz"_s, u"Kreuzer"_s}));
        QVERIFY(Child<QCheckBox>(*w, u"chk_rize"_s)->isChecked());

        auto* tabs = Child<QTabWidget>(*w, u"tab_detail"_s);
        for (int tab : {3, 2, 1, 0}) {
            tabs->setCurrentIndex(tab);
            QCOMPARE(Child<QGroupBox>(*w, u"frm_det"_s)->isVisible(), tab == 0);
            QCOMPARE(Child<QGroupBox>(*w, u"frm_kg"_s)->isVisible(), tab == 1);
        }
        QWidget* head = Child<QWidget>(*w, u"pnl_kopf"_s);
        Click(*w, u"pic_max"_s);
        QVERIFY(!head->isVisible());
        Click(*w, u"pic_max"_s);
        QVERIFY(head->isVisible());
        if (edit) {
            // Enter in a box goes on to the save button, Enter there saves.
            auto* object = Child<QLineEdit>(*w, u"txt_objekt"_s);
            object->setFocus();
            QTest::keyClicks(object, u"X"_s);
            QTest::keyClick(object, Qt::Key_Return);
            QCOMPARE(QApplication::focusWidget()->objectName(), u"btn_ok"_s);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QVERIFY(object->text().endsWith(u'X'));
            QCOMPARE(f.Value(u"SELECT RiZeObjekt FROM Gestaltung WHERE Nr=2;"_s).toString(), object->text());
            // Without the drawing its object goes; an unknown date shows as text.
            Child<QCheckBox>(*w, u"chk_rize"_s)->click();
            QVERIFY(object->text().isEmpty() && !object->isEnabled());
            for (int click = 0; click < 2; ++click)
                Child<QCheckBox>(*w, u"chk_valid"_s)->click();
            QVERIFY(Child<QLineEdit>(*w, u"txt_erst"_s)->isVisibleTo(w.get()));
            Child<QPushButton>(*w, u"btn_ok"_s)->click();
            QCOMPARE(f.Value(u"SELECT RZ || RiZeObjekt FROM Gestaltung WHERE Nr=2;"_s).toString(), u"0"_s);
        }
        // Closed from the title bar as by its own button.
        w->close();
        QVERIFY(!w->isVisible());
    }

    void closing_data()
    {
        QTest::addColumn<bool>("edit");
        QTest::addColumn<bool>("change");
        QTest::addColumn<bool>("escape"); // else Enter on btn_nok
        QTest::addColumn<QList<Answer>>("answers");
        QTest::addColumn<bool>("asked");
        QTest::addColumn<bool>("closed");
        QTest::newRow("changed, Esc and Cancel keep the window") << true << true << true << QList{Answer::Cancel} << true << false;
        QTest::newRow("changed, OK closes") << true << true << false << QList{Answer::Ok} << true << true;
        QTest::newRow("unchanged closes at once") << true << false << false << QList<Answer>() << false << true;
        QTest::newRow("view mode never asks") << false << true << true << QList<Answer>() << false << true;
    }
    void closing()
    {
        QFETCH(bool, edit);
        QFETCH(bool, change);
        QFETCH(bool, escape);
        QFETCH(QList<Answer>, answers);
        QFETCH(bool, asked);
        QFETCH(bool, closed);
        Fixture f;
        const auto w = f.Open(3, edit);
        if (change)
            TypeInto(*w, u"txt_utitel"_s, u"Ungespeichert"_s);
        f.collection.prompter.answers = answers;
        if (escape)
            QTest::keyClick(w.get(), Qt::Key_Escape);
        else
            QTest::keyClick(Child<QWidget>(*w, u"btn_nok"_s), Qt::Key_Return);

        QCOMPARE(w->isVisible(), !closed);
        QStringList questions;
        for (const Message& message : f.collection.prompter.asked)
            questions << Described(message);
        QCOMPARE(questions, asked ? QStringList{CloseQuestion} : QStringList());
        if (edit)
            QCOMPARE(Child<QPlainTextEdit>(*w, u"txt_utitel"_s)->toPlainText(), change ? u"Ungespeichert"_s : QString());
        for (const QString& table : {u"Details"_s, u"Gestaltung"_s, u"Status"_s, u"Links"_s})
            QCOMPARE(f.Count(table, 3), 0);
    }

    // Esc closes the box over the person list, never the window with it;
    // a click beside the box takes its name.
    void personBox()
    {
        Fixture f;
        const auto w = f.Open(3, true);
        QTreeWidget* persons = Persons(*w);
        auto* box = Child<QComboBox>(*w, u"cmb_floatP"_s);
        DoubleClickPerson(*w, 1);
        QTest::keyClick(w.get(), Qt::Key_Escape);
        QVERIFY(box->isVisible());
        QTest::keyClick(box, Qt::Key_Escape);
        QVERIFY(!box->isVisible() && w->isVisible());
        DoubleClickPerson(*w, 2);
        QTest::keyClicks(box, u"Ole Brandt"_s);
        QTest::mouseClick(persons->viewport(), Qt::LeftButton, {},
                          persons->visualItemRect(persons->topLevelItem(5)).center());
        QVERIFY(!box->isVisible());
        QCOMPARE(persons->topLevelItem(2)->text(0), u"Ole Brandt"_s);
    }

    // Straight from the menu, or from the editor's "Detailinfo ..." button.
    void openedFromMainWindow_data()
    {
        QTest::addColumn<QString>("command");
        QTest::newRow("Detail Bearbeiten") << u"mnu_detail_b"_s;
        QTest::newRow("editor's button") << u"mnu_edit"_s;
    }
    void openedFromMainWindow()
    {
        QFETCH(QString, command);
        Fixture f;
        InstallDetailWindow(f.window);
        f.window.List().FindAndShowRow(2);
        ModalScript details(u"frm_detail"_s);
        details.Then([](QDialog& window) {
            QCOMPARE(window.windowTitle(), u"Detailinfo [#2]"_s);
            QVERIFY(Child<QPushButton>(window, u"btn_ok"_s)->isVisible());
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        ModalScript editor(u"frm_edit"_s);
        editor.Then([](QDialog& dialog) {
            Click(dialog, u"btn_details"_s);
            Click(dialog, u"cmd_nok"_s);
        });
        QVERIFY(f.window.IsCommandEnabled(command));
        f.window.Command(command)->trigger();
        QVERIFY(details.opened == 1 && !details.leftOpen && !editor.leftOpen);
    }

};

HEFT_TEST(TestDetailWindow)
#include "tst_detailwindow.moc"
