#include "listfixture.h"
#include "testmain.h"

#include "mainwin/ui/gotodialog.h"
#include "mainwin/ui/mainwindow.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>


using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

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
    // where it was; an empty box does not even search. A found entry is
    // selected and the dialog closes. Digits only.
    void search_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("row");
        QTest::newRow("nothing typed") << u""_s << QString() << 2;
        QTest::newRow("below the range") << u"2"_s << u"Die kleinste vorliegende\rHeftnummer lautet: 3"_s << 2;
        QTest::newRow("above the range") << u"11"_s << u"Die größte vorliegende\rHeftnummer lautet: 10"_s << 2;
        QTest::newRow("in a gap") << u"7"_s << u"Eintrag Nummer 7 konnte\nnicht gefunden werden."_s << 2;
        QTest::newRow("found, the highest") << u"1x0-"_s << QString() << 6;
    }
    void search()
    {
        QFETCH(QString, typed);
        QFETCH(QString, text);
        QFETCH(int, row);
        TempCollection collection;
        for (int nr : {3, 4, 5, 8, 9, 10})
            collection.Add({{nr, u"Autor"_s, u"Titel %1"_s.arg(nr)}});
        MainWindow window;
        window.LoadList(collection.session);
        window.List().FindAndShowRow(4);
        GotoDialog dialog(window);
        dialog.show();
        Search(dialog, typed);

        QCOMPARE(dialog.isVisible(), row == 2);
        QCOMPARE(window.List().Heftliste.Row(), row);
        QCOMPARE(window.StatusPanelText(3), u"%1/6"_s.arg(row));
        QCOMPARE(collection.prompter.asked.size(), text.isNull() ? 0 : 1);
        if (text.isNull())
            return;
        const Message& message = collection.prompter.asked[0];
        QCOMPARE(message.title, u"Negatives Suchergebnis"_s);
        QCOMPARE(message.text, text);
    }

};

HEFT_TEST(TestGoto)
#include "tst_goto.moc"
