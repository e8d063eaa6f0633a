// print matrix|list|filter [--from N] [--to N] [--landscape] [--toner]
// [--no-auflage] [--no-zustand] [--zustand-immer] --pdf FILE.pdf [criteria
// rows]: the pages the print window would send to the printer, as PDF, and
// their count.

#include "clihelp.h"
#include "clicommands.h"
#include "clifilterwords.h"
#include "clihelp.h"
#include "cliprint.h"

#include "core/config.h"
#include "core/session.h"
#include "core/sqlwriters.h"
#include "core/textfuncs.h"
#include "mainwin/entryrows.h"
#include "mainwin/imageloading.h"
#include "print/pdfdocument.h"

#include <QFileInfo>

#include <optional>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

bool TakeFlag(QStringList& words, const QString& flag)
{
    return words.removeAll(flag) > 0;
}

// Takes "option VALUE" out of the words; fallback when the option is absent,
// nullopt when its value is missing or no whole number.
std::optional<int> TakeNumber(QStringList& words, const QString& option, int fallback)
{
    const qsizetype at = words.indexOf(option);
    if (at < 0)
        return fallback;
    bool ok = false;
    const int value = words.value(at + 1).toInt(&ok);
    if (!ok)
        return std::nullopt;
    words.remove(at, 2);
    return value;
}

// The matrix range must be one of the entries of the window's lists.
bool ReadMatrixRange(int from, int to, int highest, PrintRequest& request, QTextStream& err)
{
    const QStringList fromItems = MatrixFromItems(highest);
    const QStringList toItems = MatrixToItems(highest);
    const qsizetype fromIndex = fromItems.indexOf(FormatMask(QString::number(from), u"@@@@@@"_s));
    const qsizetype toIndex = toItems.indexOf(FormatMask(QString::number(to), u"@@@@@@"_s));
    if (fromIndex < 0 || toIndex < 0 || toIndex < fromIndex) {
        err << u"Die Matrix druckt Hunderter: --from %1 ... %2, --to %3 ... %4, --to nicht vor --from.\n"_s.arg(
            fromItems.first().trimmed(), fromItems.last().trimmed(), toItems.first().trimmed(),
            toItems.last().trimmed());
        return false;
    }
    request.from = from;
    request.to = to;
    return true;
}

// The filter list of the criteria rows, as the filter window leaves it.
int ReadFilterList(Session& session, const QStringList& words, PrintRequest& request, QTextStream& out,
                   QTextStream& err)
{
    FilterOutcome outcome;
    if (const int code = FilterFromWords(session, words, outcome, err))
        return code;
    DbError error;
    Query query = session.CollectionDb->Select(outcome.sql, &error);
    std::vector<EntryCells> rows;
    if (!error)
        rows = ReadEntryRows(query, 0);
    if (!error)
        error = query.Error();
    if (error) {
        err << u"%1 %2\n"_s.arg(error.number).arg(error.description);
        return 1;
    }
    if (rows.empty()) {
        out << NothingFoundText();
        return 1;
    }
    request.filterRows.assign(rows.begin(), rows.end());
    request.filterText = outcome.text;
    return 0;
}

} // namespace

int PrintCommand(Session& session, const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    QStringList words = arguments;
    const QString output = words.value(0);
    PrintRequest request;
    QString pdf;
    const qsizetype pdfAt = words.indexOf(u"--pdf"_s);
    if (pdfAt > 0 && pdfAt + 1 < words.size()) {
        pdf = words[pdfAt + 1];
        words.remove(pdfAt, 2);
    }
    request.landscape = TakeFlag(words, u"--landscape"_s);
    request.matrix.tonerSaving = TakeFlag(words, u"--toner"_s);
    request.matrix.auflage = !TakeFlag(words, u"--no-auflage"_s);
    request.matrix.zustand = !TakeFlag(words, u"--no-zustand"_s);
    request.matrix.zustandImmer = TakeFlag(words, u"--zustand-immer"_s) && request.matrix.zustand;

    DbError error;
    if (!ReadConfiguration(session, &error)) {
        err << u"KONFIGURATION nicht lesbar: "_s << error.description << u'\n';
        return 1;
    }
    ReadParameters(session);
    session.DataFolder = DataFolderOf(QFileInfo(session.CollectionDb->Path()));
    int lowest = 0;
    GetNrRange(session, u";"_s, lowest, request.highestNr);
    // Without a range the whole list, or every hundred of the matrix.
    const std::optional<int> from = TakeNumber(words, u"--from"_s, output == u"matrix" ? 1 : lowest);
    const std::optional<int> to =
        TakeNumber(words, u"--to"_s, output == u"matrix" ? request.highestNr / 100 * 100 + 99 : request.highestNr);
    if (pdf.isEmpty() || !from || !to || (output != u"filter" && words.size() != 1)) {
        return UsageError(err, u"print"_s);
    }
    if (output == u"matrix") {
        request.kind = PrintKind::Matrix;
        if (!ReadMatrixRange(*from, *to, request.highestNr, request, err))
            return 2;
        request.logo = LoadConfiguredImage(PrintLogoPath(session), PrintLogoPixels).image;
    } else if (output == u"list") {
        // The window's range boxes keep the numbers within the list.
        request.kind = PrintKind::WholeList;
        request.from = MinOf(MaxOf(*from, lowest), request.highestNr);
        request.to = MaxOf(MinOf(*to, request.highestNr), request.from);
    } else if (output == u"filter") {
        request.kind = PrintKind::FilterList;
        if (const int code = ReadFilterList(session, words.mid(1), request, out, err))
            return code;
    } else {
        return UsageError(err, u"print"_s);
    }

    // The message of an empty range is told here instead of in a box.
    ScriptedPrompter messages;
    session.prompter = &messages;
    const PdfOutcome outcome = WritePdf(session, request, pdf);
    if (!outcome.written) {
        err << u"Die Datei kann nicht geschrieben werden: "_s << QFileInfo(pdf).absoluteFilePath() << u'\n';
        return 1;
    }
    for (const Message& message : messages.asked)
        out << message.title << u": "_s << QString(message.text).replace(u"\r\n"_s, u" "_s) << u'\n';
    if (outcome.pages == 0)
        return 1;
    out << u"Seiten: %1\n"_s.arg(outcome.pages);
    return 0;
}

} // namespace heft
