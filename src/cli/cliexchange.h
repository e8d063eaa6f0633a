#pragma once
// The exchange commands of heftarium-cli: file import, export and the cycle
// file. Each writes what its window would show and returns the exit code.

#include <QStringList>
#include <QTextStream>

namespace heft {

class Session;

// words: everything behind "import", e.g. {"liste.dat", "--mode", "1"}.
int ImportCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err);
// words: everything behind "export".
int ExportCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err);
// words: everything behind "webimport", e.g. {"2401", "2409", "--tibi"}.
int WebImportCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err);
// arguments: the whole command line, starting with "--cycle-db PATH".
int CyclesCommand(const QStringList& arguments, QTextStream& out, QTextStream& err);

} // namespace heft
