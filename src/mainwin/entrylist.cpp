#include "entrylist.h"

#include "entryrows.h"
#include "twips.h"

#include "core/session.h"
#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Widths of columns 0 to 5 in twips; column 6 takes what is left.
constexpr std::array<int, ColBemerkung> FixedColumnWidths{520, 1800, 3300, 520, 900, 520};
// Column 6 never starts narrower than this, even in a narrow window.
constexpr int MinRemarkWidth = 1800;

} // namespace

EntryList::EntryList(QObject* parent) : QObject(parent)
{
    Heftliste.setParent(this);
    Filter.setParent(this);
}

void EntryList::SetupGridColumns()
{
    EntryGrid& grid = *ActiveGrid;
    int fixedSum = 0;
    for (int col = 0; col < ColBemerkung; ++col) {
        grid.SetColWidth(col, FixedColumnWidths[static_cast<size_t>(col)]);
        fixedSum += FixedColumnWidths[static_cast<size_t>(col)];
        grid.Model().SetHeaderMark(col, false, SortPicture::None);
    }
    grid.SetColWidth(ColBemerkung, std::max(MinRemarkWidth, PixelsToTwips(grid.ClientWidth()) - fixedSum));
    grid.Model().SetHeaderMark(ColBemerkung, false, SortPicture::None);
    grid.Model().SetHeaderMark(ColNr, true, SortPicture::Up);
    SortColumn = ColNr;
    SortDescending = false;
}

void EntryList::FillGrid(Session& session, qsizetype expectedRows)
{
    std::vector<EntryCells> rows = ReadEntryRows(session.SharedRecordset, expectedRows);
    session.SharedRecordset.Close();
    // A grid always keeps one data row, even for an empty result.
    if (rows.empty())
        rows.emplace_back();
    EntryGrid& grid = *ActiveGrid;
    grid.Model().Reset(std::move(rows));
    grid.SetRow(1);
    grid.SetTopRow(1);
    UpdateSelectionPanel();
}

void EntryList::ShowFilterGrid(bool show)
{
    Filter.SetVisible(show);
    Heftliste.SetVisible(!show);
}

void EntryList::UpdateSelectionPanel()
{
    const EntryGrid& grid = *ActiveGrid;
    Q_EMIT StatusPanelChanged(3, u"%1/%2"_s.arg(grid.Row()).arg(grid.Rows() - 1));
    const QString nr = grid.TextMatrix(grid.Row(), ColNr);
    if (IsNumeric(nr))
        SelectedNr = static_cast<int>(Val(nr));
}

} // namespace heft
