#pragma once
// heftarium-cli: the program's logic without windows. Each command writes
// what the window would show and returns the process's exit code.

#include <QStringList>
#include <QTextStream>

namespace heft {

// arguments without the program name, e.g. {"--db", "x.mdb", "info"}.
int RunCli(const QStringList& arguments, QTextStream& out, QTextStream& err);
// The lines that tell how the tool is called.
const QString& CliUsage();

} // namespace heft
