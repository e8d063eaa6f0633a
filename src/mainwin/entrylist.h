#pragma once
// The entry lists of the main window: the full list, the filter list, and
// the list state the whole program shares (which list is in use, the sort,
// the selected number, the number range). The routines work through
// ActiveGrid, so they serve both lists alike.

#include "entrygrid.h"

#include <QObject>

namespace heft {

class Session;

class EntryList : public QObject {
    Q_OBJECT

public:
    explicit EntryList(QObject* parent = nullptr);

    EntryGrid Heftliste{false};
    EntryGrid Filter{true};
    EntryGrid* ActiveGrid = &Heftliste;

    int SortColumn = 0;
    bool SortDescending = false;
    int SelectedNr = 0;
    int LowestNr = 0;
    int HighestNr = 0;
    // The sort of the full list, kept while a filter list is shown, and
    // whether the full list must be sorted again when the filter ends.
    int SavedSortColumn = 0;
    bool SavedSortDescending = false;
    bool ResortOnReturn = false;

    // Header row and column layout of ActiveGrid; the sort goes back to
    // column 0, ascending.
    void SetupGridColumns();
    // Twips that show all columns with room for a remark.
    int PreferredGridWidth() const;
    // Fills ActiveGrid from session.SharedRecordset (the columns of HEFTLIST
    // in their order) and closes it. expectedRows only reserves room.
    void FillGrid(Session& session, qsizetype expectedRows = 0);
    void ShowFilterGrid(bool show);
    void UpdateSelectionPanel();

    // A click on the header (row 0) sorts; a click on a cycle cell explains
    // the roman numeral in the tooltip.
    void GridClick(int mouseRow, int mouseCol);
    void SortByColumn(int col);
    void ApplySortMark(bool ascending, SortMode mode);
    void ResortGrid();

    // The row of the entry, shown in the middle of the list and made
    // current; -1 if the number is not in the list.
    int FindAndShowRow(int nr);
    void AddGridRow(int nr);
    // Rewrites the current row from session.CurrentSql (a select of one
    // entry), renews the number range, and with flag 0 sorts again and
    // shows the entry.
    void RefreshRowFromQuery(Session& session, int flag);
    // Removes the entry from ActiveGrid, and from the full list too when a
    // filter list is active. Returns 0, or nr when it was not found.
    int RemoveEntryRows(int nr);
    void RemoveCurrentRow();

    // Fits a column to the widest of its header (with room for the sort
    // picture) and its cells.
    void AutoSizeColumn(int col);
    // A double-click on the header at x pixels from the left edge of the
    // columns: fits the column whose right border lies within one pixel.
    // Returns that column or -1.
    int ColumnBorderHit(int x);

Q_SIGNALS:
    void StatusPanelChanged(int panel, const QString& text);
    // The filter list has run empty: the commands on an entry must go off.
    void EntryCommandsDisabled();

private:
    SortMode ModeFor(int col, bool descending) const;
};

} // namespace heft
