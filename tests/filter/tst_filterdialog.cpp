// frm_filter on a real collection: when btn_ausf may run, a refused cycle
// value, and runs that find nothing.

#include "testmain.h"
#include "testsupport.h"

#include "filter/ui/filterdialog.h"
#include "filter/ui/filtermode.h"
#include "mainwin/ui/mainwindow.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

// The dialog over a loaded main window.
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
    QString Focus() { return dialog->focusWidget()->objectName(); }

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
        QFETCH(QString, sentence);
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
        QCOMPARE(open.state.FilterText, sentence);

        QVERIFY(!open.window.IsFilterMode());
        QVERIFY(list.Heftliste.Visible());
        QCOMPARE(list.SortColumn, int(ColTitel));
        QCOMPARE(open.window.StatusPanelText(3), selection);
    }
};

HEFT_TEST(TestFilterDialog)
#include "tst_filterdialog.moc"
