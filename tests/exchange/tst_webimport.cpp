// The web import against the fixture wiki on 127.0.0.1: what lands in the
// .dat pair and the picture folders, where a run stops and what it says.

#include "importfixture.h"
#include "support/wikifixtureserver.h"
#include "testmain.h"

#include "exchange/webimport.h"
#include "exchange/wikiscrape.h"
#include "exchange/wikitext.h"

#include <QDirIterator>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

struct StopAfter : WebImportObserver {
    int issues = 0; // 0: never
    bool IssueDone(int done) override { return issues == 0 || done < issues; }
};

struct WebRun {
    WebRun()
    {
        server.ServeSampleSite();
        qputenv("HEFTARIUM_WIKI_URL", server.Url().toUtf8());
        qputenv("HEFTARIUM_PUBLISHER_URL", server.Url().toUtf8() + "/");
        f.collection.session.Config.PictureRoot = f.collection.dir.filePath(u"bilder"_s);
    }
    WebImportResult Run(int first, int last, int stopAfter = 0, WebLimits limits = {})
    {
        StopAfter observer;
        observer.issues = stopAfter;
        const WebImportRequest request{first, last, true, true, f.collection.dir.filePath(u"import"_s)};
        return ScrapeWikiRange(f.collection.session, request, observer, limits);
    }
    static qsizetype LineCount(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().count("\r\n") : -1;
    }
    // Every file written beside the collection, its log and the import folder.
    QStringList Pictures() const
    {
        QStringList files;
        for (QDirIterator it(f.collection.dir.path(), QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
            files << QDir(f.collection.dir.path()).relativeFilePath(it.next());
        files.sort();
        return files.filter(QRegularExpression(u"^(?!Test\\.mdb|Heftarium\\.log|import/)"_s));
    }

    ImportFixture f{false};
    WikiFixtureServer server;
};

const QString Tibis = u"bilder/tibis/Valdorin (Heftromane)/"_s;
const QString Illus = u"bilder/illus/Valdorin (Heftromane)/"_s;

} // namespace

class TestWebImport : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void textRules_data()
    {
        QTest::addColumn<QString>("rule");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("expected"); // "FEHLER" when the rule fails
        QTest::newRow("three authors") << "kurz" << "Anna Bert / Carl Dorn / Emil Frey" << "A. Bert / C. Dorn / E. Frey";
        QTest::newRow("no blank") << "kurz" << "Abcdefghijklmnopqrstuvwxyz0" << "FEHLER";
        QTest::newRow("date") << "datum" << "<td>Freitag, 11. Mai 2010 (Nachdruck)" << "2010 (Nachdruck)-Mai-11";
        QTest::newRow("no link") << "links" << "</td><td>Ulrike Brandt" << "Ulrike Brandt";
        QTest::newRow("entities") << "text" << "  Stra&szlig;e &AUML;&nbsp;B&#160;C \"x\"\n– y " << "Straße ä-B C 'x' - y";
    }
    void textRules()
    {
        QFETCH(QString, rule);
        QFETCH(QString, input);
        const auto result = rule == u"kurz"    ? ShortenAuthors(input)
                            : rule == u"datum" ? WebDateText(input)
                            : rule == u"links" ? LinkTextsOnly(input)
                                               : DecodeWebText(QString::fromLatin1(input.toUtf8()));
        QTEST(result.value_or(u"FEHLER"_s), "expected");
    }

    // Three issues with covers, illustrations and the publisher's series,
    // read back through the file import.
    void fullRange()
    {
        WebRun web;
        const WebImportResult result = web.Run(2401, 2403);
        QCOMPARE(result.fehler, u"Es sind keine Fehler aufgetreten."_s);
        QVERIFY(result.bericht.endsWith(u"Übertrage und konvertiere Daten für #2403\r\n"));
        // The cycle list is read for the first cycle and again when it changes.
        QCOMPARE(web.server.requests.count(u"/wiki/Zyklen"_s), 2);
        QCOMPARE(web.Pictures(), QStringList({Illus + u"2401illu000.jpg"_s, Illus + u"2402illu001.gif"_s,
                                               Illus + u"2402illu002.gif"_s, Illus + u"2403illu000.jpg"_s,
                                               Tibis + u"2401tibi.jpg"_s, Tibis + u"2402tibi.jpg"_s,
                                               Tibis + u"2403tibi.jpg"_s}));
        QCOMPARE(QFileInfo(web.f.collection.dir.filePath(Tibis + u"2401tibi.jpg"_s)).size(), 1733);

        web.f.import.ImportChosenFile(result.listPath, ImportMode::Insert, true);
        QCOMPARE(web.f.import.Refused(), 0);
        QCOMPARE(web.f.Rows(u"SELECT Nr, Autor, Zyklus, Auflage, TiBiZeichner, IlluZeichner, RZ, RiZeObjekt, RiZeZeichner "
                            "FROM HEFTLIST JOIN Gestaltung USING (Nr) ORDER BY Nr"_s),
                 u"2401|M. Holzapfel / B. Kleinsc|XXXVIII|1|Dirk Schäfer|Lena Öztürk|-1|Sternenkreuzer der Ora Klasse|Karl Wendt/"
                 "2402|Ulrike Brandt|XXXVIII|1|Dirk Schäfer||0||/2403|Ulrike Brandt|XXXIX|1|Anja Roth|Lena Öztürk|-1|Nebelgleiter|Karl Wendt"_s);
        QCOMPARE(web.f.Rows(u"SELECT Untertitel, Person1, Person9, Inhalt, DateValue(Ersterscheinung) = DateValue('05.10.2006') "
                            "FROM Details WHERE Nr = 2401"_s),
                 u"Sie suchen das Tor - und finden die Stadt der älteren-Schläfer|Jörn Eckhardt|Hakon Frey|René Duval|1"_s);
    }

    void runEnds_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("status");
        // "@marker": the page of 2402 without the marker; with 302 the target of the redirect.
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("delay");
        QTest::addColumn<int>("last");
        QTest::addColumn<int>("stopAfter");
        QTest::addColumn<QString>("step"); // empty: no failure
        QTest::addColumn<int>("issues");
        const QString page = u"/wiki/Quelle:VN2402"_s, cover = u"/wiki/Datei:VN2402.jpg"_s;
        const QByteArray link = "<div class=\"fullImageLink\"><a href=\"";
        QTest::newRow("no persons") << page << 200 << QByteArray("@Hauptpersonen:") << 0 << 2403 << 0 << "Personen" << 1;
        QTest::newRow("oversized") << page << 200 << QByteArray(20 * 1024 * 1024 + 1, 'x') << 0 << 2403 << 0 << "URL öffnen" << 1;
        QTest::newRow("slow") << page << 200 << QByteArray("@") << 1500 << 2403 << 0 << "URL öffnen" << 1;
        QTest::newRow("redirect here") << page << 302 << QByteArray("http://127.0.0.1:@PORT@/wiki/Quelle:VN2403") << 0 << 2403 << 0 << "" << 3;
        QTest::newRow("redirect away") << page << 302 << QByteArray("http://localhost:@PORT@/wiki/Quelle:VN2403") << 0 << 2403 << 0 << "URL öffnen" << 1;
        QTest::newRow("query link") << cover << 200 << link + "/images/x.jpg?../../a\">" << 0 << 2403 << 0 << "TiBi R/W" << 1;
        QTest::newRow("foreign link") << cover << 200 << link + "@evil.example/x.jpg\">" << 0 << 2403 << 0 << "TiBi R/W" << 1;
        // Esc during the first issue ends the run after it, without failure.
        QTest::newRow("stopped") << u"/"_s << 404 << QByteArray() << 0 << 2403 << 1 << "" << 1;
        // A start forced above the end: no issue, the two files with their headers.
        QTest::newRow("empty range") << u"/"_s << 404 << QByteArray() << 0 << 2400 << 0 << "" << 0;
    }
    void runEnds()
    {
        QFETCH(QString, path);
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(int, delay);
        QFETCH(int, last);
        QFETCH(int, stopAfter);
        QFETCH(QString, step);
        QFETCH(int, issues);
        WebRun web;
        if (body.startsWith('@'))
            body = WikiFixtureServer::Padded(WikiFixtureServer::Fixture(u"VN2402.html"_s)).replace(body.mid(1), "");
        body.replace("@PORT@", web.server.Url().section(u':', -1).toUtf8());
        web.server.Set(path, {status, status == 302 ? QByteArray() : body, status == 302 ? body : QByteArray(),
                              delay, status != 200 || body.size() < 1000});
        const WebImportResult result = web.Run(2401, last, stopAfter, {20 * 1024 * 1024, 400});
        QVERIFY(result.detailsPath.endsWith(u"/WebImport_#2401-%1_Details.dat"_s.arg(last)));
        QCOMPARE(result.fehler, step.isEmpty() ? u"Es sind keine Fehler aufgetreten."_s
                                               : u"Probleme beim Netz-Import für #2402 (%1)!"_s.arg(step));
        // The issues before the failure stay in both files.
        QCOMPARE(WebRun::LineCount(result.listPath) + WebRun::LineCount(result.detailsPath), 2 * issues + 2);
        for (const QString& file : web.Pictures())
            QVERIFY2(file.startsWith(Tibis) || file.startsWith(Illus), qPrintable(file));
    }

    // Mutated pages and pages of markers alone: the scrape answers or fails, never hangs or crashes.
    void fuzzedPages()
    {
        const QString page = QString::fromLatin1(WikiFixtureServer::Fixture(u"VN2401.html"_s));
        const QStringList pieces{u"<td>Zyklus:"_s, u"<td>Autor:"_s, u"erschienen:</td>"_s, u"Risszeichnung:"_s, u"von"_s,
                                 u"</td></tr>"_s, u"'>"_s, u"\">"_s, u"</a>"_s, u" / "_s, u"&auml;"_s, u"\xc3"_s};
        QRandomGenerator random(15);
        int scraped = 0;
        for (int round = 0; round < 2000; ++round) {
            QString mutated = round % 10 == 0 ? QString() : page;
            for (int edit = random.bounded(1, 30); edit > 0; --edit) {
                const int at = random.bounded(static_cast<int>(mutated.size()) + 1);
                random.bounded(2) == 0 ? mutated.remove(at, random.bounded(40))
                                       : mutated.insert(at, pieces[random.bounded(static_cast<int>(pieces.size()))]);
            }
            WikiIssue issue;
            QString stepName;
            scraped += ScrapeIssuePage(mutated, issue, stepName) ? 1 : 0;
            QVERIFY(issue.personen.size() <= 10 && !stepName.isEmpty());
        }
        QVERIFY(scraped > 0);
    }
};

HEFT_TEST(TestWebImport)
#include "tst_webimport.moc"
