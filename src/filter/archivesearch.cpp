#include "archivesearch.h"

#include "core/codepage.h"
#include "core/pathresolve.h"
#include "core/session.h"
#include "core/textfuncs.h"
#include "mainwin/entrylist.h"

#include <QFile>

#include <vector>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The folder of the copy where all books share one page.
const QString SharedBookFolder = u"Archiv/SEITEN/BUECHER"_s;

QString JoinWord(ArchiveJoin join)
{
    switch (join) {
    case ArchiveJoin::Und: return u" UND '"_s;
    case ArchiveJoin::Oder: return u" ODER '"_s;
    case ArchiveJoin::Exor: return u" ENTWEDER ODER '"_s;
    }
    return {};
}

// The part of the page that belongs to book nr; empty when its section has
// no following one, as for the last book.
QByteArray BookSection(const QByteArray& page, int nr)
{
    const QByteArray head = ArchivePageMarker() + QByteArray::number(nr);
    const QByteArray nextHead = ArchivePageMarker() + QByteArray::number(nr + 1);
    const qsizetype start = page.indexOf(head);
    const qsizetype end = page.indexOf(nextHead);
    if (start >= 0 && end > start)
        return page.mid(start, end - start);
    return {};
}

} // namespace

bool ArchiveQuery::IsWanted() const { return mode != ArchiveMode::Keine && !Trim(word1).isEmpty(); }

const QByteArray& ArchivePageMarker()
{
    static const QByteArray marker = QByteArrayLiteral("<FONT COLOR=\"White\" SIZE=\"4\">");
    return marker;
}

bool ArchivePageScanner::Word::FoundIn(const QByteArray& text) const
{
    return legacy.indexIn(text) >= 0 || (utf8.pattern() != legacy.pattern() && utf8.indexIn(text) >= 0);
}

ArchivePageScanner::ArchivePageScanner(const Configuration& config, const ArchiveQuery& query,
                                       std::function<QList<Volume>()> volumes)
    : m_config(config), m_join(query.join), m_volumes(std::move(volumes)),
      m_word1{QByteArrayMatcher(ToWindows1252(Trim(query.word1))), QByteArrayMatcher(Trim(query.word1).toUtf8())},
      m_word2{QByteArrayMatcher(ToWindows1252(Trim(query.word2))), QByteArrayMatcher(Trim(query.word2).toUtf8())},
      m_hasWord2(!Trim(query.word2).isEmpty())
{
}

int ArchivePageScanner::ScanArchivePage(const ArchivePageLocation& location, int nr) const
{
    const QString copy = ResolvePath(m_config.ArchiveRoot, location.copyFolder + u'/' + location.fileName);
    QFile file(copy);
    const bool fromCopy = !copy.isEmpty() && file.open(QIODevice::ReadOnly);
    if (!fromCopy) {
        QString label;
        const QString root = FindArchiveDrive(m_volumes(), label);
        const QString onCd = root.isEmpty() ? QString() : ResolvePath(root, location.cdFolder + u'/' + location.fileName);
        file.setFileName(onCd);
        if (onCd.isEmpty() || !file.open(QIODevice::ReadOnly))
            return -1;
    }
    QByteArray page = file.readAll();
    if (page.isEmpty())
        return 0;
    // The CD's own label never reads "Archiv_CD_1", so only the copy of the
    // first edition gets its one page of all books cut to the book.
    if (m_config.ListKind == TaschenbuecherList && fromCopy && location.copyFolder == SharedBookFolder)
        page = BookSection(page, nr);

    int hits = m_word1.FoundIn(page) ? 1 : 0;
    if (!m_hasWord2)
        return hits;
    if (m_word2.FoundIn(page))
        ++hits;
    switch (m_join) {
    case ArchiveJoin::Und: return hits == 2 ? hits : 0;
    case ArchiveJoin::Oder: return hits;
    case ArchiveJoin::Exor: return hits == 1 ? hits : 0;
    }
    return 0;
}

ArchiveFilterTexts MakeArchiveFilterTexts(const ArchiveQuery& query, int hitCount, int rows)
{
    const QString word1 = Trim(query.word1);
    const QString word2 = Trim(query.word2);
    ArchiveFilterTexts texts{u"\n\nStichwortsuche im Valdorin Archiv nach:\n'"_s + word1 + u'\'',
                             u"(Archivfilter:'"_s + word1 + u'\''};
    if (!word2.isEmpty()) {
        const QString second = JoinWord(query.join) + word2 + u'\'';
        texts.text += second;
        texts.note += second;
    }
    const bool filtering = query.mode == ArchiveMode::Filter;
    if (filtering)
        texts.note += u')';
    else
        texts.note.clear();
    if (hitCount > 1)
        texts.text += u"  (%1 von %2 Einträgen"_s.arg(hitCount).arg(rows);
    else if (hitCount == 1)
        texts.text += u"  (1 Eintrag"_s;
    else
        texts.text += u"  (Kein Eintrag"_s;
    texts.text += filtering ? u" gefiltert)"_s : u" markiert)"_s;
    return texts;
}

int SearchArchive(Session& session, EntryList& list, const ArchiveQuery& query, const ArchiveSearchHooks& hooks,
                  ArchiveFilterTexts& texts)
{
    EntryGrid& grid = *list.ActiveGrid;
    const int n = grid.Rows() - 1;
    hooks.startProgress(n);
    hooks.status(u"Durchsuche Archiv CD ..."_s);
    std::vector<bool> dropRow(static_cast<size_t>(n) + 1, false);
    QString label;
    FindArchiveDrive(hooks.volumes(), label);
    const QString& listKind = session.Config.ListKind;
    const ArchivePageScanner scanner(session.Config, query, hooks.volumes);
    const auto scan = [&](ArchiveEdition edition, int nr) {
        const std::optional<ArchivePageLocation> page = ArchivePage(edition, listKind, nr);
        return page ? scanner.ScanArchivePage(*page, nr) : 0;
    };

    int hitCount = 0;
    for (int r = 1; r <= n; ++r) {
        const int nr = static_cast<int>(Val(grid.TextMatrix(r, ColNr)));
        int result = 0;
        if (label == FirstArchiveLabel) {
            if (InSearchRange(ArchiveEdition::First, listKind, nr))
                result = scan(ArchiveEdition::First, nr);
        } else if (label == SecondArchiveLabel) {
            if (InSearchRange(ArchiveEdition::Second, listKind, nr))
                result = scan(ArchiveEdition::Second, nr);
        } else {
            if (InSearchRange(ArchiveEdition::Second, listKind, nr))
                result = scan(ArchiveEdition::Second, nr);
            if (InSearchRange(ArchiveEdition::First, listKind, nr) && result < 0)
                result = scan(ArchiveEdition::First, nr);
        }
        if (result < 0) {
            const Answer answer = session.prompter->Ask({u"CD-Rom einlegen"_s,
                                                         u"Bitte Valdorin\r\nArchiv CD I/II einlegen."_s,
                                                         MessageIcon::Question, MessageButtons::RetryCancel});
            // A retry starts a whole new search, whose result is not taken:
            // the filter reports no hits either way.
            if (answer == Answer::Retry)
                SearchArchive(session, list, query, hooks, texts);
            return 0;
        }
        if (result > 0 && query.mode == ArchiveMode::Farbe) {
            grid.Model().MarkHit(r - 1);
            ++hitCount;
        } else if (result == 0 && query.mode == ArchiveMode::Filter) {
            dropRow[static_cast<size_t>(r)] = true;
            ++hitCount;
        }
        hooks.progress(r);
        if (hooks.aborted())
            return 0;
    }

    if (query.mode == ArchiveMode::Filter) {
        if (hitCount >= n)
            return 0;
        // One reset instead of a removal per row keeps long lists quick.
        const EntryGridModel& model = grid.Model();
        std::vector<EntryCells> kept;
        kept.reserve(static_cast<size_t>(n - hitCount));
        for (int r = 1; r <= n; ++r) {
            if (dropRow[static_cast<size_t>(r)])
                continue;
            EntryCells cells;
            for (int column = 0; column < EntryColumnCount; ++column)
                cells[static_cast<size_t>(column)] = model.Text(r - 1, column);
            kept.push_back(std::move(cells));
        }
        grid.Model().Reset(std::move(kept));
        grid.SetTopRow(1);
    }
    grid.SetRow(1);
    list.UpdateSelectionPanel();
    if (query.IsWanted())
        texts = MakeArchiveFilterTexts(query, hitCount, n);
    return n;
}

} // namespace heft
