#pragma once
// The command line of the desktop program: a collection name, or one of the
// requests a Linux user expects of every program (--help, --version).

#include <QStringList>
#include <QTextStream>

namespace heft {

enum class ProgramRequest { Run, Help, Version, UsageError };

struct ProgramArguments {
    ProgramRequest request = ProgramRequest::Run;
    QString databaseName;  // Run: the words joined, as the start expects them
    QString wrongOption;   // UsageError: the option that is not understood
};

// arguments without the program name.
ProgramArguments ReadProgramArguments(const QStringList& arguments);
// Prints the help or the version on out, or the hint on a wrong call on err,
// and returns the exit code; nothing and -1 for Run.
int AnswerProgramArguments(const ProgramArguments& arguments, QTextStream& out, QTextStream& err);

} // namespace heft
