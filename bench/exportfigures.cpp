// The export of 10,000 entries with details as .dat pair, text and HTML:
// what the user waits for between the save dialog and the result text.

#include "benchsupport.h"

#include "core/session.h"
#include "exchange/exportrun.h"
#include "mainwin/entrylist.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

double ExportAllMs(int entries)
{
    const QString path = heft::bench::CollectionCopy(entries);
    heft::Session session;
    heft::EntryList entryList;
    heft::bench::LoadCollection(session, entryList, path);

    heft::ExportList list;
    const heft::EntryGridModel& model = entryList.Heftliste.Model();
    list.rows.resize(static_cast<size_t>(model.rowCount()));
    for (int row = 0; row < model.rowCount(); ++row)
        for (int column = 0; column < heft::EntryColumnCount; ++column)
            list.rows[static_cast<size_t>(row)][static_cast<size_t>(column)] = model.Text(row, column);

    QTemporaryDir folder;
    const heft::ExportTarget target{folder.path(), u"bench"_s};
    heft::ExportOptions options;
    options.csv = options.text = options.html = options.details = options.gelesen = true;
    // The window lets events run a few times a second while it works.
    QElapsedTimer sinceEvents;
    sinceEvents.start();
    heft::ExportFeedback feedback;
    feedback.progress = [&sinceEvents](int) {
        if (sinceEvents.elapsed() >= 30) {
            QCoreApplication::processEvents();
            sinceEvents.restart();
        }
    };
    QString result;
    const double ms =
        heft::bench::MedianMs(3, [&] { result = heft::RunExportChain(session, list, target, options, feedback); });
    if (!result.contains(u"%1/%1 Einträge"_s.arg(entries)) ||
        QDir(target.DetailsFolder()).entryList(QDir::Files).size() != entries)
        qFatal("bench export incomplete");
    session.CollectionDb.reset();
    QFile::remove(path);
    return ms;
}

} // namespace

HEFT_BENCH_FIGURE(export_10k_all_ms, [] { return ExportAllMs(10000); })
