// The web import of 100 issues with cover and illustration from the fixture
// wiki served on 127.0.0.1 in this process: every page, picture page and
// picture fetched, the .dat pair and 200 picture files written.

#include "benchsupport.h"

#include "core/session.h"
#include "exchange/webimport.h"
#include "support/wikifixtureserver.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

constexpr int First = 3001;
constexpr int Issues = 100;

double WebImportMs()
{
    heft::test::WikiFixtureServer server;
    server.ServeSampleSite();
    for (int nr = First; nr < First + Issues; ++nr) {
        server.SetIssue(nr, u"VN2401.html"_s);
        server.SetPicture(u"VN%1.jpg"_s.arg(nr), u"/images/c/VN%1.jpg"_s.arg(nr), u"cover.jpg"_s);
        server.SetPicture(u"VN%1Illu.jpg"_s.arg(nr), u"/images/i/VN%1Illu.jpg"_s.arg(nr), u"illu.jpg"_s);
    }
    qputenv("HEFTARIUM_WIKI_URL", server.Url().toUtf8());
    qputenv("HEFTARIUM_PUBLISHER_URL", server.Url().toUtf8());

    return heft::bench::MedianMs(3, [] {
        QTemporaryDir dir;
        heft::Session session;
        session.Config.SeriesName = u"Valdorin"_s;
        session.Config.ListKind = u"Heftromane"_s;
        session.Config.PictureRoot = dir.path();
        const heft::WebImportRequest request{First, First + Issues - 1, true, true, dir.filePath(u"import"_s)};
        heft::WebImportObserver quiet;
        const heft::WebImportResult result = heft::ScrapeWikiRange(session, request, quiet);
        if (result.failed || result.issues != Issues || result.pictures.size() != 2 * Issues)
            qFatal("bench web import incomplete: %s", qPrintable(result.fehler));
    });
}

} // namespace

int heft::bench::ServeFixtureWiki()
{
    heft::test::WikiFixtureServer server;
    server.ServeSampleSite();
    QTextStream(stdout) << server.Url() << Qt::endl;
    return QCoreApplication::exec();
}

HEFT_BENCH_FIGURE(webimport_100_local_ms, [] { return WebImportMs(); })
