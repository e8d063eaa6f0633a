// The cycle window and its editor on a real cycle file: the list, new and
// changed cycles, the editor's checks and the exported cycle file.

#include "testmain.h"
#include "testsupport.h"

#include "core/schema.h"
#include "core/textfuncs.h"
#include "cycles/cycleedit.h"
#include "cycles/ui/cyclegrid.h"
#include "cycles/ui/cyclewindow.h"
#include "cycles/ui/cyclewindowinstall.h"
#include "mainwin/ui/mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

// Zyklus, NrVon, NrBis, ZeitVon, ZeitBis, Bezeichnung, Zyklusbereich (NULL
// where the text is "NULL").
using Cycles = QList<QStringList>;

const Cycles ThreeCycles = {
    {u"I"_s, u"1"_s, u"50"_s, u"-100"_s, u"20"_s, u"Die Größe  "_s, u"Aufbruch"_s},
    {u"II"_s, u"51"_s, u"100"_s, u"20"_s, u"40"_s, u"Nebel"_s, u"NULL"_s},
    {u"III"_s, u"101"_s, u"150"_s, u"40"_s, u"90"_s, u"Kaiser"_s, u"Aufbruch"_s},
};

QString SqlText(const QString& value)
{
    return value == u"NULL" ? value : u"'"_s + QuoteSql(value) + u"'"_s;
}

struct Fixture {
    explicit Fixture(const Cycles& cycles = ThreeCycles, const QString& entryCycle = u"II"_s)
    {
        collection.Add({{7, u"Ava Lind"_s, u"Morgensonne"_s, 1, entryCycle}, {8, u"Bo Kern"_s, u"Nachtflug"_s}});
        DbError error;
        session().CycleDb = CreateCycleFile(collection.dir.filePath(u"Zyklus.mdb"_s), &error);
        for (const QStringList& c : cycles)
            QVERIFY(!session().CycleDb->Execute(u"INSERT INTO ZyklusListe VALUES (%1, %2, %3, %4, %5, %6, %7);"_s.arg(
                SqlText(c[0]), c[1], c[2], c[3], c[4], SqlText(c[5]), SqlText(c[6]))));
        window.LoadList(session());
        window.List().FindAndShowRow(7);
        InstallCycleWindow(window);
    }
    Session& session() { return collection.session; }
    QString CycleValue(const QString& sql) { return session().CycleDb->SelectValue(sql).toString(); }
    CycleWindow* Open()
    {
        window.Command(u"mnu_zyklus"_s)->trigger();
        return OpenCycleWindow(window);
    }
    QAction* Action(CycleWindow& w, const QString& name) { return w.findChild<QAction*>(name); }

    TempCollection collection;
    MainWindow window;
};

QStringList Line(const CycleGrid& grid, int index)
{
    QStringList cells;
    for (int column = 0; column < grid.columnCount(); ++column)
        cells << grid.item(index, column)->text();
    return cells;
}

QLineEdit* Box(QWidget& dialog, const QString& name)
{
    return dialog.findChild<QLineEdit*>(name);
}

// Runs an editor command; step works in the modal editor and closes it.
void InEditor(QAction* command, const std::function<void(QDialog&)>& step)
{
    ModalScript script(u"frm_editzyk"_s);
    script.Then(step);
    command->trigger();
    QCOMPARE(script.opened, 1);
    QVERIFY(!script.leftOpen);
}

void Type(QDialog& dialog, const QString& name, const QString& text)
{
    QLineEdit* box = Box(dialog, name);
    box->selectAll();
    box->del();
    QTest::keyClicks(box, text);
}

} // namespace

class TestCycleWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fill_data()
    {
        QTest::addColumn<QString>("entryCycle");
        QTest::addColumn<int>("shown");
        QTest::newRow("cycle of the entry") << u"II"_s << 1;
        QTest::newRow("cycle not in the list") << u"XX"_s << 0;
    }

    void fill()
    {
        QFETCH(QString, entryCycle);
        Fixture f(ThreeCycles, entryCycle);
        CycleWindow* w = f.Open();
        QVERIFY(w && w->isVisible() && !w->isModal());
        QVERIFY(f.session().EditAccepted);
        const CycleGrid& grid = w->Grid();
        QCOMPARE(grid.CycleCount(), 3);
        QCOMPARE(Line(grid, 0),
                 (QStringList{u"1"_s, u"I"_s, u"1"_s, u"50"_s, u"-100"_s, u"20"_s, u"Die Größe  "_s, u"Aufbruch"_s}));
        QCOMPARE(grid.item(1, 7)->text(), QString()); // NULL
        QTEST(grid.currentRow(), "shown");
        // The command again brings the same window forward.
        QCOMPARE(f.Open(), w);
        QVERIFY(QTest::qWaitForWindowActive(w));
        QTest::keyClick(&w->Grid(), Qt::Key_Escape);
        QVERIFY(!OpenCycleWindow(f.window));
    }

    void newCycle()
    {
        Fixture f(ThreeCycles.mid(0, 1));
        CycleWindow* w = f.Open();
        QVERIFY(!f.Action(*w, u"zmnu_delete"_s)->isEnabled());
        InEditor(f.Action(*w, u"zmnu_insert"_s), [](QDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), u"Neuen Zyklus erstellen ..."_s);
            QStringList shown;
            for (const QString& name : {u"txt_zyklus"_s, u"txt_vonnr"_s, u"txt_bisnr"_s, u"txt_vonjahr"_s,
                                        u"txt_bisjahr"_s, u"txt_bez"_s, u"txt_gz"_s})
                shown << Box(dialog, name)->text();
            QCOMPARE(shown,
                     (QStringList{u"II"_s, u"51"_s, u"100"_s, u"20"_s, u"20"_s, u"Die Größe  "_s, u"Aufbruch"_s}));
            // The number boxes take digits only, the year boxes a minus anywhere.
            Type(dialog, u"txt_vonnr"_s, u"6a-0"_s);
            Type(dialog, u"txt_vonjahr"_s, u"15-"_s);
            // 60 to 100 is refused as text ("60" > "100"): the start takes the
            // end, the box has the focus, and the window stays.
            QTest::keyClick(Box(dialog, u"txt_vonjahr"_s), Qt::Key_Return);
            QVERIFY(dialog.isVisible());
            QCOMPARE(Box(dialog, u"txt_vonnr"_s)->text(), u"100"_s);
            QCOMPARE(dialog.focusWidget(), Box(dialog, u"txt_vonnr"_s));
            // "15-" is no number: the statement fails, and the window closes
            // without a word.
            dialog.findChild<QPushButton*>(u"btn_ok"_s)->click();
        });
        QCOMPARE(w->Grid().CycleCount(), 1);
        QVERIFY(f.collection.prompter.asked.isEmpty());

        InEditor(f.Action(*w, u"zmnu_insert"_s), [](QDialog& dialog) {
            Type(dialog, u"txt_bisnr"_s, u"99"_s);
            Type(dialog, u"txt_vonjahr"_s, u"-15"_s);
            Type(dialog, u"txt_bez"_s, u"Ka'Rell"_s);
            Type(dialog, u"txt_gz"_s, QString());
            QTest::keyClick(Box(dialog, u"txt_bisnr"_s), Qt::Key_Enter);
        });
        QCOMPARE(f.CycleValue(u"SELECT Zyklus || '|' || NrVon || '|' || NrBis || '|' || ZeitVon || '|' || ZeitBis || "
                              "'|' || Bezeichnung || '|' || Zyklusbereich FROM ZyklusListe WHERE NrVon=51;"_s),
                 u"II|51|99|-15|20|Ka'Rell|"_s);
        CycleGrid& grid = w->Grid();
        QCOMPARE(grid.currentRow(), 1);

        // A double click on a line changes it.
        ModalScript change(u"frm_editzyk"_s);
        change.Then([](QDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), u"Zykluseintrag bearbeiten ..."_s);
            Type(dialog, u"txt_gz"_s, u"Der Kaiser's Zeit"_s);
            dialog.findChild<QPushButton*>(u"btn_ok"_s)->click();
        });
        const QPoint cell = grid.visualItemRect(grid.item(1, 3)).center();
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cell);
        QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, cell);
        QCOMPARE(change.opened, 1);
        QCOMPARE(f.CycleValue(u"SELECT Zyklusbereich FROM ZyklusListe WHERE Zyklus='II';"_s), u"Der Kaiser's Zeit"_s);
        QCOMPARE(Line(grid, 1), (QStringList{u"2"_s, u"II"_s, u"51"_s, u"99"_s, u"-15"_s, u"20"_s, u"Ka'Rell"_s,
                                             u"Der Kaiser's Zeit"_s}));
        // The right button takes the line and opens the popup menu.
        const QPoint first = grid.visualItemRect(grid.item(0, 3)).center();
        QContextMenuEvent click(QContextMenuEvent::Mouse, first, grid.viewport()->mapToGlobal(first));
        QApplication::sendEvent(grid.viewport(), &click);
        QCOMPARE(grid.currentRow(), 0);
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        QApplication::activePopupWidget()->close();
        grid.SelectCycle(1);
        // The last cycle goes after Yes only; the first one can't go.
        f.collection.prompter.answers = {Answer::No, Answer::Yes};
        for (int press = 0; press < 2; ++press)
            f.Action(*w, u"zmnu_delete"_s)->trigger();
        QCOMPARE(f.collection.prompter.asked.value(1).text, u"Zykluseintrag #2 (II)\r'Ka'Rell'\rwirklich löschen?"_s);
        QCOMPARE(f.CycleValue(u"SELECT GROUP_CONCAT(Zyklus) FROM ZyklusListe;"_s), u"I"_s);
        QCOMPARE(grid.CycleCount(), 1);
        QVERIFY(!f.Action(*w, u"zmnu_delete"_s)->isEnabled());
    }

    // A cycle file that is not open or can't be read: a message, no window.
    void loadFailures_data()
    {
        QTest::addColumn<bool>("fileOpen");
        QTest::addColumn<QString>("title");
        QTest::newRow("not open") << false << u"Probleme beim Öffnen der Zyklus-DB"_s;
        QTest::newRow("unreadable") << true << u"Probleme beim Lesen der Zyklus-DB"_s;
    }
    void loadFailures()
    {
        QFETCH(bool, fileOpen);
        QFETCH(QString, title);
        Fixture f;
        if (fileOpen)
            QVERIFY(!f.session().CycleDb->Execute(u"DROP TABLE ZyklusListe;"_s));
        else
            f.session().CycleDb.reset();
        QVERIFY(!f.Open());
        QCOMPARE(f.collection.prompter.asked.size(), 1);
        QCOMPARE(f.collection.prompter.asked[0].title, title);
    }

    void exportFile_data()
    {
        QTest::addColumn<int>("cycles");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("opening");
        const QByteArray header = "[Valdorin Zyklen]\r\n";
        const QByteArray first = "\"I\";\"1\";\"50\";\"-100\";\"20\";\"Die Gr\xf6\xdf"
                                 "e\";\"Aufbruch\";\r\n";
        QTest::newRow("one") << 1 << header + first << u"Ein Eintrag wurde in die Datei\r'"_s;
        QTest::newRow("three") << 3
                               << header + first + "\"II\";\"51\";\"100\";\"20\";\"40\";\"Nebel\";\"\";\r\n" +
                                      "\"III\";\"101\";\"150\";\"40\";\"90\";\"Kaiser\";\"Aufbruch\";\r\n"
                               << u"Insgesamt 3 Einträge wurden in die Datei\r'"_s;
    }

    void exportFile()
    {
        QFETCH(int, cycles);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, opening);
        Fixture f(ThreeCycles.mid(0, cycles));
        CycleWindow* w = f.Open();
        f.Action(*w, u"zmnu_export"_s)->trigger();
        const QString path = QDir(f.session().DataFolder).filePath(u"export/Valdorin-Zyklus.dat"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), bytes);
        QCOMPARE(f.collection.prompter.asked.size(), 1);
        const Message& message = f.collection.prompter.asked[0];
        QCOMPARE(message.text,
                 opening + QDir::toNativeSeparators(path) + u"'\rgesichert (%1 Bytes Dateilänge)."_s.arg(bytes.size()));
    }

    // The editor's rules without its window: the checks and their order.
    void checks_data()
    {
        QTest::addColumn<QStringList>("typed");
        QTest::addColumn<int>("refused"); // CycleBox
        QTest::addColumn<QStringList>("after");
        const QString keine = u"*** Keine ***"_s;
        // A blank title is replaced and the checks go on to the first stop.
        QTest::newRow("blank title, then empty from")
            << QStringList{u"V"_s, u""_s, u""_s, u""_s, u""_s, u"   "_s, u"G"_s} << int(CycleBox::NrVon)
            << QStringList{u"V"_s, u"0"_s, u""_s, u""_s, u""_s, keine, u"G"_s};
        // Compared as texts: 900 lies behind 1000.
        QTest::newRow("900 to 1000") << QStringList{u"V"_s, u"900"_s, u"1000"_s, u""_s, u""_s, u"T"_s, u""_s}
                                     << int(CycleBox::NrVon)
                                     << QStringList{u"V"_s, u"1000"_s, u"1000"_s, u""_s, u""_s, u"T"_s, u""_s};
        QTest::newRow("empty to") << QStringList{u"V"_s, u"5"_s, u""_s, u""_s, u""_s, u"T"_s, u""_s}
                                  << int(CycleBox::NrBis)
                                  << QStringList{u"V"_s, u"5"_s, u"0"_s, u""_s, u""_s, u"T"_s, u""_s};
        QTest::newRow("empty last year")
            << QStringList{u"V"_s, u"5"_s, u"6"_s, u"1"_s, u""_s, u"T"_s, u""_s} << int(CycleBox::ZeitBis)
            << QStringList{u"V"_s, u"5"_s, u"6"_s, u"1"_s, u"0"_s, u"T"_s, u""_s};
        QTest::newRow("empty first year")
            << QStringList{u"V"_s, u"5"_s, u"6"_s, u""_s, u""_s, u"T"_s, u""_s} << int(CycleBox::ZeitVon)
            << QStringList{u"V"_s, u"5"_s, u"6"_s, u"0"_s, u""_s, u"T"_s, u""_s};
    }

    void checks()
    {
        QFETCH(QStringList, typed);
        CycleRow row{typed[0], typed[1], typed[2], typed[3], typed[4], typed[5], typed[6]};
        QTEST(int(CheckCycleInput(row)), "refused");
        QTEST((QStringList{row.Zyklus, row.NrVon, row.NrBis, row.ZeitVon, row.ZeitBis, row.Bezeichnung,
                           row.Zyklusbereich}),
              "after");
    }

};

HEFT_TEST(TestCycleWindow)
#include "tst_cyclewindow.moc"
