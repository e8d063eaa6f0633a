#include "clicommands.h"

#include "core/config.h"
#include "core/schema.h"
#include "core/session.h"
#include "core/sqlwriters.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

const QString Usage = u"Aufruf:\n"
                      "  heftarium-cli create DATEI --series SERIE --kind LISTENART\n"
                      "  heftarium-cli --db DATEI info\n"
                      "  heftarium-cli --db DATEI sql \"ANWEISUNG\"\n"_s;

// The value behind an option such as "--series"; empty if absent.
QString OptionValue(const QStringList& arguments, const QString& option)
{
    const qsizetype at = arguments.indexOf(option);
    return at >= 0 && at + 1 < arguments.size() ? arguments[at + 1] : QString();
}

int Create(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    const QString path = arguments.value(1);
    const QString series = OptionValue(arguments, u"--series"_s);
    const QString kind = OptionValue(arguments, u"--kind"_s);
    if (path.startsWith(u"--"_s) || path.isEmpty() || series.isEmpty() || kind.isEmpty()) {
        err << Usage;
        return 2;
    }
    DbError error;
    if (!CreateCollectionFile(path, series, kind, &error)) {
        err << u"Die Sammlung konnte nicht angelegt werden: "_s << error.description << u'\n';
        return 1;
    }
    out << u"Neue Sammlung \"%1 (%2)\" in %3 angelegt.\n"_s.arg(series, kind, QFileInfo(path).absoluteFilePath());
    return 0;
}

int Info(Session& session, QTextStream& out, QTextStream& err)
{
    DbError error;
    if (!ReadConfiguration(session, &error)) {
        err << u"KONFIGURATION nicht lesbar: "_s << error.description << u'\n';
        return 1;
    }
    int lowest = 0, highest = 0;
    GetNrRange(session, u";"_s, lowest, highest);
    const int count = session.CollectionDb->SelectValue(u"SELECT COUNT(*) FROM HEFTLIST;"_s).toInt();
    out << u"Serie: "_s << session.Config.SeriesName << u'\n'
        << u"Liste: "_s << session.Config.ListKind << u'\n'
        << u"Einträge: "_s << count << u'\n'
        << u"Nummern: "_s << lowest << u" - "_s << highest << u'\n';
    return 0;
}

int Sql(Session& session, const QString& statement, QTextStream& out)
{
    DbError error;
    Query query = session.CollectionDb->Select(statement, &error);
    if (!error && query.ColumnCount() > 0) {
        while (query.Next()) {
            QStringList fields;
            for (int i = 0; i < query.ColumnCount(); ++i)
                fields << (query.IsNull(i) ? u"<NULL>"_s : query.Text(i));
            out << fields.join(u'\t') << u'\n';
        }
        error = query.Error();
        if (!error)
            return 0;
    } else if (!error) {
        query.Close();
        error = session.CollectionDb->Execute(statement);
    }
    out << (error ? u"%1 %2"_s.arg(error.number).arg(error.description) : u"0"_s) << u'\n';
    return error ? 1 : 0;
}

} // namespace

int RunCli(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    if (arguments.value(0) == u"create")
        return Create(arguments, out, err);
    if (arguments.value(0) != u"--db" || arguments.size() < 3) {
        err << Usage;
        return 2;
    }
    Session session;
    ScriptedPrompter prompter;
    session.prompter = &prompter;
    session.DataFolder = QFileInfo(arguments[1]).absolutePath();
    if (const DbError error = OpenCollectionDatabase(session, arguments[1])) {
        err << u"Probleme beim Öffnen der DB: "_s << error.description << u'\n';
        return 1;
    }
    const QString command = arguments[2];
    if (command == u"info")
        return Info(session, out, err);
    if (command == u"sql" && arguments.size() == 4)
        return Sql(session, arguments[3], out);
    err << Usage;
    return 2;
}

} // namespace heft
