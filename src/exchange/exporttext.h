#pragma once
// The text outputs of the export: the fixed-width list with its head, rule
// and summary, and the blocks of the details text. They take the records
// as the .dat reader gives them back, made ready for showing.

#include "datformat.h"
#include "exportjob.h"

#include <QStringList>

namespace heft {

// The labels of the 19 attributes in the exported texts and pages; they are
// not the labels of the detail window.
const QStringList& ExportStatusLabels();

// A list record as the text and HTML lists show it: without chk_zyklus an
// unknown Auflage is a blank and "- - -" is a blank, else both stay "-" and
// "- - -"; GL is "Nein" unless it said "ja".
ListRecord ShownListRecord(ListRecord record, const ExportOptions& options);
// A details record as it is shown: the no-date value 31.12.1900 empty, an
// RZ with a number other than 0 as "Ja", the link slots behind the ones
// this line brought cleared.
DetailsRecord ShownDetailsRecord(DetailsRecord record);

QString TextHeadLine(bool gelesen);
QString TextRule(bool gelesen);
QString TextRow(const ListRecord& record, bool gelesen);
// "{series} {kind} Nummer {first}-{last} ({count} Einträge)", or with the
// filter sentence for a filter list.
QString ExportSummary(const QString& series, const QString& kind, const ExportList& list);
// One entry of the details text, with the empty line behind it.
void AddTextDetails(ExportLines& lines, const DetailsRecord& record, const QString& series);

} // namespace heft
