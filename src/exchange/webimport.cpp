#include "webimport.h"

#include "datfile.h"
#include "datformat.h"
#include "webaddresses.h"
#include "wikiscrape.h"
#include "wikitext.h"

#include "core/picturenames.h"
#include "core/roman.h"
#include "core/session.h"
#include "core/textfuncs.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// A page shorter than this is the wiki's answer for a page it doesn't have.
constexpr qsizetype MinimumPageSize = 20480;
// A fallback picture of this size or less is the publisher's placeholder:
// it ends the series.
constexpr qsizetype PlaceholderSize = 2049;
// Page numbers of a picture file have three digits.
constexpr int MaxFallbackPictures = 999;

const QString Cover = KindWord(CoverKind);
const QString Illustration = KindWord(IllustrationKind);

bool IsAsciiAlnum(const QString& text)
{
    return !text.isEmpty() && std::all_of(text.cbegin(), text.cend(), [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9');
    });
}

class RangeRun {
public:
    RangeRun(const Session& session, const WebImportRequest& request, WebImportObserver& observer,
             const WebLimits& limits)
        : m_session(session), m_request(request), m_observer(observer), m_fetcher(limits),
          m_wiki(WikiBaseUrl()), m_publisher(PublisherBaseUrl())
    {
    }

    WebImportResult Run();

private:
    bool ImportIssue(int nr, DatOutputFile& list, DatOutputFile& details);
    // The page as it came, one character per byte.
    bool FetchWikiPage(const QString& path, QString& page);
    bool LookUpCycle(const QString& name);
    bool SaveCover(int nr);
    bool SaveIllustrations(int nr);
    // The picture a picture page links to; nullopt when it can't be had.
    std::optional<QByteArray> LinkedPicture(const QString& picturePage, QString& link);
    bool SaveFallbackIllustrations(int nr);
    bool SavePicture(const QString& kind, const QString& fileName, const QByteArray& bytes);
    bool Fail(const QString& reason)
    {
        m_reason = reason;
        return false;
    }

    const Session& m_session;
    const WebImportRequest& m_request;
    WebImportObserver& m_observer;
    WebFetcher m_fetcher;
    const QString m_wiki;
    const QString m_publisher;
    WebImportResult m_result;
    QString m_step;
    QString m_reason;
    QString m_cycleName;
    QString m_cycle;
};

WebImportResult RangeRun::Run()
{
    m_step = step::Init;
    const int count = m_request.last - m_request.first + 1;
    int nr = m_request.first;
    m_observer.Status(u"Importiere Webeinträge ..."_s);
    m_observer.Started(qMax(count, 0));
    m_result.bericht = u"Öffne Verbindung zum Web-Server ...\r\n"_s;
    m_observer.Report(m_result.bericht);

    const QString base = WebImportBase(m_request);
    m_result.listPath = base + u".dat"_s;
    m_result.detailsPath = base + u"_Details.dat"_s;
    DatOutputFile list, details;
    bool ok = QDir().mkpath(m_request.importFolder) && list.Open(m_result.listPath) &&
              details.Open(m_result.detailsPath);
    if (ok) {
        list.WriteLine(ListHeader(m_session.Config.SeriesName, m_session.Config.ListKind));
        details.WriteLine(DetailsHeader(m_session.Config.SeriesName));
    } else {
        m_reason = u"Import-Dateien nicht anlegbar"_s;
    }
    for (int i = 0; ok && i < count; ++i) {
        nr = m_request.first + i;
        ok = ImportIssue(nr, list, details);
        if (ok && !m_observer.IssueDone(i + 1))
            break;
    }
    // What was written stays, so that the issues before a failure can be
    // imported.
    if (!list.Close() || !details.Close()) {
        if (ok)
            m_reason = u"Import-Dateien nicht vollständig geschrieben"_s;
        ok = false;
    }

    m_result.failed = !ok;
    if (ok) {
        m_result.fehler = u"Es sind keine Fehler aufgetreten."_s;
        m_observer.Status(u"Fertig und Bereit."_s);
    } else {
        m_result.fehler = u"Probleme beim Netz-Import für #%1 (%2)!"_s.arg(nr).arg(m_step);
        m_session.WriteLog(LogInfo, m_result.fehler + u' ' + m_reason);
        m_observer.Status(u"Fertig mit Fehlern."_s);
    }
    m_observer.Finished();
    return m_result;
}

bool RangeRun::ImportIssue(int nr, DatOutputFile& list, DatOutputFile& details)
{
    m_step = step::OpenUrl;
    QString page;
    if (!FetchWikiPage(u"/wiki/Quelle:VN%1"_s.arg(nr), page))
        return false;
    if (page.size() < MinimumPageSize)
        return Fail(u"Seite fehlt (%1 Zeichen)"_s.arg(page.size()));
    m_result.bericht += u"Übertrage und konvertiere Daten für #%1\r\n"_s.arg(nr);
    m_observer.Report(m_result.bericht);

    WikiIssue issue;
    ScrapeHooks hooks;
    hooks.cycle = [this](const QString& name) { return LookUpCycle(name); };
    if (m_request.covers)
        hooks.cover = [this, nr] { return SaveCover(nr); };
    if (m_request.illustrations)
        hooks.illustration = [this, nr] { return SaveIllustrations(nr); };
    if (!ScrapeIssuePage(page, issue, m_step, hooks))
        return m_reason.isEmpty() ? Fail(u"Marke oder Wert fehlt"_s) : false;

    m_step = step::ListLine;
    ListRecord entry;
    entry.Nr = QString::number(nr);
    entry.Autor = issue.autor;
    entry.Titel = issue.titel;
    entry.Auflage = u"1"_s;
    entry.Zyklus = m_cycle;
    list.WriteLine(ListLine(entry));

    m_step = step::DetailsLine;
    DetailsRecord record;
    record.Nr = entry.Nr;
    record.Ersterscheinung = issue.datum;
    record.Untertitel = issue.untertitel;
    for (qsizetype n = 0; n < issue.personen.size(); ++n) {
        if (n < static_cast<qsizetype>(record.Persons.size()))
            record.Persons[static_cast<size_t>(n)] = issue.personen[n];
        else
            record.Inhalt = issue.personen[n];
    }
    record.TiBiZeichner = issue.tibiZeichner;
    record.IlluZeichner = issue.illuZeichner;
    record.Rz = issue.rz;
    record.RiZeObjekt = issue.rizeObjekt;
    record.RiZeZeichner = issue.rizeZeichner;
    // Attribute 1 is the last change, which the import is.
    record.Status[0] = QDateTime::currentDateTime().toString(u"yyyy-MM-dd 'um' hh:mm:ss"_s);
    details.WriteLine(DetailsLine(record));
    ++m_result.issues;
    return true;
}

bool RangeRun::FetchWikiPage(const QString& path, QString& page)
{
    const WebReply reply = m_fetcher.Get(QUrl(m_wiki + path));
    if (!reply.Succeeded())
        return Fail(reply.error);
    page = QString::fromLatin1(reply.body);
    return true;
}

bool RangeRun::LookUpCycle(const QString& name)
{
    // Issues of one cycle follow one another: the list is read again only
    // when the cycle changes.
    if (name == m_cycleName)
        return true;
    m_cycleName = name;
    QString listPage;
    if (!FetchWikiPage(u"/wiki/Zyklen"_s, listPage))
        return false;
    const auto number = CycleNumberOnList(listPage, name);
    if (!number)
        return Fail(u"Zyklus nicht in der Liste"_s);
    m_cycle = NumberToRoman(int(*number));
    return true;
}

bool RangeRun::SaveCover(int nr)
{
    m_step = step::CoverFile;
    QString page, link;
    if (!FetchWikiPage(u"/wiki/Datei:VN%1.jpg"_s.arg(nr), page))
        return false;
    const auto bytes = LinkedPicture(page, link);
    if (!bytes)
        return false;
    const QString extension = Right(link, 3);
    if (!IsAsciiAlnum(extension))
        return Fail(u"Endung des Bildes ungültig: %1"_s.arg(extension));
    return SavePicture(Cover, PictureFileName(nr, Cover, {}, u'.' + extension), *bytes);
}

bool RangeRun::SaveIllustrations(int nr)
{
    m_step = step::IllustrationFile;
    QString page, link;
    if (!FetchWikiPage(u"/wiki/Datei:VN%1Illu.jpg"_s.arg(nr), page))
        return false;
    if (*FindText(page, u"fullImageLink"_s, 1) == 0)
        return SaveFallbackIllustrations(nr);
    const auto bytes = LinkedPicture(page, link);
    if (!bytes)
        return false;
    const QString extension = Right(link, 4);
    if (!extension.startsWith(u'.') || !IsAsciiAlnum(extension.mid(1)))
        return Fail(u"Endung des Bildes ungültig: %1"_s.arg(extension));
    return SavePicture(Illustration, PictureFileName(nr, Illustration, IllustrationPage(0), extension),
                       *bytes);
}

std::optional<QByteArray> RangeRun::LinkedPicture(const QString& picturePage, QString& link)
{
    const auto found = FullImageLink(picturePage);
    if (!found) {
        Fail(u"Kein Bild auf der Bildseite"_s);
        return std::nullopt;
    }
    link = *found;
    const QUrl url(m_wiki + link);
    if (!SameServer(url, QUrl(m_wiki))) {
        Fail(u"Bild auf einem anderen Server: %1"_s.arg(url.toString()));
        return std::nullopt;
    }
    WebReply reply = m_fetcher.Get(url);
    if (!reply.Succeeded()) {
        Fail(reply.error);
        return std::nullopt;
    }
    return std::move(reply.body);
}

bool RangeRun::SaveFallbackIllustrations(int nr)
{
    // The publisher numbers the illustrations of an issue from 1; a small
    // answer or none at all is the end of them.
    for (int k = 1; k <= MaxFallbackPictures; ++k) {
        const WebReply reply = m_fetcher.Get(QUrl(m_publisher + u"/pics/2/%1illu%2.gif"_s.arg(nr).arg(k)));
        if (!reply.ok)
            return Fail(reply.error);
        if (!reply.Succeeded() || reply.body.size() <= PlaceholderSize)
            return true;
        if (!SavePicture(Illustration, PictureFileName(nr, Illustration, IllustrationPage(k), u".gif"_s),
                         reply.body))
            return false;
    }
    return true;
}

bool RangeRun::SavePicture(const QString& kind, const QString& fileName, const QByteArray& bytes)
{
    const QString folder = PictureFolder(m_session.Config, kind);
    QDir().mkpath(folder);
    QFile file(QDir(folder).filePath(fileName));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        return Fail(u"Bilddatei nicht schreibbar: %1"_s.arg(file.fileName()));
    m_result.pictures << file.fileName();
    return true;
}

} // namespace

QString WebImportBase(const WebImportRequest& request)
{
    return QDir(request.importFolder).filePath(u"WebImport_#%1-%2"_s.arg(request.first).arg(request.last));
}

WebImportResult ScrapeWikiRange(const Session& session, const WebImportRequest& request,
                                WebImportObserver& observer, const WebLimits& limits)
{
    return RangeRun(session, request, observer, limits).Run();
}

} // namespace heft
