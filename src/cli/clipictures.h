#pragma once
// The picture and archive commands of heftarium-cli. The data folder of a
// collection is the folder that holds its "DBs" folder, or the collection's
// own folder when that isn't called "DBs"; PictureRoot and ArchiveRoot
// default to it unless the collection's parameters name others.

#include <QStringList>
#include <QTextStream>

namespace heft {

class Session;

// words: everything behind "picture", e.g. {"12", "--kind", "rize"}.
int PictureCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err);
// words: everything behind "archive", e.g. {"page", "12"}.
int ArchiveCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err);

} // namespace heft
