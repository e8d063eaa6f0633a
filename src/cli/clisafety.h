#pragma once
// The commands that keep a collection safe: a backup at once and a check of
// the whole file.

#include <QStringList>
#include <QTextStream>

namespace heft {

class Session;

// words: everything behind "backup": nothing (the day's copy in the folder
// "Sicherung" beside the file), a file or a folder.
int BackupCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err);
// Prints what is wrong with the file; exit 1 when anything is.
int CheckCommand(Session& session, QTextStream& out);
// words: pairs of old and new numbers. Each entry moves to its new number as
// one change, as the editor saves it; a number in use is refused.
int RenumberCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err);

} // namespace heft
