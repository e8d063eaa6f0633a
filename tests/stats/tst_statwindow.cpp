// frm_stat on the shipped collection, opened by its menu command: stepping
// through all eight statistics, the captions of the step buttons, which
// choice is offered, and Esc.

#include "testmain.h"
#include "testsupport.h"

#include "core/config.h"
#include "core/sqlwriters.h"
#include "mainwin/ui/mainwindow.h"
#include "stats/ui/statwindow.h"
#include "stats/ui/statwindowinstall.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using heft::test::Child;

namespace {

// Every statistic in turn through the step buttons, with the choices each
// offers; Esc closes the window.
void StepThrough(StatWindow& window)
{
    auto* stat = Child<QComboBox>(window, u"cmb_stat"_s);
    auto* next = Child<QPushButton>(window, u"btn_next"_s);
    auto* prev = Child<QPushButton>(window, u"btn_prev"_s);
    auto* authors = Child<QComboBox>(window, u"cmb_autoren"_s);
    auto* cycles = Child<QComboBox>(window, u"cmb_zyklen"_s);
    auto* priceValue = Child<QComboBox>(window, u"cmb_preiswert"_s);
    auto* choices = Child<QGroupBox>(window, u"frm_4what"_s);
    auto* text = Child<QPlainTextEdit>(window, u"txt_box1"_s);
    QCOMPARE(authors->currentIndex(), authors->count() - 1);

    const QStringList names = StatisticNames();
    for (int step = 0; step <= names.size(); ++step) {
        const int index = step % names.size();
        QCOMPARE(stat->currentIndex(), index);
        QCOMPARE(next->text(), names[(index + 1) % names.size()]);
        QCOMPARE(prev->text(), names[(index + names.size() - 1) % names.size()]);
        const ChoiceControls expected = ChoiceControlsOf(static_cast<Statistic>(index));
        QCOMPARE(choices->isEnabled(), expected.enabled);
        QCOMPARE(authors->isVisible(), expected.authors);
        QCOMPARE(cycles->isVisible(), expected.cycles);
        QCOMPARE(priceValue->isVisible(), expected.priceValue);
        QCOMPARE(text->toPlainText(), QString(window.Result().text).replace(u"\r\n"_s, u"\n"_s));
        QTest::mouseClick(next, Qt::LeftButton);
    }
    // The sample has values, so "Preis/Wert" opened on their course.
    stat->setCurrentIndex(int(Statistic::PreisWert));
    QCOMPARE(priceValue->currentIndex(), int(ValuesAlong));
    stat->setCurrentIndex(0);
    QTest::mouseClick(prev, Qt::LeftButton);
    QCOMPARE(stat->currentIndex(), names.size() - 1);

    QTest::keyClick(&window, Qt::Key_Escape);
    QVERIFY(!window.isVisible());
}

} // namespace

class TestStatWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stepsThroughAllEight()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(u"Heftarium.mdb"_s);
        QVERIFY(QFile::copy(QStringLiteral(HEFTARIUM_RUNTIME_DIR) + u"/DBs/Heftarium.mdb"_s, path));
        Session session;
        ScriptedPrompter prompter;
        session.prompter = &prompter;
        session.log = Log(dir.filePath(u"Heftarium.log"_s));
        QVERIFY(!OpenCollectionDatabase(session, path));
        DbError error;
        QVERIFY(ReadConfiguration(session, &error));
        ReadParameters(session);
        MainWindow main;
        main.LoadList(session);
        InstallStatisticsWindow(main);
        QVERIFY(main.IsCommandEnabled(u"mnu_stat"_s));
        // The menu command opens the window modal; the steps run inside it.
        test::ModalScript script(u"frm_stat"_s);
        script.Then([](QDialog& window) { StepThrough(static_cast<StatWindow&>(window)); });
        main.Command(u"mnu_stat"_s)->trigger();
        QCOMPARE(script.opened, 1);
        QVERIFY(!script.leftOpen);
    }
};

HEFT_TEST(TestStatWindow)
#include "tst_statwindow.moc"
