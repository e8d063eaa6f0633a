#include "printjob.h"

#include "pagedrawing.h"
#include "printpage.h"

#include "core/session.h"
#include "core/textfuncs.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// No output comes closer to the paper's edge than this.
constexpr int MinimumMargin = 100;
// The list's footer reaches a little below the last line.
constexpr int ListFooterRoom = 20;

PageFrame FrameOf(const PrintPage& page)
{
    const QRect area = page.PrintableArea();
    PageFrame frame;
    frame.left = MaxOf(area.left(), MinimumMargin);
    frame.top = MaxOf(area.top(), MinimumMargin);
    frame.right = MinOf(area.right(), page.PageWidth() - MinimumMargin);
    frame.bottom = MinOf(area.bottom(), page.PageHeight() - MinimumMargin);
    frame.centreX = (frame.right - frame.left) / 2 + frame.left;
    return frame;
}

void DrawMatrix(PrintContext& context, const QString& word)
{
    // The first entry of the range list is 1, but its page starts at 0.
    const int from = context.request.from == 1 ? 0 : context.request.from;
    const int pages = (context.request.to + 1 - from) / 100;
    if (context.feedback.startProgress)
        context.feedback.startProgress(100 * pages);
    context.Status(u"Erzeuge Druck%1 für Seite 1/%2"_s.arg(word).arg(pages));
    for (int i = 0; i < pages; ++i) {
        DrawMatrixPage(context, from + 100 * i, from + 100 * (i + 1) - 1);
        if (i < pages - 1) {
            context.page.NewPage();
            context.Status(u"Erzeuge Druck%1 für Seite %2/%3"_s.arg(word).arg(i + 2).arg(pages));
        }
        context.LetEventsRun();
        if (context.page.Aborted())
            return;
    }
}

} // namespace

QString PrintTitle(const Session& session, PrintKind kind)
{
    static const QString suffixes[] = {u" -Matrix-"_s, u" -Gesamtliste-"_s, u" -Filterliste-"_s};
    return session.Config.SeriesName + u' ' + session.Config.ListKind + suffixes[static_cast<int>(kind)];
}

int PrintOrPreview(Session& session, PrintPage& page, const PrintRequest& request, const QString& word,
                   const PrintFeedback& feedback)
{
    PrintContext context{session, page, request, feedback, FrameOf(page)};
    switch (request.kind) {
    case PrintKind::FilterList:
        context.frame.bottom -= ListFooterRoom;
        DrawListPage(context, 1, static_cast<int>(request.filterRows.size()));
        break;
    case PrintKind::WholeList:
        context.frame.bottom -= ListFooterRoom;
        DrawListPage(context, request.from, request.to);
        break;
    case PrintKind::Matrix:
        DrawMatrix(context, word);
        break;
    }
    if (feedback.finishProgress)
        feedback.finishProgress();
    context.Status(u"Fertig und Bereit."_s);
    return page.Aborted() ? 0 : page.PageNumber();
}

QString PrintLogoPath(const Session& session)
{
    return QDir(session.DataFolder).filePath(u"bm/"_s + session.Config.LogoFile);
}

QStringList MatrixFromItems(int highestNr)
{
    QStringList items{FormatMask(u"1"_s, u"@@@@@@"_s)};
    for (int i = 1; i * 100 <= highestNr; ++i)
        items << FormatMask(QString::number(i * 100), u"@@@@@@"_s);
    return items;
}

QStringList MatrixToItems(int highestNr)
{
    QStringList items{FormatMask(u"99"_s, u"@@@@@@"_s)};
    for (int i = 1; i * 100 <= highestNr; ++i)
        items << FormatMask(QString::number(i * 100 + 99), u"@@@@@@"_s);
    return items;
}

} // namespace heft
