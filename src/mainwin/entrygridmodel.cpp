#include "entrygridmodel.h"

#include "sortkeys.h"
#include "sortpictures.h"

#include <QColor>
#include <QFont>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

struct ColumnLook {
    QString header;
    Qt::Alignment headerAlign;
    Qt::Alignment cellAlign;
};

const std::array<ColumnLook, EntryColumnCount>& ColumnLooks()
{
    static const std::array<ColumnLook, EntryColumnCount> looks{{
        {u"Nr"_s, Qt::AlignRight | Qt::AlignVCenter, Qt::AlignRight | Qt::AlignVCenter},
        {u"Autor"_s, Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignLeft | Qt::AlignVCenter},
        {u"Titel"_s, Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignLeft | Qt::AlignVCenter},
        {u"AL"_s, Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignCenter},
        {u"Zyklus"_s, Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignCenter},
        {u"GE"_s, Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignCenter},
        {u"Bemerkung"_s, Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignLeft | Qt::AlignVCenter},
    }};
    return looks;
}

bool ValidColumn(int column) { return column >= 0 && column < EntryColumnCount; }

} // namespace

int EntryGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int EntryGridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : EntryColumnCount;
}

QVariant EntryGridModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return Text(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(ColumnLooks()[static_cast<size_t>(index.column())].cellAlign);
    case Qt::BackgroundRole:
        if (index.column() == ColNr && IsHitMarked(index.row()))
            return QColor(0, 255, 0);
        return {};
    default:
        return {};
    }
}

void EntryGridModel::MarkHit(int row)
{
    m_hitNrs.insert(Text(row, ColNr));
    const QModelIndex cell = index(row, ColNr);
    Q_EMIT dataChanged(cell, cell, {Qt::BackgroundRole});
}

bool EntryGridModel::IsHitMarked(int row) const
{
    return !m_hitNrs.isEmpty() && m_hitNrs.contains(Text(row, ColNr));
}

QVariant EntryGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || !ValidColumn(section))
        return {};
    const size_t column = static_cast<size_t>(section);
    switch (role) {
    case Qt::DisplayRole:
        return ColumnLooks()[column].header;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(ColumnLooks()[column].headerAlign);
    case Qt::FontRole:
        if (m_marks[column].bold) {
            QFont font;
            font.setBold(true);
            return font;
        }
        return {};
    case Qt::DecorationRole:
        if (m_marks[column].picture != SortPicture::None)
            return SortPicturePixmap(m_marks[column].picture);
        return {};
    case PictureAlignmentRole:
        // Column 0 is right-aligned, so its picture goes to the free left side.
        return QVariant::fromValue(section == ColNr ? Qt::AlignLeft | Qt::AlignVCenter
                                                    : Qt::AlignRight | Qt::AlignVCenter);
    default:
        return {};
    }
}

QString EntryGridModel::HeaderText(int column)
{
    return ValidColumn(column) ? ColumnLooks()[static_cast<size_t>(column)].header : QString();
}

void EntryGridModel::SetText(int row, int column, const QString& text)
{
    m_rows[static_cast<size_t>(row)][static_cast<size_t>(column)] = text;
    const QModelIndex cell = index(row, column);
    Q_EMIT dataChanged(cell, cell, {Qt::DisplayRole});
}

void EntryGridModel::SetRowCells(int row, EntryCells cells)
{
    m_rows[static_cast<size_t>(row)] = std::move(cells);
    Q_EMIT dataChanged(index(row, 0), index(row, EntryColumnCount - 1), {Qt::DisplayRole});
}

void EntryGridModel::Reset(std::vector<EntryCells> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    m_hitNrs.clear();
    endResetModel();
}

void EntryGridModel::AppendRow()
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_rows.emplace_back();
    endInsertRows();
}

void EntryGridModel::RemoveRow(int row)
{
    beginRemoveRows({}, row, row);
    m_rows.erase(m_rows.begin() + row);
    endRemoveRows();
}

int EntryGridModel::FindNr(int nr) const
{
    const auto found = std::find_if(m_rows.cbegin(), m_rows.cend(),
                                    [nr](const EntryCells& cells) { return CellNumber(cells[ColNr]) == nr; });
    return found == m_rows.cend() ? -1 : static_cast<int>(found - m_rows.cbegin());
}

void EntryGridModel::Sort(int column, SortMode mode)
{
    const bool numeric = mode == SortNumericAscending || mode == SortNumericDescending;
    const bool descending = mode == SortGenericDescending || mode == SortNumericDescending;
    const std::vector<double> keys = numeric ? NumericSortKeys(m_rows, column) : CollationSortKeys(m_rows, column);
    std::vector<int> order(m_rows.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        const double ka = keys[static_cast<size_t>(a)];
        const double kb = keys[static_cast<size_t>(b)];
        return descending ? kb < ka : ka < kb;
    });

    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    std::vector<int> newRowOf(order.size());
    std::vector<EntryCells> sorted;
    sorted.reserve(m_rows.size());
    for (size_t i = 0; i < order.size(); ++i) {
        newRowOf[static_cast<size_t>(order[i])] = static_cast<int>(i);
        sorted.push_back(std::move(m_rows[static_cast<size_t>(order[i])]));
    }
    m_rows.swap(sorted);
    const QModelIndexList from = persistentIndexList();
    QModelIndexList to;
    to.reserve(from.size());
    for (const QModelIndex& old : from)
        to.append(index(newRowOf[static_cast<size_t>(old.row())], old.column()));
    changePersistentIndexList(from, to);
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

void EntryGridModel::SetHeaderMark(int column, bool bold, SortPicture picture)
{
    m_marks[static_cast<size_t>(column)] = {bold, picture};
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

} // namespace heft
