#pragma once
// The keyword search in the archive: after a filter has filled the filter
// list, the page of each entry is read whole and searched, as raw bytes and
// with case counting, for one or two words. Hits are coloured, or the rows
// without a hit are dropped. There is no index: every row reads its page.

#include "core/drives.h"
#include "details/archivelink.h"

#include <QByteArray>
#include <QByteArrayMatcher>
#include <QList>
#include <QString>

#include <functional>

namespace heft {

class EntryList;
class Session;
struct Configuration;

// The entries of cmb_aftype and cmb_archiv, by list index.
enum class ArchiveMode { Keine, Farbe, Filter };
enum class ArchiveJoin { Und, Oder, Exor };

struct ArchiveQuery {
    ArchiveMode mode = ArchiveMode::Keine;
    QString word1;
    QString word2;
    ArchiveJoin join = ArchiveJoin::Und;

    // Whether the filter runs the search at all.
    bool IsWanted() const;
};

// The head of one book's section in the single page of all Taschenbücher.
const QByteArray& ArchivePageMarker();

// Reads and searches single pages.
class ArchivePageScanner {
public:
    ArchivePageScanner(const Configuration& config, const ArchiveQuery& query,
                       std::function<QList<Volume>()> volumes);
    // -1 page not found, 0 no match, above 0 a match.
    int ScanArchivePage(const ArchivePageLocation& location, int nr) const;

private:
    // A word as the page may hold it: in the archive's own code page and,
    // for a copy saved anew, in UTF-8.
    struct Word {
        QByteArrayMatcher legacy;
        QByteArrayMatcher utf8;
        bool FoundIn(const QByteArray& text) const;
    };

    const Configuration& m_config;
    ArchiveJoin m_join;
    std::function<QList<Volume>()> m_volumes;
    Word m_word1;
    Word m_word2;
    bool m_hasWord2;
};

// The search in words: for the small filter window, and for the heads of
// prints and exports.
struct ArchiveFilterTexts {
    QString text;
    QString note;
};
ArchiveFilterTexts MakeArchiveFilterTexts(const ArchiveQuery& query, int hitCount, int rows);

// What the search needs from the window around it.
struct ArchiveSearchHooks {
    std::function<QList<Volume>()> volumes;
    std::function<void(int maximum)> startProgress;
    // Moves the progress bar and lets pending events run.
    std::function<void(int value)> progress;
    std::function<void(const QString&)> status;
    // Set by Esc.
    std::function<bool()> aborted;
};

// SearchArchive on the active list: the number of rows before the search,
// or 0 when nothing is left, a page was missing or the search was broken
// off. Fills texts when the search ran to its end.
int SearchArchive(Session& session, EntryList& list, const ArchiveQuery& query, const ArchiveSearchHooks& hooks,
                  ArchiveFilterTexts& texts);

} // namespace heft
