#pragma once
// What heftarium-cli tells about itself. Every command has one row in the
// command table: its name, how it is called, what it does, its options and
// its exit codes. The --help text, the help of one command, the hints on a
// wrong call and the manual page are all made from that table, so they can't
// tell different stories.

#include <QList>
#include <QString>
#include <QStringList>
#include <QTextStream>

namespace heft {

struct CliOption {
    QString name;  // "--mode 0|1|2"
    QString text;
};

struct CliExitCode {
    int code;
    QString meaning;
};

struct CliCommandHelp {
    QString name;                   // the command word, "import"
    QStringList synopses;           // "heftarium-cli --db DATEI import DATEI [--mode 0|1|2] [--details]"
    QString description;            // one paragraph
    QList<CliOption> options;
    QList<CliExitCode> exitCodes;
};

// The command table, in the order the help lists the commands.
const QList<CliCommandHelp>& CliCommands();
// The row of a command word; nullptr for a word that is no command.
const CliCommandHelp* FindCliCommand(const QString& name);

// The options every call understands and the exit codes every command keeps.
const QList<CliOption>& CliGeneralOptions();
const QList<CliExitCode>& CliGeneralExitCodes();
// A command's exit codes: its own, and the general ones it does not name.
QList<CliExitCode> CliExitCodesOf(const CliCommandHelp& command);
// What the tool is, in one line, and the paragraph that opens its help.
QString CliSummary();
QString CliIntroduction();

// "heftarium-cli 1.0.0"
QString CliVersionText();
// The whole help of --help: every command with its options and exit codes.
QString CliHelpText();
// The help of one command, as "COMMAND --help" prints it.
QString CliCommandHelpText(const CliCommandHelp& command);

// Answers --help, -h and --version anywhere on the command line, and
// "COMMAND --help" with the help of that command, on out. Returns the exit
// code, or -1 when the arguments ask for something else.
int AnswerHelpRequest(const QStringList& arguments, QTextStream& out);
// Tells on err how the command is called and where to read more; returns
// the exit code of a wrong call (2).
int UsageError(QTextStream& err, const QString& command);

} // namespace heft
