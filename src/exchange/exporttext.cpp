#include "exporttext.h"

#include "core/jetfunctions.h"
#include "core/textfuncs.h"

#include <QDate>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

const QString NrMask = u"@@@@"_s;
const QString AutorMask = u'!' + QString(26, u'@');
const QString TitelMask = u'!' + QString(50, u'@');
const QString AuflageMask = u"@@"_s;
const QString ZyklusMask = QString(9, u'@');
const QString GlMask = u"@@@@"_s;
const QString StatusLabelMask = u'!' + QString(17, u'@');

bool IsJa(const QString& text)
{
    return text.compare(u"ja"_s, Qt::CaseInsensitive) == 0;
}

// The stored date that stands for "no date", in both forms it comes in.
bool IsNoDate(const QString& value)
{
    static const qint64 noDate = QDate(1899, 12, 30).daysTo(QDate(1900, 12, 31));
    return value == u"31.12.00" || JetDateValue(value) == noDate;
}

} // namespace

const QStringList& ExportStatusLabels()
{
    static const QStringList labels = {
        u"Letzte Änderung"_s, u"Exemplare"_s,       u"Zustand"_s,      u"Verkäufer"_s, u"Kaufpreis [EUR]"_s,
        u"Wert [EUR]"_s,      u"Lagerort"_s,        u"ISBN"_s,         u"Verlag"_s,    u"Anzahl Seiten"_s,
        u"Format"_s,          u"Coverausführung"_s, u"Genre"_s,        u"Sprache"_s,   u"Übersetzer"_s,
        u"Originaltitel"_s,   u"Verliehen an"_s,    u"Verleihdatum"_s, u"Kritik"_s,
    };
    return labels;
}

ListRecord ShownListRecord(ListRecord record, const ExportOptions& options)
{
    if (record.Auflage.isEmpty() || record.Auflage == u"-")
        record.Auflage = options.zyklus ? u"-"_s : u" "_s;
    if (record.Zyklus == u"- - -" && !options.zyklus)
        record.Zyklus = u" "_s;
    if (!IsJa(record.GL))
        record.GL = u"Nein"_s;
    return record;
}

DetailsRecord ShownDetailsRecord(DetailsRecord record)
{
    if (IsNoDate(record.Ersterscheinung))
        record.Ersterscheinung.clear();
    if (Val(record.RZ) != 0)
        record.RZ = u"Ja"_s;
    for (int i = record.LinksRead; i < MaxLinks; ++i)
        record.Links[static_cast<size_t>(i)].Num = 0;
    return record;
}

QString TextHeadLine(bool gelesen)
{
    return gelesen ? u"NR   AUTOR                     TITEL                                              "
                     u"AUFL ZYKLUS GL   "
                     "BEMERKUNG"_s
                   : u"NR   AUTOR                     TITEL                                              "
                     u"AUFL ZYKLUS "
                     "BEMERKUNG"_s;
}

QString TextRule(bool gelesen)
{
    return QString(gelesen ? 163 : 158, u'-');
}

QString TextRow(const ListRecord& record, bool gelesen)
{
    QString line = FormatMask(record.Nr, NrMask) + u' ' + FormatMask(record.Autor, AutorMask) +
                   FormatMask(record.Titel, TitelMask) + FormatMask(record.Auflage, AuflageMask) + u' ' +
                   FormatMask(record.Zyklus, ZyklusMask) + u' ';
    if (gelesen)
        line += FormatMask(record.GL, GlMask) + u' ';
    return line + record.Bemerkung;
}

QString ExportSummary(const QString& series, const QString& kind, const ExportList& list)
{
    const qsizetype count = static_cast<qsizetype>(list.rows.size());
    const QString entries = count > 1 ? u" Einträge)"_s : u" Eintrag)"_s;
    const QString head = series + u' ' + kind;
    if (list.filtered)
        return head + u" gefiltert nach: "_s + list.filterText + u" ("_s + QString::number(count) + entries;
    const QString first = count > 0 ? list.rows.front()[ColNr] : QString();
    const QString last = count > 0 ? list.rows.back()[ColNr] : QString();
    return head + u" Nummer "_s + first + u'-' + last + u" ("_s + QString::number(count) + entries;
}

void AddTextDetails(ExportLines& lines, const DetailsRecord& record, const QString& series)
{
    QString persons = record.Persons[0];
    for (size_t i = 1; i < record.Persons.size(); ++i)
        if (!record.Persons[i].isEmpty())
            persons += u", "_s + record.Persons[i];
    lines.Add(u"Nummer:          "_s + record.Nr);
    lines.Add(u"Ersterscheinung: "_s + record.Ersterscheinung);
    lines.Add(u"Untertitel:      "_s + record.Untertitel);
    lines.Add(u"Personen:        "_s + persons);
    lines.Add(u"Inhalt:          "_s + record.Inhalt);
    lines.Add(u"Titelbild:       "_s + record.TiBiZeichner);
    lines.Add(u"Illustrationen:  "_s + record.IlluZeichner);
    lines.Add(u"Rißzeichnung:    "_s + record.RZ);
    lines.Add(u"RZ Objekt:       "_s + record.RiZeObjekt);
    lines.Add(u"Rißzeichner:     "_s + record.RiZeZeichner);
    const QStringList& labels = ExportStatusLabels();
    for (int i = 0; i < StatusCount; ++i)
        lines.Add(FormatMask(labels[i] + u':', StatusLabelMask) + record.Status[static_cast<size_t>(i)]);
    // The links are listed up to the first slot without a number.
    for (int i = 0; i < MaxLinks && record.Links[static_cast<size_t>(i)].Num > 0; ++i) {
        const DatLink& link = record.Links[static_cast<size_t>(i)];
        lines.Add(u"Verknüpfung "_s + QString::number(i + 1).rightJustified(2, u'0') + u":  "_s + series + u" #"_s +
                  QString::number(link.Num) + u" - "_s + link.Text);
    }
    lines.Add(u""_s);
}

} // namespace heft
