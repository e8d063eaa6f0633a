#pragma once
// The first step of every export: the rows of the active list as a .dat
// list file and, with details, the _Details.dat file from the collection.
// The text and HTML outputs are then read back from these two files.

#include "exportjob.h"

namespace heft {

class Database;
struct Configuration;

// The list line of one grid row: Nr, Autor, Titel, Zyklus and Bemerkung
// trimmed, Auflage as it stands or "-" when empty, "Ja" for a read mark.
QString ExportListLine(const EntryCells& cells);

struct DatFilesWritten {
    int details = 0;             // entries that had a Details row (0 without details)
    qsizetype unencodable = 0;   // characters written as "?"
};

// Writes {base}.dat and, with options.details, {base}_Details.dat.
DatFilesWritten WriteDatFiles(Database& db, const Configuration& config, const ExportList& list,
                              const ExportTarget& target, const ExportOptions& options,
                              const ExportFeedback& feedback);

} // namespace heft
