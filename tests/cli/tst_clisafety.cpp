// The promises a collector relies on, from outside: check and backup in the
// cli, hostile values through the editor and the cli, and a cli killed at random
// moments that never leaves an entry half-written.

#include "clirun.h"
#include "testmain.h"
#include "testsupport.h"

#include "core/backups.h"
#include "core/codepage.h"
#include "core/collectioncheck.h"
#include "core/schema.h"
#include "core/sqlwriters.h"
#include "core/textfuncs.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

namespace {

int Run(const QStringList& arguments, QString* out = nullptr)
{
    const test::CliRun run = test::RunCliWith(arguments);
    if (out)
        *out = run.out + run.err;
    return run.code;
}

QString Shipped(const QTemporaryDir& dir)
{
    const QString path = dir.filePath(u"VN-HR.mdb"_s);
    QFile::copy(HEFTARIUM_RUNTIME_DIR "/DBs/VN-HR.mdb"_L1, path);
    return path;
}

// What makes each entry whole, wherever renumbering put it (at nr or at
// nr + 50000): its one Details row at a number with a list row, and its
// attributes but the stamp and the place the fill writes.
QStringList Wholeness(const QString& path, const QList<int>& numbers)
{
    DbError error;
    const auto db = Database::Open(path, &error);
    QStringList signatures;
    for (int nr : numbers)
        signatures << db->SelectValue(u"SELECT (SELECT COUNT(*) FROM Details WHERE Nr IN (%1, %2) AND Nr IN (SELECT Nr "
                                      "FROM HEFTLIST)) || '/' || (SELECT COUNT(*) FROM Status WHERE ENum NOT IN (1, 7) "
                                      "AND Nr IN (%1, %2));"_s.arg(nr).arg(nr + 50000))
                              .toString();
    signatures << CheckCollection(*db, {});
    return signatures;
}

} // namespace

class TestCliSafety : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void checkAndBackup()
    {
        QTemporaryDir dir;
        const QString db = Shipped(dir);
        QString out;
        QCOMPARE(Run({u"--db"_s, db, u"check"_s}, &out), 0);
        QVERIFY(out.endsWith(u"Keine Fehler gefunden.\n"_s));
        QCOMPARE(Run({u"--db"_s, db, u"backup"_s, dir.path()}), 0);
        // The day's copy beside the file; copies older than seven days go.
        const QString old = BackupPathOf(db, QDate::currentDate().addDays(-7));
        QDir().mkpath(BackupFolderOf(db));
        QVERIFY(QFile(old).open(QIODevice::WriteOnly));
        QCOMPARE(Run({u"--db"_s, db, u"backup"_s}), 0);
        QVERIFY(!QFile::exists(old) && QFile::exists(BackupPathOf(db, QDate::currentDate())));
        QCOMPARE(Run({u"--db"_s, db, u"sql"_s, u"INSERT INTO Status VALUES (999999, 5, '12');"_s}), 0);
        QCOMPARE(Run({u"--db"_s, db, u"check"_s}, &out), 1);
        QVERIFY2(out.contains(u"Status: 1 Zeile(n) ohne Eintrag in HEFTLIST"_s) &&
                     out.contains(u"Status: 1 Zahlenwert(e) nicht"_s), qPrintable(out));
        // The copy of before holds what the file held then.
        const QString copy = dir.filePath(u"VN-HR-%1.mdb"_s.arg(QDate::currentDate().toString(u"yyyy-MM-dd"_s)));
        QCOMPARE(Run({u"--db"_s, copy, u"check"_s}), 0);
    }

    void hostileValues_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("Apostrophe") << u"O'Neil's ''Heft'' '"_s;
        QTest::newRow("Zeilenenden") << u"a\r\nb\rc\nd"_s;
        QTest::newRow("NUL") << QString(u"vor\0nach"_s);
        QTest::newRow("lang") << QString(10000, u'ß');
        QTest::newRow("Emoji") << u"Start 🚀"_s;
    }
    void hostileValues()
    {
        QFETCH(QString, value);
        test::TempCollection c;
        c.Add({{1, u"Erster"_s, u"Eins"_s}, {2, u"Zweiter"_s, u"Zwei"_s, 0, u"- - -"_s, false, u"Nachbar"_s}});
        // The editor's save, with the length its box takes.
        Session& s = c.session;
        s.EditMode = true;
        s.OldNr = 1;
        s.Entry = {1, u"Erster"_s, QuoteSql(value.left(50)), 0, u"- - -"_s, false, u""_s};
        QCOMPARE(InsertEntry(s), int(ExecuteSameRecord));
        QCOMPARE(UpdateEntry(s), 0);
        // Column fill, filter and export through the cli.
        const QString path = c.Path();
        c.Close();
        QCOMPARE(Run({u"--db"_s, path, u"fill"_s, u"Nr:IST:1"_s, u"--target"_s, u"Lagerort"_s, u"--value"_s, value}),
                 0);
        QString found;
        if (Run({u"--db"_s, path, u"filter"_s, u"Titel:IST:"_s + value.left(50)}, &found) == 0)
            QVERIFY2(found.contains(u"\n1\n"_s), qPrintable(found.left(200)));
        const QString base = c.dir.filePath(u"runde"_s);
        QString exported;
        QCOMPARE(Run({u"--db"_s, path, u"export"_s, base, u"--format"_s, u"dat"_s}, &exported), 0);

        c.Reopen();
        QCOMPARE(c.Value(u"SELECT (SELECT COUNT(*) FROM HEFTLIST) || Autor || Titel || Bemerkung FROM HEFTLIST "
                         "WHERE Nr=2;"_s).toString(), u"2ZweiterZweiNachbar"_s);
        // The fill writes attributes unquoted: an apostrophe makes it fail quietly.
        const QString stored = value.left(50) + u'|' + (value.contains(u'\'') ? QString() : value.left(128));
        QCOMPARE(c.Value(u"SELECT (SELECT Titel FROM HEFTLIST WHERE Nr=1) || '|' || "
                         "IFNULL((SELECT StatusWert FROM Status WHERE ENum=7), '');"_s).toString(),
                 stored);
        QVERIFY(CheckCollection(*c.session.CollectionDb, {}).isEmpty());
        c.Close();

        // The round trip: the exported pair imported into an empty collection.
        test::TempCollection back;
        const QString backPath = back.Path();
        back.Close();
        QCOMPARE(Run({u"--db"_s, backPath, u"import"_s, base + u".dat"_s}), 0);
        back.Reopen();
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
        QList<int> numbers;
        for (int nr = 1; numbers.size() < 40; ++nr)
            numbers << nr;
        const QStringList whole = Wholeness(db, numbers);
        const auto pairs = [&](int from, int to) {
            QStringList words;
            for (int nr : std::as_const(numbers))
                words << QString::number(nr + from) << QString::number(nr + to);
            return words;
        };
        QRandomGenerator random(1616);
        for (int round = 0; round < 9; ++round) {
            QStringList job{u"--db"_s, db};
            if (round % 3 == 0)
                job << u"import"_s << HEFTARIUM_DATA_SOURCES "/valdorin/Heftromane.dat"_L1 << u"--mode"_s << u"1"_s;
            else if (round % 3 == 1)
                job << u"fill"_s << u"Nr:GRÖßER:0"_s << u"--target"_s << u"Lagerort"_s << u"--value"_s
                    << QString::number(round);
            else // there and back; one that a killed run left moved only comes back
                job << u"renumber"_s << pairs(0, 50000) << pairs(50000, 0);
            QProcess child;
            child.start(HEFTARIUM_RUNTIME_DIR "/heftarium-cli"_L1, job);
            QVERIFY(child.waitForStarted());
            if (!child.waitForFinished(20 + random.bounded(600))) {
                child.kill();
                child.waitForFinished();
            }
            QCOMPARE(Wholeness(db, numbers), whole);
        }
    }
};

HEFT_TEST(TestCliSafety)
#include "tst_clisafety.moc"
