#include "climanpage.h"

#include "clihelp.h"

#include "core/version.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Text as roff reads it literally: backslashes and minus signs escaped, and
// a line that would start with a control character protected.
QString Roff(const QString& text)
{
    QString escaped = QString(text).replace(u'\\', u"\\e"_s).replace(u'-', u"\\-"_s);
    if (escaped.startsWith(u'.') || escaped.startsWith(u'\''))
        escaped.prepend(u"\\&"_s);
    return escaped;
}

QString Bold(const QString& text) { return u"\\fB"_s + Roff(text) + u"\\fR"_s; }

QString Synopses(const QStringList& synopses)
{
    QString page = u".nf\n"_s;
    for (const QString& synopsis : synopses)
        page += Bold(synopsis) + u'\n';
    return page + u".fi\n"_s;
}

QString TaggedParagraph(const QString& tag, const QString& text)
{
    return u".TP\n"_s + Bold(tag) + u'\n' + Roff(text) + u'\n';
}

QString ExitCodes(const QList<CliExitCode>& codes)
{
    QString page;
    for (const CliExitCode& code : codes)
        page += TaggedParagraph(QString::number(code.code), code.meaning);
    return page;
}

QString Command(const CliCommandHelp& command)
{
    QString page = u".SS "_s + Roff(command.name) + u'\n' + Synopses(command.synopses) + u".PP\n"_s +
                   Roff(command.description) + u'\n';
    if (!command.options.isEmpty()) {
        page += u".PP\nOptionen:\n.RS\n"_s;
        for (const CliOption& option : command.options)
            page += TaggedParagraph(option.name, option.text);
        page += u".RE\n"_s;
    }
    return page + u".PP\nRückgabewerte:\n.RS\n"_s + ExitCodes(CliExitCodesOf(command)) + u".RE\n"_s;
}

} // namespace

QString CliManPage(const QString& date)
{
    QString page = u".TH HEFTARIUM\\-CLI 1 \"%1\" \"Heftarium %2\" \"Heftarium\"\n"_s.arg(date, ProgramVersion()) +
                   u".SH BEZEICHNUNG\nheftarium\\-cli \\- "_s + Roff(CliSummary()) + u"\n.SH ÜBERSICHT\n"_s;
    QStringList synopses;
    for (const CliCommandHelp& command : CliCommands())
        synopses << command.synopses;
    synopses << u"heftarium-cli BEFEHL --help"_s << u"heftarium-cli --help | --version"_s;
    page += Synopses(synopses) + u".SH BESCHREIBUNG\n"_s + Roff(CliIntroduction()) + u"\n.SH BEFEHLE\n"_s;
    for (const CliCommandHelp& command : CliCommands())
        page += Command(command);
    page += u".SH OPTIONEN\n"_s;
    for (const CliOption& option : CliGeneralOptions())
        page += TaggedParagraph(option.name, option.text);
    return page + u".SH RÜCKGABEWERT\n"_s + ExitCodes(CliGeneralExitCodes());
}

} // namespace heft
