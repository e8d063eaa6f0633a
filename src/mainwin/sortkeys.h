#pragma once
// Keys that order the rows of one grid column, computed once per sort so that
// the comparisons themselves are plain number comparisons.

#include "entrygridmodel.h"

#include <vector>

namespace heft {

// The number a cell stands for, as the grid reads its numeric columns:
// Val's reading of the text, 0 for an empty cell.
double CellNumber(const QString& text);

// One key per row: the cell's number.
std::vector<double> NumericSortKeys(const std::vector<EntryCells>& rows, int column);
// One key per row: the rank of the cell's text in case-blind German order
// (umlauts beside their base letters, digit runs by their value). Texts that
// collate as equal get the same rank.
std::vector<double> CollationSortKeys(const std::vector<EntryCells>& rows, int column);

} // namespace heft
