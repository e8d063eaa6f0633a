#include "entrylist.h"

#include "core/roman.h"
#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

SortMode EntryList::ModeFor(int col, bool descending) const
{
    if (col == ColNr || col == ColAuflage)
        return descending ? SortNumericDescending : SortNumericAscending;
    return descending ? SortGenericDescending : SortGenericAscending;
}

void EntryList::GridClick(int mouseRow, int mouseCol)
{
    EntryGrid& grid = *ActiveGrid;
    if (mouseRow == 0) {
        SortByColumn(mouseCol);
        // The entry in work stays in sight after the sort.
        FindAndShowRow(MaxOf(SelectedNr, LowestNr));
    }
    grid.SetToolTip({});
    if (mouseCol == ColZyklus) {
        const int cycle = RomanToNumber(grid.TextMatrix(mouseRow, ColZyklus));
        if (cycle > 0)
            grid.SetToolTip(u"Zyklus = %1"_s.arg(cycle));
    }
    UpdateSelectionPanel();
}

void EntryList::SortByColumn(int col)
{
    EntryGrid& grid = *ActiveGrid;
    Q_EMIT StatusPanelChanged(5, u"Sortiere nach %1 ..."_s.arg(grid.TextMatrix(0, col)));
    // A new column starts downward: the flag is reset here and flipped below,
    // which also holds for "Nr", the column of the starting sort.
    if (col != SortColumn) {
        SortDescending = false;
        grid.Model().SetHeaderMark(SortColumn, false, SortPicture::None);
    }
    SortColumn = col;
    SortDescending = !SortDescending;
    ApplySortMark(!SortDescending, ModeFor(col, SortDescending));
    Q_EMIT StatusPanelChanged(5, u"Fertig und Bereit."_s);
}

void EntryList::ApplySortMark(bool ascending, SortMode mode)
{
    EntryGridModel& model = ActiveGrid->Model();
    model.SetHeaderMark(SortColumn, true, ascending ? SortPicture::Up : SortPicture::Down);
    model.Sort(SortColumn, mode);
}

void EntryList::ResortGrid()
{
    if (SortColumn < 0 || SortColumn >= EntryColumnCount)
        return;
    ActiveGrid->Model().Sort(SortColumn, ModeFor(SortColumn, SortDescending));
}

} // namespace heft
