#include "wikiscrape.h"

#include "wikitext.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Walks the page from marker to marker; `end` is where the last value ended
// and the next search begins.
class PageWalk {
public:
    explicit PageWalk(const QString& page) : m_page(page) {}

    // The raw text behind `marker` and then behind `opener` (when given), up
    // to `closer`. A missing marker or delimiter fails the cut rather than
    // taking a piece of some other row.
    std::optional<QString> Cut(const QString& marker, const QString& opener, const QString& closer)
    {
        const auto at = FindText(m_page, marker, m_end);
        return at && *at > 0 ? CutFrom(*at, marker.size(), opener, closer) : std::nullopt;
    }
    // Whether the marker stands anywhere after the last value.
    bool Has(const QString& marker) const { return *FindText(m_page, marker, m_end) > 0; }

private:
    std::optional<QString> CutFrom(qsizetype at, qsizetype markerSize, const QString& opener, const QString& closer)
    {
        qsizetype start = at + markerSize;
        if (!opener.isEmpty()) {
            const auto open = FindText(m_page, opener, start);
            if (!open || *open == 0)
                return std::nullopt;
            start = *open + opener.size();
        }
        const auto close = FindText(m_page, closer, start);
        if (!close || *close == 0)
            return std::nullopt;
        m_end = *close;
        return m_page.mid(start - 1, *close - start);
    }

    const QString& m_page;
    qsizetype m_end = 1;
};

std::optional<QString> Decoded(const std::optional<QString>& raw)
{
    return raw ? std::optional<QString>(DecodeWebText(*raw)) : std::nullopt;
}

std::optional<QString> LinkTexts(const std::optional<QString>& raw)
{
    return raw ? LinkTextsOnly(DecodeWebText(*raw)) : std::nullopt;
}

bool Call(const std::function<bool()>& hook) { return !hook || hook(); }

} // namespace

bool ScrapeIssuePage(const QString& page, WikiIssue& issue, QString& stepName, const ScrapeHooks& hooks)
{
    PageWalk walk(page);
    const QString endOfCell = u"</td>"_s;
    const QString endOfRow = u"</td></tr>"_s;

    stepName = step::Cycle;
    const auto cycle = walk.Cut(u"<td>Zyklus:"_s, u"\">"_s, u"</a>"_s);
    if (!cycle)
        return false;
    issue.cycleName = *cycle;
    if (hooks.cycle && !hooks.cycle(issue.cycleName))
        return false;

    stepName = step::Title;
    const auto title = Decoded(walk.Cut(u"<td>Titel:"_s, u"<b>"_s, u"</b>"_s));
    if (!title)
        return false;
    issue.titel = *title;

    stepName = step::Subtitle;
    const auto subtitle = Decoded(walk.Cut(u"<td>Untertitel:"_s, u"<td>"_s, endOfCell));
    if (!subtitle)
        return false;
    issue.untertitel = *subtitle;

    stepName = step::Author;
    const auto links = LinkTexts(walk.Cut(u"<td>Autor:"_s, {}, endOfRow));
    const auto authors = links ? ShortenAuthors(*links) : std::nullopt;
    if (!authors)
        return false;
    issue.autor = *authors;

    stepName = step::CoverArtist;
    const auto coverArtist = LinkTexts(walk.Cut(u"<td>Titelbildzeichner:"_s, {}, endOfRow));
    if (!coverArtist)
        return false;
    issue.tibiZeichner = *coverArtist;
    if (!Call(hooks.cover))
        return false;

    stepName = step::Illustrators;
    // Not every issue has illustrations: without the row the field stays
    // empty and the next search starts where the last one ended.
    const QString illustratorMarker = u"<td>Innenillustrator:"_s;
    const auto illustrators =
        walk.Has(illustratorMarker) ? LinkTexts(walk.Cut(illustratorMarker, {}, endOfRow)) : QString();
    if (!illustrators)
        return false;
    issue.illuZeichner = *illustrators;
    if (!Call(hooks.illustration))
        return false;

    stepName = step::Date;
    const auto dateCell = Decoded(walk.Cut(u"erschienen:</td>"_s, {}, endOfCell));
    const auto date = dateCell ? WebDateText(*dateCell) : std::nullopt;
    if (!date)
        return false;
    issue.datum = *date;

    stepName = step::Persons;
    const auto personCell = Decoded(walk.Cut(u"Hauptpersonen:"_s, {}, endOfRow));
    const auto persons = personCell ? PersonNames(*personCell) : std::nullopt;
    if (!persons)
        return false;
    issue.personen = *persons;

    stepName = step::Poster;
    const QString posterMarker = u"Risszeichnung:"_s;
    if (!walk.Has(posterMarker))
        return true;
    const auto object = Decoded(walk.Cut(posterMarker, u"\">"_s, u"</a>"_s));
    if (!object)
        return false;
    issue.rz = true;
    issue.rizeObjekt = *object;
    stepName = step::PosterArtist;
    const auto artist = Decoded(walk.Cut(u"von"_s, u"\">"_s, u"</a>"_s));
    if (!artist)
        return false;
    issue.rizeZeichner = *artist;
    return true;
}

} // namespace heft
