// The fill command: a column filled over the result of a filter, the count
// it prints, and what it refuses.

#include "clirun.h"
#include "testmain.h"
#include "testsupport.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestCliFill : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fill_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("check"); // a query over the collection afterwards
        QTest::addColumn<QString>("result");
        const QString price = u"SELECT GROUP_CONCAT(v) FROM "
                              "(SELECT Nr || '=' || StatusWert AS v FROM Status WHERE ENum=5 ORDER BY Nr);"_s;
        QTest::newRow("status over a filter")
            << QStringList{u"Autor:IST:Ava Lind"_s, u"--target"_s, u"Preis"_s, u"--value"_s, u"2,5"_s} << 0
            << u"Geänderte Einträge: 2\n"_s << price << u"1=00002.5,3=00002.5"_s;
        QTest::newRow("cycle as a number")
            << QStringList{u"Nr:GRÖßER:1"_s, u"--target"_s, u"Zyklus"_s, u"--value"_s, u"14"_s} << 0
            << u"Geänderte Einträge: 2\n"_s
            << u"SELECT GROUP_CONCAT(Zyklus) FROM (SELECT Zyklus FROM HEFTLIST ORDER BY Nr);"_s << u"I,XIV,XIV"_s;
        QTest::newRow("no cycle only when said so")
            << QStringList{u"Nr:IST:2"_s, u"--target"_s, u"Zyklus"_s, u"--value"_s, u""_s} << 1 << QString()
            << u"SELECT Zyklus FROM HEFTLIST WHERE Nr=2;"_s << u"II"_s;
        QTest::newRow("printing not in the list")
            << QStringList{u"Nr:IST:1"_s, u"--target"_s, u"Auflage"_s, u"--value"_s, u"-9-"_s} << 2 << QString()
            << u"SELECT Auflage FROM HEFTLIST WHERE Nr=1;"_s << u"1"_s;
        QTest::newRow("nothing found")
            << QStringList{u"Nr:IST:9"_s, u"--target"_s, u"Lagerort"_s, u"--value"_s, u"Kiste"_s} << 0
            << u"Zu den gegebenen Filter-Kriterien konnten in der Datenbank leider keine Einträge gefunden "
               "werden.\n"_s
            << u"SELECT COUNT(*) FROM Status;"_s << u"0"_s;
    }

    void fill()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QString, out);
        QFETCH(QString, check);
        QFETCH(QString, result);
        heft::test::TempCollection c;
        c.Add({{1, u"Ava Lind"_s, u"Morgensonne"_s, 1, u"I"_s},
               {2, u"Bo Kern"_s, u"Nachtflug"_s, 2, u"II"_s},
               {3, u"Ava Lind"_s, u"Sonnenwind"_s, 1, u"III"_s}});
        c.Close();
        const heft::test::CliRun run = heft::test::RunCliWith(QStringList{u"--db"_s, c.Path(), u"fill"_s} + arguments);
        QCOMPARE(run.code, code);
        QCOMPARE(run.out, out);
        QCOMPARE(run.err.isEmpty(), code == 0);
        c.Reopen();
        QCOMPARE(c.Value(check).toString(), result);
        if (code == 0 && !out.startsWith(u"Zu den"_s))
            QVERIFY(c.Value(u"SELECT COUNT(*) FROM Status WHERE ENum=1;"_s).toInt() > 0);
    }
};

HEFT_TEST(TestCliFill)
#include "tst_clifill.moc"
