// heftarium-cli --cycle-db PATH cycles export [--series NAME]: writes the
// cycle file as the cycle window's export does and prints its closing message.

#include "clicommands.h"
#include "cliexchange.h"
#include "clihelp.h"

#include "core/database.h"
#include "cycles/cycleexport.h"
#include "cycles/cyclelist.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

const QString CycleFileSuffix = u" Zyklus.mdb"_s;

// The series from "--series NAME", else from the cycle file's name
// "{Series} Zyklus.mdb"; empty when neither tells it.
QString SeriesOf(const QStringList& arguments, const QFileInfo& cycleFile)
{
    const qsizetype at = arguments.indexOf(u"--series"_s);
    if (at >= 0)
        return arguments.value(at + 1);
    const QString name = cycleFile.fileName();
    return name.endsWith(CycleFileSuffix) ? name.chopped(CycleFileSuffix.size()) : QString();
}

} // namespace

QString DataFolderOf(const QFileInfo& databaseFile)
{
    QDir folder = databaseFile.absoluteDir();
    if (folder.dirName() == u"DBs" && folder.cdUp())
        return folder.path();
    return databaseFile.absolutePath();
}

int CyclesCommand(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    const QString path = arguments.value(1);
    if (path.isEmpty() || arguments.value(2) != u"cycles" || arguments.value(3) != u"export")
        return UsageError(err, u"cycles"_s);
    const QFileInfo cycleFile(path);
    const QString series = SeriesOf(arguments, cycleFile);
    if (series.isEmpty()) {
        err << u"Der Name der Serie fehlt: gib ihn mit --series an.\n"_s;
        return 2;
    }
    DbError error;
    const std::unique_ptr<Database> db = Database::Open(path, &error);
    if (!db) {
        err << u"Die Zyklus Datenbank konnte nicht geöffnet werden: "_s << error.description << u'\n';
        return 1;
    }
    QList<CycleRow> rows;
    if (!ReadCycles(*db, rows, &error)) {
        err << u"Die Zyklus Datenbank konnte nicht gelesen werden: "_s << error.description << u'\n';
        return 1;
    }
    const CycleExportResult result = ExportCycles(DataFolderOf(cycleFile), series, rows);
    out << CycleExportMessage(result).replace(u'\r', u'\n') << u'\n';
    if (!result.complete) {
        err << u"Die Datei konnte nicht vollständig geschrieben werden.\n"_s;
        return 1;
    }
    return 0;
}

} // namespace heft
