#include "cyclegrid.h"

#include "core/textfuncs.h"
#include "mainwin/twips.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

struct GridColumn {
    const char16_t* header;
    int twips;
    Qt::Alignment alignment;
};

constexpr Qt::Alignment Right = Qt::AlignRight | Qt::AlignVCenter;
constexpr Qt::Alignment Left = Qt::AlignLeft | Qt::AlignVCenter;

const GridColumn Columns[] = {
    {u"Nr", 300, Right},       {u"Zyklus", 750, Right},   {u"Von Nr", 750, Right},      {u"Bis Nr", 750, Right},
    {u"Von Jahr", 750, Right}, {u"Bis Jahr", 750, Right}, {u"Bezeichnung", 3300, Left}, {u"Groß-Zyklus", 3300, Left},
};
constexpr int ColumnCount = std::size(Columns);

} // namespace

CycleGrid::CycleGrid(QWidget* parent) : QTableWidget(parent)
{
    setObjectName(u"fg_zyklus"_s);
    setColumnCount(ColumnCount);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setWordWrap(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setContextMenuPolicy(Qt::CustomContextMenu);
}

void CycleGrid::Format(int cycles)
{
    clearContents();
    setRowCount(cycles);
    for (int column = 0; column < ColumnCount; ++column) {
        auto* header = new QTableWidgetItem(QString::fromUtf16(Columns[column].header));
        header->setTextAlignment(Columns[column].alignment);
        setHorizontalHeaderItem(column, header);
        // The widths were chosen for a smaller font than today's screens
        // show; a header is never cut.
        setColumnWidth(column,
                       std::max(TwipsToPixels(Columns[column].twips), horizontalHeader()->sectionSizeHint(column)));
    }
}

void CycleGrid::SetCell(int index, int column, const QString& text)
{
    auto* cell = new QTableWidgetItem(text);
    cell->setTextAlignment(Columns[column].alignment);
    if (column == 0) {
        // The fixed column: looks like the header and can't be selected.
        cell->setFlags(Qt::ItemIsEnabled);
        cell->setBackground(palette().button());
    } else {
        cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    }
    setItem(index, column, cell);
}

void CycleGrid::SetCycle(int index, int nr, const CycleRow& row)
{
    SetCell(index, 0, QString::number(nr));
    const auto fields = CycleFields(row);
    for (int column = 1; column < ColumnCount; ++column)
        SetCell(index, column, *fields[column - 1]);
}

int CycleGrid::AppendCycle(const CycleRow& row)
{
    const int index = rowCount();
    const int nr = index > 0 ? NrOf(index - 1) + 1 : 1;
    insertRow(index);
    SetCycle(index, nr, row);
    return index;
}

CycleRow CycleGrid::Cycle(int index) const
{
    CycleRow row;
    const auto fields = CycleFields(row);
    for (int column = 1; column < ColumnCount; ++column) {
        const QTableWidgetItem* cell = item(index, column);
        *fields[column - 1] = cell != nullptr ? cell->text() : QString();
    }
    return row;
}

QList<CycleRow> CycleGrid::Cycles() const
{
    QList<CycleRow> rows;
    rows.reserve(rowCount());
    for (int index = 0; index < rowCount(); ++index)
        rows.append(Cycle(index));
    return rows;
}

int CycleGrid::NrOf(int index) const
{
    const QTableWidgetItem* cell = item(index, 0);
    return cell != nullptr ? static_cast<int>(Val(cell->text())) : 0;
}

void CycleGrid::SelectCycle(int index)
{
    if (index < 0 || index >= rowCount())
        return;
    setCurrentCell(index, 1);
    selectRow(index);
    scrollToItem(item(index, 1), PositionAtTop);
}

int CycleGrid::ContentWidth() const
{
    int width = 2 * frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    for (int column = 0; column < ColumnCount; ++column)
        width += columnWidth(column);
    return width;
}

} // namespace heft
