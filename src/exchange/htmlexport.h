#pragma once
// The HTML outputs of the export: one list page and one page per entry
// with details. Plain tables with upper-case tags, written line by line;
// values go in as the .dat reader gives them, with no entity but the
// "&nbsp;" of an empty detail cell.

#include "datformat.h"
#include "exportjob.h"

namespace heft {

void AddHtmlListHead(ExportLines& lines, const ExportOptions& options);
// With details the row links to "{base}_Details\{Nr}.html", with the
// backslash the pages were always written with.
void AddHtmlListRow(ExportLines& lines, const ListRecord& record, const ExportOptions& options,
                    const QString& detailsFolderName);
void AddHtmlListFooter(ExportLines& lines, const QString& summary);
void AddHtmlDetailsPage(ExportLines& lines, const DetailsRecord& record, const QString& series, const QString& kind);

} // namespace heft
