#pragma once
// The texts of the file import: the fixed-width report line of every record,
// the head sentences above the reports, and the joined reports of a list
// file imported with its details file. Lines end in CR LF as everywhere in
// this program's texts.

#include "datformat.h"

#include <QString>

namespace heft {

// The report boxes of the import window and the caption of its report frame.
struct ImportTexts {
    QString caption;
    QString bericht;
    QString fehler;
};

// The column heads of a kind's report, without the line end.
QString ImportHeaderLine(DatKind kind);

// One record as a report line, values before any SQL quoting; the line
// number counts the records, the header line not included.
QString ListReportLine(int line, const ListRecord& record);
QString CycleReportLine(int line, const CycleRecord& record);
QString DetailsReportLine(int line, const DetailsRecord& record);

// Both reports and the lines that failed, once the file has been read:
// puts the count sentences and the column heads above them. A report
// that has no line gets its "nothing" sentence instead.
void ShowImportSummary(ImportTexts& texts, int ok, int errors, const QString& header);

// The report of a list file and the one of its details file, one below the
// other under their rule lines.
QString JoinReports(const QString& data, const QString& details);

} // namespace heft
