#pragma once
// The published archive of the series: two CD editions with one HTML page
// per issue, found by volume label, or a copy of a CD below
// "{ArchiveRoot}/Archiv". Here are the editions' layouts, the lookup of a
// page (the copy on disk wins over the CD) and the command that opens the
// page of an entry in the user's browser.

#include "core/drives.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace heft {

class Session;

// The series the archive belongs to, the labels of its editions and the
// lists it knows.
inline const QString ArchiveSeries = QStringLiteral(u"Valdorin");
inline const QString FirstArchiveLabel = QStringLiteral(u"VALDORIN_1");
inline const QString SecondArchiveLabel = QStringLiteral(u"VN_ARCHIV_2");
inline const QString HeftromaneList = QStringLiteral(u"Heftromane");
inline const QString TaschenbuecherList = QStringLiteral(u"Taschenbücher");
inline const QString SilberbaendeList = QStringLiteral(u"Silberbände");

enum class ArchiveEdition { First, Second };

// Where one page lies: the folder of the copy (below ArchiveRoot), the file
// name, and the folder below the CD's root.
struct ArchivePageLocation {
    QString copyFolder;
    QString fileName;
    QString cdFolder;
};
// The page of an entry in an edition; none for a list the archive lacks.
std::optional<ArchivePageLocation> ArchivePage(ArchiveEdition edition, const QString& listKind, int nr);
// Whether the keyword search looks for the entry in that edition.
bool InSearchRange(ArchiveEdition edition, const QString& listKind, int nr);

struct ArchiveFile {
    QString path;
    qint64 size = -1; // -1: neither on disk nor on the CD
};
// The page in the copy, else on the archive CD among the volumes.
ArchiveFile LocateArchivePage(const QString& archiveRoot, const QList<Volume>& volumes,
                              const ArchivePageLocation& location);

// Opens a file with the user's program for it; tests put in their own.
class DocumentOpener {
public:
    virtual ~DocumentOpener() = default;
    virtual void Open(const QString& path) = 0;
};

// Remembers what would have gone to the browser: the cli prints it.
class RecordingOpener : public DocumentOpener {
public:
    void Open(const QString& path) override { opened << path; }
    QStringList opened;
};

// Opens the page and gives its size, or -1 when there is none to open.
qint64 OpenArchiveDocument(const QString& archiveRoot, const QList<Volume>& volumes,
                           const ArchivePageLocation& location, DocumentOpener& opener);

// What the archive command needs from around it.
struct ArchiveLinkHooks {
    std::function<QList<Volume>()> volumes;
    DocumentOpener* opener = nullptr;
    std::function<void(const QString&)> status;
};

// mnu_archiv: opens the page of the entry; the label of the CD in the drive
// decides which edition is asked, and without a CD the copy on disk is
// tried as edition II, then as edition I. Asks for a CD until a page opens
// or the user cancels.
void ArchiveLinkClick(Session& session, int nr, const ArchiveLinkHooks& hooks);

} // namespace heft
