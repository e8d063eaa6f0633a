#include "exportrun.h"

#include "datfile.h"
#include "datreader.h"
#include "exportdat.h"
#include "exporttext.h"
#include "htmlexport.h"

#include "core/session.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

const QString CrLf = u"\r\n"_s;

// The size line of one file; a file that could not be made has none.
void AddSize(QString& result, const QString& path, const QString& what)
{
    if (const qint64 size = ExportFileSize(path); size >= 0)
        result += CrLf + u' ' + QString::number(size) + u" Bytes ("_s + what + u')';
}

QString DatResultText(const ExportTarget& target, const ExportOptions& options, int rows, int details)
{
    QString text = rows == 1 ? u"Es wurde 1/%1 Eintrag exportiert."_s.arg(details)
                             : u"Es wurden %1/%2 Einträge exportiert."_s.arg(rows).arg(details);
    text += CrLf;
    const bool several = options.details || options.text || options.html;
    text += (several ? u"Verwendete Dateinamen:"_s : u"Verwendeter Dateiname:"_s) + CrLf;
    const auto addName = [&](bool made, const QString& suffix) {
        if (made)
            text += u' ' + QDir::toNativeSeparators(target.Path(suffix)) + CrLf;
    };
    addName(options.csv, u".dat"_s);
    addName(options.details && options.csv, u"_Details.dat"_s);
    addName(options.text, u".txt"_s);
    addName(options.details && options.text, u"_Details.txt"_s);
    addName(options.html, u".html"_s);
    text += several ? u"Erzeugte Dateigrößen:"_s : u"Erzeugte Dateigröße:"_s;
    if (options.csv) {
        AddSize(text, target.Path(u".dat"_s), u"CSV"_s);
        if (options.details)
            AddSize(text, target.Path(u"_Details.dat"_s), u"CSV Details"_s);
    }
    return text;
}

// Reads the data lines of a .dat file, the header dropped.
template <typename Handle> void ForEachDatLine(const QString& path, Handle handle)
{
    DatInputFile file;
    if (!file.Open(path))
        return;
    file.ReadLine();
    while (!file.AtEnd())
        handle(file.ReadLine());
}

} // namespace

void WriteTextAndHtml(Session& session, const ExportList& list, const ExportTarget& target,
                      const ExportOptions& options, const ExportFeedback& feedback, int details, QString& result)
{
    const Configuration& config = session.Config;
    const DatLimits limits{config.MaxAuflage, config.ContentLimit};
    feedback.Status(u"Erzeuge Exportdateien ..."_s);
    const int rows = static_cast<int>(list.rows.size());
    feedback.Start(rows + (options.details ? details : 0));
    if (options.details && options.html)
        QDir().mkpath(target.DetailsFolder());

    ExportLines text, html;
    if (options.text) {
        text.Add(TextHeadLine(options.gelesen));
        text.Add(TextRule(options.gelesen));
    }
    if (options.html)
        AddHtmlListHead(html, options);
    const QString detailsFolderName = target.DetailsFolderName();
    int progress = 0;
    // The list shows what the reader makes of the file, cycle check aside:
    // a cycle the grid showed as "? ? ?" stays so.
    ListReader listReader(limits, ListReader::CycleCheck::UpperCaseOnly);
    ForEachDatLine(target.Path(u".dat"_s), [&](const QString& line) {
        const ListRecord record = ShownListRecord(listReader.Read(line), options);
        if (options.text)
            text.Add(TextRow(record, options.gelesen));
        if (options.html)
            AddHtmlListRow(html, record, options, detailsFolderName);
        feedback.Progress(++progress);
    });

    const QString summary = ExportSummary(config.SeriesName, config.ListKind, list);
    if (options.text) {
        text.Add(TextRule(options.gelesen));
        text.Add(summary);
        WriteExportFile(target.Path(u".txt"_s), text.Text());
        AddSize(result, target.Path(u".txt"_s), u"Text"_s);
    }
    if (options.html) {
        AddHtmlListFooter(html, summary);
        WriteExportFile(target.Path(u".html"_s), html.Text());
        AddSize(result, target.Path(u".html"_s), u"Html"_s);
    }
    if (!options.details)
        return;

    const QString detailsText = target.Path(u"_Details.txt"_s);
    if (options.text)
        QFile::remove(detailsText);
    text.Clear();
    DetailsReader detailsReader(limits);
    ExportLines page;
    const QDir pages(target.DetailsFolder());
    ForEachDatLine(target.Path(u"_Details.dat"_s), [&](const QString& line) {
        const DetailsRecord record = ShownDetailsRecord(detailsReader.Read(line));
        if (options.text)
            AddTextDetails(text, record, config.SeriesName);
        if (options.html) {
            page.Clear();
            AddHtmlDetailsPage(page, record, config.SeriesName, config.ListKind);
            WriteExportFile(pages.filePath(record.Nr + u".html"_s), page.Text());
        }
        feedback.Progress(++progress);
    });
    // The details text is made only by its first entry.
    if (options.text && !text.Text().isEmpty()) {
        WriteExportFile(detailsText, text.Text());
        AddSize(result, detailsText, u"Text Details"_s);
    }
}

void DeleteTempDat(const ExportTarget& target)
{
    QFile::remove(target.Path(u".dat"_s));
    QFile::remove(target.Path(u"_Details.dat"_s));
}

QString RunExportChain(Session& session, const ExportList& list, const ExportTarget& target,
                       const ExportOptions& options, const ExportFeedback& feedback)
{
    const DatFilesWritten written =
        WriteDatFiles(*session.CollectionDb, session.Config, list, target, options, feedback);
    const int details = written.details;
    QString result = DatResultText(target, options, static_cast<int>(list.rows.size()), details);
    // Exchange files hold Windows-1252 only; what it lacks must not turn
    // into question marks unnoticed.
    if (written.unencodable > 0) {
        const QString warning = u"Achtung: %1 Zeichen gibt es in der Zeichentabelle Windows-1252 der "
                                "Austauschdateien nicht; sie stehen dort als \"?\"."_s.arg(written.unencodable);
        result += CrLf + warning;
        session.WriteLog(LogInfo, warning);
    }
    if (options.text || options.html)
        WriteTextAndHtml(session, list, target, options, feedback, details, result);
    if (!options.csv)
        DeleteTempDat(target);
    return result;
}

} // namespace heft
