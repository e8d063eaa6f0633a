#include "importreport.h"

#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

const QString Crlf = u"\r\n"_s;

// A column of the report: the value filled from the left into `width`
// places, cut when it is longer.
QString Column(const QString& value, int width)
{
    return FormatMask(value, u'!' + QString(width, u'@'));
}

QString LineColumn(int line) { return Column(QString::number(line), 5); }

// Drops the line end of the last line.
QString WithoutLastEnd(const QString& text) { return text.left(text.size() - 2); }

} // namespace

QString ImportHeaderLine(DatKind kind)
{
    switch (kind) {
    case DatKind::List:
        return u"DaZe NR    AUTOR                     TITEL                                              AUFL ZYKLUS   "
               "GL   BEMERKUNG"_s;
    case DatKind::Cycle:
        return u"DaZe ZYKLUS   VonNr BisNr VonZeit BisZeit BEZEICHNUNG                                        "
               "GROß-ZYKLUS"_s;
    case DatKind::Details:
        return u"DaZe Nr    Ersterscheinung Untertitel"_s;
    case DatKind::None:
        break;
    }
    return {};
}

QString ListReportLine(int line, const ListRecord& r)
{
    return LineColumn(line) + Column(r.Nr, 6) + Column(r.Autor, 26) + Column(r.Titel, 51) + Column(r.Auflage, 5) +
           Column(r.Zyklus, 9) + Column(r.GL, 5) + r.Bemerkung + Crlf;
}

QString CycleReportLine(int line, const CycleRecord& r)
{
    return LineColumn(line) + Column(r.Zyklus, 9) + Column(r.NrVon, 6) + Column(r.NrBis, 6) + Column(r.ZeitVon, 8) +
           Column(r.ZeitBis, 8) + Column(r.Bezeichnung, 51) + r.Zyklusbereich + Crlf;
}

QString DetailsReportLine(int line, const DetailsRecord& r)
{
    return LineColumn(line) + Column(r.Nr, 6) + Column(r.Ersterscheinung, 17) + r.Untertitel + Crlf;
}

void ShowImportSummary(ImportTexts& texts, int ok, int errors, const QString& header)
{
    if (!texts.fehler.isEmpty()) {
        const QString sentence = errors > 1 ? u"%1 Datensätze konnten nicht importiert werden."_s
                                            : u"%1 Datensatz konnte nicht importiert werden."_s;
        texts.fehler = sentence.arg(errors) + Crlf + Crlf + u"FEHLERART "_s + header + WithoutLastEnd(texts.fehler);
    } else {
        texts.fehler = u"Es sind keine Fehler aufgetreten."_s;
    }
    if (!texts.bericht.isEmpty()) {
        const QString sentence = ok > 1 ? u"Es wurden %1 Datensätze in die Datenbank importiert."_s
                                        : u"Es wurde %1 Datensatz in die Datenbank importiert."_s;
        texts.bericht = sentence.arg(ok) + Crlf + Crlf + header + WithoutLastEnd(texts.bericht);
    } else {
        texts.bericht = u"Es konnten keine Datensätze in die DB importiert werden."_s;
    }
}

QString JoinReports(const QString& data, const QString& details)
{
    return u"------------------------- Daten -------------------------"_s + Crlf + data + Crlf + Crlf +
           u"------------------------ Details ------------------------"_s + Crlf + details;
}

} // namespace heft
