// heftarium-cli cycles export: the cycle file written beside the cycle
// database's data folder, the series taken from the file name or the
// option, and the exit codes of what it refuses.

#include "testmain.h"

#include "clirun.h"
#include "core/schema.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestCliCycles : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
        const heft::test::CliRun run = heft::test::RunCliWith(arguments + options);
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

HEFT_TEST(TestCliCycles)
#include "tst_clicycles.moc"
