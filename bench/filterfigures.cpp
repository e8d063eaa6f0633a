// A filter of three rows over a large collection: what the user waits for
// after pressing "Ausführen", from the rows to the filled filter list.

#include "benchsupport.h"

#include "core/session.h"
#include "filter/filtergenerator.h"
#include "filter/filterrun.h"
#include "mainwin/entrylist.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QList<heft::FilterCriterion> ThreeRows()
{
    heft::FilterCriterion read; // Gelesen IST Ja
    read.field = 5;
    read.join = 1;
    heft::FilterCriterion value; // Wert GRÖßER 5, a status attribute
    value.field = 21;
    value.compare = 3;
    value.text = u"5"_s;
    value.join = 1;
    heft::FilterCriterion cycle; // Zyklus KLEINER X, over the cycle list
    cycle.field = 4;
    cycle.compare = 2;
    cycle.text = u"X"_s;
    return {read, value, cycle};
}

double FilterThreeRowsMs(int entries)
{
    const QString path = heft::bench::CollectionCopy(entries);
    heft::Session session;
    heft::bench::OpenCollection(session, path);

    double ms = 0;
    {
        heft::EntryList list;
        int found = 0;
        // A new generator per press, as the dialog is opened anew for each
        // filter, so the cycle list is read each time too.
        ms = heft::bench::MedianMs(5, [&] {
            list.ActiveGrid = &list.Heftliste;
            const heft::FilterOutcome outcome = heft::FilterGenerator(session).Generate(ThreeRows());
            found = heft::RunFilterStatement(session, list, outcome.sql);
        });
        if (found <= 0)
            qFatal("bench filter found nothing");
    }
    session.CollectionDb.reset();
    QFile::remove(path);
    return ms;
}

} // namespace

HEFT_BENCH_FIGURE(filter_3rows_30k_ms, [] { return FilterThreeRowsMs(30000); })
