#pragma once
// Copies of a collection file, one per day, in the folder "Sicherung"
// beside it: "{name}-{yyyy-MM-dd}.mdb". A collector who damages or loses
// his file takes the copy of a day back (the help page tells how).

#include "database.h"

#include <QDate>
#include <QString>

namespace heft {

// All copies together never take more than this; the oldest go first.
constexpr qint64 BackupBytesLimit = 200LL * 1024 * 1024;

QString BackupFolderOf(const QString& collectionPath);
QString BackupPathOf(const QString& collectionPath, const QDate& day);

// Makes the copy of the day unless it is there already, then prunes.
DbError MakeDailyBackup(Database& db, const QDate& today, int keepDays, qint64 bytesLimit = BackupBytesLimit);

// Deletes the copies of the collection older than keepDays days (today is
// the first), then the oldest ones while all together are above the limit.
// The newest copy always stays: one copy too big beats none.
void PruneBackups(const QString& collectionPath, const QDate& today, int keepDays, qint64 bytesLimit);

} // namespace heft
