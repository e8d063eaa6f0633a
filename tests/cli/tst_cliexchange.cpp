// The exchange commands: export with the formats and flags of the window's
// check boxes and criteria rows as a filter list; import with the window's
// two reports and the exit code that tells whether a line was refused; the
// cycle file written beside the cycle database's data folder, its series
// taken from the file name or the option.

#include "clirun.h"
#include "exchange/exportfixture.h"
#include "testmain.h"
#include "testsupport.h"

#include "core/codepage.h"
#include "core/schema.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft::test;

namespace {

const QString Line1 = u"\"1\";\"A\";\"T\";\"1\";\"I\";\"Nein\";\"\";\r\n"_s;

} // namespace

class TestCliExchange : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void exportCommand_data()
    {
        QTest::addColumn<QStringList>("arguments"); // behind "export BASE"
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("out"); // its start
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("summary"); // last line of the text list
        QTest::newRow("all three with details")
            << QStringList{u"--format"_s, u"dat,txt,html"_s, u"--details"_s, u"--gelesen"_s} << 0
            << u"Es wurden 3/2 Einträge exportiert.\nVerwendete Dateinamen:\n %1.dat\n %1_Details.dat\n %1.txt\n"_s
            << QStringList{u".dat"_s, u"_Details.dat"_s, u".txt"_s, u"_Details.txt"_s, u".html"_s, u"_Details/3.html"_s}
            << u"Valdorin Heftromane Nummer 1-3 (3 Einträge)"_s;
        QTest::newRow("text of a filter")
            << QStringList{u"Nr:GRÖßER:2"_s, u"--format"_s, u"txt"_s} << 0
            << u"Es wurde 1/0 Eintrag exportiert.\nVerwendete Dateinamen:\n %1.txt\nErzeugte Dateigrößen:\n "_s
            << QStringList{u".txt"_s} << u"Valdorin Heftromane gefiltert nach: Nummer größer als 2  (1 Eintrag)"_s;
        QTest::newRow("nothing found") << QStringList{u"--format"_s, u"txt"_s, u"Nr:IST:9"_s} << 0
                                       << u"Zu den gegebenen Filter-Kriterien"_s << QStringList() << QString();
        QTest::newRow("no format") << QStringList{u"--format"_s, u","_s} << 2 << QString() << QStringList()
                                   << QString();
        QTest::newRow("unknown format") << QStringList{u"--format"_s, u"pdf"_s} << 2 << QString() << QStringList()
                                        << QString();
        QTest::newRow("bad criterion") << QStringList{u"--format"_s, u"dat"_s, u"Nr:ÄHNLICH"_s} << 2 << QString()
                                       << QStringList() << QString();
    }

    void exportCommand()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QString, out);
        QFETCH(QStringList, files);
        QFETCH(QString, summary);
        TempCollection c;
        AddExportEntries(c);
        c.Close();
        const QString base = c.dir.filePath(u"Liste"_s);

        const CliRun run = RunCliWith(QStringList{u"--db"_s, c.Path(), u"export"_s, base} + arguments);
        QCOMPARE(run.code, code);
        QVERIFY2(out.isEmpty() ? run.out.isEmpty() : run.out.startsWith(out.contains(u"%1"_s) ? out.arg(base) : out),
                 qPrintable(run.out));
        QCOMPARE(run.err.isEmpty(), code == 0);
        QStringList made = QDir(c.dir.path()).entryList({u"Liste*"_s}, QDir::Files);
        for (const QString& file : files) {
            QVERIFY2(QFile::exists(base + file), qPrintable(file));
            made.removeAll(u"Liste"_s + file);
        }
        QVERIFY2(made.isEmpty(), qPrintable(made.join(u' ')));
        if (!summary.isEmpty())
            QCOMPARE(FileLines(base + u".txt"_s).last(), summary);
    }

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
        TempCollection c;
        c.Add({{1, u"Ava Lind"_s, u"Morgensonne"_s, 1, u"I"_s}, {2, u"Bo Kern"_s, u"Nachtflug"_s, 2, u"II"_s}});
        c.Close();
        const QString path = c.dir.filePath(file);
        WriteFile(path, heft::ToWindows1252(text));
        heft::DbError error;
        if (cycleFile)
            QVERIFY(heft::CreateCycleFile(c.dir.filePath(u"Valdorin Zyklus.mdb"_s), &error));

        const CliRun run =
            RunCliWith(QStringList{u"--db"_s, c.Path(), u"import"_s, path} + options);
        QCOMPARE(run.code, code);
        QVERIFY2(run.out.startsWith(out), qPrintable(run.out));
        QCOMPARE(run.err.isEmpty(), code != 2);

        c.Reopen();
        QTEST(c.Value(check).toString(), "result");
    }

    void exportCycles_data()
    {
        QTest::addColumn<QString>("cycleFile"); // below the temporary folder
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("written"); // below the temporary folder, empty for none
        QTest::newRow("in DBs") << u"DBs/Valdorin Zyklus.mdb"_s << QStringList{} << 0
                                << u"export/Valdorin-Zyklus.dat"_s;
        QTest::newRow("series given, beside the file") << u"Liste.mdb"_s << QStringList{u"--series"_s, u"Valdorin"_s}
                                                       << 0 << u"export/Valdorin-Zyklus.dat"_s;
        QTest::newRow("series unknown") << u"Liste.mdb"_s << QStringList{} << 2 << QString();
        QTest::newRow("no such file") << u"Fehlt Zyklus.mdb"_s << QStringList{} << 1 << QString();
    }

    void exportCycles()
    {
        QFETCH(QString, cycleFile);
        QFETCH(QStringList, options);
        QFETCH(int, code);
        QFETCH(QString, written);
        QTemporaryDir dir;
        const QString path = dir.filePath(cycleFile);
        if (!cycleFile.startsWith(u"Fehlt"_s)) {
            QDir(dir.path()).mkpath(QFileInfo(path).path());
            heft::DbError error;
            auto db = heft::CreateCycleFile(path, &error);
            QVERIFY(db);
            QVERIFY(!db->Execute(u"INSERT INTO ZyklusListe VALUES ('I', 1, 50, -3, 9, 'Anfang', NULL);"_s));
        }
        const QStringList arguments{u"--cycle-db"_s, path, u"cycles"_s, u"export"_s};
        const CliRun run = RunCliWith(arguments + options);
        QCOMPARE(run.code, code);
        QCOMPARE(run.err.isEmpty(), code == 0);
        if (written.isEmpty()) {
            QVERIFY(run.out.isEmpty());
            return;
        }
        QFile file(dir.filePath(written));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY(bytes.endsWith("\"I\";\"1\";\"50\";\"-3\";\"9\";\"Anfang\";\"\";\r\n"));
        QCOMPARE(run.out, u"Ein Eintrag wurde in die Datei\n'%1'\ngesichert (%2 Bytes Dateilänge).\n"_s
                          .arg(QDir::toNativeSeparators(file.fileName()))
                          .arg(bytes.size()));
    }
};

HEFT_TEST(TestCliExchange)
#include "tst_cliexchange.moc"
