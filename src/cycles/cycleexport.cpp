#include "cycleexport.h"

#include "exchange/datfile.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace heft {

QString CycleFilePath(const QString& dataFolder, const QString& seriesName)
{
    return QDir(dataFolder).filePath(u"export/%1-Zyklus.dat"_s.arg(seriesName));
}

CycleExportResult ExportCycles(const QString& dataFolder, const QString& seriesName, const QList<CycleRow>& rows,
                               const std::function<void(int)>& rowWritten)
{
    const QString path = CycleFilePath(dataFolder, seriesName);
    // The data folder has its export folder from the start; a folder given
    // to the command-line tool may not.
    QDir(dataFolder).mkpath(u"export"_s);
    DatOutputFile file;
    bool complete = file.Open(path);
    if (complete) {
        file.WriteLine(CycleHeader(seriesName));
        int written = 0;
        for (const CycleRow& row : rows) {
            file.WriteLine(CycleLine(row));
            if (rowWritten)
                rowWritten(++written);
        }
        complete = file.Close();
    }
    return {QDir::toNativeSeparators(path), static_cast<int>(rows.size()), QFileInfo(path).size(), complete};
}

QString CycleExportMessage(const CycleExportResult& result)
{
    const QString where =
        u"in die Datei\r'%1'\rgesichert (%2 Bytes Dateilänge)."_s.arg(result.path, QString::number(result.size));
    if (result.rows == 1)
        return u"Ein Eintrag wurde "_s + where;
    return u"Insgesamt %1 Einträge wurden "_s.arg(result.rows) + where;
}

} // namespace heft
