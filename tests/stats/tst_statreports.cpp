// The eight reports on a small collection whose counts are worked out by
// hand, line for line, with the rows of their charts; then the edges where
// a report changes shape, and frm_stat stepping through all eight.

#include "testmain.h"
#include "testsupport.h"

#include "core/config.h"
#include "core/roman.h"
#include "mainwin/ui/mainwindow.h"
#include "stats/statistics.h"
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
using namespace heft::test;

namespace {

const QDate Today(2024, 3, 11);

// Nine entries up to number 201: gaps of one and of many, jubilee 1 and 100
// present, 200 missing; an entry without a cycle; prices, one with a comma;
// four lent entries, one of them to nobody named.
void FillSample(TempCollection& c)
{
    c.Add({{1, u"Kurt Brandis"_s, u"A"_s, 1, u"- - -"_s, true},
           {2, u"Hanno Velden"_s, u"B"_s, 0, u"- - -"_s},
           {3, u"Kurt Brandis"_s, u"C"_s, 2, u"I"_s, true},
           {5, u"Ulla Sternberg"_s, u"D"_s, 1, u"I"_s},
           {6, u"Kurt Brandis"_s, u"E"_s, 1, u"II"_s},
           {7, u"Hanno Velden"_s, u"F"_s, 3, u"II"_s, true},
           {100, u"Kurt Brandis"_s, u"H"_s, 1, u"III"_s},
           {201, u"Hanno Velden"_s, u"I"_s, 1, u"III"_s}});
    c.Exec(u"INSERT INTO HEFTLIST VALUES (9, 'Ulla Sternberg', 'G', 0, NULL, 0, NULL);"_s);
    const QList<std::tuple<int, int, QString>> status = {
        {1, 5, u"00002.5"_s},    {3, 5, u"0000004"_s},    {6, 5, u"3,75"_s},       {7, 5, u""_s},
        {1, 6, u"0000010"_s},    {5, 6, u"00007.5"_s},    {3, 17, u"Petra Lang"_s}, {5, 17, u"Jonas"_s},
        {7, 17, u"Petra Lang"_s}, {3, 18, u"2024-01-10"_s}, {5, 18, u"2024-03-01"_s}, {7, 18, u""_s},
        {100, 18, u"2023-12-24"_s}, {201, 18, u"2024-02-15"_s}};
    for (const auto& [nr, enumber, value] : status)
        c.Exec(u"INSERT INTO Status VALUES (%1, %2, '%3');"_s.arg(nr).arg(enumber).arg(value));
}

StatsResult Build(TempCollection& c, Statistic statistic, const QString& author = {}, const QString& cycle = {},
                  int priceValue = -1)
{
    const StatsLists lists = LoadStatsLists(c.session);
    StatsChoice choice;
    choice.author = author;
    choice.cycle = cycle;
    choice.priceValue = priceValue;
    choice.today = Today;
    return BuildStatistic(c.session, lists, statistic, choice);
}

QStringList RowTexts(const ChartData& chart)
{
    QStringList texts;
    for (const ChartRow& row : chart.rows)
        texts << u"%1 %2=%3"_s.arg(row.series, row.label).arg(row.value);
    return texts;
}

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
    priceValue->setCurrentIndex(int(PricesAlong));
    QCOMPARE(window.Result().chart.rows.value(0).series, u"Preis"_s);
    stat->setCurrentIndex(0);
    QTest::mouseClick(prev, Qt::LeftButton);
    QCOMPARE(stat->currentIndex(), names.size() - 1);

    QTest::keyClick(&window, Qt::Key_Escape);
    QVERIFY(!window.isVisible());
}

} // namespace

class TestStatReports : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reports_data()
    {
        QTest::addColumn<int>("statistic");
        QTest::addColumn<QString>("choice");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QStringList>("rows");
        const QString first = u"Anzahl der Heftromane in Liste:    9 [  4.5%]"_s;
        QTest::newRow("Gesamt") << int(Statistic::Gesamt) << QString()
                                << QStringList{u"Anzahl der Heftromane in Liste:    9 "_s,
                                               u"Heftromane fehlend            :    2 [ 22.2%]"_s,
                                               u"Heftromane vorhanden          :    7 [ 77.8%]"_s,
                                               u"- davon 1. Auflage            :    5 [ 71.4%]"_s,
                                               u"- davon 2. Auflage            :    1 [ 14.3%]"_s,
                                               u"- davon 3. Auflage            :    1 [ 14.3%]"_s,
                                               u"Heftromane gelesen            :    3 [ 33.3%]"_s,
                                               u"Anzahl der Auflagen           :    3 [ von 5]"_s,
                                               u"Anzahl der Zyklen             :    4"_s,
                                               u"Anzahl der Autoren            :    3"_s}
                                << QStringList{u"Anzahl Gesamt=9"_s,      u"Anzahl Fehlend=2"_s,
                                               u"Anzahl Vorhanden=7"_s,   u"Anzahl 1. Auflage=5"_s,
                                               u"Anzahl 2. Auflage=1"_s,  u"Anzahl 3. Auflage=1"_s};
        // The entry without a cycle is asked for with "=NULL" and so never
        // counted; the last row takes what is left of 100 %.
        QTest::newRow("Zyklen") << int(Statistic::Zyklen) << QString()
                                << QStringList{first, QString(),
                                               u"- davon Zyklus ? ? ?          :    - [ -  - ]"_s,
                                               u"- davon Zyklus - - -          :    2 [ 22.2%]"_s,
                                               u"- davon Zyklus I              :    2 [ 22.2%]"_s,
                                               u"- davon Zyklus II             :    2 [ 22.2%]"_s,
                                               u"- davon Zyklus III            :    2 [ 33.3%]"_s}
                                << QStringList{u"Anzahl ? ? ?=0"_s, u"Anzahl - - -=2"_s, u"Anzahl I=2"_s,
                                               u"Anzahl II=2"_s, u"Anzahl III=2"_s};
        QTest::newRow("Autoren") << int(Statistic::Autoren) << QString()
                                 << QStringList{u"Anzahl der Heftromane in Liste         :    9 [  4.5%]"_s, QString(),
                                                u"- davon Hanno Velden               (HV):    3 [ 33.3%]"_s,
                                                u"- davon Kurt Brandis               (KB):    4 [ 44.4%]"_s,
                                                u"- davon Ulla Sternberg             (US):    2 [ 22.2%]"_s}
                                 << QStringList{u"Anzahl HV=3"_s, u"Anzahl KB=4"_s, u"Anzahl US=2"_s};
        // The share of each row is the author's part of the cycle.
        QTest::newRow("Autor/Zyklen") << int(Statistic::AutorZyklen) << u"Kurt Brandis"_s
                                      << QStringList{first,
                                                     u"Heftromane von Kurt Brandis   :    4"_s,
                                                     u"Erster Roman mit Nummer       :    1"_s,
                                                     u"Letzter Roman mit Nummer      :  100"_s,
                                                     u"Romandichte im Nummernbereich :    4.0%"_s,
                                                     u"- davon im Zyklus - - -       :    1 [ 50.0%]"_s,
                                                     u"- davon im Zyklus I           :    1 [ 50.0%]"_s,
                                                     u"- davon im Zyklus II          :    1 [ 50.0%]"_s,
                                                     u"- davon im Zyklus III         :    1 [ 50.0%]"_s}
                                      << QStringList{u"Anzahl - - -=1"_s, u"Anzahl I=1"_s, u"Anzahl II=1"_s,
                                                     u"Anzahl III=1"_s};
        QTest::newRow("Zyklus/Autoren") << int(Statistic::ZyklusAutoren) << u"II"_s
                                        << QStringList{u"Anzahl der Heftromane in Liste         :    9 [  4.5%]"_s,
                                                       u"Heftromane im Zyklus II                :    2"_s,
                                                       u"- davon Hanno Velden               (HV):    1 [ 50.0%]"_s,
                                                       u"- davon Kurt Brandis               (KB):    1 [ 50.0%]"_s}
                                        << QStringList{u"Anzahl HV=1"_s, u"Anzahl KB=1"_s};
        QTest::newRow("Report") << int(Statistic::Report) << QString()
                                << QStringList{first,
                                               u"Fehlende Heftromane in Liste  :  192 [ 95.5%]"_s,
                                               u" 4 8 10-99 101-200"_s,
                                               u"Jubelbände vorhanden          :    2 [ 66.7%]"_s,
                                               u"1;1 100;1"_s,
                                               u"Jubelbände fehlend            :    1 [ 33.3%]"_s,
                                               u"200"_s}
                                << QStringList{u"Anzahl Fehlende Heftromane=192"_s,
                                               u"Anzahl Jubelbände vorhanden=2"_s, u"Anzahl Jubelbände fehlend=1"_s};
        QTest::newRow("Preis/Wert") << int(Statistic::PreisWert) << QString()
                                    << QStringList{u"Anzahl der Heftromane in Liste     :    9 [  4.5%]"_s,
                                                   u"Anzahl der Heftromane mit Preisinfo:       3"_s,
                                                   u"Maximaler Preis der Heftromane     :       4.00 [#3]"_s,
                                                   u"Minimaler Preis der Heftromane     :       2.50 [#1]"_s,
                                                   u"Summe der Preise der Heftromane    :      10.25"_s,
                                                   u"Durchschnitts Preis der Heftromane :       3.42"_s,
                                                   u"Anzahl der Heftromane mit Wertinfo :       2"_s,
                                                   u"Maximaler Wert der Heftromane      :      10.00 [#1]"_s,
                                                   u"Minimaler Wert der Heftromane      :       7.50 [#5]"_s,
                                                   u"Summe der Werte der Heftromane     :      17.50"_s,
                                                   u"Durchschnitts Wert der Heftromane  :       8.75"_s,
                                                   QString()}
                                    << QStringList{u"Wert 1=10"_s, u"Wert 5=7.5"_s};
        // Entry 100 and 201 are lent to nobody named; entry 7 names a
        // borrower but has no date, so it is not lent, yet counts for her.
        QTest::newRow("Verleihwesen") << int(Statistic::Verleihwesen) << QString()
                                      << QStringList{u"Anzahl der Heftromane in Liste   :    9 [  4.5%]"_s,
                                                     u"Anzahl der verliehenen Heftromane:     4"_s,
                                                     u"Am längsten verliehene Ausgabe   :   100 [24-12-23/78T]"_s,
                                                     u"Als letztes verliehene Ausgabe   :     5 [01-03-24/10T]"_s,
                                                     QString(),
                                                     u"- an Jonas                   (Jo):     1"_s,
                                                     u"- an Petra Lang              (PL):     2"_s,
                                                     u"- an *** Unbekannt ***       (**):     1"_s}
                                      << QStringList{u"Anzahl Jo=1"_s, u"Anzahl PL=2"_s, u"Anzahl **=1"_s};
    }

    void reports()
    {
        QFETCH(int, statistic);
        QFETCH(QString, choice);
        TempCollection c;
        FillSample(c);
        const auto kind = static_cast<Statistic>(statistic);
        const StatsResult result = Build(c, kind, choice, choice);
        QTEST(result.text.split(u"\r\n"_s), "lines");
        QTEST(RowTexts(result.chart), "rows");
    }

    void priceValueCharts()
    {
        TempCollection c;
        FillSample(c);
        const StatsResult result = Build(c, Statistic::PreisWert, {}, {}, PricesAlong);
        QCOMPARE(result.chart.kind, ChartKind::Lines);
        QCOMPARE(RowTexts(result.chart), (QStringList{u"Preis 1=2.5"_s, u"Preis 3=4"_s, u"Preis 6=3.75"_s}));
        // Only entry 1 has both.
        QCOMPARE(RowTexts(PriceValueChart(result.priceValues, ValueAgainstPrice)),
                 (QStringList{u"Preis 1=2.5"_s, u"Wert 1=10"_s}));
        PriceValueRows disjoint = result.priceValues;
        disjoint.values = {{5, 7.5}, {9, 1}};
        QVERIFY(PriceValueChart(disjoint, ValueAgainstPrice).tooFewData);
        QVERIFY(PriceValueChart({{{1, 2.5}}, {{1, 3}}}, PricesAlong).tooFewData);
    }

    // Shapes that change a report: no prices, one author, no gaps, a list
    // below 100, gaps that fill more than a line, many cycles.
    void edges_data()
    {
        QTest::addColumn<QString>("setup");
        QTest::addColumn<int>("statistic");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<int>("chartRows");
        QTest::newRow("no price") << u"1-2"_s << int(Statistic::PreisWert) << 1
                                  << u"Anzahl der Heftromane mit Preisinfo: Keine"_s << 1;
        QTest::newRow("one author") << u"1-2"_s << int(Statistic::Autoren) << 2
                                    << u"- davon Kurt Brandis               (KB):    2 [100.0%]"_s << 1;
        QTest::newRow("no gap") << u"1-2"_s << int(Statistic::Report) << 2 << u" Keine!"_s << 3;
        QTest::newRow("below 100") << u"1-99"_s << int(Statistic::Report) << 4 << u"1;1"_s << 3;
        QTest::newRow("nothing lent") << u"1-2"_s << int(Statistic::Verleihwesen) << 2
                                      << u"Am längsten verliehene Ausgabe   : Keine"_s << 1;
        QTest::newRow("wrapped gaps") << u"odd"_s << int(Statistic::Report) << 2
                                      << u" 2 4 6 8 10 12 14 16 18 20 22 24 26 28 30 32 34 36 38 40"_s << 3;
        QTest::newRow("65 cycles") << u"65 cycles"_s << int(Statistic::Zyklen) << 66
                                   << u"- davon Zyklus LXV            :    1 [  1.5%]"_s << 65;
    }

    void edges()
    {
        QFETCH(QString, setup);
        QFETCH(int, statistic);
        QFETCH(int, line);
        QFETCH(int, chartRows);
        TempCollection c;
        if (setup == u"1-2")
            c.Add({{1, u"Kurt Brandis"_s, u"A"_s, 1}, {2, u"Kurt Brandis"_s, u"B"_s, 1}});
        else if (setup == u"1-99")
            c.Add({{1, u"Kurt Brandis"_s, u"A"_s, 1}, {99, u"Kurt Brandis"_s, u"B"_s, 1}});
        for (int nr = 1; setup == u"odd" && nr <= 49; nr += 2)
            c.Add({{nr, u"Kurt Brandis"_s, u"A"_s, 1}});
        for (int cycle = 1; setup == u"65 cycles" && cycle <= 65; ++cycle)
            c.Add({{cycle, u"Kurt Brandis"_s, u"A"_s, 1, NumberToRoman(int(cycle))}});
        const StatsResult result = Build(c, static_cast<Statistic>(statistic), u"Kurt Brandis"_s);
        QTEST(result.text.split(u"\r\n"_s).value(line), "expected");
        QCOMPARE(result.chart.rows.size(), chartRows);
        if (!result.chart.tooFewData)
            QCOMPARE(result.chart.valueLabels, chartRows <= ChartData::MaxLabelledRows);
    }

    void stepsThroughAllEight()
    {
        TempCollection c; // with the shipped sample in place of its file
        c.Close();
        QVERIFY(QFile::remove(c.Path()) && QFile::copy(HEFTARIUM_RUNTIME_DIR "/DBs/Heftarium.mdb"_L1, c.Path()));
        c.Reopen();
        ReadParameters(c.session);
        MainWindow main;
        main.LoadList(c.session);
        InstallStatisticsWindow(main);
        QVERIFY(main.IsCommandEnabled(u"mnu_stat"_s));
        ModalScript script(u"frm_stat"_s);
        script.Then([](QDialog& window) { StepThrough(static_cast<StatWindow&>(window)); });
        main.Command(u"mnu_stat"_s)->trigger();
        QCOMPARE(script.opened, 1);
        QVERIFY(!script.leftOpen);
    }
};

HEFT_TEST(TestStatReports)
#include "tst_statreports.moc"
