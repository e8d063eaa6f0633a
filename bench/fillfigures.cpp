// A column fill of a Status attribute over a filter list of 10,000 entries:
// what the user waits for after pressing "Füllen", the window's event
// round after every row included.

#include "benchsupport.h"

#include "core/session.h"
#include "filter/columnfill.h"
#include "filter/filterrun.h"
#include "mainwin/entrylist.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

double FillStatusMs(int entries)
{
    const QString path = heft::bench::CollectionCopy(entries);
    heft::Session session;
    heft::bench::OpenCollection(session, path);
    session.ActiveCaption = [] { return heft::ColumnFillCaption(); };

    const QString all = u"SELECT * FROM HEFTLIST ORDER BY Nr;"_s;
    heft::EntryList list;
    session.SharedRecordset = session.CollectionDb->Select(all);
    list.SetupGridColumns();
    list.FillGrid(session, entries);
    if (heft::RunFilterStatement(session, list, all) != entries)
        qFatal("bench filter list incomplete");

    const auto targets = heft::FillTargets();
    const auto storage = std::find_if(targets.begin(), targets.end(),
                                      [](const heft::FillTarget& t) { return t.label == u"Lagerort"; });
    const heft::FillRequest request{static_cast<int>(storage - targets.begin()), 0, u"Regal 7"_s};
    const heft::FillFeedback feedback{[](int) {}, [] {
                                          QCoreApplication::processEvents();
                                          return false;
                                      }};
    const double ms = heft::bench::MedianMs(3, [&] { heft::FillColumn(session, list, request, feedback); });
    session.CollectionDb.reset();
    QFile::remove(path);
    return ms;
}

} // namespace

HEFT_BENCH_FIGURE(fill_10k_ms, [] { return FillStatusMs(10000); })
