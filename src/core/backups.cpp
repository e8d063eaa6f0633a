#include "backups.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

constexpr QStringView DayFormat = u"yyyy-MM-dd";

// The copies of one collection, oldest first (the names sort by day).
QFileInfoList CopiesOf(const QString& collectionPath)
{
    const QString pattern = QFileInfo(collectionPath).completeBaseName() + u"-[0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9].mdb"_s;
    return QDir(BackupFolderOf(collectionPath)).entryInfoList({pattern}, QDir::Files, QDir::Name);
}

QDate DayOf(const QFileInfo& copy)
{
    return QDate::fromString(copy.completeBaseName().right(DayFormat.size()), DayFormat);
}

} // namespace

QString BackupFolderOf(const QString& collectionPath)
{
    return QFileInfo(collectionPath).absoluteDir().filePath(u"Sicherung"_s);
}

QString BackupPathOf(const QString& collectionPath, const QDate& day)
{
    return BackupFolderOf(collectionPath) + u'/' + QFileInfo(collectionPath).completeBaseName() + u'-' +
           day.toString(DayFormat) + u".mdb"_s;
}

DbError MakeDailyBackup(Database& db, const QDate& today, int keepDays, qint64 bytesLimit)
{
    const QString target = BackupPathOf(db.Path(), today);
    if (!QFileInfo::exists(target)) {
        QDir().mkpath(BackupFolderOf(db.Path()));
        if (const DbError error = db.BackupTo(target))
            return error;
    }
    PruneBackups(db.Path(), today, keepDays, bytesLimit);
    return {};
}

void PruneBackups(const QString& collectionPath, const QDate& today, int keepDays, qint64 bytesLimit)
{
    QFileInfoList copies = CopiesOf(collectionPath);
    const QDate oldestKept = today.addDays(1 - keepDays);
    qint64 total = 0;
    for (qsizetype i = copies.size() - 1; i >= 0; --i) {
        const QDate day = DayOf(copies[i]);
        if (day.isValid() && day < oldestKept) {
            QFile::remove(copies[i].filePath());
            copies.removeAt(i);
        } else {
            total += copies[i].size();
        }
    }
    for (qsizetype i = 0; i + 1 < copies.size() && total > bytesLimit; ++i) {
        total -= copies[i].size();
        QFile::remove(copies[i].filePath());
    }
}

} // namespace heft
