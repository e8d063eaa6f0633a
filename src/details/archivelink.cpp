#include "archivelink.h"

#include "core/pathresolve.h"
#include "core/session.h"
#include "core/textfuncs.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The last issues each edition holds, as the archive command checks them.
struct EditionLimits {
    int heftromane;
    int silberbaende;
};
constexpr EditionLimits FirstEditionLimits{1850, 56};
constexpr EditionLimits SecondEditionLimits{2093, 76};

QString Padded(int number, int digits) { return u"%1"_s.arg(number, digits, 10, QChar(u'0')); }

QString Joined(const QString& folder, const QString& name) { return folder + u'/' + name; }

// The CD's notice that an issue lies beyond its content.
bool RefusedBeyondLimits(Session& session, int nr, const EditionLimits& limits, const QString& roman)
{
    const QString& list = session.Config.ListKind;
    if (!((list == HeftromaneList && nr > limits.heftromane) ||
          (list == SilberbaendeList && nr > limits.silberbaende)))
        return false;
    session.prompter->Tell(u"Info zum Datenumfang der Archiv CD"_s,
                           u"Die Valdorin Archiv CD %1\r\nbeinhaltet nur die Heftromane\r\nbis zur Ausgabe %2 und "
                           "die\r\nSilberbände bis zur Ausgabe %3."_s.arg(roman)
                               .arg(limits.heftromane)
                               .arg(limits.silberbaende),
                           MessageIcon::Information);
    return true;
}

} // namespace

std::optional<ArchivePageLocation> ArchivePage(ArchiveEdition edition, const QString& listKind, int nr)
{
    if (edition == ArchiveEdition::First) {
        if (listKind == HeftromaneList) {
            const QString hundreds = u"SEITEN/H"_s + QString::number(100 * HundredsOf(nr));
            return ArchivePageLocation{u"Archiv/"_s + hundreds, QString::number(nr) + u".htm"_s, u"HTML/"_s + hundreds};
        }
        if (listKind == TaschenbuecherList)
            return ArchivePageLocation{u"Archiv/SEITEN/BUECHER"_s, u"TBs.htm"_s, u"HTML/SEITEN/BUECHER"_s};
        if (listKind == SilberbaendeList)
            return ArchivePageLocation{u"Archiv/SEITEN/BUECHER"_s, u"Buch"_s + QString::number(nr) + u".htm"_s,
                                       u"HTML/SEITEN/BUECHER"_s};
        return std::nullopt;
    }
    if (listKind == HeftromaneList)
        return ArchivePageLocation{u"Archiv/HEFTE"_s, u"HEFT"_s + Padded(nr, 4) + u".HTM"_s, u"HEFTE"_s};
    if (listKind == TaschenbuecherList)
        return ArchivePageLocation{u"Archiv/TABUS"_s, u"TABU"_s + Padded(nr, 3) + u".HTM"_s, u"TABUS"_s};
    if (listKind == SilberbaendeList)
        return ArchivePageLocation{u"Archiv/SILBER"_s, u"SILBER"_s + Padded(nr, 2) + u".HTM"_s, u"SILBER"_s};
    return std::nullopt;
}

bool InSearchRange(ArchiveEdition edition, const QString& listKind, int nr)
{
    const bool first = edition == ArchiveEdition::First;
    if (listKind == HeftromaneList)
        return nr < (first ? 1850 : 2094);
    if (listKind == TaschenbuecherList)
        return nr < 408;
    if (listKind == SilberbaendeList)
        return nr < (first ? 57 : 77);
    return false;
}

ArchiveFile LocateArchivePage(const QString& archiveRoot, const QList<Volume>& volumes,
                              const ArchivePageLocation& location)
{
    const QString copy = ResolvePath(archiveRoot, Joined(location.copyFolder, location.fileName));
    if (const QFileInfo page(copy); !copy.isEmpty() && page.isFile())
        return {copy, page.size()};
    QString label;
    const QString root = FindArchiveDrive(volumes, label);
    if (root.isEmpty())
        return {};
    const QString onCd = ResolvePath(root, Joined(location.cdFolder, location.fileName));
    if (const QFileInfo page(onCd); !onCd.isEmpty() && page.isFile())
        return {onCd, page.size()};
    return {};
}

qint64 OpenArchiveDocument(const QString& archiveRoot, const QList<Volume>& volumes,
                           const ArchivePageLocation& location, DocumentOpener& opener)
{
    const ArchiveFile page = LocateArchivePage(archiveRoot, volumes, location);
    if (page.size >= 0)
        opener.Open(page.path);
    return page.size;
}

void ArchiveLinkClick(Session& session, int nr, const ArchiveLinkHooks& hooks)
{
    const Configuration& config = session.Config;
    for (;;) {
        const QList<Volume> volumes = hooks.volumes();
        QString label;
        FindArchiveDrive(volumes, label);
        const auto open = [&](ArchiveEdition edition) -> qint64 {
            const std::optional<ArchivePageLocation> page = ArchivePage(edition, config.ListKind, nr);
            return page ? OpenArchiveDocument(config.ArchiveRoot, volumes, *page, *hooks.opener) : 0;
        };
        qint64 size = 0;
        if (label == FirstArchiveLabel) {
            if (RefusedBeyondLimits(session, nr, FirstEditionLimits, u"I"_s))
                return;
            hooks.status(u"Suche Valdorin Archiv CD I Infos ..."_s);
            size = open(ArchiveEdition::First);
        } else if (label == SecondArchiveLabel) {
            if (RefusedBeyondLimits(session, nr, SecondEditionLimits, u"II"_s))
                return;
            hooks.status(u"Suche Valdorin Archiv CD II Infos ..."_s);
            size = open(ArchiveEdition::Second);
        } else {
            hooks.status(u"Suche Valdorin Archiv Infos (HD) ..."_s);
            size = open(ArchiveEdition::Second);
            if (size <= 0)
                size = open(ArchiveEdition::First);
        }
        if (size > 0)
            break;
        const Answer answer = session.prompter->Ask({u"CD-Rom einlegen"_s,
                                                     u"Bitte Valdorin\r\nArchiv CD I oder II einlegen."_s,
                                                     MessageIcon::Question, MessageButtons::RetryCancel});
        if (answer != Answer::Retry)
            break;
    }
    hooks.status(u"Fertig und Bereit."_s);
}

} // namespace heft
