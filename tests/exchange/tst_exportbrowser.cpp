// The exported pages in a real browser: headless Chromium draws the list
// page, resolves a detail link with its backslash against the list page
// and opens the detail page it leads to.

#include "exportfixture.h"
#include "testmain.h"

#include "exchange/exportrun.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

// A cold browser start on a busy machine takes a while.
constexpr int BrowserTimeoutMs = 120000;

struct Browser {
    QString program = QStandardPaths::findExecutable(u"chromium"_s);
    QString profile;

    // Runs the browser on one page; its standard output, or a null text
    // when it failed or took too long.
    QString Run(const QStringList& arguments, const QUrl& page) const
    {
        QProcess process;
        process.start(program, QStringList{u"--headless"_s, u"--no-sandbox"_s, u"--disable-gpu"_s, u"--no-first-run"_s,
                                           u"--hide-scrollbars"_s, u"--user-data-dir="_s + profile} +
                                   arguments + QStringList{page.toString()});
        if (!process.waitForFinished(BrowserTimeoutMs)) {
            process.kill();
            process.waitForFinished();
            return {};
        }
        return QString::fromUtf8(process.readAllStandardOutput()) + u' ';
    }
    QString DumpDom(const QUrl& page) const { return Run({u"--dump-dom"_s}, page); }
    QImage Screenshot(const QUrl& page, const QString& file) const
    {
        Run({u"--screenshot="_s + file, u"--window-size=1200,700"_s}, page);
        if (QDir(u"/tmp/shots"_s).exists()) {
            const QString shot = u"/tmp/shots/export_"_s + QFileInfo(file).fileName();
            QFile::remove(shot);
            QFile::copy(file, shot);
        }
        return QImage(file);
    }
};

// The share of pixels in the colour.
double Share(const QImage& image, QRgb colour)
{
    qint64 hits = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            hits += (image.pixel(x, y) & 0xffffff) == (colour & 0xffffff);
    return double(hits) / (double(image.width()) * image.height());
}

} // namespace

class TestExportBrowser : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pagesInChromium()
    {
        Browser browser;
        if (browser.program.isEmpty())
            QSKIP("chromium is not installed (scripts/install-deps installs it)");
        TempCollection c;
        AddExportEntries(c);
        QTemporaryDir profile;
        browser.profile = profile.path();
        ExportOptions options;
        options.html = options.details = options.gelesen = true;
        const ExportTarget target{c.dir.path(), u"Liste"_s};
        RunExportChain(c.session, ExportRows(c), target, options, {});
        const QUrl listPage = QUrl::fromLocalFile(target.Path(u".html"_s));

        // The list: the head cells in #330099 and the table in #ccccff.
        const QImage list = browser.Screenshot(listPage, c.dir.filePath(u"list.png"_s));
        QVERIFY2(!list.isNull(), "no screenshot of the list page");
        QVERIFY(Share(list, qRgb(0xcc, 0xcc, 0xff)) > 0.01);
        QVERIFY(Share(list, qRgb(0x33, 0x00, 0x99)) > 0.005);

        // The link as the page has it, resolved by the browser against the
        // list page, from a probe beside it.
        const QString page = FileLines(target.Path(u".html"_s)).join(u'\n');
        const QRegularExpressionMatch link = QRegularExpression(u"href=\"([^\"]+)\""_s).match(page);
        QVERIFY(link.hasMatch());
        QCOMPARE(link.captured(1), u"Liste_Details\\1.html"_s);
        QFile probe(c.dir.filePath(u"probe.html"_s));
        QVERIFY(probe.open(QIODevice::WriteOnly));
        probe.write("<html><body><a id=l href=\"" + link.captured(1).toLatin1() +
                    "\">x</a><script>document.body.setAttribute('data-href', "
                    "document.getElementById('l').href)</script></body></html>");
        probe.close();
        const QString dom = browser.DumpDom(QUrl::fromLocalFile(probe.fileName()));
        const QRegularExpressionMatch resolved = QRegularExpression(u"data-href=\"([^\"]+)\""_s).match(dom);
        QVERIFY2(resolved.hasMatch(), qPrintable(dom));
        const QUrl detailPage(resolved.captured(1));
        QCOMPARE(detailPage, QUrl::fromLocalFile(QDir(target.DetailsFolder()).filePath(u"1.html"_s)));

        const QString details = browser.DumpDom(detailPage);
        QVERIFY2(details.contains(u"<title>Heftarium HTML Export Details</title>"_s), qPrintable(details));
        QVERIFY(details.contains(u"Detail Valdorin Heftromane: #1"_s));
        const QImage detail = browser.Screenshot(detailPage, c.dir.filePath(u"detail.png"_s));
        QVERIFY(Share(detail, qRgb(0xff, 0xcc, 0x99)) > 0.05);
    }
};

HEFT_TEST(TestExportBrowser)
#include "tst_exportbrowser.moc"
