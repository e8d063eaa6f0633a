#pragma once
// The pages of a print run written as an A4 PDF file, without any printer:
// for the command line and the benchmark.

#include "printjob.h"

namespace heft {

struct PdfOutcome {
    int pages = 0;      // 0 when the run was aborted; the file is then gone
    bool written = false; // false when the file could not be opened
};

PdfOutcome WritePdf(Session& session, const PrintRequest& request, const QString& path,
                    const PrintFeedback& feedback = {});

} // namespace heft
