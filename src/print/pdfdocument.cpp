#include "pdfdocument.h"

#include "printpage.h"

#include <QFile>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

using namespace Qt::StringLiterals;

namespace heft {

PdfOutcome WritePdf(Session& session, const PrintRequest& request, const QString& path, const PrintFeedback& feedback)
{
    QPdfWriter writer(path);
    writer.setTitle(PrintTitle(session, request.kind));
    writer.setCreator(u"Heftarium"_s);
    // The pages count from the paper's corner; the margins are the pages' own.
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4),
                                     request.landscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()));
    QPainter painter;
    if (!painter.begin(&writer))
        return {};
    PrintPage page(painter, &writer, A4PaperMm(request.landscape));
    const int pages = PrintOrPreview(session, page, request, u"erdaten"_s, feedback);
    painter.end();
    if (page.Aborted())
        QFile::remove(path);
    return {pages, true};
}

} // namespace heft
