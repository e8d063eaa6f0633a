#include "datformat.h"

#include "core/jetfunctions.h"
#include "core/textfuncs.h"

#include <QDate>

using namespace Qt::StringLiterals;

namespace heft {

QString ListHeader(const QString& series, const QString& kind)
{
    return u'[' + series + u' ' + kind + u']';
}

QString CycleHeader(const QString& series)
{
    return u'[' + series + u" Zyklen]"_s;
}

QString DetailsHeader(const QString& series)
{
    return u'[' + series + u" Details]"_s;
}

DatKind KindOfHeader(const QString& line, const QString& series, const QString& kind)
{
    if (line == ListHeader(series, kind))
        return DatKind::List;
    if (line == CycleHeader(series))
        return DatKind::Cycle;
    if (line == DetailsHeader(series))
        return DatKind::Details;
    return DatKind::None;
}

QString DatField(const QString& value)
{
    return u'"' + value + u"\";"_s;
}

QString FormatDatDate(const QString& value)
{
    const std::optional<qint64> day = JetDateValue(value);
    if (!day)
        return value;
    return QDate(1899, 12, 30).addDays(*day).toString(u"yyyy-MM-dd"_s);
}

QString ListLine(const ListRecord& record)
{
    return DatField(Trim(record.Nr)) + DatField(Trim(record.Autor)) + DatField(Trim(record.Titel)) +
           DatField(record.Auflage.isEmpty() ? u"-"_s : record.Auflage) + DatField(Trim(record.Zyklus)) +
           DatField(record.Gelesen ? u"Ja"_s : u"Nein"_s) + DatField(Trim(record.Bemerkung));
}

QString CycleLine(const CycleRecord& record)
{
    QString line;
    for (const QString* value : {&record.Zyklus, &record.NrVon, &record.NrBis, &record.ZeitVon, &record.ZeitBis,
                                 &record.Bezeichnung, &record.Zyklusbereich})
        line += DatField(Trim(*value));
    return line;
}

QString DetailsLine(const DetailsRecord& record)
{
    QString line = DatField(record.Nr) + DatField(FormatDatDate(record.Ersterscheinung)) + DatField(record.Untertitel);
    for (const QString& person : record.Persons)
        line += DatField(person);
    line += DatField(record.Inhalt) + DatField(record.TiBiZeichner) + DatField(record.IlluZeichner) +
            DatField(record.Rz ? u"Ja"_s : QString()) + DatField(record.RiZeObjekt) + DatField(record.RiZeZeichner);
    for (const QString& value : record.Status)
        line += DatField(value);
    for (int i = 0; i < record.LinksRead && i < MaxLinks; ++i) {
        const DatLink& link = record.Links[static_cast<size_t>(i)];
        line += DatField(QString::number(link.Num)) + DatField(link.Text) + DatField(link.Serie);
    }
    return line;
}

} // namespace heft
