// Opening an entry's details for editing and saving them: what the user
// waits for in the detail window.

#include "benchsupport.h"

#include "core/session.h"
#include "details/detailwindow.h"
#include "mainwin/entrylist.h"

#include <QFile>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

double DetailOpenSaveMs(int entries)
{
    const QString path = heft::bench::CollectionCopy(entries);
    heft::Session session;
    heft::EntryList list;
    heft::bench::LoadCollection(session, list, path);
    list.FindAndShowRow(entries / 2);
    heft::ScriptedPrompter prompter;
    session.prompter = &prompter;
    session.ActiveCaption = [] { return u"Detailinfo"_s; };

    const double ms = heft::bench::MedianMs(5, [&] {
        heft::DetailWindow window(session, list, true);
        // The save runs as after a change; the button is the one the user presses.
        auto* save = window.findChild<QPushButton*>(u"btn_ok"_s);
        save->setEnabled(true);
        save->click();
    });
    session.CollectionDb.reset();
    QFile::remove(path);
    return ms;
}

} // namespace

HEFT_BENCH_FIGURE(detail_open_save_30k_ms, [] { return DetailOpenSaveMs(30000); })
