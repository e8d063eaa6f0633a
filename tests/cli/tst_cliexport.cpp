// The export command: the formats and flags as the window's check boxes,
// criteria rows as a filter list, the result text, and what it refuses.

#include "clirun.h"
#include "exchange/exportfixture.h"
#include "testmain.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft::test;

class TestCliExport : public QObject {
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
};

HEFT_TEST(TestCliExport)
#include "tst_cliexport.moc"
