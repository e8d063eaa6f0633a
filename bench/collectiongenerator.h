#pragma once
// Collections of any size for the benchmarks: every entry with details,
// artists, all nineteen attributes and two links, in believable shapes.

#include <QString>

namespace heft {

// How varied a generated collection is.
struct CollectionShape {
    int authors = 7;
    int cycles = 35;     // a new cycle every hundred entries, over and over
    int lentEvery = 50;  // every so many entries is lent out
};

// Writes a new collection file of `entries` entries; returns false if the
// file could not be made.
bool GenerateCollection(const QString& path, int entries, const CollectionShape& shape = {});

} // namespace heft
