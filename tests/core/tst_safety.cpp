// Nothing lost: damaged files are refused and never written, a change the
// file can't take (full disk, vanished folder) leaves it as it was, and the
// daily backups are made, pruned and can be opened again.

#include "testmain.h"
#include "testsupport.h"

#include "core/backups.h"
#include "core/changeunit.h"
#include "core/jeterrors.h"
#include "core/sqlwriters.h"

#include <QCryptographicHash>
#include <QDir>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

namespace {

QByteArray Hash(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return QCryptographicHash::hash(file.readAll(), QCryptographicHash::Md5);
}

enum class Spoil { Empty, CutShort, RandomBytes, GarbageInMiddle, ReadOnly };

void SpoilFile(const QString& path, Spoil spoil)
{
    QFile file(path);
    file.open(QIODevice::ReadWrite);
    const qint64 size = file.size();
    QByteArray noise(64 * 1024, Qt::Uninitialized);
    QRandomGenerator generator(16);
    for (char& byte : noise)
        byte = static_cast<char>(generator.bounded(256));
    switch (spoil) {
    case Spoil::Empty:
        file.resize(0);
        break;
    case Spoil::CutShort:
        file.resize(size / 2);
        break;
    case Spoil::RandomBytes:
        file.resize(0);
        file.write(noise);
        break;
    case Spoil::GarbageInMiddle:
        file.seek(size / 2 / 4096 * 4096);
        file.write(noise);
        break;
    case Spoil::ReadOnly:
        file.setPermissions(QFile::ReadOwner);
        break;
    }
}

// A change of one entry as the editor makes it: renumbered with all it has.
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
        QTest::addColumn<Spoil>("spoil");
        QTest::addColumn<int>("openError"); // 0: opens, and the first change finds the damage
        QTest::newRow("leer") << Spoil::Empty << int(JetNotADatabase);
        QTest::newRow("abgeschnitten") << Spoil::CutShort << int(JetDamaged);
        QTest::newRow("Zufallsbytes") << Spoil::RandomBytes << int(JetNotADatabase);
        QTest::newRow("Müll in der Mitte") << Spoil::GarbageInMiddle << 0;
        QTest::newRow("schreibgeschützt") << Spoil::ReadOnly << int(JetReadOnly);
    }
    void damagedFile()
    {
        QFETCH(Spoil, spoil);
        QFETCH(int, openError);
        QTemporaryDir dir;
        const QString path = dir.filePath(u"VN-HR.mdb"_s);
        QVERIFY(QFile::copy(HEFTARIUM_RUNTIME_DIR "/DBs/VN-HR.mdb"_L1, path));
        SpoilFile(path, spoil);
        if (spoil == Spoil::ReadOnly && QFileInfo(path).isWritable())
            QSKIP("the file stays writable for this user (root)");
        const QByteArray before = Hash(path);
        ScriptedPrompter prompter;
        Session session;
        session.prompter = &prompter;
        session.log = Log(dir.filePath(u"Heftarium.log"_s));
        DbError error;
        session.CollectionDb = Database::Open(path, &error);
        QCOMPARE(error.number, openError);
        if (session.CollectionDb) {
            RenumberInUnit(session, 1, 90000);
            QCOMPARE(prompter.asked.value(0).title, u"Änderung nicht gespeichert"_s);
            QVERIFY(prompter.asked.value(0).text.contains(u"beschädigt"_s));
            QVERIFY(!QFileInfo::exists(BackupFolderOf(path)));
            session.CollectionDb.reset();
        }
        QCOMPARE(Hash(path), before);
    }

    void lostChange_data()
    {
        QTest::addColumn<bool>("folderGone");
        QTest::addColumn<int>("error");
        QTest::newRow("Platte voll") << false << int(JetDiskFull);
        QTest::newRow("Ordner weg") << true << int(JetPathGone);
    }
    void lostChange()
    {
        QFETCH(bool, folderGone);
        QFETCH(int, error);
        test::TempCollection c;
        QTemporaryDir logDir; // the log stays when the collection's folder goes
        c.session.log = Log(logDir.filePath(u"Heftarium.log"_s));
        c.Add({{1, u"Autor"_s, u"Titel"_s}});
        c.Exec(u"INSERT INTO Details (Nr, Inhalt) VALUES (1, 'Inhalt');"_s);
        RenumberInUnit(c.session, 1, 2); // the day's backup and check happen here
        const QString moved = c.dir.path() + u"-weg"_s;
        if (folderGone)
            QVERIFY(QDir().rename(c.dir.path(), moved));
        else
            c.Exec(u"PRAGMA max_page_count=%1;"_s.arg(c.Value(u"PRAGMA page_count;"_s).toInt()));
        RenumberInUnit(c.session, 2, 3);
        if (folderGone)
            QVERIFY(QDir().rename(moved, c.dir.path()));
        QCOMPARE(c.prompter.asked.size(), 1);
        QVERIFY(c.prompter.asked[0].text.contains(QDir::toNativeSeparators(c.Path())));
        QFile log(c.session.log.Path());
        QVERIFY(log.open(QIODevice::ReadOnly) && log.readAll().contains(u"[Fehler %1]"_s.arg(error).toUtf8()));
        // The file stands as before the lost change, and takes the next one.
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM HEFTLIST WHERE Nr=2;"_s).toInt(), 1);
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM Details WHERE Nr=2;"_s).toInt(), 1);
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM Status WHERE Nr=3;"_s).toInt(), 0);
        c.Exec(u"PRAGMA max_page_count=1000000;"_s);
        RenumberInUnit(c.session, 2, 3);
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM Details WHERE Nr=3;"_s).toInt(), 1);
        QCOMPARE(c.prompter.asked.size(), 1);
    }

    void backups_data()
    {
        QTest::addColumn<QList<int>>("daysAgo"); // copies already there
        QTest::addColumn<qint64>("limit");
        QTest::addColumn<QList<int>>("kept");
        QTest::newRow("nach Alter") << QList<int>{10, 7, 6, 1} << BackupBytesLimit << QList<int>{6, 1, 0};
        QTest::newRow("nach Größe") << QList<int>{3, 2, 1} << qint64(1) << QList<int>{0};
    }
    void backups()
    {
        QFETCH(QList<int>, daysAgo);
        QFETCH(qint64, limit);
        QFETCH(QList<int>, kept);
        test::TempCollection c;
        c.Add({{7, u"Autor"_s, u"Titel"_s}});
        const QDate today = QDate::currentDate();
        QDir().mkpath(BackupFolderOf(c.Path()));
        for (int ago : daysAgo) {
            QFile old(BackupPathOf(c.Path(), today.addDays(-ago)));
            QVERIFY(old.open(QIODevice::WriteOnly) && old.write("alt") == 3);
        }
        QVERIFY(!MakeDailyBackup(*c.session.CollectionDb, today, DefaultBackupDays, limit));
        for (int ago = 0; ago <= 10; ++ago)
            QCOMPARE(QFileInfo::exists(BackupPathOf(c.Path(), today.addDays(-ago))), kept.contains(ago));
        // The copy opens on its own and holds the same rows.
        DbError error;
        const auto copy = Database::Open(BackupPathOf(c.Path(), today), &error);
        QVERIFY2(copy, qPrintable(error.description));
        QCOMPARE(copy->SelectValue(u"SELECT Titel FROM HEFTLIST WHERE Nr=7;"_s).toString(), u"Titel"_s);
    }
};

HEFT_TEST(TestSafety)
#include "tst_safety.moc"
