#include "exportdat.h"

#include "datfile.h"
#include "datformat.h"

#include "core/database.h"
#include "core/session.h"
#include "core/textfuncs.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Entries whose details are read with one statement per table.
constexpr int BatchSize = 500;

constexpr int DetailsColumns = 13; // Nr, Ersterscheinung, Untertitel, Person1..9, Inhalt

// The details fields of a run of entries. Reading four tables per entry
// costs four statements per entry; the same rows come out of four
// statements per run, in the order the single-entry statements give them.
class DetailsBatch {
public:
    void Load(Database& db, const QList<int>& numbers);
    // The record of nr, or an empty text when it has no Details row.
    QString Line(int nr) const;

private:
    QHash<int, QString> m_details;
    QHash<int, QString> m_design;
    QHash<int, std::array<QString, StatusCount>> m_status;
    QHash<int, QString> m_links;
};

QString NumberList(const QList<int>& numbers)
{
    QString text;
    for (const int nr : numbers) {
        if (!text.isEmpty())
            text += u", "_s;
        text += QString::number(nr);
    }
    return text;
}

void DetailsBatch::Load(Database& db, const QList<int>& numbers)
{
    m_details.clear();
    m_design.clear();
    m_status.clear();
    m_links.clear();
    if (numbers.isEmpty())
        return;
    const QString in = NumberList(numbers);

    Query details = db.Select(u"SELECT * FROM Details WHERE Nr IN (%1);"_s.arg(in));
    while (details.Next()) {
        const int nr = static_cast<int>(details.Int(0));
        if (m_details.contains(nr))
            continue;
        // A null text can't be converted: the field repeats the one before.
        QString fields, value;
        for (int column = 0; column < DetailsColumns; ++column) {
            if (!details.IsNull(column))
                value = column == 1 ? FormatDatDate(details.Text(column)) : details.Text(column);
            fields += DatField(value);
        }
        m_details.insert(nr, fields);
    }

    Query design = db.Select(u"SELECT * FROM Gestaltung WHERE Nr IN (%1);"_s.arg(in));
    while (design.Next()) {
        const int nr = static_cast<int>(design.Int(0));
        if (m_design.contains(nr))
            continue;
        m_design.insert(nr, DatField(design.Text(1)) + DatField(design.Text(2)) +
                                DatField(design.Int(3) != 0 ? u"Ja"_s : QString()) + DatField(design.Text(4)) +
                                DatField(design.Text(5)));
    }

    // Each attribute stands in the field of its number, so that an entry
    // with only some attributes stored (a column fill, a change stamp)
    // comes back with each value under its own label.
    Query status = db.Select(u"SELECT Nr, ENum, StatusWert FROM Status WHERE Nr IN (%1);"_s.arg(in));
    while (status.Next()) {
        const qint64 enumber = status.Int(1);
        if (enumber >= 1 && enumber <= StatusCount)
            m_status[static_cast<int>(status.Int(0))][enumber - 1] = status.Text(2);
    }

    Query links = db.Select(u"SELECT * FROM Links WHERE Nr IN (%1) ORDER BY Nr, ENum;"_s.arg(in));
    while (links.Next())
        m_links[static_cast<int>(links.Int(0))] +=
            DatField(links.Text(2)) + DatField(links.Text(3)) + DatField(links.Text(4));
}

QString DetailsBatch::Line(int nr) const
{
    const auto details = m_details.constFind(nr);
    if (details == m_details.cend())
        return {};
    static const QString emptyField = DatField(QString());
    QString line = *details + m_design.value(nr, emptyField.repeated(5));
    for (const QString& value : m_status.value(nr))
        line += DatField(value);
    return line + m_links.value(nr);
}

// The entry number of a row as the statements take it; rows without a
// whole number have no details, as the statement on them would fail.
std::optional<int> RowNumber(const EntryCells& cells)
{
    bool ok = false;
    const int nr = Trim(cells[ColNr]).toInt(&ok);
    return ok ? std::optional<int>(nr) : std::nullopt;
}

int WriteDetailsFile(Database& db, const Configuration& config, const ExportList& list, const ExportTarget& target,
                     const ExportFeedback& feedback, qsizetype& unencodable)
{
    DatOutputFile file;
    file.Open(target.Path(u"_Details.dat"_s));
    file.WriteLine(DetailsHeader(config.SeriesName));
    const int rows = static_cast<int>(list.rows.size());
    int written = 0;
    DetailsBatch batch;
    for (int first = 0; first < rows; first += BatchSize) {
        const int last = std::min(rows, first + BatchSize);
        QList<int> numbers;
        for (int row = first; row < last; ++row)
            if (const auto nr = RowNumber(list.rows[static_cast<size_t>(row)]))
                numbers << *nr;
        batch.Load(db, numbers);
        for (int row = first; row < last; ++row) {
            const auto nr = RowNumber(list.rows[static_cast<size_t>(row)]);
            if (const QString line = nr ? batch.Line(*nr) : QString(); !line.isEmpty()) {
                file.WriteLine(line);
                ++written;
            }
            feedback.Progress(rows + row + 1);
        }
    }
    file.Close();
    unencodable += file.Unencodable();
    return written;
}

} // namespace

QString ExportListLine(const EntryCells& cells)
{
    ListRecord record;
    record.Nr = cells[ColNr];
    record.Autor = cells[ColAutor];
    record.Titel = cells[ColTitel];
    record.Auflage = cells[ColAuflage];
    record.Zyklus = cells[ColZyklus];
    record.Gelesen = !cells[ColGelesen].isEmpty();
    record.Bemerkung = cells[ColBemerkung];
    return ListLine(record);
}

DatFilesWritten WriteDatFiles(Database& db, const Configuration& config, const ExportList& list,
                              const ExportTarget& target, const ExportOptions& options,
                              const ExportFeedback& feedback)
{
    feedback.Status(u"Exportiere Einträge ..."_s);
    const int rows = static_cast<int>(list.rows.size());
    feedback.Start(options.details ? 2 * rows - 1 : rows);

    DatOutputFile file;
    file.Open(target.Path(u".dat"_s));
    file.WriteLine(ListHeader(config.SeriesName, config.ListKind));
    for (int row = 0; row < rows; ++row) {
        file.WriteLine(ExportListLine(list.rows[static_cast<size_t>(row)]));
        feedback.Progress(row + 1);
    }
    file.Close();

    DatFilesWritten written{0, file.Unencodable()};
    if (options.details)
        written.details = WriteDetailsFile(db, config, list, target, feedback, written.unencodable);
    feedback.Finish();
    return written;
}

} // namespace heft
