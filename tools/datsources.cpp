#include "datsources.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace heft {

int RunBuildTool(const QStringList& arguments, const char* toolName,
                 const std::function<void(const QString& sources, const QString& output)>& build)
{
    if (arguments.size() != 3) {
        std::fprintf(stderr, "Aufruf: %s DATENORDNER AUSGABEORDNER\n", toolName);
        return 2;
    }
    try {
        build(arguments[1], arguments[2]);
    } catch (const BuildError& error) {
        std::fprintf(stderr, "%s: %s\n", toolName, qPrintable(error.Text()));
        return 1;
    }
    return 0;
}

QString SourceSeries() { return u"Valdorin"_s; }

QStringList ReadRecordLines(const QString& path, DatKind expected, const QString& kind)
{
    DatInputFile file;
    if (!file.Open(path))
        throw BuildError(u"%1 kann nicht gelesen werden"_s.arg(path));
    if (KindOfHeader(file.ReadLine(), SourceSeries(), kind) != expected)
        throw BuildError(u"%1 hat nicht die erwartete Kopfzeile"_s.arg(path));
    QStringList lines;
    while (!file.AtEnd())
        lines << file.ReadLine();
    return lines;
}

std::vector<ListRecord> ReadList(const QString& path, const QString& kind)
{
    return ReadRecords<ListReader, ListRecord>(path, DatKind::List, kind);
}

std::vector<DetailsRecord> ReadDetails(const QString& path)
{
    return ReadRecords<DetailsReader, DetailsRecord>(path, DatKind::Details, QString());
}

} // namespace heft
