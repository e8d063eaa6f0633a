// The import command: the window's two reports printed for list, details and
// cycle files, and the exit code that tells whether a line was refused.

#include "clirun.h"
#include "testmain.h"
#include "testsupport.h"

#include "core/codepage.h"
#include "core/schema.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString Line1 = u"\"1\";\"A\";\"T\";\"1\";\"I\";\"Nein\";\"\";\r\n"_s;

} // namespace

class TestCliImport : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void import_data()
    {
        QTest::addColumn<QString>("file");     // written into the collection's folder
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<bool>("cycleFile");   // "Valdorin Zyklus.mdb" beside the collection
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("out");      // the start of what is printed
        QTest::addColumn<QString>("check");    // a query over the collection afterwards
        QTest::addColumn<QString>("result");

        const QString list = u"[Valdorin Heftromane]\r\n"_s;
        QTest::newRow("all columns, with a missing details file")
            << u"neu.dat"_s << list + Line1 << QStringList{u"--mode"_s, u"1"_s, u"--details"_s} << false << 1
            << u"== Bericht über Valdorin Heftromane + Details Import ==\n"
               "------------------------- Daten -------------------------\n"
               "Es wurde 1 Datensatz in die Datenbank importiert."_s
            << u"SELECT Autor FROM HEFTLIST WHERE Nr=1;"_s << u"A"_s;
        QTest::newRow("cycle file")
            << u"Valdorin-Zyklus.dat"_s << u"[Valdorin Zyklen]\r\n\"I\";\"1\";\"9\";\"1\";\"2\";\"B\";\"\";\r\n"_s
            << QStringList() << true << 0
            << u"== Bericht über Valdorin Zyklen Import ==\nEs wurde 1 Datensatz in die Datenbank importiert."_s
            << u"SELECT COUNT(*) FROM HEFTLIST;"_s << u"2"_s;
        QTest::newRow("two files") << u"neu.dat"_s << list + Line1 << QStringList{u"zwei.dat"_s} << false << 2
                                   << QString() << u"SELECT COUNT(*) FROM HEFTLIST;"_s << u"2"_s;
        QTest::newRow("unknown mode") << u"neu.dat"_s << list << QStringList{u"--mode"_s, u"3"_s} << false << 2
                                      << QString() << u"SELECT COUNT(*) FROM HEFTLIST;"_s << u"2"_s;
    }

    void import()
    {
        QFETCH(QString, file);
        QFETCH(QString, text);
        QFETCH(QStringList, options);
        QFETCH(bool, cycleFile);
        QFETCH(int, code);
        QFETCH(QString, out);
        QFETCH(QString, check);
        heft::test::TempCollection c;
        c.Add({{1, u"Ava Lind"_s, u"Morgensonne"_s, 1, u"I"_s}, {2, u"Bo Kern"_s, u"Nachtflug"_s, 2, u"II"_s}});
        c.Close();
        const QString path = c.dir.filePath(file);
        heft::test::WriteFile(path, heft::ToWindows1252(text));
        heft::DbError error;
        if (cycleFile)
            QVERIFY(heft::CreateCycleFile(c.dir.filePath(u"Valdorin Zyklus.mdb"_s), &error));

        const heft::test::CliRun run =
            heft::test::RunCliWith(QStringList{u"--db"_s, c.Path(), u"import"_s, path} + options);
        QCOMPARE(run.code, code);
        QVERIFY2(run.out.startsWith(out), qPrintable(run.out));
        QCOMPARE(run.err.isEmpty(), code != 2);

        c.Reopen();
        QTEST(c.Value(check).toString(), "result");
    }
};

HEFT_TEST(TestCliImport)
#include "tst_cliimport.moc"
