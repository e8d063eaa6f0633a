#pragma once
// The picture store of one entry: copying a dropped file in under the
// entry's name, the pages of its illustrations, and where the viewer looks
// for a picture (the store first, for covers then the archive). No windows
// here: the page prompt and the questions come in as functions.

#include "core/drives.h"

#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>

namespace heft {

struct Configuration;
class Session;

// What the drop did; the window needs no more than the target's name.
struct DropOutcome {
    bool copied = false;
    QString target;
};

// "ein Titelbild", "eine Rißzeichnung", "eine Innenillustration".
QString PictureDescription(const QString& kind);
// The last four characters in lower case, as the drop reads the extension.
QString DroppedExtension(const QString& fileName);
// What frm_illuinput leaves in its box for a typed answer: three digits,
// or empty for no page (nothing typed, or 0).
QString PageFromAnswer(const QString& answer);

// Copies the dropped file into the store as the entry's picture of the
// kind; askPage is asked for the page of an illustration. Refuses
// quietly what is no ".bmp" or ".jpg" and an illustration without a page.
DropOutcome DropPicture(Session& session, int nr, const QString& kind, const QString& sourcePath,
                        const std::function<QString()>& askPage);

// The pages ("007", ...) of the entry's illustrations, all with the first
// of ".jpg", ".bmp", ".gif" that has any, in name order.
QStringList IllustrationPages(const Configuration& config, int nr);
// The height of lst_illu in twips for that many rows.
int IllustrationListHeight(int rows);
// How many rows that height holds (six at the most, the last one in part),
// for a list whose rows are not 195 twips high.
double IllustrationListRows(int rows);

// What the viewer is asked to show: "tibi", "rize", or "illu" and a page.
struct PictureKind {
    QString kind;
    QString page;
};
PictureKind SplitPictureKind(const QString& pictureKind);

// The files the viewer tries, in order: the store's, and for a cover then
// the archive's. A cover that the archive has no place for (another series,
// or CD I with another list) opens an empty viewer rather than none.
struct PictureCandidates {
    QStringList store;
    bool coverFallback = false;
    QStringList archive;
};
PictureCandidates FindPictureCandidates(const Configuration& config, const QList<Volume>& volumes, int nr,
                                        const PictureKind& kind);

enum class PictureLookup { Found, Missing, Empty };
struct PictureFound {
    PictureLookup lookup = PictureLookup::Missing;
    QString path;
};
// The first candidate that canLoad accepts; a file that can't be read
// counts as missing, so a damaged ".jpg" falls through to ".bmp".
PictureFound ChoosePicture(const PictureCandidates& candidates, const std::function<bool(const QString&)>& canLoad);

// The status text when nothing was found, by kind.
QString PictureMissingText(const QString& kind);
// The size the viewer shows a picture in: at most 720 wide, then at most
// 540 high, the other side shrunk by the same ratio.
QSize ShownPictureSize(const QSize& picture);

} // namespace heft
