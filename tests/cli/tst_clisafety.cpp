// The promises a collector relies on, from outside: check and backup in the
// cli, hostile values through every writer, and a cli killed at random
// moments that never leaves an entry half-written.

#include "testmain.h"
#include "testsupport.h"

#include "cli/clicommands.h"
#include "core/codepage.h"
#include "core/collectioncheck.h"
#include "core/schema.h"
#include "core/sqlwriters.h"
#include "core/textfuncs.h"
#include "cycles/cycleedit.h"
#include "details/detailsave.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

namespace {

int Run(const QStringList& arguments, QString* out = nullptr)
{
    QString text, err;
    QTextStream outStream(&text), errStream(&err);
    const int code = RunCli(arguments, outStream, errStream);
    outStream.flush();
    if (out)
        *out = text + err;
    return code;
}

QString Shipped(const QTemporaryDir& dir)
{
    const QString path = dir.filePath(u"VN-HR.mdb"_s);
    QFile::copy(HEFTARIUM_RUNTIME_DIR "/DBs/VN-HR.mdb"_L1, path);
    return path;
}

// The renumbered entries and their targets stay whole: one Details row and
// all their attributes (but the stamp and the place the fill writes) at the
// one number that has the list row.
QString WholenessFault(Database& db, const QList<int>& numbers, const QList<int>& statusRows)
{
    for (qsizetype i = 0; i < numbers.size(); ++i) {
        const QString pair = u"(%1, %2)"_s.arg(numbers[i]).arg(numbers[i] + 50000);
        const auto count = [&](const QString& sql) { return db.SelectValue(sql.arg(pair)).toInt(); };
        if (count(u"SELECT COUNT(*) FROM Details WHERE Nr IN %1 AND Nr IN (SELECT Nr FROM HEFTLIST);"_s) != 1 ||
            count(u"SELECT COUNT(*) FROM Status WHERE ENum NOT IN (1, 7) AND Nr IN %1;"_s) != statusRows[i])
            return u"Eintrag %1 nicht ganz"_s.arg(numbers[i]);
    }
    return {};
}

} // namespace

class TestCliSafety : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void checkBackupAndRefusedImport()
    {
        QTemporaryDir dir;
        const QString db = Shipped(dir);
        QString out;
        QCOMPARE(Run({u"--db"_s, db, u"check"_s}, &out), 0);
        QVERIFY(out.endsWith(u"Keine Fehler gefunden.\n"_s));
        QCOMPARE(Run({u"--db"_s, db, u"backup"_s, dir.path()}), 0);
        QCOMPARE(Run({u"--db"_s, db, u"sql"_s, u"INSERT INTO Status VALUES (999999, 5, '12');"_s}), 0);
        QCOMPARE(Run({u"--db"_s, db, u"check"_s}, &out), 1);
        QVERIFY2(out.contains(u"Status: 1 Zeile(n) ohne Eintrag in HEFTLIST"_s) &&
                     out.contains(u"Status: 1 Zahlenwert(e) nicht"_s), qPrintable(out));
        // The copy of before holds what the file held then.
        const QString copy = dir.filePath(u"VN-HR-%1.mdb"_s.arg(QDate::currentDate().toString(u"yyyy-MM-dd"_s)));
        QCOMPARE(Run({u"--db"_s, copy, u"check"_s}), 0);
        QFile noise(dir.filePath(u"Zufall.dat"_s));
        QVERIFY(noise.open(QIODevice::WriteOnly) && noise.write(QByteArray(4096, '\x9c')) == 4096);
        noise.close();
        QCOMPARE(Run({u"--db"_s, db, u"import"_s, noise.fileName()}), 1);
    }

    void hostileValues_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("Apostrophe") << u"O'Neil's ''Heft'' '"_s;
        QTest::newRow("zweite Anweisung") << u"x'); DELETE FROM HEFTLIST; --"_s;
        QTest::newRow("Zeilenenden") << u"a\r\nb\rc\nd"_s;
        QTest::newRow("Jokerzeichen") << u"*?#[!a-z]% _"_s;
        QTest::newRow("NUL") << QString(u"vor\0nach"_s);
        QTest::newRow("lang") << QString(10000, u'ß');
        QTest::newRow("Chinesisch") << u"北京的书"_s;
        QTest::newRow("Emoji") << u"Start 🚀"_s;
    }
    void hostileValues()
    {
        QFETCH(QString, value);
        test::TempCollection c;
        c.Add({{1, u"Erster"_s, u"Eins"_s}, {2, u"Zweiter"_s, u"Zwei"_s, 0, u"- - -"_s, false, u"Nachbar"_s}});
        Session& s = c.session;
        // The editor's save, with the lengths its boxes take.
        s.EditMode = true;
        s.OldNr = 1;
        s.Entry = {1, u"Erster"_s, QuoteSql(value.left(50)), 0, u"- - -"_s, false, QuoteSql(value.left(64))};
        QCOMPARE(InsertEntry(s), int(ExecuteSameRecord));
        QCOMPARE(UpdateEntry(s), 0);
        // The detail window's save: texts, an attribute and a link.
        DetailValues details;
        details.Nr = 1;
        details.Details.Untertitel = value.left(128);
        details.Details.Inhalt = value.left(255);
        details.Details.Persons = QStringList(PersonCount, value.left(50));
        details.Status = QStringList(StatusCount);
        details.Status[3] = value.left(128);
        details.Links = {{2, value.left(128), u"Valdorin"_s}};
        SaveDetails(s, details);
        // The cycle editor's save.
        DbError error;
        s.CycleDb = CreateCycleFile(c.dir.filePath(u"Zyklus.mdb"_s), &error);
        s.CurrentSql = InsertCycleSql({u"I"_s, u"1"_s, u"50"_s, u"1960"_s, u"1961"_s, value.left(50), value.left(50), 0});
        QCOMPARE(ExecuteCycleSql(s), 0);
        QCOMPARE(s.CycleDb->SelectValue(u"SELECT Bezeichnung FROM ZyklusListe;"_s).toString(), value.left(50));
        // Column fill, filter and export through the cli.
        const QString path = c.Path();
        c.session.CollectionDb.reset();
        QCOMPARE(Run({u"--db"_s, path, u"fill"_s, u"Nr:IST:1"_s, u"--target"_s, u"Lagerort"_s, u"--value"_s, value}),
                 0);
        QString found;
        if (Run({u"--db"_s, path, u"filter"_s, u"Titel:IST:"_s + value.left(50)}, &found) == 0)
            QVERIFY2(found.contains(u"\n1\n"_s), qPrintable(found.left(200)));
        const QString base = c.dir.filePath(u"runde"_s);
        QString exported;
        QCOMPARE(Run({u"--db"_s, path, u"export"_s, base, u"--format"_s, u"dat"_s, u"--details"_s}, &exported), 0);

        c.session.CollectionDb = Database::Open(path, &error);
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM HEFTLIST;"_s).toInt(), 2);
        QCOMPARE(c.Value(u"SELECT Autor || Titel || Bemerkung FROM HEFTLIST WHERE Nr=2;"_s).toString(),
                 u"ZweiterZweiNachbar"_s);
        QCOMPARE(c.Value(u"SELECT Titel FROM HEFTLIST WHERE Nr=1;"_s).toString(), value.left(50));
        QCOMPARE(c.Value(u"SELECT Inhalt FROM Details WHERE Nr=1;"_s).toString(), value.left(255));
        QCOMPARE(c.Value(u"SELECT LinkText FROM Links WHERE Nr=1;"_s).toString(), value.left(128));
        QCOMPARE(c.Value(u"SELECT StatusWert FROM Status WHERE Nr=1 AND ENum=4;"_s).toString(), value.left(128));
        // The fill writes attributes unquoted: an apostrophe makes it fail quietly.
        QCOMPARE(c.Value(u"SELECT StatusWert FROM Status WHERE Nr=1 AND ENum=7;"_s).toString(),
                 value.contains(u'\'') ? QString() : value.left(128));
        QVERIFY(CheckCollection(*c.session.CollectionDb, {}).isEmpty());
        c.session.CollectionDb.reset();

        // The round trip: the exported pair imported into an empty collection.
        test::TempCollection back;
        const QString backPath = back.Path();
        back.session.CollectionDb.reset();
        QCOMPARE(Run({u"--db"_s, backPath, u"import"_s, base + u".dat"_s, u"--details"_s}), 0);
        back.session.CollectionDb = Database::Open(backPath, &error);
        // Line breaks become blanks; what Windows-1252 lacks comes back as "?", and the export said so.
        const QString plain = StripLineBreaks(value.left(50)).trimmed();
        const QString expected = FromWindows1252(ToWindows1252(plain));
        QCOMPARE(back.Value(u"SELECT Titel FROM HEFTLIST WHERE Nr=1;"_s).toString(), expected);
        QCOMPARE(exported.contains(u"Windows-1252"_s), expected != plain);
    }

    // The cli killed at random moments in an import, a column fill and a run
    // of renumbering saves: every time, the file passes the check and each
    // renumbered entry stands whole at one of its two numbers.
    void killedAtRandom()
    {
        QTemporaryDir dir;
        const QString db = Shipped(dir);
        const QString cli = HEFTARIUM_RUNTIME_DIR "/heftarium-cli"_L1;
        QList<int> numbers, statusRows;
        {
            DbError error;
            auto open = Database::Open(db, &error);
            Query query = open->Select(u"SELECT Nr, (SELECT COUNT(*) FROM Status WHERE Status.Nr=HEFTLIST.Nr AND "
                                       "ENum NOT IN (1, 7)) FROM HEFTLIST WHERE Nr IN (SELECT Nr FROM Details) AND Nr<40000 "
                                       "ORDER BY Nr LIMIT 40;"_s);
            while (query.Next()) {
                numbers << static_cast<int>(query.Int(0));
                statusRows << static_cast<int>(query.Int(1));
            }
        }
        QRandomGenerator random(1616);
        for (int round = 0; round < 9; ++round) {
            QStringList job{u"--db"_s, db};
            if (round % 3 == 0) {
                job << u"import"_s << HEFTARIUM_DATA_SOURCES "/valdorin/Heftromane.dat"_L1 << u"--mode"_s
                    << u"1"_s;
            } else if (round % 3 == 1) {
                job << u"fill"_s << u"Nr:GRÖßER:0"_s << u"--target"_s << u"Lagerort"_s << u"--value"_s
                    << u"Runde %1"_s.arg(round);
            } else {
                DbError error;
                auto open = Database::Open(db, &error);
                job << u"renumber"_s;
                for (int nr : std::as_const(numbers)) {
                    const bool moved = open->SelectValue(u"SELECT COUNT(*) FROM HEFTLIST WHERE Nr=%1;"_s.arg(nr + 50000))
                                           .toInt() > 0;
                    job << QString::number(moved ? nr + 50000 : nr) << QString::number(moved ? nr : nr + 50000);
                }
            }
            QProcess child;
            child.start(cli, job);
            QVERIFY(child.waitForStarted());
            if (!child.waitForFinished(20 + random.bounded(600))) {
                child.kill();
                child.waitForFinished();
            }
            DbError error;
            auto open = Database::Open(db, &error);
            QVERIFY2(open, qPrintable(error.description));
            const QStringList faults = CheckCollection(*open, {});
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
            const QString fault = WholenessFault(*open, numbers, statusRows);
            QVERIFY2(fault.isEmpty(), qPrintable(fault));
        }
    }
};

HEFT_TEST(TestCliSafety)
#include "tst_clisafety.moc"
