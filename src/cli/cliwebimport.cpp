// heftarium-cli --db PATH webimport FIRST LAST [--tibi] [--illu]: the web
// import of the range into the import folder beside the collection, with
// covers and illustrations when asked, printing both report texts and the
// files written. HEFTARIUM_WIKI_URL points it at another wiki.

#include "cliexchange.h"
#include "clihelp.h"

#include "core/config.h"
#include "core/session.h"
#include "exchange/webimport.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// False when the words are not understood.
bool ReadRequest(const QStringList& words, WebImportRequest& request)
{
    bool firstOk = false, lastOk = false;
    request.first = words.value(0).toInt(&firstOk);
    request.last = words.value(1).toInt(&lastOk);
    for (const QString& word : words.mid(2)) {
        if (word == u"--tibi")
            request.covers = true;
        else if (word == u"--illu")
            request.illustrations = true;
        else
            return false;
    }
    return firstOk && lastOk;
}

QString Lines(const QString& text) { return QString(text).replace(u"\r\n"_s, u"\n"_s); }

} // namespace

int WebImportCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err)
{
    WebImportRequest request;
    if (!ReadRequest(words, request))
        return UsageError(err, u"webimport"_s);
    DbError error;
    if (!ReadConfiguration(session, &error)) {
        err << u"KONFIGURATION nicht lesbar: "_s << error.description << u'\n';
        return 1;
    }
    ReadParameters(session);
    request.importFolder = QDir(session.DataFolder).filePath(u"import"_s);

    WebImportObserver quiet;
    const WebImportResult result = ScrapeWikiRange(session, request, quiet);
    out << u"== Bericht ==\n"_s << Lines(result.bericht) << u"\n== Fehlerliste ==\n"_s << result.fehler
        << u"\n\n== Dateien ==\n"_s;
    for (const QString& path : QStringList{result.listPath, result.detailsPath} + result.pictures)
        out << QDir::toNativeSeparators(path) << u'\n';
    return result.failed ? 1 : 0;
}

} // namespace heft
