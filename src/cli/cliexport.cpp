#include "cliexchange.h"
#include "clihelp.h"
#include "clifilterwords.h"

#include "core/config.h"
#include "core/session.h"
#include "exchange/exportrun.h"
#include "mainwin/entryrows.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// "--format dat,txt,html" in any selection; false for a word it doesn't know.
bool ReadFormats(const QString& words, ExportOptions& options)
{
    for (const QString& word : words.split(u',', Qt::SkipEmptyParts)) {
        if (word == u"dat")
            options.csv = true;
        else if (word == u"txt")
            options.text = true;
        else if (word == u"html")
            options.html = true;
        else
            return false;
    }
    return true;
}

// Takes a flag out of the words; whether it was there.
bool TakeFlag(QStringList& words, const QString& flag)
{
    return words.removeAll(flag) > 0;
}

} // namespace

// export BASE --format dat,txt,html [--details] [--gelesen] [--zyklus]
// [criteria rows]: the whole list, or the filter list of the rows, written
// as the window writes it, and the window's result text.
int ExportCommand(Session& session, const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    QStringList words = arguments;
    ExportOptions options;
    options.details = TakeFlag(words, u"--details"_s);
    options.gelesen = TakeFlag(words, u"--gelesen"_s);
    options.zyklus = TakeFlag(words, u"--zyklus"_s);
    const qsizetype format = words.indexOf(u"--format"_s);
    if (words.isEmpty() || words.first().startsWith(u"--"_s) || format < 0 || format + 1 >= words.size() ||
        !ReadFormats(words[format + 1], options))
        return UsageError(err, u"export"_s);
    if (!options.csv && !options.text && !options.html) {
        err << u"Bitte Export-Format auswählen.\n\n(CSV | TEXT | HTML)\n"_s;
        return 2;
    }
    const QFileInfo base(words.first());
    words.remove(format, 2);
    words.removeFirst();

    ExportList list;
    QString sql = u"SELECT * FROM HEFTLIST ORDER BY Nr;"_s;
    if (!words.isEmpty()) {
        FilterOutcome outcome;
        if (const int code = FilterFromWords(session, words, outcome, err))
            return code;
        sql = outcome.sql;
        list.filtered = true;
        list.filterText = outcome.text;
    }
    DbError error;
    if (!ReadConfiguration(session, &error)) {
        err << u"KONFIGURATION nicht lesbar: "_s << error.description << u'\n';
        return 1;
    }
    ReadParameters(session);
    Query query = session.CollectionDb->Select(sql, &error);
    if (!error)
        list.rows = ReadEntryRows(query, 0);
    if (!error)
        error = query.Error();
    query.Close();
    if (error) {
        err << u"%1 %2\n"_s.arg(error.number).arg(error.description);
        return 1;
    }
    if (list.rows.empty()) {
        out << NothingFoundText();
        return 0;
    }
    if (!base.absoluteDir().exists()) {
        err << u"Das Verzeichnis gibt es nicht: "_s << QDir::toNativeSeparators(base.absolutePath()) << u'\n';
        return 1;
    }
    const ExportTarget target{base.absolutePath(), base.fileName()};
    out << RunExportChain(session, list, target, options, {}).replace(u"\r\n"_s, u"\n"_s) << u'\n';
    return 0;
}

} // namespace heft
