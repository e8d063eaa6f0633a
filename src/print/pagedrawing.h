#pragma once
// What the list and the matrix pages share while one run draws them: the
// page, the request, the frame of the printable area and the feedback.

#include "printjob.h"

namespace heft {

// The printable area after the run has applied its minimum margins.
struct PageFrame {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    int centreX = 0;
};

struct PrintContext {
    Session& session;
    PrintPage& page;
    const PrintRequest& request;
    const PrintFeedback& feedback;
    PageFrame frame;
    // Where the progress bar stands; the matrix moves it on row by row.
    int progress = 0;

    void Status(const QString& text) const
    {
        if (feedback.status)
            feedback.status(text);
    }
    void Progress(int value) const
    {
        if (feedback.progress)
            feedback.progress(value);
    }
    void LetEventsRun() const
    {
        if (feedback.letEventsRun)
            feedback.letEventsRun();
    }
};

// All pages of the whole list (numbers from..to) or of the filter list (rows
// from..to of the filter rows), in one call.
void DrawListPage(PrintContext& context, int from, int to);
// One check sheet for the hundred numbers from..to.
void DrawMatrixPage(PrintContext& context, int from, int to);

} // namespace heft
