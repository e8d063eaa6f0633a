// The start of a run on real folders: first start per user, later starts,
// the command-line name, and the failures that end or don't end the program.

#include "testmain.h"
#include "testsupport.h"

#include "app/datafolder.h"
#include "app/startup.h"
#include "core/schema.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

namespace {

// An all-users folder with the seven shipped files, made by the same code
// that makes the real ones.
void MakeAllUsersFolder(const QString& root)
{
    QDir().mkpath(root + u"/DBs"_s);
    DbError error;
    for (const char16_t* file : {u"Heftarium.mdb", u"VN-HR.mdb", u"VN-TB.mdb"}) {
        auto db = CreateCollectionFile(root + u"/DBs/"_s + QStringView(file), u"Valdorin"_s,
                                       QStringView(file) == u"VN-TB.mdb" ? u"Taschenbücher"_s : u"Heftromane"_s,
                                       &error);
        QVERIFY(db);
        db->Execute(u"INSERT INTO HEFTLIST VALUES (1, 'A', '%1', 0, 'I', 0, '');"_s.arg(QStringView(file)));
    }
    QVERIFY(CreateCycleFile(root + u"/DBs/Valdorin Zyklus.mdb"_s, &error));
    for (const char16_t* file : {u"bm/Logo.svg", u"bm/Splash.svg", u"DBs/Heftarium.marker", u"Archiv/HEFT0001.HTM",
                                 u"tibis/Valdorin (Heftromane)/0001.jpg"})
        heft::test::WriteFile(root + u'/' + QStringView(file));
}

QStringList ReadLog(const QString& path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(f.readAll()).split(u"\r\n"_s);
}

} // namespace

class TestStartup : public QObject {
    Q_OBJECT

    QTemporaryDir m_root;
    QString m_allUsers;
    QString m_user;
    QString m_app;

    bool Start(Session& session, ScriptedPrompter& prompter, const QString& commandLine = {})
    {
        session.prompter = &prompter;
        return StartSession(session, {m_user, m_allUsers + u'/', m_app, commandLine});
    }

    QString Data() const { return m_user + u"/Quintara/Heftarium"_s; }

private Q_SLOTS:
    void init()
    {
        m_allUsers = m_root.filePath(u"share/Quintara/Heftarium"_s);
        // The per-user base does not exist yet, as on a fresh account.
        m_user = m_root.filePath(u"home-%1/.local/share"_s.arg(QLatin1String(QTest::currentTestFunction())));
        m_app = m_root.filePath(u"app"_s);
        QDir().mkpath(m_app);
        if (!QFileInfo::exists(m_allUsers))
            MakeAllUsersFolder(m_allUsers);
    }

    void firstStartCopiesEverything()
    {
        Session session;
        ScriptedPrompter prompter;
        // A sample the user has already is kept; the others come along.
        heft::test::WriteFile(Data() + u"/Archiv/HEFT0001.HTM"_s, "mein");
        QVERIFY(Start(session, prompter));
        QCOMPARE(session.DataFolder, Data());
        QCOMPARE(QFileInfo(Data() + u"/Archiv/HEFT0001.HTM"_s).size(), 4);
        QVERIFY(QFileInfo::exists(Data() + u"/tibis/Valdorin (Heftromane)/0001.jpg"_s));
        int folders = 0;
        for (QDirIterator it(m_user, QDir::Dirs | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
             it.hasNext(); it.next())
            ++folders;
        QCOMPARE(folders, 16);
        for (const QString& file : ShippedFiles())
            QVERIFY2(QFileInfo(Data() + u'/' + file).size() > 0, qPrintable(file));
        const QStringList log = ReadLog(Data() + u"/Heftarium.log"_s);
        QCOMPARE(log.value(0), u"[Info]"_s);
        QVERIFY(log.value(1).startsWith(u"V1.0.0, "_s));
        QCOMPARE(log.value(3), u"Programmdaten in "_s + Data());
        QVERIFY(session.CycleDb != nullptr);
        QCOMPARE(session.Config.SeriesName, u"Valdorin"_s);
        QVERIFY(session.SharedRecordset.Next());
        QVERIFY(prompter.asked.isEmpty());
    }

    // A file that can't be used ends the run with a message naming it (%1:
    // the file); a missing cycle file is only logged.
    void failures_data()
    {
        QTest::addColumn<QString>("damage"); // SQL run on the named file; null: no file at all
        QTest::addColumn<bool>("started");
        QTest::addColumn<QString>("told");
        QTest::addColumn<QString>("logged");
        QTest::newRow("no configuration") << u"DROP TABLE KONFIGURATION;"_s << false << u"'Konfigurations'"_s
                                          << u"Fehler beim Öffnen der Konfigurations Tabelle: "_s;
        QTest::newRow("no entry table") << u"DROP TABLE HEFTLIST;"_s << false << u"\n\n'%1'\n\n"_s
                                        << u"Fehler beim Öffnen der %1 Tabelle: "_s;
        QTest::newRow("file not there") << QString() << false << u"\n\n'%1'\n\n"_s
                                        << u"%1: Die Datei wurde nicht gefunden."_s;
        QTest::newRow("series without cycle file") << u""_s << true << QString()
                                                   << u"Fehler beim Öffnen der Zyklus DB: "_s;
    }
    void failures()
    {
        QFETCH(QString, damage);
        QFETCH(QString, told);
        QFETCH(QString, logged);
        const QString path = m_root.filePath(u"Kaputt %1.mdb"_s.arg(QLatin1String(QTest::currentDataTag())));
        if (!damage.isNull()) {
            DbError error;
            auto db = CreateCollectionFile(path, u"X"_s, u"Y"_s, &error);
            QVERIFY(db && (damage.isEmpty() || !db->Execute(damage)));
        }
        Session session;
        ScriptedPrompter prompter;
        const auto named = [&](QString text) { return text.replace(u"%1"_s, path); };
        QTEST(Start(session, prompter, path), "started");
        QCOMPARE(prompter.asked.size(), told.isNull() ? 0 : 1);
        if (!told.isNull())
            QVERIFY2(prompter.asked[0].text.contains(named(told)), qPrintable(prompter.asked[0].text));
        const QStringList log = ReadLog(Data() + u"/Heftarium.log"_s);
        QVERIFY2(!log.filter(named(logged)).isEmpty(), qPrintable(log.join(u'\n')));
    }

};

HEFT_TEST(TestStartup)
#include "tst_startup.moc"
