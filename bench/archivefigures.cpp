// The archive keyword search over a filter list as long as the sample
// archive: every row reads its whole page and looks for two words.

#include "benchsupport.h"

#include "core/session.h"
#include "filter/archivesearch.h"
#include "mainwin/entrylist.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int SearchRows = 2500;
// The second CD ends at 2093; the rows after it come round again, so that
// every row has a page to read.
constexpr int LastArchivedHeft = 2093;

int RowNr(int row) { return 1 + row % LastArchivedHeft; }

// A page of the size and shape of the sample archive's, with the two
// words on some of them.
QByteArray Page(int nr)
{
    QByteArray page = "<HTML><HEAD><TITLE>Valdorin Heftroman " + QByteArray::number(nr) +
                      "</TITLE></HEAD><BODY BGCOLOR=\"#101838\">\r\n<FONT COLOR=\"White\" SIZE=\"4\">Heftroman Nr. " +
                      QByteArray::number(nr) + "</FONT>\r\n<H1>Die Boten im Sternennebel</H1>\r\n<TABLE>";
    for (int line = 0; line < 8; ++line)
        page += "<TR><TD><B>Feld " + QByteArray::number(line) + ":</B></TD><TD>Otto Tiedmann, Maren Tjaden</TD></TR>\r\n";
    page += "</TABLE>\r\n<H2>Handlung</H2>\r\n<P>Auf Gorrodor st\xF6\xDFt Bren Vantis auf ein schlafendes Heer. ";
    if (nr % 3 == 0)
        page += "Admiral Veyl folgt ihm. ";
    if (nr % 5 == 0)
        page += "Der Weg f\xFChrt nach Thumiur. ";
    page += "Nur Anselm Ask kennt den Weg zur\xFC" "ck.</P>\r\n</BODY></HTML>\r\n";
    return page;
}

double ArchiveSearchMs()
{
    QTemporaryDir root;
    QDir().mkpath(root.path() + u"/Archiv/HEFTE"_s);
    for (int nr = 1; nr <= LastArchivedHeft; ++nr) {
        QFile file(root.path() + u"/Archiv/HEFTE/HEFT%1.HTM"_s.arg(nr, 4, 10, QChar(u'0')));
        if (!file.open(QIODevice::WriteOnly) || file.write(Page(nr)) < 0)
            qFatal("bench archive pages can't be written");
    }
    std::vector<heft::EntryCells> rows(SearchRows);
    for (int row = 0; row < SearchRows; ++row)
        rows[static_cast<size_t>(row)] = {QString::number(RowNr(row)), u"Otto Tiedmann"_s, u"Titel"_s, u"-"_s,
                                          u"- - -"_s, QString(), QString()};

    heft::Session session;
    heft::ScriptedPrompter prompter;
    session.prompter = &prompter;
    session.Config.SeriesName = u"Valdorin"_s;
    session.Config.ListKind = u"Heftromane"_s;
    session.Config.ArchiveRoot = root.path();
    heft::EntryList list;
    list.ActiveGrid = &list.Filter;
    const heft::ArchiveQuery query{heft::ArchiveMode::Filter, u"Veyl"_s, u"Thumiur"_s, heft::ArchiveJoin::Und};
    // No drives to ask, no events to let run: the search alone.
    const heft::ArchiveSearchHooks hooks{[] { return QList<heft::Volume>(); }, [](int) {}, [](int) {},
                                         [](const QString&) {}, [] { return false; }};
    int kept = 0;
    const double ms = heft::bench::MedianMs(5, [&] {
        list.Filter.Model().Reset(rows);
        heft::ArchiveFilterTexts texts;
        if (heft::SearchArchive(session, list, query, hooks, texts) == SearchRows)
            kept = list.Filter.Model().rowCount();
    });
    if (kept == 0 || kept == SearchRows || !prompter.asked.isEmpty())
        qFatal("bench archive search found nothing to keep or drop");
    return ms;
}

} // namespace

HEFT_BENCH_FIGURE(archive_search_2500_ms, [] { return ArchiveSearchMs(); })
