// The filter command: criteria in the words of the filter window, the
// printed WHERE text, sentence and numbers, and the exit codes.

#include "clirun.h"
#include "testmain.h"
#include "testsupport.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestCliFilter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void filter_data()
    {
        QTest::addColumn<QStringList>("criteria");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("out");
        QTest::newRow("two rows") << QStringList{u"Titel:ÄHNLICH:Sonne"_s, u"UND"_s, u"Wert:GRÖßER:20"_s} << 0
                                  << u"h.Titel LIKE '*Sonne*' AND (s.StatusWert>'0000020' AND s.StatusWert<>'' AND "
                                     "s.ENum=6) \nTitel ähnlich wie '*Sonne*' UND Wert größer als 20 € \n3\n"_s;
        QTest::newRow("list entry, guarded") << QStringList{u"Zustand:IST:gut"_s} << 0
                                             << u"(s.StatusWert='gut' AND s.StatusWert<>'' AND s.ENum=3) \n"
                                                "Zustand = 'gut' \n1\n"_s;
        // XOR binds weaker than OR: 1 is Lind and older than 1980, so it drops out.
        QTest::newRow("list pattern, yes/no, date")
            << QStringList{u"Autor:ÄHNLICH:Lind"_s, u"EXOR"_s, u"Gelesen:IST:Nein"_s, u"ODER"_s,
                           u"Datum:KLEINER:01.01.1980"_s}
            << 0
            << u"h.Autor LIKE '*Lind*' XOR h.GL=0 OR d.Ersterscheinung<DateValue('01.01.1980') \n"
               "Autor ähnlich wie '*Lind*' ENTWEDER ODER Gelesen = Nein ODER Ersterscheinung kleiner als "
               "01-01-1980 \n2\n"_s;
        QTest::newRow("printing, nothing found")
            << QStringList{u"Auflage:IST:-3-"_s} << 0
            << u"h.Auflage=3 \nAuflage = 3 \nZu den gegebenen Filter-Kriterien konnten in der Datenbank leider "
               "keine Einträge gefunden werden.\n"_s;
        QTest::newRow("refused cycle") << QStringList{u"Zyklus:GRÖßER:0"_s} << 1 << QString();
        QTest::newRow("failed statement") << QStringList{u"Nr:IST:"_s} << 1 << u"h.Nr= \nNummer = <LEER> \n"_s;
        QTest::newRow("not in the list") << QStringList{u"Zustand:IST:fehlt"_s} << 2 << QString();
        QTest::newRow("bad date") << QStringList{u"Datum:IST:1980-01-01"_s} << 2 << QString();
    }

    void filter()
    {
        QFETCH(QStringList, criteria);
        QFETCH(int, code);
        QFETCH(QString, out);
        heft::test::TempCollection c;
        c.Add({{1, u"Ava Lind"_s, u"Morgensonne"_s, 1, u"I"_s, true},
                   {2, u"Bo Kern"_s, u"Nachtflug"_s, 2, u"II"_s, false},
                   {3, u"Cy Ott"_s, u"Sonnenwind"_s, 1, u"- - -"_s, true}});
        c.Exec(u"INSERT INTO Details (Nr, Ersterscheinung) VALUES (1, '12.03.1975'), (2, '02.02.1990');"_s);
        c.Exec(u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (1, 3, 'gut'), (2, 3, ''), "
               "(3, 6, '0000150'), (1, 6, '0000007');"_s);
        c.Close();
        const heft::test::CliRun run = heft::test::RunCliWith(QStringList{u"--db"_s, c.Path(), u"filter"_s} + criteria);
        QCOMPARE(run.code, code);
        QCOMPARE(run.out, out);
        QCOMPARE(run.err.isEmpty(), code == 0);
    }
};

HEFT_TEST(TestCliFilter)
#include "tst_clifilter.moc"
