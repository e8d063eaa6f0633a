#pragma once
// ScrapeWikiRange: the web import without its windows. For each number of
// a range it fetches the issue page of the wiki, cuts the values out, and
// writes them as a .dat list file and details file in the import folder,
// which the file import then reads. Covers and illustrations go straight to
// the picture folders. The collection itself is not touched.

#include "webfetcher.h"

#include <QString>
#include <QStringList>

namespace heft {

class Session;

struct WebImportRequest {
    int first = 0;
    int last = 0;
    bool covers = false;
    bool illustrations = false;
    QString importFolder;
};

class WebImportObserver {
public:
    virtual ~WebImportObserver() = default;
    // The status text of the main window.
    virtual void Status(const QString& /*text*/) {}
    // Progress runs up to `count` issues.
    virtual void Started(int /*count*/) {}
    // The report grew by a line.
    virtual void Report(const QString& /*bericht*/) {}
    // After each issue, with the number of issues done; false stops the run
    // here (Esc). The place to let pending events run.
    virtual bool IssueDone(int /*done*/) { return true; }
    // Every run ends here, however it ended.
    virtual void Finished() {}
};

struct WebImportResult {
    QString bericht;
    QString fehler;
    bool failed = false;
    QString listPath;
    QString detailsPath;
    // Issues written to both files.
    int issues = 0;
    // Picture files written, full paths.
    QStringList pictures;
};

// "WebImport_#{first}-{last}" in the import folder, without extension.
QString WebImportBase(const WebImportRequest& request);

// Reads the picture folders from session.Config and notes a failure in the
// log. Runs transfers one at a time; see WebFetcher.
WebImportResult ScrapeWikiRange(const Session& session, const WebImportRequest& request,
                                WebImportObserver& observer, const WebLimits& limits = {});

} // namespace heft
