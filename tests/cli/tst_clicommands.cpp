// The commands that read or change a collection and print what they did:
// fill (a column over the result of a filter), filter (criteria in the words
// of the filter window) and stats (the report as the window shows it).

#include "clirun.h"
#include "testmain.h"
#include "testsupport.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft::test;

namespace {

void SetUp(TempCollection& c, const QString& command)
{
    if (command == u"fill") {
        c.Add({{1, u"Ava Lind"_s, u"Morgensonne"_s, 1, u"I"_s},
               {2, u"Bo Kern"_s, u"Nachtflug"_s, 2, u"II"_s},
               {3, u"Ava Lind"_s, u"Sonnenwind"_s, 1, u"III"_s}});
    } else if (command == u"filter") {
        c.Add({{1, u"Ava Lind"_s, u"Morgensonne"_s, 1, u"I"_s, true},
               {2, u"Bo Kern"_s, u"Nachtflug"_s, 2, u"II"_s, false},
               {3, u"Cy Ott"_s, u"Sonnenwind"_s, 1, u"- - -"_s, true}});
        c.Exec(u"INSERT INTO Details (Nr, Ersterscheinung) VALUES (1, '12.03.1975'), (2, '02.02.1990');"_s);
        c.Exec(u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (1, 3, 'gut'), (2, 3, ''), "
               "(3, 6, '0000150'), (1, 6, '0000007');"_s);
    } else {
        c.Add({{1, u"Kurt Brandis"_s, u"A"_s, 1, u"I"_s}, {2, u"Hanno Velden"_s, u"B"_s, 0, u"I"_s}});
    }
}

} // namespace

class TestCliCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void commands_data()
    {
        QTest::addColumn<QStringList>("arguments"); // behind "--db FILE"
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("err");   // null: any text when the code is not 0
        QTest::addColumn<QString>("check"); // a query over the collection afterwards
        QTest::addColumn<QString>("result");
        const QString price = u"SELECT GROUP_CONCAT(v) FROM "
                              "(SELECT Nr || '=' || StatusWert AS v FROM Status WHERE ENum=5 ORDER BY Nr);"_s;
        const QString nothingFound =
            u"Zu den gegebenen Filter-Kriterien konnten in der Datenbank leider keine Einträge gefunden werden.\n"_s;
        QTest::newRow("fill status over a filter")
            << QStringList{u"fill"_s, u"Autor:IST:Ava Lind"_s, u"--target"_s, u"Preis"_s, u"--value"_s, u"2,5"_s}
            << 0 << u"Geänderte Einträge: 2\n"_s << QString() << price << u"1=00002.5,3=00002.5"_s;
        QTest::newRow("fill cycle as a number")
            << QStringList{u"fill"_s, u"Nr:GRÖßER:1"_s, u"--target"_s, u"Zyklus"_s, u"--value"_s, u"14"_s} << 0
            << u"Geänderte Einträge: 2\n"_s << QString()
            << u"SELECT GROUP_CONCAT(Zyklus) FROM (SELECT Zyklus FROM HEFTLIST ORDER BY Nr);"_s << u"I,XIV,XIV"_s;
        QTest::newRow("fill no cycle only when said so")
            << QStringList{u"fill"_s, u"Nr:IST:2"_s, u"--target"_s, u"Zyklus"_s, u"--value"_s, u""_s} << 1
            << QString() << QString() << u"SELECT Zyklus FROM HEFTLIST WHERE Nr=2;"_s << u"II"_s;
        QTest::newRow("fill read mark from its list")
            << QStringList{u"fill"_s, u"Nr:IST:2"_s, u"--target"_s, u"Gelesen"_s, u"--value"_s, u"Ja"_s} << 0
            << u"Geänderte Einträge: 1\n"_s << QString() << u"SELECT SUM(GL) FROM HEFTLIST;"_s << u"-1"_s;
        QTest::newRow("fill printing not in its list")
            << QStringList{u"fill"_s, u"Nr:IST:2"_s, u"--target"_s, u"Auflage"_s, u"--value"_s, u"-6-"_s} << 2
            << QString() << u"Nicht in der Liste von Auflage: -6-\n"_s << u"SELECT SUM(Auflage) FROM HEFTLIST;"_s
            << u"4"_s;
        QTest::newRow("fill without value") << QStringList{u"fill"_s, u"Nr:IST:2"_s, u"--target"_s, u"Preis"_s} << 2
                                            << QString() << QString() << price << QString();
        QTest::newRow("fill unknown column")
            << QStringList{u"fill"_s, u"Nr:IST:2"_s, u"--target"_s, u"Farbe"_s, u"--value"_s, u"rot"_s} << 2
            << QString() << u"Unbekannte Spalte: Farbe\n"_s << QString() << QString();
        QTest::newRow("fill, nothing found")
            << QStringList{u"fill"_s, u"Nr:IST:9"_s, u"--target"_s, u"Lagerort"_s, u"--value"_s, u"Kiste"_s} << 0
            << nothingFound << QString() << u"SELECT COUNT(*) FROM Status WHERE ENum=1;"_s << u"0"_s;

        QTest::newRow("filter list entry, guarded")
            << QStringList{u"filter"_s, u"Zustand:IST:gut"_s} << 0
            << u"(s.StatusWert='gut' AND s.StatusWert<>'' AND s.ENum=3) \nZustand = 'gut' \n1\n"_s << QString()
            << QString() << QString();
        // XOR binds weaker than OR: 1 is Lind and older than 1980, so it drops out.
        QTest::newRow("filter list pattern, yes/no, date")
            << QStringList{u"filter"_s, u"Autor:ÄHNLICH:Lind"_s, u"EXOR"_s, u"Gelesen:IST:Nein"_s, u"ODER"_s,
                           u"Datum:KLEINER:01.01.1980"_s}
            << 0
            << u"h.Autor LIKE '*Lind*' XOR h.GL=0 OR d.Ersterscheinung<DateValue('01.01.1980') \n"
               "Autor ähnlich wie '*Lind*' ENTWEDER ODER Gelesen = Nein ODER Ersterscheinung kleiner als "
               "01-01-1980 \n2\n"_s
            << QString() << QString() << QString();
        QTest::newRow("filter printing, nothing found")
            << QStringList{u"filter"_s, u"Auflage:IST:-3-"_s} << 0
            << u"h.Auflage=3 \nAuflage = 3 \n"_s + nothingFound << QString() << QString() << QString();
        QTest::newRow("filter refused cycle") << QStringList{u"filter"_s, u"Zyklus:GRÖßER:0"_s} << 1 << QString()
                                              << QString() << QString() << QString();
        QTest::newRow("filter failed statement") << QStringList{u"filter"_s, u"Nr:IST:"_s} << 1
                                                 << u"h.Nr= \nNummer = <LEER> \n"_s << QString() << QString()
                                                 << QString();
        QTest::newRow("filter unknown field") << QStringList{u"filter"_s, u"Farbe:IST:rot"_s} << 2 << QString()
                                              << u"Unbekanntes Feld: Farbe\n"_s << QString() << QString();
        QTest::newRow("filter unknown join")
            << QStringList{u"filter"_s, u"Nr:IST:1"_s, u"ABER"_s, u"Nr:IST:2"_s} << 2 << QString()
            << u"Unbekanntes Verknüpfungswort: ABER\n"_s << QString() << QString();
        QTest::newRow("filter not in the list") << QStringList{u"filter"_s, u"Zustand:IST:fehlt"_s} << 2
                                                << QString() << QString() << QString() << QString();

        QTest::newRow("stats cycle case-blind, rows")
            << QStringList{u"stats"_s, u"Zyklus/Autoren"_s, u"--cycle"_s, u"i"_s, u"--rows"_s} << 0
            << u"Anzahl der Heftromane in Liste         :    2 [100.0%]\n"
               "Heftromane im Zyklus I                 :    2\n"
               "- davon Hanno Velden               (HV):    1 [ 50.0%]\n"
               "- davon Kurt Brandis               (KB):    1 [ 50.0%]\n"
               "Anzahl\tHV\t1\nAnzahl\tKB\t1\n"_s
            << QString() << QString() << QString();
        // Without --author the window's first choice: the last author.
        QTest::newRow("stats last author") << QStringList{u"stats"_s, u"Autor/Zyklen"_s} << 0
                                           << u"Anzahl der Heftromane in Liste:    2 [100.0%]\n"
                                              "Heftromane von Kurt Brandis   :    1\n"
                                              "Erster Roman mit Nummer       :    1\n"
                                              "Letzter Roman mit Nummer      :    1\n"
                                              "Romandichte im Nummernbereich :  100.0%\n"
                                              "- davon im Zyklus I           :    1 [ 50.0%]\n"_s
                                           << QString() << QString() << QString();
        QTest::newRow("stats unknown statistic")
            << QStringList{u"stats"_s, u"Summe"_s} << 2 << QString()
            << u"Unbekannte Angabe für die Statistik: \"Summe\". Möglich sind: Gesamt, Zyklen, Autoren, "
               "Autor/Zyklen, Zyklus/Autoren, Report, Preis/Wert, Verleihwesen\n"_s
            << QString() << QString();
    }

    void commands()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QString, out);
        QFETCH(QString, err);
        QFETCH(QString, check);
        TempCollection c;
        SetUp(c, arguments.first());
        c.Close();
        const CliRun run = RunCliWith(QStringList{u"--db"_s, c.Path()} + arguments);
        QCOMPARE(run.code, code);
        QCOMPARE(run.out, out);
        QCOMPARE(run.err.isEmpty(), code == 0);
        if (!err.isNull())
            QCOMPARE(run.err, err);
        if (!check.isEmpty()) {
            c.Reopen();
            QTEST(c.Value(check).toString(), "result");
        }
    }
};

HEFT_TEST(TestCliCommands)
#include "tst_clicommands.moc"
