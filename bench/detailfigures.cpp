// Opening an entry's details for editing and saving them: what the user
// waits for in the detail window, less the drawing of its controls.

#include "benchsupport.h"

#include "core/session.h"
#include "core/textfuncs.h"
#include "details/detailrecord.h"
#include "details/detailsave.h"
#include "mainwin/entrylist.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

// Everything the detail window reads when it opens on the entry, as the
// values its save writes back.
heft::DetailValues ReadAsWindowOpens(heft::Session& session, int nr)
{
    heft::DetailValues values;
    values.Nr = nr;
    values.Details = heft::ReadDetailsRow(session, nr).value_or(heft::DetailsRow{});
    values.Gestaltung = heft::ReadGestaltungRow(session, nr).value_or(heft::GestaltungRow{});
    // The person names are read only when a person box opens.
    qsizetype offered = 0;
    for (const QString& column : {u"TiBiZeichner"_s, u"IlluZeichner"_s, u"RiZeZeichner"_s})
        offered += heft::ArtistNames(session, column).size();
    if (offered == 0)
        qFatal("bench collection offers no artists");
    const QMap<int, QString> status = heft::ReadStatusValues(session, nr);
    for (int enumber = 1; enumber <= heft::StatusCount; ++enumber)
        values.Status.append(status.value(enumber));
    values.Links = heft::ReadLinks(session, nr);
    return values;
}

double DetailOpenSaveMs(int entries)
{
    const QString path = heft::bench::CollectionCopy(entries);
    heft::Session session;
    heft::EntryList list;
    heft::bench::LoadCollection(session, list, path);
    list.FindAndShowRow(entries / 2);
    const int nr = static_cast<int>(heft::Val(list.Heftliste.TextMatrix(list.Heftliste.Row(), heft::ColNr)));
    heft::ScriptedPrompter prompter;
    session.prompter = &prompter;
    session.ActiveCaption = [] { return u"Detailinfo"_s; };

    const double ms = heft::bench::MedianMs(5, [&] {
        heft::SaveDetails(session, ReadAsWindowOpens(session, nr));
        // The window shows the new stamp after the save.
        if (!heft::ReadLastChange(session, nr))
            qFatal("bench detail save left no stamp");
    });
    if (!prompter.asked.isEmpty())
        qFatal("bench detail save asked a question");
    session.CollectionDb.reset();
    QFile::remove(path);
    return ms;
}

} // namespace

HEFT_BENCH_FIGURE(detail_open_save_30k_ms, [] { return DetailOpenSaveMs(30000); })
