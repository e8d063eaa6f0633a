// heftarium-cli --db PATH backup [DEST] and --db PATH check: a copy of the
// collection made at once, and the check of the whole file.

#include "clisafety.h"

#include "core/backups.h"
#include "core/collectioncheck.h"
#include "core/config.h"
#include "core/fileproblems.h"
#include "core/session.h"
#include "details/attributecatalog.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

QString Native(const QString& path) { return QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath()); }

QString Reason(const DbError& error)
{
    const QString text = FileProblemText(error);
    return text.isEmpty() ? error.description : text;
}

} // namespace

int BackupCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err)
{
    Database& db = *session.CollectionDb;
    const QDate today = QDate::currentDate();
    QString target = words.value(0);
    const bool daily = target.isEmpty();
    if (daily)
        target = BackupPathOf(db.Path(), today);
    else if (QFileInfo(target).isDir())
        target = QDir(target).filePath(QFileInfo(BackupPathOf(db.Path(), today)).fileName());
    QDir().mkpath(QFileInfo(target).absolutePath());
    // A copy that exists is replaced only once the new one stands.
    const QString fresh = target + u".neu"_s;
    QFile::remove(fresh);
    if (const DbError error = db.BackupTo(fresh)) {
        err << u"Sicherung nicht angelegt: %1: %2\n"_s.arg(Native(target), Reason(error));
        return 1;
    }
    QFile::remove(target);
    if (!QFile::rename(fresh, target)) {
        err << u"Sicherung nicht angelegt: %1 lässt sich nicht ersetzen.\n"_s.arg(Native(target));
        return 1;
    }
    if (daily) {
        ReadParameters(session);
        PruneBackups(db.Path(), today, std::max(session.Config.BackupDays, 1), BackupBytesLimit);
    }
    out << u"Sicherung angelegt: "_s << Native(target) << u'\n';
    return 0;
}

int CheckCommand(Session& session, QTextStream& out)
{
    QList<int> numeric;
    for (const StatusAttribute& attribute : StatusCatalog())
        if (IsNumericStatus(attribute.enumber))
            numeric << attribute.enumber;
    const QStringList faults = CheckCollection(*session.CollectionDb, numeric);
    out << u"Prüfung von "_s << Native(session.CollectionDb->Path()) << u":\n"_s;
    if (faults.isEmpty()) {
        out << u"Keine Fehler gefunden.\n"_s;
        return 0;
    }
    for (const QString& fault : faults)
        out << fault << u'\n';
    return 1;
}

} // namespace heft
