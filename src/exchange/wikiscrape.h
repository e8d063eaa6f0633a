#pragma once
// The values of one issue page of the wiki, cut out by the fixed markers of
// its table in the order they stand on the page. The page is held one
// character per byte, as it came from the server; each value is decoded
// after it was cut.

#include <QString>
#include <QStringList>

#include <functional>

namespace heft {

struct WikiIssue {
    QString cycleName; // raw, as it stands in the link
    QString titel;
    QString untertitel;
    QString autor;
    QString tibiZeichner;
    QString illuZeichner;
    QString datum;
    QStringList personen; // at most ten
    bool rz = false;
    QString rizeObjekt;
    QString rizeZeichner;
};

// Called between the rows, where the import fetches what the row names:
// the cycle list after the cycle name, the cover after the cover artist, the
// illustration after the illustrators. False fails the issue.
struct ScrapeHooks {
    std::function<bool(const QString& cycleName)> cycle;
    std::function<bool()> cover;
    std::function<bool()> illustration;
};

// The step names, in the order the scrape reaches them; a failure reports
// the last one set.
namespace step {
inline const QString Init = QStringLiteral("Init");
inline const QString OpenUrl = QStringLiteral("URL öffnen");
inline const QString Cycle = QStringLiteral("Zyklus");
inline const QString Title = QStringLiteral("Titel");
inline const QString Subtitle = QStringLiteral("Beschreibung");
inline const QString Author = QStringLiteral("Autor:");
inline const QString CoverArtist = QStringLiteral("Titelbild");
inline const QString CoverFile = QStringLiteral("TiBi R/W");
inline const QString Illustrators = QStringLiteral("Illus");
inline const QString IllustrationFile = QStringLiteral("Illu R/W");
inline const QString Date = QStringLiteral("Erscheinungsdatum");
inline const QString Persons = QStringLiteral("Personen");
inline const QString Poster = QStringLiteral("RZ");
inline const QString PosterArtist = QStringLiteral("RZZ");
inline const QString ListLine = QStringLiteral("Daten");
inline const QString DetailsLine = QStringLiteral("Dat Detail");
} // namespace step

// Fills issue from the page; false when a marker or rule failed, with
// `stepName` telling where. A hook left empty does nothing.
bool ScrapeIssuePage(const QString& page, WikiIssue& issue, QString& stepName, const ScrapeHooks& hooks = {});

} // namespace heft
