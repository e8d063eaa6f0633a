// Saving one changed entry: what the user waits for after each press of
// "Übernehmen" in a large collection, with the row refreshed and the list
// sorted again.

#include "benchsupport.h"

#include "core/session.h"
#include "core/textfuncs.h"
#include "mainwin/entrylist.h"
#include "mainwin/entrysave.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

double EditSaveMs(int entries)
{
    const QString path = heft::bench::CollectionCopy(entries);
    heft::Session session;
    heft::ScriptedPrompter prompter;
    session.prompter = &prompter;
    heft::EntryList list;
    heft::bench::LoadCollection(session, list, path);
    const int nr = static_cast<int>(heft::Val(list.Heftliste.TextMatrix(entries / 2, heft::ColNr)));
    int run = 0;
    // The dialog's part is what cmd_ok leaves behind: the typed values in
    // EntryRecord, quoted, and the number of the row it was opened on.
    const double ms = heft::bench::MedianMs(7, [&] {
        list.FindAndShowRow(nr);
        session.EditMode = true;
        session.EditRetry = false;
        session.OldNr = nr;
        session.Entry = {nr, u"Kurt Mahr"_s, heft::QuoteSql(u"Der Ruf der Ewigkeit, Fassung %1"_s.arg(++run)), 2,
                         u"XII"_s, true, u"Sammlerstück"_s};
        session.EditAccepted = true;
        if (heft::WriteEntry(session, list) != heft::EntrySaveOutcome::Saved)
            qFatal("bench edit was not saved");
    });
    if (!prompter.asked.isEmpty() ||
        list.Heftliste.TextMatrix(list.Heftliste.Row(), heft::ColTitel) != u"Der Ruf der Ewigkeit, Fassung %1"_s.arg(run))
        qFatal("bench edit was not saved as a plain change");
    session.CollectionDb.reset();
    QFile::remove(path);
    return ms;
}

} // namespace

HEFT_BENCH_FIGURE(edit_save_30k_ms, [] { return EditSaveMs(30000); })
