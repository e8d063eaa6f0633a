#include "changeunit.h"

#include "backups.h"
#include "database.h"
#include "fileproblems.h"
#include "jeterrors.h"
#include "session.h"

#include <QDir>

#include <utility>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Once a day, before the file takes a change: the quick check of its
// structure, so that a damaged file is neither written nor copied over a
// good backup, and the day's copy.
void PrepareFirstChangeOfDay(Session& session)
{
    const QDate today = QDate::currentDate();
    if (session.BackupDay == today || session.Config.BackupDays <= 0)
        return;
    session.BackupDay = today;
    Database& db = *session.CollectionDb;
    const QStringList faults = db.IntegrityFaults(true);
    if (!faults.isEmpty()) {
        session.WriteLog(JetDamaged, u"Prüfung von %1: %2"_s.arg(QDir::toNativeSeparators(db.Path()),
                                                                  faults.join(u"; "_s)));
        return;
    }
    if (const DbError error = MakeDailyBackup(db, today, session.Config.BackupDays)) {
        const QString target = QDir::toNativeSeparators(BackupPathOf(db.Path(), today));
        session.WriteLog(error.number, u"Sicherung %1 nicht angelegt: %2"_s.arg(target, error.description));
        if (session.prompter)
            session.prompter->Tell(u"Sicherung nicht angelegt"_s,
                                   u"Die tägliche Sicherung\n\n'%1'\n\nkonnte nicht angelegt werden.\n\n%2"_s.arg(
                                       target, FileProblemText(error).isEmpty() ? error.description
                                                                               : FileProblemText(error)),
                                   MessageIcon::Exclamation);
    }
}

} // namespace

ChangeUnit::ChangeUnit(Session& session) : ChangeUnit(session, *session.CollectionDb) {}

ChangeUnit::ChangeUnit(Session& session, Database& db) : m_session(session), m_db(db)
{
    if (&db == session.CollectionDb.get() && !db.InChange())
        PrepareFirstChangeOfDay(session);
    Begin();
}

ChangeUnit::~ChangeUnit() { Commit(); }

void ChangeUnit::Begin()
{
    m_db.BeginChange();
    m_open = true;
}

DbError ChangeUnit::Commit()
{
    if (!std::exchange(m_open, false))
        return {};
    const DbError lost = m_db.EndChange();
    if (lost)
        ReportLostChange(m_session, m_db, lost);
    return lost;
}

DbError ChangeUnit::CommitAndContinue()
{
    DbError lost = Commit();
    Begin();
    return lost;
}

} // namespace heft
