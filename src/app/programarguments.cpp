#include "programarguments.h"

#include "core/version.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

QString HelpText()
{
    return u"Heftarium %1: Sammlungsdatenbank für eine nummerierte Heftroman-Serie\n"
           "\n"
           "Aufruf:\n"
           "  heftarium [SAMMLUNG]\n"
           "  heftarium --help | --version\n"
           "\n"
           "Startet Heftarium mit der Sammlung SAMMLUNG: einem Namen im Ordner DBs Deiner\n"
           "Programmdaten (z. B. VN-TB.mdb) oder einem vollständigen Pfad. Ohne Namen\n"
           "öffnet Heftarium DBs/Heftarium.mdb.\n"
           "\n"
           "Deine Programmdaten liegen in ~/.local/share/Quintara/Heftarium. Beim ersten\n"
           "Start kopiert Heftarium die mitgelieferten Sammlungen aus dem Ordner\n"
           "Quintara/Heftarium der Systemdaten (z. B. /usr/share) dorthin.\n"
           "\n"
           "Optionen:\n"
           "  -h, --help   zeigt diese Hilfe\n"
           "  --version    zeigt die Version\n"
           "\n"
           "Rückgabewerte:\n"
           "  0  Heftarium wurde regulär beendet.\n"
           "  1  Die Sammlung oder ihre Bilder ließen sich nicht öffnen.\n"
           "  2  Falscher Aufruf.\n"_s.arg(ProgramVersion());
}

} // namespace

ProgramArguments ReadProgramArguments(const QStringList& arguments)
{
    ProgramArguments result;
    for (const QString& word : arguments) {
        if (word == u"--help" || word == u"-h")
            return {ProgramRequest::Help, {}, {}};
        if (word == u"--version")
            return {ProgramRequest::Version, {}, {}};
        // A collection name never starts with a dash; such a word is a
        // mistyped option, not a file to look for.
        if (word.startsWith(u'-') && result.wrongOption.isEmpty())
            result.wrongOption = word;
    }
    if (!result.wrongOption.isEmpty())
        result.request = ProgramRequest::UsageError;
    else
        result.databaseName = arguments.join(u' ');
    return result;
}

int AnswerProgramArguments(const ProgramArguments& arguments, QTextStream& out, QTextStream& err)
{
    switch (arguments.request) {
    case ProgramRequest::Run:
        return -1;
    case ProgramRequest::Help:
        out << HelpText();
        return 0;
    case ProgramRequest::Version:
        out << u"Heftarium "_s << ProgramVersion() << u'\n';
        return 0;
    case ProgramRequest::UsageError:
        err << u"heftarium: Die Option „%1“ gibt es nicht.\nMehr dazu: heftarium --help\n"_s.arg(
            arguments.wrongOption);
        return 2;
    }
    return 2;
}

} // namespace heft
