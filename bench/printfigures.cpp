// Printing a 3,000-entry collection with printings and states to PDF: every
// matrix page (30 check sheets) and the whole list.

#include "benchsupport.h"

#include "core/config.h"
#include "core/session.h"
#include "print/pdfdocument.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

double PrintPdfMs(heft::PrintKind kind, int expectedPages)
{
    constexpr int Entries = 3000;
    const QString path = heft::bench::CollectionCopy(Entries);
    heft::Session session;
    heft::ScriptedPrompter prompter;
    session.prompter = &prompter;
    heft::bench::OpenCollection(session, path);
    heft::DbError error;
    heft::ReadConfiguration(session, &error);

    heft::PrintRequest request;
    request.kind = kind;
    request.from = 1;
    // The matrix runs to the last entry of cmb_to, the list to the last number.
    request.to = kind == heft::PrintKind::Matrix ? heft::MatrixToItems(Entries).last().trimmed().toInt() : Entries;
    request.highestNr = Entries;
    request.matrix.zustandImmer = true;
    QTemporaryDir folder;
    const QString pdf = folder.filePath(u"bench.pdf"_s);
    heft::PdfOutcome outcome;
    const double ms = heft::bench::MedianMs(3, [&] { outcome = heft::WritePdf(session, request, pdf); });
    if (outcome.pages != expectedPages || QFile(pdf).size() == 0)
        qFatal("bench print incomplete: %d pages", outcome.pages);
    session.CollectionDb.reset();
    QFile::remove(path);
    return ms;
}

} // namespace

HEFT_BENCH_FIGURE(print_matrix_3k_pdf_ms, [] { return PrintPdfMs(heft::PrintKind::Matrix, 31); })
HEFT_BENCH_FIGURE(print_list_3k_pdf_ms, [] { return PrintPdfMs(heft::PrintKind::WholeList, 37); })
