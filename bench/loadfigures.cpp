// Opening a collection and filling the full list: what the user waits for at
// every start.

#include "benchsupport.h"

#include "core/session.h"
#include "mainwin/entrylist.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

// Open, configuration, snapshot, grid model filled and sorted by number.
void LoadAndCount(const QString& path, int entries)
{
    heft::Session session;
    heft::EntryList list;
    heft::bench::LoadCollection(session, list, path);
    if (list.Heftliste.Rows() != entries + 1)
        qFatal("bench list has %d rows instead of %d", list.Heftliste.Rows() - 1, entries);
}

double LoadMs(int entries)
{
    const QString path = heft::bench::CollectionCopy(entries);
    const double ms = heft::bench::MedianMs(5, [&] { LoadAndCount(path, entries); });
    QFile::remove(path);
    return ms;
}

} // namespace

HEFT_BENCH_FIGURE(load_3k_ms, [] { return LoadMs(3000); })
HEFT_BENCH_FIGURE(load_100k_ms, [] { return LoadMs(100000); })
HEFT_BENCH_FIGURE(load_100k_peak_mb, [] {
    const QString path = heft::bench::CollectionCopy(100000);
    heft::bench::ResetPeakMemory();
    LoadAndCount(path, 100000);
    QFile::remove(path);
    return heft::bench::PeakMemoryMb();
})
