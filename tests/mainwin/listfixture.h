#pragma once
// A temporary collection loaded into an EntryList, as the main window does
// at start, but without a window.

#include "testsupport.h"

#include "mainwin/entrylist.h"

#include <QStringList>

namespace heft::test {

inline void LoadEntryList(TempCollection& collection, EntryList& list, EntryGrid& grid)
{
    Session& session = collection.session;
    session.SharedRecordset = session.CollectionDb->Select(QStringLiteral("SELECT * FROM HEFTLIST ORDER BY Nr;"));
    list.ActiveGrid = &grid;
    list.SetupGridColumns();
    list.FillGrid(session);
    list.LowestNr = grid.TextMatrix(1, ColNr).toInt();
    list.HighestNr = grid.TextMatrix(grid.Rows() - 1, ColNr).toInt();
}

// Column 0 of every data row, top to bottom.
inline QStringList NrColumn(const EntryGrid& grid)
{
    QStringList numbers;
    for (int row = 1; row < grid.Rows(); ++row)
        numbers << grid.TextMatrix(row, ColNr);
    return numbers;
}

} // namespace heft::test
