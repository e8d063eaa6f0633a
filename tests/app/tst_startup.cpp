// The start of a run on real folders: first start per user, later starts,
// the command-line name, and the failures that end or don't end the program.

#include "testmain.h"

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
    QDir().mkpath(root + u"/bm"_s);
    DbError error;
    for (const char16_t* file : {u"Heftarium.mdb", u"VN-HR.mdb", u"VN-TB.mdb"}) {
        auto db = CreateCollectionFile(root + u"/DBs/"_s + QStringView(file), u"Valdorin"_s,
                                       QStringView(file) == u"VN-TB.mdb" ? u"Taschenbücher"_s : u"Heftromane"_s,
                                       &error);
        QVERIFY(db);
        db->Execute(u"INSERT INTO HEFTLIST VALUES (1, 'A', '%1', 0, 'I', 0, '');"_s.arg(QStringView(file)));
    }
    QVERIFY(CreateCycleFile(root + u"/DBs/Valdorin Zyklus.mdb"_s, &error));
    for (const char16_t* file : {u"bm/Logo.svg", u"bm/Splash.svg", u"DBs/Heftarium.marker"}) {
        QFile f(root + u'/' + QStringView(file));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("x");
    }
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
        QVERIFY(Start(session, prompter));
        QCOMPARE(session.DataFolder, Data());
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

    void missingConfigurationEndsTheProgram()
    {
        DbError error;
        const QString path = m_root.filePath(u"OhneKonfig.mdb"_s);
        auto db = CreateCollectionFile(path, u"X"_s, u"Y"_s, &error);
        QVERIFY(db);
        db->Execute(u"DROP TABLE KONFIGURATION;"_s);
        db.reset();
        Session session;
        ScriptedPrompter prompter;
        QVERIFY(!Start(session, prompter, path));
        QVERIFY(prompter.asked.value(0).text.contains(u"'Konfigurations'"_s));
    }

};

HEFT_TEST(TestStartup)
#include "tst_startup.moc"
