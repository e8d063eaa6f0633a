#pragma once
// The cycle file {DataFolder}/export/{SeriesName}-Zyklus.dat: the header line
// and one record per cycle, which the file import reads back.

#include "cyclelist.h"

#include <functional>

namespace heft {

struct CycleExportResult {
    QString path; // native form, as the user is shown it
    int rows = 0;
    qint64 size = 0;       // what exists of the file afterwards
    bool complete = false; // every line reached the disk
};

QString CycleFilePath(const QString& dataFolder, const QString& seriesName);

// Writes the file, replacing an old one; rowWritten gets the count so far
// after each row. A failure to write is not reported: the result then tells
// the length of what exists.
CycleExportResult ExportCycles(const QString& dataFolder, const QString& seriesName, const QList<CycleRow>& rows,
                               const std::function<void(int)>& rowWritten = {});

inline const QString CycleExportTitle = QStringLiteral("Export Ergebnis");
// The text of the closing message; its lines are broken by lone CRs.
QString CycleExportMessage(const CycleExportResult& result);

} // namespace heft
