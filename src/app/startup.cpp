#include "startup.h"

#include "datafolder.h"

#include "core/config.h"
#include "core/fileproblems.h"
#include "core/schema.h"
#include "core/sqlwriters.h"
#include "core/version.h"

#include <QDateTime>
#include <QDir>
#include <QLocale>
#include <QSysInfo>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Tries the name under DBs/ first and then as it stands, so that both
// "VN-TB.mdb" and a full path work.
bool OpenNamedCollection(Session& session, const QString& name)
{
    DbError error = OpenCollectionDatabase(session, session.DataFolder + u"/DBs/"_s + name);
    if (error)
        error = OpenCollectionDatabase(session, name);
    if (error)
        ReportDatabaseOpenFailure(session, name, error);
    return !error;
}

void OpenCycleDatabase(Session& session)
{
    DbError error;
    session.CycleDb = Database::Open(
        session.DataFolder + u"/DBs/"_s + session.Config.SeriesName + u" Zyklus.mdb"_s, &error);
    if (error)
        session.WriteLog(error.number, u"Fehler beim Öffnen der Zyklus DB: "_s + error.description);
}

} // namespace

QString StartLine()
{
    const QLocale locale;
    const QDateTime now = QDateTime::currentDateTime();
    // The kernel version stands where the system's major, minor and build are.
    const QStringList kernel = QSysInfo::kernelVersion().split(u'.');
    const QString build = kernel.mid(2).join(u'.');
    return u"V%1, %2/%3 %4/%5/%6-%7"_s.arg(ProgramVersion(), now.toString(u"dd.MM.yyyy"_s),
                                           now.toString(u"hh:mm:ss"_s), QSysInfo::kernelType(),
                                           kernel.value(0), kernel.value(1), build);
}

void ReportDatabaseOpenFailure(Session& session, const QString& name, const DbError& error)
{
    session.WriteLog(error.number, u"Fehler beim Öffnen der %1 Tabelle: %2"_s.arg(name, error.description));
    // The engine's words are English; the collector reads why in his own.
    if (const QString reason = FileProblemText(error); !reason.isEmpty())
        session.WriteLog(LogInfo, QDir::toNativeSeparators(name) + u": "_s + reason);
    session.prompter->Tell(u"Probleme beim Öffnen der DB"_s,
                           u"Die Heftarium Tabelle\n\n'%1'\n\nkonnte nicht geöffnet werden!"_s.arg(name),
                           MessageIcon::Critical);
}

bool StartSession(Session& session, const StartOptions& options)
{
    session.DataFolder = PrepareDataFolder(options.userBase, options.allUsersSource, options.appPath);
    RotateLog(session.DataFolder);
    session.log = Log(session.DataFolder + u"/Heftarium.log"_s);
    session.WriteLog(LogInfo, StartLine());
    session.WriteLog(LogInfo, u"Programmdaten in "_s + session.DataFolder);

    QString name = options.commandLine.trimmed();
    if (name.isEmpty()) {
        name = session.DataFolder + u"/DBs/Heftarium.mdb"_s;
        if (const DbError error = OpenCollectionDatabase(session, name)) {
            ReportDatabaseOpenFailure(session, name, error);
            return false;
        }
    } else if (!OpenNamedCollection(session, name)) {
        return false;
    }

    DbError error;
    if (!ReadConfiguration(session, &error)) {
        ReportDatabaseOpenFailure(session, u"Konfigurations"_s, error);
        return false;
    }
    ReadParameters(session);
    UpgradeSchema(session);

    session.SharedRecordset = session.CollectionDb->Select(u"SELECT * FROM HEFTLIST ORDER BY Nr;"_s, &error);
    if (error) {
        ReportDatabaseOpenFailure(session, name, error);
        return false;
    }
    OpenCycleDatabase(session);
    return true;
}

} // namespace heft
