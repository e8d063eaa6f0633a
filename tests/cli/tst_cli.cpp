// heftarium-cli as a script would use it: a new collection, its summary, and
// statements with their printed results and exit codes.

#include "clirun.h"
#include "testmain.h"

#include "core/version.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft::test;

class TestCli : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void createInfoAndSql()
    {
        QTemporaryDir dir;
        const QString db = dir.filePath(u"Neu.mdb"_s);
        QCOMPARE(RunCliWith({u"create"_s, db, u"--series"_s, u"Sternenfahrer"_s, u"--kind"_s, u"Hefte"_s}).code, 0);
        // A second create on the same file refuses.
        QCOMPARE(RunCliWith({u"create"_s, db, u"--series"_s, u"X"_s, u"--kind"_s, u"Y"_s}).code, 1);

        for (int nr : {5, 12})
            QCOMPARE(RunCliWith({u"--db"_s, db, u"sql"_s,
                          u"INSERT INTO HEFTLIST VALUES (%1, 'Ö. Autor', 'T', 0, 'I', 255, NULL);"_s.arg(nr)}),
                     (CliRun{0, u"0\n"_s, QString()}));
        const CliRun info = RunCliWith({u"--db"_s, db, u"info"_s});
        QCOMPARE(info.out, u"Serie: Sternenfahrer\nListe: Hefte\nEinträge: 2\nNummern: 5 - 12\n"_s);

        const CliRun rows = RunCliWith({u"--db"_s, db, u"sql"_s, u"SELECT Nr, Autor, GL, Bemerkung FROM HEFTLIST;"_s});
        QCOMPARE(rows.out, u"5\tÖ. Autor\t-1\t<NULL>\n12\tÖ. Autor\t-1\t<NULL>\n"_s);

        const CliRun duplicate = RunCliWith({u"--db"_s, db, u"sql"_s,
                                      u"INSERT INTO HEFTLIST VALUES (5, 'A', 'T', 0, 'I', 0, '');"_s});
        QCOMPARE(duplicate.code, 1);
        QVERIFY(duplicate.out.startsWith(u"3022 The changes you requested"_s));

        // Without its settings table a collection is refused by every command that reads them.
        QCOMPARE(RunCliWith({u"--db"_s, db, u"sql"_s, u"DROP TABLE KONFIGURATION;"_s}).code, 0);
        for (const QStringList& command : {QStringList{u"info"_s}, {u"import"_s, db},
                                           {u"export"_s, dir.filePath(u"x"_s), u"--format"_s, u"dat"_s}}) {
            const CliRun refused = RunCliWith(QStringList{u"--db"_s, db} + command);
            QCOMPARE(refused.code, 1);
            QVERIFY2(refused.err.startsWith(u"KONFIGURATION nicht lesbar: "_s), qPrintable(refused.err));
        }
    }

    // Help and version answer on stdout before any file is touched; a wrong
    // call answers on stderr with the way the command is called; commands on
    // the shipped sample answer on stdout.
    void helpAndUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("err");
        const QString missing = u"/nirgends/x.mdb"_s;
        QTest::newRow("version") << QStringList{u"--version"_s} << 0 << u"heftarium-cli "_s + heft::ProgramVersion()
                                 << QString();
        QTest::newRow("whole help") << QStringList{u"--help"_s} << 0 << u"  2  Falscher Aufruf"_s << QString();
        QTest::newRow("help behind a file") << QStringList{u"--db"_s, missing, u"export"_s, u"-h"_s} << 0
                                            << u"--format dat,txt,html"_s << QString();
        QTest::newRow("unknown command") << QStringList{u"--db"_s, missing, u"zeige"_s} << 2 << QString()
                                         << u"Unbekannter Befehl: zeige"_s;
        QTest::newRow("nothing") << QStringList() << 2 << QString() << u"heftarium-cli --help"_s;
        QTest::newRow("missing file") << QStringList{u"--db"_s, missing, u"info"_s} << 1 << QString() << missing;
        QTest::newRow("create incomplete") << QStringList{u"create"_s, u"x.mdb"_s, u"--series"_s, u"S"_s} << 2
                                           << QString() << u"Mehr dazu: heftarium-cli create --help"_s;
        QTest::newRow("cycles without action") << QStringList{u"--cycle-db"_s, missing, u"cycles"_s} << 2 << QString()
                                               << u"heftarium-cli --cycle-db DATEI cycles export"_s;
        // Pictures and archive are found beside the sample's DBs/ folder.
        const QString sample = QStringLiteral(HEFTARIUM_RUNTIME_DIR "/DBs/VN-HR.mdb");
        QTest::newRow("sample cover") << QStringList{u"--db"_s, sample, u"picture"_s, u"1"_s} << 0
                                      << u"tibis/Valdorin (Heftromane)/1tibi.jpg\n"_s << QString();
        QTest::newRow("sample archive page") << QStringList{u"--db"_s, sample, u"archive"_s, u"page"_s, u"1"_s} << 0
                                             << u"Archiv/HEFTE/HEFT0001.HTM\n"_s << QString();
        QTest::newRow("sample keyword search")
            << QStringList{u"--db"_s, sample, u"archive"_s, u"search"_s, u"--word"_s, u"Anselm"_s, u"Nr:KLEINER:5"_s}
            << 0 << u"(1 Eintrag gefiltert)\n1\n2\n3\n"_s << QString();
    }
    void helpAndUsage()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QString, out);
        QFETCH(QString, err);
        const CliRun run = RunCliWith(arguments);
        QCOMPARE(run.code, code);
        QVERIFY2(out.isEmpty() ? run.out.isEmpty() : run.out.contains(out), qPrintable(run.out));
        QVERIFY2(err.isEmpty() ? run.err.isEmpty() : run.err.contains(err), qPrintable(run.err));
    }

};

HEFT_TEST(TestCli)
#include "tst_cli.moc"
