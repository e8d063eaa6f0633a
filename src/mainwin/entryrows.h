#pragma once
// Turning rows of HEFTLIST into grid cell texts.

#include "entrygridmodel.h"

#include "core/database.h"

namespace heft {

// Where the entry columns stand in a result.
struct EntryColumns {
    int nr = 0;
    int autor = 1;
    int titel = 2;
    int auflage = 3;
    int zyklus = 4;
    int gl = 5;
    int bemerkung = 6;

    // The columns of a result looked up by name, for results whose column
    // order is not that of HEFTLIST.
    static EntryColumns ByName(const Query& query);
};

// Writes the cells of the query's current row. An Auflage of 0 clears its
// cell, a null Zyklus reads "? ? ?", a read entry gets the read mark, a null
// Bemerkung leaves the cell as it was.
void ReadEntryCells(const Query& query, const EntryColumns& columns, EntryCells& cells);

// Reads the remaining rows of an open query with the columns of HEFTLIST in
// their order. expectedRows only reserves room.
std::vector<EntryCells> ReadEntryRows(Query& query, qsizetype expectedRows);

} // namespace heft
