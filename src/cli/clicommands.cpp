#include "clicommands.h"
#include "cliexchange.h"
#include "clistats.h"
#include "clifilterwords.h"
#include "clipictures.h"
#include "clihelp.h"
#include "cliprint.h"
#include "clisafety.h"

#include "core/config.h"
#include "core/fileproblems.h"
#include "core/schema.h"
#include "core/session.h"
#include "core/sqlwriters.h"
#include "filter/columnfill.h"
#include "filter/filterfields.h"
#include "mainwin/entrygridmodel.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

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
    if (path.startsWith(u"--"_s) || path.isEmpty() || series.isEmpty() || kind.isEmpty())
        return UsageError(err, u"create"_s);
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

int Filter(Session& session, const QStringList& words, QTextStream& out, QTextStream& err)
{
    FilterOutcome outcome;
    if (const int code = FilterFromWords(session, words, outcome, err))
        return code;
    out << outcome.where << u'\n' << outcome.text << u'\n';
    DbError error;
    Query query = session.CollectionDb->Select(outcome.sql, &error);
    int found = 0;
    while (!error && query.Next()) {
        out << query.Text(0) << u'\n';
        ++found;
    }
    if (!error)
        error = query.Error();
    if (error) {
        err << u"%1 %2\n"_s.arg(error.number).arg(error.description);
        return 1;
    }
    if (found == 0)
        out << NothingFoundText();
    return 0;
}



// The value as the window's input for the target would hold it: the entry
// of cmb_aufl or cmb_gel, an accepted cycle, or the text within the limit of
// txt_1. Returns 0, or the exit code after telling what is wrong.
int ReadFillValue(Session& session, const QString& value, FillRequest& request, QTextStream& err)
{
    const FillTarget& target = FillTargetAt(request.target);
    QStringList entries;
    switch (target.editor) {
    case FillEditor::Univf:
        request.text = value;
        return 0;
    case FillEditor::Text:
        request.text = value.left(target.maxLength);
        if (target.gridColumn == ColZyklus) {
            // The window refuses a text that is no cycle once and writes
            // "- - -" on the next press; here "- - -" is given directly.
            const CycleInput cycle = NormalizeCycleInput(request.text);
            if (!cycle.accepted) {
                err << u"Kein Zyklus: %1 (\"- - -\" schreibt: kein Zyklus)\n"_s.arg(value);
                return 1;
            }
            request.text = cycle.text;
        }
        return 0;
    case FillEditor::Aufl:
        entries = AuflageEntries(session.Config.MaxAuflage);
        break;
    case FillEditor::Gel:
        entries = YesNoEntries();
        break;
    }
    request.listIndex = static_cast<int>(entries.indexOf(value));
    if (request.listIndex >= 0)
        return 0;
    err << u"Nicht in der Liste von %1: %2\n"_s.arg(target.label, value);
    return 2;
}

// Fills the target over the entries the filter finds, from the last to the
// first as the window does, and tells how many entries were changed.
int Fill(Session& session, const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    QStringList words = arguments;
    QString label, value;
    if (!TakeOption(words, u"--target"_s, label) || !TakeOption(words, u"--value"_s, value))
        return UsageError(err, u"fill"_s);
    QList<FilterCriterion> rows;
    FilterOutcome outcome;
    if (const int code = ParseFilterWords(session, words, rows, err))
        return code;
    const auto targets = FillTargets();
    const auto target =
        std::find_if(targets.begin(), targets.end(), [&](const FillTarget& t) { return t.label == label; });
    if (target == targets.end()) {
        err << u"Unbekannte Spalte: "_s << label << u'\n';
        return 2;
    }
    FillRequest request;
    request.target = static_cast<int>(target - targets.begin());
    if (const int code = ReadFillValue(session, value, request, err))
        return code;
    if (const int code = GenerateFilter(session, rows, outcome, err))
        return code;

    DbError error;
    Query query = session.CollectionDb->Select(outcome.sql, &error);
    QList<int> numbers;
    while (!error && query.Next())
        numbers << static_cast<int>(query.Int(0));
    if (!error)
        error = query.Error();
    query.Close();
    if (error) {
        err << u"%1 %2\n"_s.arg(error.number).arg(error.description);
        return 1;
    }
    if (numbers.isEmpty()) {
        out << NothingFoundText();
        return 0;
    }
    session.ActiveCaption = [] { return ColumnFillCaption(); };
    const int changed = FillEntries(session, request, numbers);
    out << u"Geänderte Einträge: %1\n"_s.arg(changed);
    return 0;
}
} // namespace

// Takes "option VALUE" out of the words; false if the option isn't there.
bool TakeOption(QStringList& words, const QString& option, QString& value)
{
    const qsizetype at = words.indexOf(option);
    if (at < 0 || at + 1 >= words.size())
        return false;
    value = words[at + 1];
    words.remove(at, 2);
    return true;
}

// The commands on an open collection, behind "--db PATH".
int RunDbCommand(Session& session, const QStringList& arguments, QTextStream& out, QTextStream& err);

int RunCli(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    if (const int code = AnswerHelpRequest(arguments, out); code >= 0)
        return code;
    if (arguments.value(0) == u"create")
        return Create(arguments, out, err);
    if (arguments.value(0) == u"--cycle-db")
        return CyclesCommand(arguments, out, err);
    if (arguments.value(0) != u"--db" || arguments.size() < 3) {
        err << CliUsage();
        return 2;
    }
    // A word that is no command is told as such before the file is touched.
    if (FindCliCommand(arguments[2]) == nullptr) {
        err << u"Unbekannter Befehl: "_s << arguments[2] << u'\n' << CliUsage();
        return 2;
    }
    Session session;
    ScriptedPrompter prompter;
    session.prompter = &prompter;
    session.DataFolder = QFileInfo(arguments[1]).absolutePath();
    if (const DbError error = OpenCollectionDatabase(session, arguments[1])) {
        const QString reason = FileProblemText(error);
        err << u"Probleme beim Öffnen der DB: "_s << (reason.isEmpty() ? error.description : reason + u' ' + error.description)
            << u'\n';
        return 1;
    }
    const int code = RunDbCommand(session, arguments, out, err);
    // What the window would have shown in a message box (a change the file
    // could not take, a backup not made) goes to the error output.
    for (const Message& message : std::as_const(prompter.asked))
        err << message.title << u": "_s << message.text << u'\n';
    return code;
}

int RunDbCommand(Session& session, const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    const QString command = arguments[2];
    if (command == u"info")
        return Info(session, out, err);
    if (command == u"sql")
        return arguments.size() == 4 ? Sql(session, arguments[3], out) : UsageError(err, command);
    if (command == u"filter")
        return Filter(session, arguments.mid(3), out, err);
    if (command == u"fill")
        return Fill(session, arguments.mid(3), out, err);
    if (command == u"import")
        return ImportCommand(session, arguments.mid(3), out, err);
    if (command == u"export")
        return ExportCommand(session, arguments.mid(3), out, err);
    if (command == u"stats")
        return StatsCommand(session, arguments.mid(3), out, err);
    if (command == u"print")
        return PrintCommand(session, arguments.mid(3), out, err);
    if (command == u"picture")
        return PictureCommand(session, arguments.mid(3), out, err);
    if (command == u"archive")
        return ArchiveCommand(session, arguments.mid(3), out, err);
    if (command == u"backup" && arguments.size() <= 4)
        return BackupCommand(session, arguments.mid(3), out, err);
    if (command == u"check")
        return CheckCommand(session, out);
    if (command == u"renumber")
        return RenumberCommand(session, arguments.mid(3), out, err);
    if (command == u"webimport")
        return WebImportCommand(session, arguments.mid(3), out, err);
    return UsageError(err, command);
}

} // namespace heft
