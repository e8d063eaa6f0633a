#pragma once
// Collections of any size for the benchmarks: every entry with details,
// artists, all nineteen attributes and two links, in believable shapes.

#include <QString>

namespace heft {

// Writes a new collection file of `entries` entries; returns false if the
// file could not be made.
bool GenerateCollection(const QString& path, int entries);

} // namespace heft
