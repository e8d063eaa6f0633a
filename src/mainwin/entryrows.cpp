#include "entryrows.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Authors and cycles repeat from row to row; one shared copy of each text
// keeps a list of 100,000 entries small.
class TextPool {
public:
    QString Shared(const QString& text)
    {
        const auto it = m_texts.constFind(text);
        if (it != m_texts.constEnd())
            return *it;
        m_texts.insert(text);
        return text;
    }

private:
    QSet<QString> m_texts;
};

void ReadCells(const Query& query, const EntryColumns& columns, EntryCells& cells, TextPool* pool)
{
    const auto shared = [pool](const QString& text) { return pool ? pool->Shared(text) : text; };
    cells[ColNr] = query.Text(columns.nr);
    cells[ColAutor] = shared(query.Text(columns.autor));
    cells[ColTitel] = query.Text(columns.titel);
    const qint64 auflage = query.Int(columns.auflage);
    cells[ColAuflage] = auflage != 0 ? shared(QString::number(auflage)) : QString();
    cells[ColZyklus] = query.IsNull(columns.zyklus) ? u"? ? ?"_s : shared(query.Text(columns.zyklus));
    cells[ColGelesen] = query.Int(columns.gl) != 0 ? ReadMarkText() : QString();
    if (!query.IsNull(columns.bemerkung))
        cells[ColBemerkung] = query.Text(columns.bemerkung);
}

} // namespace

EntryColumns EntryColumns::ByName(const Query& query)
{
    return {query.ColumnIndex(u"Nr"_s),      query.ColumnIndex(u"Autor"_s),  query.ColumnIndex(u"Titel"_s),
            query.ColumnIndex(u"Auflage"_s), query.ColumnIndex(u"Zyklus"_s), query.ColumnIndex(u"GL"_s),
            query.ColumnIndex(u"Bemerkung"_s)};
}

void ReadEntryCells(const Query& query, const EntryColumns& columns, EntryCells& cells)
{
    ReadCells(query, columns, cells, nullptr);
}

std::vector<EntryCells> ReadEntryRows(Query& query, qsizetype expectedRows)
{
    std::vector<EntryCells> rows;
    rows.reserve(static_cast<size_t>(std::max<qsizetype>(expectedRows, 0)));
    const EntryColumns columns;
    TextPool pool;
    while (query.Next()) {
        rows.emplace_back();
        ReadCells(query, columns, rows.back(), &pool);
    }
    return rows;
}

} // namespace heft
