#pragma once
// heftarium-cli: the program's logic without windows. Each command writes
// what the window would show and returns the process's exit code.

#include <QStringList>
#include <QTextStream>

class QFileInfo;

namespace heft {

// arguments without the program name, e.g. {"--db", "x.mdb", "info"}.
int RunCli(const QStringList& arguments, QTextStream& out, QTextStream& err);
// The lines that tell how the tool is called.
const QString& CliUsage();
// The data folder of a database file: the folder above DBs/ when the file
// lies in one (bm/ and export/ are there), else the file's own folder.
QString DataFolderOf(const QFileInfo& databaseFile);
// Takes "option VALUE" out of the words; false if the option isn't there.
bool TakeOption(QStringList& words, const QString& option, QString& value);

} // namespace heft
