#include "datsources.h"

using namespace Qt::StringLiterals;

namespace heft {

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
