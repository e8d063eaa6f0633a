#include "listfixture.h"
#include "testmain.h"

#include "mainwin/ui/gotodialog.h"
#include "mainwin/ui/mainwindow.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <numeric>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

QList<TestEntry> Numbered(const QList<int>& numbers)
{
    QList<TestEntry> entries;
    for (int nr : numbers)
        entries.append({nr, u"Autor"_s, u"Titel %1"_s.arg(nr)});
    return entries;
}

void Search(GotoDialog& dialog, const QString& typed)
{
    auto* box = dialog.findChild<QLineEdit*>(u"txt_nr"_s);
    box->clear();
    QTest::keyClicks(box, typed);
    dialog.findChild<QPushButton*>(u"OKButton"_s)->click();
}

} // namespace

class TestGoto : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // A number that can't be shown leaves the dialog open and the selection
    // where it was; an empty box does not even search.
    void notFound_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing typed") << u""_s << QString();
        QTest::newRow("below the range") << u"2"_s << u"Die kleinste vorliegende\rHeftnummer lautet: 3"_s;
        QTest::newRow("above the range") << u"11"_s << u"Die größte vorliegende\rHeftnummer lautet: 10"_s;
        QTest::newRow("in a gap") << u"7"_s << u"Eintrag Nummer 7 konnte\nnicht gefunden werden."_s;
    }
    void notFound()
    {
        QFETCH(QString, typed);
        QFETCH(QString, text);
        TempCollection collection;
        collection.Add(Numbered({3, 4, 5, 8, 9, 10}));
        MainWindow window;
        window.LoadList(collection.session);
        window.List().FindAndShowRow(4);
        GotoDialog dialog(window);
        dialog.show();
        Search(dialog, typed);

        QVERIFY(dialog.isVisible());
        QCOMPARE(window.List().Heftliste.Row(), 2);
        QCOMPARE(collection.prompter.asked.size(), text.isNull() ? 0 : 1);
        if (text.isNull())
            return;
        const Message& message = collection.prompter.asked[0];
        QCOMPARE(message.title, u"Negatives Suchergebnis"_s);
        QCOMPARE(message.text, text);
    }

    // The found entry is selected and stands in the middle of the list; the
    // dialog closes. Enter searches, digits only.
    void foundInTheMiddle()
    {
        TempCollection collection;
        QList<int> numbers(400);
        std::iota(numbers.begin(), numbers.end(), 1);
        collection.Add(Numbered(numbers));
        MainWindow window;
        window.resize(900, 600);
        window.LoadList(collection.session);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const EntryGrid& grid = window.List().Heftliste;

        GotoDialog dialog(window);
        dialog.show();
        auto* box = dialog.findChild<QLineEdit*>(u"txt_nr"_s);
        QTest::keyClicks(box, u"2x5-0"_s);
        QCOMPARE(box->text(), u"250"_s);
        QTest::keyClick(box, Qt::Key_Return);

        QVERIFY(!dialog.isVisible());
        QVERIFY(collection.prompter.asked.isEmpty());
        QCOMPARE(grid.TextMatrix(grid.Row(), ColNr), u"250"_s);
        QCOMPARE(window.StatusPanelText(3), u"250/400"_s);
        const int half = std::max(1, grid.VisibleRows() / 2);
        QVERIFY(grid.VisibleRows() > 4);
        QCOMPARE(grid.TopRow(), grid.Row() - half + 1);
    }

};

HEFT_TEST(TestGoto)
#include "tst_goto.moc"
