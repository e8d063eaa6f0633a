#pragma once
// The export chain: the .dat pair first, then the text and HTML outputs
// read back from it, then the .dat pair removed again unless it was asked
// for. Returns the result text the window shows (lines ended by CR LF).

#include "exportjob.h"

namespace heft {

class Session;

QString RunExportChain(Session& session, const ExportList& list, const ExportTarget& target,
                       const ExportOptions& options, const ExportFeedback& feedback);

// Writes .txt, _Details.txt, .html and the detail pages from the .dat pair;
// the sizes of the files it made are added to the result text.
void WriteTextAndHtml(Session& session, const ExportList& list, const ExportTarget& target,
                      const ExportOptions& options, const ExportFeedback& feedback, int details, QString& result);
// Removes the .dat pair; a file that isn't there is no error.
void DeleteTempDat(const ExportTarget& target);

} // namespace heft
