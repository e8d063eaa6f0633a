#pragma once
// The archive keyword search as the filter dialog runs it on a fresh filter
// list: with the progress bar of the main window, Esc to break off, and the
// notice when no entry is left.

namespace heft {

class MainWindow;
struct ArchiveQuery;
struct FilterState;

// Runs the search when the query asks for one. False when it left no entry
// or was broken off: the box has told it, and the main window shows its
// full list again.
bool SearchArchiveFromFilter(MainWindow& window, const ArchiveQuery& query, FilterState& state);

} // namespace heft
