// The stats command: the report as the window shows it, the chart rows,
// the window's first choices, and the exit code for a name or choice that
// does not exist.

#include "testmain.h"
#include "testsupport.h"

#include "clirun.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestCliStats : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stats_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("err");
        QTest::newRow("cycle case-blind, rows")
            << QStringList{u"Zyklus/Autoren"_s, u"--cycle"_s, u"i"_s, u"--rows"_s} << 0
            << u"Anzahl der Heftromane in Liste         :    2 [100.0%]\n"
               "Heftromane im Zyklus I                 :    2\n"
               "- davon Hanno Velden               (HV):    1 [ 50.0%]\n"
               "- davon Kurt Brandis               (KB):    1 [ 50.0%]\n"
               "Anzahl\tHV\t1\nAnzahl\tKB\t1\n"_s
            << QString();
        // Without --author the window's first choice: the last author.
        QTest::newRow("last author") << QStringList{u"Autor/Zyklen"_s} << 0
                                     << u"Anzahl der Heftromane in Liste:    2 [100.0%]\n"
                                        "Heftromane von Kurt Brandis   :    1\n"
                                        "Erster Roman mit Nummer       :    1\n"
                                        "Letzter Roman mit Nummer      :    1\n"
                                        "Romandichte im Nummernbereich :  100.0%\n"
                                        "- davon im Zyklus I           :    1 [ 50.0%]\n"_s
                                     << QString();
        QTest::newRow("unknown statistic")
            << QStringList{u"Summe"_s} << 2 << QString()
            << u"Unbekannte Angabe für die Statistik: \"Summe\". Möglich sind: Gesamt, Zyklen, Autoren, "
               "Autor/Zyklen, Zyklus/Autoren, Report, Preis/Wert, Verleihwesen\n"_s;
    }

    void stats()
    {
        QFETCH(QStringList, words);
        QFETCH(int, code);
        QFETCH(QString, out);
        QFETCH(QString, err);
        heft::test::TempCollection c;
        c.Add({{1, u"Kurt Brandis"_s, u"A"_s, 1, u"I"_s}, {2, u"Hanno Velden"_s, u"B"_s, 0, u"I"_s}});
        c.Close();
        QCOMPARE(heft::test::RunCliWith(QStringList{u"--db"_s, c.Path(), u"stats"_s} + words),
                 (heft::test::CliRun{code, out, err}));
    }
};

HEFT_TEST(TestCliStats)
#include "tst_clistats.moc"
