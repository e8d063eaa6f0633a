// Nothing lost: damaged files are refused and never written, a change the
// file can't take (full disk, vanished folder) leaves it as it was.

#include "testmain.h"
#include "testsupport.h"

#include "core/backups.h"
#include "core/changeunit.h"
#include "core/jeterrors.h"
#include "core/sqlwriters.h"

#include <QDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace heft;

namespace {

// A change of one entry as the editor makes it: renumbered with all it has,
// and a good many attributes that need room in the file.
void RenumberInUnit(Session& session, int oldNr, int newNr)
{
    ChangeUnit unit(session);
    session.EditMode = true;
    session.OldNr = oldNr;
    session.Entry = {newNr, u"A"_s, u"T"_s, 0, u"I"_s, false, QString(200, u'x')};
    if (InsertEntry(session) == ExecuteDone)
        MoveEntryRows(session, oldNr, newNr);
    for (int enumber = 2; enumber <= 120; ++enumber)
        ExecuteSql(session, u"INSERT INTO Status VALUES (%1, %2, '%3');"_s.arg(newNr).arg(enumber).arg(QString(120, u'w')));
}

} // namespace

class TestSafety : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void damagedFile_data()
    {
        QTest::addColumn<qint64>("cutTo");    // -1: keep the length
        QTest::addColumn<qint64>("noiseAt");  // -1: no garbage; in per mille of the length
        QTest::addColumn<int>("openError");   // 0: opens, and the first change finds the damage
        QTest::newRow("abgeschnitten") << 500LL << -1LL << int(JetDamaged);
        QTest::newRow("Zufallsbytes") << 0LL << 0LL << int(JetNotADatabase);
        QTest::newRow("Müll in der Mitte") << -1LL << 500LL << 0;
    }
    void damagedFile()
    {
        QFETCH(qint64, cutTo);
        QFETCH(qint64, noiseAt);
        test::TempCollection c;
        const QString path = c.dir.filePath(u"VN-HR.mdb"_s);
        QVERIFY(QFile::copy(HEFTARIUM_RUNTIME_DIR "/DBs/VN-HR.mdb"_L1, path));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        const qint64 size = file.size();
        if (cutTo >= 0)
            file.resize(size * cutTo / 1000);
        if (noiseAt >= 0 && file.seek(size * noiseAt / 1000 / 4096 * 4096))
            file.write(QByteArray(64 * 1024, '\x9c'));
        file.close();
        const auto bytes = [&] { return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(); };
        const QByteArray before = bytes();
        file.close();
        DbError error;
        c.session.CollectionDb = Database::Open(path, &error);
        QTEST(error.number, "openError");
        if (c.session.CollectionDb) {
            RenumberInUnit(c.session, 1, 90000);
            QCOMPARE(c.prompter.asked.value(0).title, u"Änderung nicht gespeichert"_s);
            QVERIFY(c.prompter.asked[0].text.contains(u"beschädigt"_s));
            QVERIFY(!QFileInfo::exists(BackupFolderOf(path)));
            c.session.CollectionDb.reset();
        }
        QCOMPARE(bytes(), before);
    }

    void lostChange_data()
    {
        QTest::addColumn<QString>("cause");
        QTest::addColumn<int>("error");
        QTest::newRow("Platte voll") << u"PRAGMA max_page_count=%1;"_s << int(JetDiskFull);
        // A medium that only reads (root writes through file permissions).
        QTest::newRow("nur lesbar") << u"PRAGMA query_only=1;"_s << int(JetReadOnly);
        QTest::newRow("Ordner weg") << QString() << int(JetPathGone);
        // The file may not grow: the write fails as on a failing medium.
        QTest::newRow("Schreibfehler") << u"RLIMIT_FSIZE"_s << int(JetDiskError);
    }
    void lostChange()
    {
        QFETCH(QString, cause);
        QFETCH(int, error);
        const bool folderGone = cause.isEmpty();
        test::TempCollection c;
        QTemporaryDir logDir; // the log stays when the collection's folder goes
        c.session.log = Log(logDir.filePath(u"Heftarium.log"_s));
        c.Add({{1, u"Autor"_s, u"Titel"_s}});
        c.Exec(u"INSERT INTO Details (Nr, Inhalt) VALUES (1, 'Inhalt');"_s);
        RenumberInUnit(c.session, 1, 2); // the day's check and backup happen here
        const QString moved = c.dir.path() + u"-weg"_s;
        rlimit sizeLimit{};
        getrlimit(RLIMIT_FSIZE, &sizeLimit);
        const rlimit unlimited = sizeLimit;
        if (folderGone)
            QVERIFY(QDir().rename(c.dir.path(), moved));
        else if (cause == u"RLIMIT_FSIZE") {
            signal(SIGXFSZ, SIG_IGN);
            sizeLimit.rlim_cur = rlim_t(QFileInfo(c.Path() + u"-wal"_s).size());
            setrlimit(RLIMIT_FSIZE, &sizeLimit);
        } else
            c.Exec(QString(cause).replace(u"%1"_s, c.Value(u"PRAGMA page_count;"_s).toString()));
        RenumberInUnit(c.session, 2, 3);
        setrlimit(RLIMIT_FSIZE, &unlimited);
        if (folderGone)
            QVERIFY(QDir().rename(moved, c.dir.path()));
        QCOMPARE(c.prompter.asked.size(), 1);
        QVERIFY(c.prompter.asked[0].text.contains(QDir::toNativeSeparators(c.Path())));
        QFile log(c.session.log.Path());
        QVERIFY(log.open(QIODevice::ReadOnly) && log.readAll().contains(u"[Fehler %1]"_s.arg(error).toUtf8()));
        // The file stands as before the lost change, and takes the next one.
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM Details WHERE Nr=2;"_s).toInt(), 1);
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM Status WHERE Nr=3;"_s).toInt(), 0);
        c.Exec(u"PRAGMA max_page_count=1000000;"_s);
        c.Exec(u"PRAGMA query_only=0;"_s);
        RenumberInUnit(c.session, 2, 3);
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM Details WHERE Nr=3;"_s).toInt(), 1);
        QCOMPARE(c.prompter.asked.size(), 1);
    }
};

HEFT_TEST(TestSafety)
#include "tst_safety.moc"
