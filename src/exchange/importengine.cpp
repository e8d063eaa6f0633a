#include "importengine.h"

#include "datfile.h"
#include "datreader.h"

#include "core/changeunit.h"
#include "core/session.h"
#include "core/textfuncs.h"
#include "mainwin/entrylist.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

QString ReportLine(int line, const ListRecord& r) { return ListReportLine(line, r); }
QString ReportLine(int line, const CycleRecord& r) { return CycleReportLine(line, r); }
QString ReportLine(int line, const DetailsRecord& r) { return DetailsReportLine(line, r); }

struct Outcome {
    int ok = 0;
    int errors = 0;
};

// The records go to the file in batches: with a commit per statement, or
// even per record, an import would mostly wait for the file, since every
// commit writes each page it touched once more. A program killed during an
// import loses the records of the running batch, at most the last hundred
// lines before it, each record whole or not at all; everything before them
// is in the file. Esc and the end of the file commit what was done. A batch
// the file could not take (full disk, damaged or vanished file) ends the
// import, and its lines move from the report to the error list.
class Batches {
public:
    Batches(Session& session, Database& db, ImportTexts& texts, Outcome& outcome)
        : m_db(db), m_unit(session, db), m_texts(texts), m_outcome(outcome), m_reportSize(texts.bericht.size())
    {
    }

    void Taken(const QString& report) { m_taken << report; }

    // After each record; false when the import must end.
    bool RecordDone()
    {
        if (m_db.LostChange())
            return Close();
        if (++m_records % RecordsPerCommit != 0)
            return true;
        return Settle(m_unit.CommitAndContinue());
    }
    // The last batch; false when it was lost.
    bool Close() { return Settle(m_unit.Commit()); }

private:
    bool Settle(const DbError& lost)
    {
        if (lost) {
            m_texts.bericht.truncate(m_reportSize);
            for (const QString& report : std::as_const(m_taken))
                m_texts.fehler += u"DB-InsUpd "_s + report;
            m_outcome.ok -= static_cast<int>(m_taken.size());
            m_outcome.errors += static_cast<int>(m_taken.size());
        }
        m_taken.clear();
        m_reportSize = m_texts.bericht.size();
        return !lost;
    }

    static constexpr int RecordsPerCommit = 100;
    Database& m_db;
    ChangeUnit m_unit;
    ImportTexts& m_texts;
    Outcome& m_outcome;
    qsizetype m_reportSize;
    QStringList m_taken;
    int m_records = 0;
};

// The loop over the records of one file: every line is reported, a bad one
// as "DatFormat ", one the database refused as "DB-InsUpd ". After each
// line the observer may stop the import; what was written stays.
template <typename Reader, typename Write>
Outcome ReadRecords(Session& session, DatInputFile& file, Reader& reader, Database& db, ImportObserver& observer,
                    ImportTexts& texts, Write write)
{
    Outcome outcome;
    Batches batches(session, db, texts, outcome);
    int line = 0;
    while (!file.AtEnd()) {
        const auto& record = reader.Read(file.ReadLine());
        const QString report = ReportLine(++line, record);
        if (!record.IsGood()) {
            ++outcome.errors;
            texts.fehler += u"DatFormat "_s + report;
        } else if (write(record) == 0) {
            ++outcome.ok;
            texts.bericht += report;
            batches.Taken(report);
        } else {
            ++outcome.errors;
            texts.fehler += u"DB-InsUpd "_s + report;
        }
        if (!batches.RecordDone())
            return outcome;
        if (!observer.LineDone(file.Position()))
            break;
    }
    batches.Close();
    return outcome;
}

} // namespace

QString ImportCaption() { return u"Daten Import"_s; }

FileImport::FileImport(Session& session, EntryList& list, ImportObserver& observer)
    : m_session(session), m_list(list), m_observer(observer)
{
}

void FileImport::ImportDatFile(const QString& path, ImportMode mode)
{
    m_texts.bericht.clear();
    m_texts.fehler.clear();
    m_refused = 0;
    const Configuration& config = m_session.Config;
    const DatLimits limits{config.MaxAuflage, config.ContentLimit};

    // A file that can't be read has an empty first line like an empty file,
    // and ends in the sentence about a bad file.
    DatInputFile file;
    file.Open(path);
    m_observer.Started(file.Size() + 1);
    const DatKind kind = KindOfHeader(file.ReadLine(), config.SeriesName, config.ListKind);
    Outcome outcome;
    switch (kind) {
    case DatKind::None:
        m_texts.bericht = u"Keine Import Datei ausgewählt."_s;
        m_texts.fehler = QDir::toNativeSeparators(path) + u" ist keine gültige Importdatei."_s;
        m_refused = 1;
        break;
    case DatKind::List: {
        m_observer.ListImport(true);
        m_texts.caption = u"Bericht über %1 %2 Import"_s.arg(config.SeriesName, config.ListKind);
        ListReader reader(limits);
        int lastNr = 0;
        outcome = ReadRecords(m_session, file, reader, *m_session.CollectionDb, m_observer, m_texts, [&](const ListRecord& r) {
            lastNr = static_cast<int>(Val(r.Nr));
            return WriteListRecord(m_session, m_list, r, mode);
        });
        m_list.ResortGrid();
        m_list.FindAndShowRow(lastNr);
        m_observer.ListImport(false);
        break;
    }
    case DatKind::Cycle: {
        if (!m_session.CycleDb) {
            m_texts.bericht = u"Es wurden keine Zyklus Daten importiert."_s;
            m_texts.fehler = u"Die Zyklen Datenbank konnte nicht geöffnet werden."_s;
            m_refused = 1;
            break;
        }
        m_observer.CycleFileFound();
        m_texts.caption = u"Bericht über %1 Zyklen Import"_s.arg(config.SeriesName);
        CycleReader reader;
        outcome = ReadRecords(m_session, file, reader, *m_session.CycleDb, m_observer, m_texts,
                              [&](const CycleRecord& r) { return WriteCycleRecord(m_session, r, mode); });
        break;
    }
    case DatKind::Details: {
        m_texts.caption = u"Bericht über %1 Detaildaten Import"_s.arg(config.SeriesName);
        DetailsReader reader(limits);
        int sum = 0;
        outcome = ReadRecords(m_session, file, reader, *m_session.CollectionDb, m_observer, m_texts, [&](const DetailsRecord& r) {
            return WriteDetailsRecord(m_session, r, mode, sum);
        });
        break;
    }
    }
    if (kind != DatKind::None && m_refused == 0) {
        ShowImportSummary(m_texts, outcome.ok, outcome.errors, ImportHeaderLine(kind) + u"\r\n"_s);
        m_refused = outcome.errors;
    }
    m_list.UpdateSelectionPanel();
    m_observer.Finished();
}

void FileImport::ImportChosenFile(const QString& path, ImportMode mode, bool withDetails)
{
    ImportDatFile(path, mode);
    // The report frame's caption names the list kind after a list file.
    if (!withDetails || !m_texts.caption.contains(m_session.Config.ListKind, Qt::CaseInsensitive))
        return;
    const ImportTexts data = m_texts;
    const int refused = m_refused;
    ImportDatFile(path.left(path.size() - 4) + u"_Details.dat"_s, mode);
    const Configuration& config = m_session.Config;
    m_texts.caption = u"Bericht über %1 %2 + Details Import"_s.arg(config.SeriesName, config.ListKind);
    m_texts.bericht = JoinReports(data.bericht, m_texts.bericht);
    m_texts.fehler = JoinReports(data.fehler, m_texts.fehler);
    m_refused += refused;
}

} // namespace heft
