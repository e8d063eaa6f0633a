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
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
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

template <typename T> T* Find(QWidget& window, const QString& name)
{
    T* child = window.findChild<T*>(name);
    if (child == nullptr)
        qFatal("no %s", qPrintable(name));
    return child;
}

QTreeWidget* Persons(QWidget& window) { return Find<QTreeWidget>(window, u"liv_personen"_s); }
QComboBox* PersonBox(QWidget& window) { return Find<QComboBox>(window, u"cmb_floatP"_s); }

QStringList PersonRows(QWidget& window)
{
    QStringList rows;
    for (int row = 0; row < Persons(window)->topLevelItemCount(); ++row)
        rows << Persons(window)->topLevelItem(row)->text(0);
    return rows;
}

void DoubleClickPerson(QWidget& window, int row)
{
    QTreeWidget* list = Persons(window);
    const QPoint at = list->visualItemRect(list->topLevelItem(row)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
}

// Key by key; QTest knows keys for ASCII only, other letters come as text.
void TypeKeys(QWidget* box, const QString& text)
{
    for (const QChar c : text) {
        if (c.unicode() < 0x80)
            QTest::keyClick(box, c.toLatin1());
        else
            QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}

// Types into a box as the user does, after giving it the focus.
void TypeInto(QWidget& window, const QString& name, const QString& text)
{
    QWidget* box = Find<QWidget>(window, name);
    box->setFocus();
    TypeKeys(box, text);
}

void Click(QWidget& window, const QString& name) { QTest::mouseClick(Find<QWidget>(window, name), Qt::LeftButton); }

void Save(QWidget& window)
{
    QPushButton* save = Find<QPushButton>(window, u"btn_ok"_s);
    QVERIFY(save->isEnabled());
    save->click();
    QVERIFY(!save->isEnabled());
}

} // namespace

class TestDetailWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entryWithoutDetails_data()
    {
        QTest::addColumn<bool>("edit");
        QTest::addColumn<QString>("previous"); // Ersterscheinung of entry 2; null: no row
        QTest::addColumn<QDate>("expected");
        const QDate today = QDate::currentDate();
        for (bool edit : {true, false}) {
            const char* mode = edit ? "edit" : "view";
            QTest::addRow("%s, previous dated", mode) << edit << u"01.03.2009"_s << QDate(2009, 3, 8);
            QTest::addRow("%s, previous unknown", mode) << edit << u"31.12.1900"_s << today;
            QTest::addRow("%s, no previous", mode) << edit << QString() << today;
        }
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
        QCOMPARE(Find<QGroupBox>(*w, u"frm_det"_s)->title(), u"Zu Valdorin Nummer 3"_s);
        QCOMPARE(PersonRows(*w), QStringList(9));
        QCOMPARE(Find<QDateEdit>(*w, u"cal_erst"_s)->date(), expected);
        QCOMPARE(Find<QLineEdit>(*w, u"txt_erst"_s)->text(), LongDate(expected));
        // A suggestion counts as known only where the user can confirm it.
        QCOMPARE(Find<QCheckBox>(*w, u"chk_valid"_s)->isChecked(), edit);
        QCOMPARE(Find<QDateEdit>(*w, u"cal_erst"_s)->isVisible(), edit);
        QCOMPARE(Find<QLineEdit>(*w, u"txt_erst"_s)->isVisible(), !edit);
        QCOMPARE(Find<QPushButton>(*w, u"btn_ok"_s)->isVisible(), edit);
        QVERIFY(!Find<QPushButton>(*w, u"btn_ok"_s)->isEnabled());
    }

    void unknownDateStaysUnknown_data()
    {
        QTest::addColumn<bool>("confirm");
        QTest::addColumn<QString>("stored");
        QTest::newRow("box left unchecked") << false << u"31.12.1900"_s;
        QTest::newRow("suggestion confirmed") << true << u"08.03.2009"_s;
    }
    void unknownDateStaysUnknown()
    {
        QFETCH(bool, confirm);
        QFETCH(QString, stored);
        Fixture f;
        f.collection.Exec(u"INSERT INTO Details (Nr, Ersterscheinung) VALUES (2, '01.03.2009');"_s);
        f.collection.Exec(u"INSERT INTO Details (Nr, Ersterscheinung, Untertitel) VALUES (3, '31.12.1900', 'Alt');"_s);
        const auto w = f.Open(3, true);
        QCheckBox* valid = Find<QCheckBox>(*w, u"chk_valid"_s);
        QVERIFY(!valid->isChecked());
        QVERIFY(Find<QLineEdit>(*w, u"txt_erst"_s)->isVisible());
        QCOMPARE(Find<QLineEdit>(*w, u"txt_erst"_s)->text(), u"Sonntag, 8. März 2009"_s);

        if (confirm)
            QTest::mouseClick(valid, Qt::LeftButton, {}, QPoint(valid->width() / 2, valid->height() / 2));
        QCOMPARE(valid->isChecked(), confirm);
        TypeInto(*w, u"txt_utitel"_s, u" neu"_s);
        Save(*w);
        QCOMPARE(f.Value(u"SELECT Ersterscheinung FROM Details WHERE Nr=3;"_s).toString(), stored);
    }

    void textsSurviveSave_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("column"); // Table.Column
        QTest::addColumn<QString>("stored");
        QTest::newRow("subtitle") << u"txt_utitel"_s << u"Die Rückkehr der O'Varra"_s << u"Details.Untertitel"_s
                                  << u"Die Rückkehr der O'Varra"_s;
        QTest::newRow("placeholder-like text") << u"txt_utitel"_s << u"100%1 Treffer"_s << u"Details.Untertitel"_s
                                               << u"100%1 Treffer"_s;
        QTest::newRow("content") << u"txt_inhalt"_s << u"Lorn trifft D'Arcy."_s << u"Details.Inhalt"_s
                                 << u"Lorn trifft D'Arcy."_s;
        QTest::newRow("content pasted with line breaks") << u"txt_inhalt"_s << u"Erste Zeile\nzweite Zeile\rdritte"_s
                                                         << u"Details.Inhalt"_s << u"Erste Zeile zweite Zeile dritte"_s;
        QTest::newRow("subtitle pasted with line break") << u"txt_utitel"_s << u"  Teil 1\nDer Anfang "_s
                                                          << u"Details.Untertitel"_s << u"Teil 1 Der Anfang"_s;
        QTest::newRow("person") << u"cmb_floatP"_s << u"D'Arcy Vell"_s << u"Details.Person3"_s << u"D'Arcy Vell"_s;
        QTest::newRow("cover artist") << u"cmb_tibi"_s << u"Jo O'Kell"_s << u"Gestaltung.TiBiZeichner"_s
                                      << u"Jo O'Kell"_s;
        QTest::newRow("illustrator") << u"cmb_illu"_s << u"Rana O'Till"_s << u"Gestaltung.IlluZeichner"_s
                                     << u"Rana O'Till"_s;
        QTest::newRow("drawn object") << u"txt_objekt"_s << u"Kreuzer 'Stella'"_s << u"Gestaltung.RiZeObjekt"_s
                                      << u"Kreuzer 'Stella'"_s;
        QTest::newRow("drawing artist") << u"cmb_rize"_s << u"Ben O'Asto"_s << u"Gestaltung.RiZeZeichner"_s
                                        << u"Ben O'Asto"_s;
    }
    void textsSurviveSave()
    {
        QFETCH(QString, control);
        QFETCH(QString, typed);
        QFETCH(QString, column);
        QFETCH(QString, stored);
        Fixture f;
        const auto w = f.Open(4, true);
        if (control == u"cmb_floatP"_s) {
            DoubleClickPerson(*w, 2);
        } else if (control == u"txt_objekt"_s || control == u"cmb_rize"_s) {
            Find<QTabWidget>(*w, u"tab_detail"_s)->setCurrentIndex(1);
            Click(*w, u"chk_rize"_s);
        }
        if (typed.contains(u'\n') || typed.contains(u'\r')) {
            // Line breaks come in with a paste only: Enter leaves the box.
            QApplication::clipboard()->setText(typed);
            Find<QWidget>(*w, control)->setFocus();
            QTest::keySequence(Find<QWidget>(*w, control), QKeySequence::Paste);
        } else {
            TypeInto(*w, control, typed);
        }
        Save(*w);
        const QStringList table = column.split(u'.');
        QCOMPARE(f.Value(u"SELECT %1 FROM %2 WHERE Nr=4;"_s.arg(table[1], table[0])).toString(), stored);
        QCOMPARE(f.Value(u"SELECT RZ FROM Gestaltung WHERE Nr=4;"_s).toInt(), table[1].startsWith(u"RiZe"_s) ? -1 : 0);
        QVERIFY(f.collection.prompter.asked.isEmpty());
    }

    void savingTwiceRewritesEverything()
    {
        Fixture f;
        f.collection.Exec(u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (4, 1, '2001-01-01 um 00:00:00');"_s);
        f.collection.Exec(u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (4, 7, 'Regal 3');"_s);
        for (int link = 1; link <= 2; ++link)
            f.collection.Exec(u"INSERT INTO Links (Nr, ENum, LinkNum, LinkText, LinkSerie) "
                              "VALUES (4, %1, %2, 'Teil %1', 'Valdorin Heftromane');"_s.arg(link).arg(link + 4));
        const auto w = f.Open(4, true);
        TypeInto(*w, u"txt_utitel"_s, u"Eins"_s);
        Save(*w);
        TypeInto(*w, u"cmb_tibi"_s, u"Jo Kell"_s);
        Save(*w);

        QVERIFY(w->isVisible());
        QCOMPARE(f.Count(u"Details"_s, 4), 1);
        QCOMPARE(f.Count(u"Gestaltung"_s, 4), 1);
        QCOMPARE(f.Count(u"Status"_s, 4), 19);
        QCOMPARE(f.Value(u"SELECT StatusWert FROM Status WHERE Nr=4 AND ENum=7;"_s).toString(), u"Regal 3"_s);
        QCOMPARE(f.Value(u"SELECT GROUP_CONCAT(LinkNum) FROM (SELECT LinkNum FROM Links WHERE Nr=4 ORDER BY ENum);"_s)
                     .toString(),
                 u"5,6"_s);
        QCOMPARE(f.Value(u"SELECT TiBiZeichner FROM Gestaltung WHERE Nr=4;"_s).toString(), u"Jo Kell"_s);
        const QString stamp = f.Value(u"SELECT StatusWert FROM Status WHERE Nr=4 AND ENum=1;"_s).toString();
        QVERIFY(QRegularExpression(u"^\\d{4}-\\d\\d-\\d\\d um \\d\\d:\\d\\d:\\d\\d$"_s).match(stamp).hasMatch());
        QVERIFY(stamp != u"2001-01-01 um 00:00:00"_s);
        QCOMPARE(Find<QTreeWidget>(*w, u"liv_status"_s)->topLevelItem(0)->text(0), stamp);
    }

    void personBox_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("finish"); // Enter, Escape, click on another row, or the save button
        QTest::addColumn<QString>("row");
        const QString longName = u"Ein sehr langer Name, der nicht ganz passt"_s;
        QTest::newRow("Enter takes the name") << u"Tevo Ranke"_s << u"Enter"_s << u"Tevo Ranke"_s;
        QTest::newRow("Enter trims and cuts") << u"  "_s + longName << u"Enter"_s << longName.left(32);
        QTest::newRow("Esc drops the name") << u"Tevo Ranke"_s << u"Escape"_s << u"Lorn"_s;
        QTest::newRow("click beside takes it") << u"Tevo Ranke"_s << u"Click"_s << u"Tevo Ranke"_s;
        QTest::newRow("save keeps the open name") << u"Tevo Ranke"_s << u"Save"_s << u"Tevo Ranke"_s;
    }
    void personBox()
    {
        QFETCH(QString, typed);
        QFETCH(QString, finish);
        QFETCH(QString, row);
        Fixture f;
        f.collection.Exec(u"INSERT INTO Details (Nr, Person1, Person5) VALUES (1, 'Mira Solt', ' Arn Dolo ');"_s);
        f.collection.Exec(u"INSERT INTO Details (Nr, Ersterscheinung, Person2) VALUES (4, '01.03.2009', 'Lorn');"_s);
        const auto w = f.Open(4, true);
        QCOMPARE(PersonRows(*w).mid(0, 3), QStringList({QString(), u"Lorn"_s, QString()}));

        DoubleClickPerson(*w, 1);
        QComboBox* box = PersonBox(*w);
        QVERIFY(box->isVisible());
        QCOMPARE(box->currentText(), u"Lorn"_s);
        QStringList offered;
        for (int i = 0; i < box->count(); ++i)
            offered << box->itemText(i);
        QCOMPARE(offered, QStringList({u"Arn Dolo"_s, u"Lorn"_s, u"Mira Solt"_s}));

        box->lineEdit()->selectAll();
        TypeKeys(box, typed);
        if (finish == u"Enter"_s)
            QTest::keyClick(box, Qt::Key_Return);
        else if (finish == u"Escape"_s)
            QTest::keyClick(box, Qt::Key_Escape);
        else if (finish == u"Click"_s)
            QTest::mouseClick(Persons(*w)->viewport(), Qt::LeftButton, {},
                              Persons(*w)->visualItemRect(Persons(*w)->topLevelItem(7)).center());
        QVERIFY(w->isVisible());
        if (finish != u"Save"_s) {
            QVERIFY(box->isHidden());
            QCOMPARE(PersonRows(*w)[1], row);
        }
        Save(*w);
        QVERIFY(box->isHidden());
        QCOMPARE(f.Value(u"SELECT Person2 FROM Details WHERE Nr=4;"_s).toString(), row.trimmed());
        const int fitted = Persons(*w)->columnWidth(0);
        QVERIFY2(fitted >= Persons(*w)->fontMetrics().horizontalAdvance(row), qPrintable(QString::number(fitted)));
    }

    void shiftEditsInPlace()
    {
        Fixture f;
        const auto w = f.Open(3, true);
        QTreeWidget* list = Persons(*w);
        list->setFocus();
        list->setCurrentItem(list->topLevelItem(4));
        QTest::keyClick(list, Qt::Key_Return, Qt::ShiftModifier);
        QVERIFY(PersonBox(*w)->isHidden());
        auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        QVERIFY(editor != nullptr);
        TypeKeys(editor, u"  Ilsa Brenn  "_s);
        QTest::keyClick(editor, Qt::Key_Return);
        QApplication::processEvents();
        QVERIFY(PersonBox(*w)->isHidden());
        QCOMPARE(PersonRows(*w)[4], u"Ilsa Brenn"_s);
        Save(*w);
        QCOMPARE(f.Value(u"SELECT Person5 FROM Details WHERE Nr=3;"_s).toString(), u"Ilsa Brenn"_s);
    }

    void closing_data()
    {
        QTest::addColumn<bool>("edit");
        QTest::addColumn<bool>("change");
        QTest::addColumn<QString>("how"); // btn_nok, Escape, close
        QTest::addColumn<QList<Answer>>("answers");
        QTest::addColumn<bool>("asked");
        QTest::addColumn<bool>("closed");
        QTest::newRow("changed, Cancel keeps the window") << true << true << u"btn_nok"_s << QList{Answer::Cancel} << true << false;
        QTest::newRow("changed, OK closes") << true << true << u"btn_nok"_s << QList{Answer::Ok} << true << true;
        QTest::newRow("changed, Esc asks too") << true << true << u"Escape"_s << QList{Answer::Cancel} << true << false;
        QTest::newRow("changed, title bar asks too") << true << true << u"close"_s << QList{Answer::Ok} << true << true;
        QTest::newRow("unchanged closes at once") << true << false << u"btn_nok"_s << QList<Answer>() << false << true;
        QTest::newRow("view mode never asks") << false << true << u"Escape"_s << QList<Answer>() << false << true;
    }
    void closing()
    {
        QFETCH(bool, edit);
        QFETCH(bool, change);
        QFETCH(QString, how);
        QFETCH(QList<Answer>, answers);
        QFETCH(bool, asked);
        QFETCH(bool, closed);
        Fixture f;
        const auto w = f.Open(3, edit);
        if (change)
            TypeInto(*w, u"txt_utitel"_s, u"Ungespeichert"_s);
        f.collection.prompter.answers = answers;
        if (how == u"btn_nok"_s)
            Click(*w, u"btn_nok"_s);
        else if (how == u"Escape"_s)
            QTest::keyClick(w.get(), Qt::Key_Escape);
        else
            w->close();

        QCOMPARE(w->isVisible(), !closed);
        QStringList questions;
        for (const Message& message : f.collection.prompter.asked)
            questions << Described(message);
        QCOMPARE(questions, asked ? QStringList{CloseQuestion} : QStringList());
        if (edit)
            QCOMPARE(Find<QPlainTextEdit>(*w, u"txt_utitel"_s)->toPlainText(), change ? u"Ungespeichert"_s : QString());
        for (const QString& table : {u"Details"_s, u"Gestaltung"_s, u"Status"_s, u"Links"_s})
            QCOMPARE(f.Count(table, 3), 0);
    }

    void escapeInPersonBoxKeepsWindow()
    {
        Fixture f;
        const auto w = f.Open(3, true);
        DoubleClickPerson(*w, 0);
        QTest::keyClick(PersonBox(*w), Qt::Key_Escape);
        QVERIFY(PersonBox(*w)->isHidden());
        QVERIFY(w->isVisible());
        QTest::keyClick(Persons(*w), Qt::Key_Escape);
        QVERIFY(!w->isVisible());
    }

    void viewModeChangesNothing()
    {
        Fixture f;
        f.collection.Exec(u"INSERT INTO Details (Nr, Ersterscheinung, Untertitel, Person1) VALUES (3, '15.03.2009', 'Stumm', 'Lorn');"_s);
        f.collection.Exec(u"INSERT INTO Gestaltung (Nr, TiBiZeichner, IlluZeichner, RZ, RiZeObjekt, RiZeZeichner) "
                          "VALUES (3, 'Jo Kell', 'Rana Till', -1, 'Kreuzer', 'Ben Asto');"_s);
        const auto w = f.Open(3, false);

        QVERIFY(!Find<QPushButton>(*w, u"btn_ok"_s)->isVisible());
        QVERIFY(!Find<QPushButton>(*w, u"btn_nok"_s)->isVisible());
        QCOMPARE(Find<QLineEdit>(*w, u"txt_erst"_s)->text(), u"Sonntag, 15. März 2009"_s);
        Find<QTabWidget>(*w, u"tab_detail"_s)->setCurrentIndex(1);
        QCOMPARE(Find<QLineEdit>(*w, u"txt_tibi"_s)->text(), u"Jo Kell"_s);
        QCOMPARE(Find<QLineEdit>(*w, u"txt_illu"_s)->text(), u"Rana Till"_s);
        QCOMPARE(Find<QLineEdit>(*w, u"txt_rize"_s)->text(), u"Ben Asto"_s);
        QCOMPARE(Find<QLineEdit>(*w, u"txt_objekt"_s)->text(), u"Kreuzer"_s);
        for (const QString& editor : {u"cmb_tibi"_s, u"cmb_illu"_s, u"cmb_rize"_s})
            QVERIFY(!Find<QWidget>(*w, editor)->isVisible());
        QVERIFY(!Find<QCheckBox>(*w, u"chk_rize"_s)->isEnabled());
        Find<QTabWidget>(*w, u"tab_detail"_s)->setCurrentIndex(0);

        TypeInto(*w, u"txt_utitel"_s, u"xyz"_s);
        QTest::keyClick(Find<QWidget>(*w, u"txt_utitel"_s), Qt::Key_Return);
        QCOMPARE(Find<QPlainTextEdit>(*w, u"txt_utitel"_s)->toPlainText(), u"Stumm"_s);
        DoubleClickPerson(*w, 0);
        QVERIFY(PersonBox(*w)->isHidden());
        QTest::keyClick(Persons(*w), Qt::Key_Return);
        QVERIFY(PersonBox(*w)->isHidden());
        QTest::keyClick(w.get(), Qt::Key_Escape);
        QVERIFY(!w->isVisible());
        QVERIFY(f.collection.prompter.asked.isEmpty());
        QCOMPARE(f.Count(u"Status"_s, 3), 0);
        QCOMPARE(f.Value(u"SELECT Untertitel FROM Details WHERE Nr=3;"_s).toString(), u"Stumm"_s);
    }

    void counters_data()
    {
        QTest::addColumn<bool>("edit");
        QTest::addColumn<QString>("utitelLabel");
        QTest::addColumn<QString>("inhaltLabel");
        QTest::addColumn<QString>("inhalt");
        QTest::newRow("edit counts and stops at the limit")
            << true << u"Untertitel:\n(L:3/128, R:125)"_s << u"Inhalt: (L:20/20, R:0)"_s << u"Das Schiff erreicht "_s;
        QTest::newRow("view shows the labels") << false << u"Untertitel:"_s << u"Inhalt:"_s << QString();
    }
    void counters()
    {
        QFETCH(bool, edit);
        QFETCH(QString, utitelLabel);
        QFETCH(QString, inhaltLabel);
        QFETCH(QString, inhalt);
        Fixture f;
        f.collection.session.Config.ContentLimit = 20;
        const auto w = f.Open(3, edit);
        TypeInto(*w, u"txt_utitel"_s, u"Ära"_s);
        TypeInto(*w, u"txt_inhalt"_s, u"Das Schiff erreicht den Rand"_s);
        QCOMPARE(Find<QLabel>(*w, u"lbl_utitel"_s)->text(), utitelLabel);
        QCOMPARE(Find<QLabel>(*w, u"lbl_inhalt"_s)->text(), inhaltLabel);
        QCOMPARE(Find<QPlainTextEdit>(*w, u"txt_inhalt"_s)->toPlainText(), inhalt);
    }

    void storedContentOverLimitIsKept()
    {
        Fixture f;
        f.collection.session.Config.ContentLimit = 10;
        f.collection.Exec(u"INSERT INTO Details (Nr, Ersterscheinung, Inhalt) VALUES (3, '01.03.2009', 'Ein Inhalt von früher');"_s);
        const auto w = f.Open(3, true);
        QCOMPARE(Find<QPlainTextEdit>(*w, u"txt_inhalt"_s)->toPlainText(), u"Ein Inhalt von früher"_s);
        QCOMPARE(Find<QLabel>(*w, u"lbl_inhalt"_s)->text(), u"Inhalt: (L:21/10, R:-11)"_s);
        TypeInto(*w, u"txt_utitel"_s, u"x"_s);
        Save(*w);
        QCOMPARE(f.Value(u"SELECT Inhalt FROM Details WHERE Nr=3;"_s).toString(), u"Ein Inhalt von früher"_s);
    }

    void enterGoesToSaveButton_data()
    {
        QTest::addColumn<QString>("control");
        for (const char* name : {"txt_utitel", "txt_inhalt", "cmb_tibi"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void enterGoesToSaveButton()
    {
        QFETCH(QString, control);
        Fixture f;
        const auto w = f.Open(3, true);
        if (control.startsWith(u"cmb"_s))
            Find<QTabWidget>(*w, u"tab_detail"_s)->setCurrentIndex(1);
        TypeInto(*w, control, u"Ab"_s);
        QWidget* box = QApplication::focusWidget();
        QTest::keyClick(box, Qt::Key_Return);
        QPushButton* save = Find<QPushButton>(*w, u"btn_ok"_s);
        QCOMPARE(QApplication::focusWidget(), save);
        if (auto* text = qobject_cast<QPlainTextEdit*>(box))
            QCOMPARE(text->toPlainText(), u"Ab"_s);
        // A second Enter presses the button.
        QTest::keyClick(save, Qt::Key_Return);
        QVERIFY(!save->isEnabled());
        QCOMPARE(f.Count(u"Details"_s, 3), 1);
    }

    void contentCanTakeTheFrame()
    {
        Fixture f;
        const auto w = f.Open(3, true);
        QPlainTextEdit* inhalt = Find<QPlainTextEdit>(*w, u"txt_inhalt"_s);
        const QSize normal = inhalt->size();
        Click(*w, u"pic_max"_s);
        QApplication::processEvents();
        for (const QString& name : {u"chk_valid"_s, u"frm_valid"_s, u"lbl_utitel"_s, u"liv_personen"_s})
            QVERIFY2(!Find<QWidget>(*w, name)->isVisible(), qPrintable(name));
        QVERIFY(inhalt->width() > normal.width() && inhalt->height() > normal.height());
        Click(*w, u"pic_max"_s);
        QApplication::processEvents();
        QVERIFY(Find<QWidget>(*w, u"chk_valid"_s)->isVisible());
        QCOMPARE(inhalt->size(), normal);
    }

    void drawingCheckBox()
    {
        Fixture f;
        f.collection.Exec(u"INSERT INTO Gestaltung (Nr, TiBiZeichner, RZ, RiZeObjekt, RiZeZeichner) VALUES (3, 'Jo Kell', -1, 'Kreuzer', 'Ben Asto');"_s);
        const auto w = f.Open(3, true);
        Find<QTabWidget>(*w, u"tab_detail"_s)->setCurrentIndex(1);
        QLineEdit* objekt = Find<QLineEdit>(*w, u"txt_objekt"_s);
        QComboBox* zeichner = Find<QComboBox>(*w, u"cmb_rize"_s);
        QVERIFY(objekt->isEnabled() && zeichner->isEnabled());
        QCOMPARE(zeichner->currentText(), u"Ben Asto"_s);
        QCOMPARE(Find<QComboBox>(*w, u"cmb_tibi"_s)->currentText(), u"Jo Kell"_s);

        Click(*w, u"chk_rize"_s);
        QVERIFY(!objekt->isEnabled() && !zeichner->isEnabled());
        QVERIFY(objekt->text().isEmpty() && zeichner->currentText().isEmpty());
        Save(*w);
        QCOMPARE(f.Value(u"SELECT RZ || '|' || RiZeObjekt || '|' || RiZeZeichner || '|' || TiBiZeichner FROM Gestaltung WHERE Nr=3;"_s)
                     .toString(),
                 u"0|||Jo Kell"_s);
        Click(*w, u"chk_rize"_s);
        QVERIFY(objekt->isEnabled() && zeichner->isEnabled());
    }

    void openedFromMainWindow_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("viaEditor"); // the editor's "Detailinfo ..." button
        QTest::addColumn<bool>("edit");
        QTest::newRow("Detail Bearbeiten") << u"mnu_detail_b"_s << false << true;
        QTest::newRow("Detail Anzeigen") << u"mnu_detail"_s << false << false;
        QTest::newRow("editor's button") << u"mnu_edit"_s << true << true;
    }
    void openedFromMainWindow()
    {
        QFETCH(QString, command);
        QFETCH(bool, viaEditor);
        QFETCH(bool, edit);
        Fixture f;
        InstallDetailWindow(f.window);
        f.window.List().FindAndShowRow(2);
        QString caption;
        bool saveShown = !edit;
        const auto lookAndClose = [&] {
            QWidget* modal = QApplication::activeModalWidget();
            QVERIFY(modal != nullptr);
            caption = modal->windowTitle();
            saveShown = Find<QPushButton>(*modal, u"btn_ok"_s)->isVisible();
            QTest::keyClick(modal, Qt::Key_Escape);
        };
        QTimer::singleShot(0, [&] {
            if (!viaEditor)
                return lookAndClose();
            QWidget* editor = QApplication::activeModalWidget();
            QTimer::singleShot(0, lookAndClose);
            Click(*editor, u"btn_details"_s);
            Click(*editor, u"cmd_nok"_s);
        });
        QVERIFY(f.window.IsCommandEnabled(command));
        f.window.Command(command)->trigger();
        QCOMPARE(caption, u"Detailinfo [#2]"_s);
        QCOMPARE(saveShown, edit);
    }

    void screenshot()
    {
        Fixture f;
        f.collection.Exec(u"INSERT INTO Details VALUES (3, '15.03.2009', 'Die Rückkehr der O''Varra', 'Kapitän Lorn', "
                          "'D''Arcy Vell', 'Mira Solt', '', '', '', '', '', '', 'Lorn und D''Arcy suchen den verschollenen "
                          "Kreuzer und finden eine Welt, die es nicht geben dürfte.');"_s);
        // One picture of the window, for the eye.
        const auto w = f.Open(3, true);
        QVERIFY(w->grab().save(u"/tmp/detail-edit-0.png"_s));
    }
};

HEFT_TEST(TestDetailWindow)
#include "tst_detailwindow.moc"
