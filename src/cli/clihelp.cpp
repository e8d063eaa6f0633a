#include "clihelp.h"

#include "clicommands.h"

#include "core/version.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

constexpr qsizetype LineWidth = 79;

// The text broken into lines of at most LineWidth characters: the first
// line behind `head` (blanks of the indent when there is none), every other
// line behind `indent` blanks. A word longer than a line stands alone.
QString Wrapped(const QString& text, qsizetype indent, const QString& head = {})
{
    QString result;
    QString line = head.isEmpty() ? QString(indent, u' ') : head;
    qsizetype lineStart = line.size();
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts)) {
        if (line.size() > lineStart && line.size() + 1 + word.size() > LineWidth) {
            result += line + u'\n';
            line = QString(indent, u' ');
            lineStart = indent;
        }
        if (line.size() > lineStart)
            line += u' ';
        line += word;
    }
    return result + line + u'\n';
}

// "name   text" rows with the texts in one column after the longest name.
template <typename Row, typename Name>
QString Table(const QList<Row>& rows, Name name, qsizetype indent)
{
    qsizetype width = 0;
    for (const Row& row : rows)
        width = std::max(width, name(row).size());
    QString result;
    for (const Row& row : rows) {
        const QString head = QString(indent, u' ') + name(row).leftJustified(width + 2);
        if (head.size() > LineWidth / 2)
            result += QString(indent, u' ') + name(row) + u'\n' + Wrapped(row.text, indent + 4);
        else
            result += Wrapped(row.text, head.size(), head);
    }
    return result;
}

struct ExitRow {
    QString code;
    QString text;
};

QList<ExitRow> ExitRows(const QList<CliExitCode>& codes)
{
    QList<ExitRow> rows;
    for (const CliExitCode& code : codes)
        rows << ExitRow{QString::number(code.code), code.meaning};
    return rows;
}

QString OptionsTable(const QList<CliOption>& options, qsizetype indent)
{
    return Table(options, [](const CliOption& o) { return o.name; }, indent);
}

QString ExitTable(const QList<CliExitCode>& codes, qsizetype indent)
{
    return Table(ExitRows(codes), [](const ExitRow& r) { return r.code; }, indent);
}

QString CommandBlock(const CliCommandHelp& command, qsizetype indent)
{
    const QString margin(indent, u' ');
    QString text;
    for (const QString& synopsis : command.synopses)
        text += Wrapped(synopsis, indent + 4, margin);
    text += u'\n' + Wrapped(command.description, indent);
    if (!command.options.isEmpty())
        text += u'\n' + margin + u"Optionen:\n"_s + OptionsTable(command.options, indent + 2);
    text += u'\n' + margin + u"Rückgabewerte:\n"_s + ExitTable(CliExitCodesOf(command), indent + 2);
    return text;
}

// Every way of calling a command, one after the other.
QString SynopsisLines()
{
    QString text;
    for (const CliCommandHelp& command : CliCommands()) {
        for (const QString& synopsis : command.synopses)
            text += Wrapped(synopsis, 6, u"  "_s);
    }
    return text;
}

bool IsHelpWord(const QString& word) { return word == u"--help" || word == u"-h"; }

// The command the words name, skipping the file behind --db and --cycle-db.
const CliCommandHelp* NamedCommand(const QStringList& words)
{
    for (qsizetype i = 0; i < words.size(); ++i) {
        if (words[i] == u"--db" || words[i] == u"--cycle-db")
            ++i;
        else if (const CliCommandHelp* command = FindCliCommand(words[i]))
            return command;
    }
    return nullptr;
}

} // namespace

const CliCommandHelp* FindCliCommand(const QString& name)
{
    const auto& commands = CliCommands();
    const auto found =
        std::find_if(commands.begin(), commands.end(), [&](const CliCommandHelp& c) { return c.name == name; });
    return found != commands.end() ? &*found : nullptr;
}

QList<CliExitCode> CliExitCodesOf(const CliCommandHelp& command)
{
    QList<CliExitCode> codes = command.exitCodes;
    for (const CliExitCode& general : CliGeneralExitCodes()) {
        if (std::none_of(codes.begin(), codes.end(), [&](const CliExitCode& c) { return c.code == general.code; }))
            codes << general;
    }
    std::stable_sort(codes.begin(), codes.end(), [](const auto& a, const auto& b) { return a.code < b.code; });
    return codes;
}

const QList<CliOption>& CliGeneralOptions()
{
    static const QList<CliOption> options = {
        {u"-h, --help"_s, u"zeigt diese Hilfe; hinter einem Befehl nur die Hilfe zu diesem Befehl"_s},
        {u"--version"_s, u"zeigt die Version"_s}};
    return options;
}

const QList<CliExitCode>& CliGeneralExitCodes()
{
    static const QList<CliExitCode> codes = {
        {0, u"Der Befehl ist ausgeführt."_s},
        {1, u"Der Befehl ist gescheitert; die Meldung steht auf der Fehlerausgabe."_s},
        {2, u"Falscher Aufruf: Befehl, Option oder Wert unbekannt oder unvollständig."_s}};
    return codes;
}

QString CliSummary() { return u"Heftariums Logik ohne Fenster, für Skripte"_s; }

QString CliIntroduction()
{
    return u"heftarium-cli arbeitet auf den Dateien einer Heftarium-Sammlung wie das Programm selbst, aber ohne "
           "Fenster: Jeder Befehl gibt genau die Texte aus, die das Fenster zeigen würde. Ergebnisse stehen auf der "
           "Standardausgabe, Meldungen auf der Fehlerausgabe. Die Sammlung muss Dir allein gehören: Läuft Heftarium "
           "auf derselben Datei, scheitert der Befehl."_s;
}

QString CliVersionText() { return u"heftarium-cli "_s + ProgramVersion(); }

const QString& CliUsage()
{
    static const QString usage = u"Aufruf:\n"_s + SynopsisLines() + u"Mehr dazu: heftarium-cli --help\n"_s;
    return usage;
}

QString CliHelpText()
{
    QString text = CliVersionText() + u": "_s + CliSummary() + u"\n\n"_s + Wrapped(CliIntroduction(), 0) +
                   u"\nAufruf:\n"_s + SynopsisLines();
    text += u"  heftarium-cli BEFEHL --help\n  heftarium-cli --help | --version\n\nBefehle:\n"_s;
    for (const CliCommandHelp& command : CliCommands())
        text += u'\n' + command.name + u'\n' + CommandBlock(command, 2);
    return text + u"\nAllgemeine Optionen:\n"_s + OptionsTable(CliGeneralOptions(), 2) +
           u"\nRückgabewerte:\n"_s + ExitTable(CliGeneralExitCodes(), 2);
}

QString CliCommandHelpText(const CliCommandHelp& command) { return u"Aufruf:\n"_s + CommandBlock(command, 2); }

int AnswerHelpRequest(const QStringList& arguments, QTextStream& out)
{
    if (arguments.value(0) == u"--version") {
        out << CliVersionText() << u'\n';
        return 0;
    }
    if (std::none_of(arguments.begin(), arguments.end(), IsHelpWord))
        return -1;
    const CliCommandHelp* command = NamedCommand(arguments);
    out << (command != nullptr ? CliCommandHelpText(*command) : CliHelpText());
    return 0;
}

int UsageError(QTextStream& err, const QString& command)
{
    const CliCommandHelp* help = FindCliCommand(command);
    if (help == nullptr) {
        err << CliUsage();
        return 2;
    }
    err << u"Falscher Aufruf von %1. Aufruf:\n"_s.arg(command);
    for (const QString& synopsis : help->synopses)
        err << Wrapped(synopsis, 6, u"  "_s);
    err << u"Mehr dazu: heftarium-cli %1 --help\n"_s.arg(command);
    return 2;
}

} // namespace heft
