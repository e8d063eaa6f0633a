#pragma once
// Pictures are not kept in the collection: a picture belongs to an entry by
// its file name alone, in one folder per kind and list below PictureRoot.
// The picture store, the viewer and the web import all name files here.

#include <QString>
#include <QStringList>

namespace heft {

struct Configuration;

// The kind words, also the stems of the folder names ("tibis", ...).
inline constexpr char16_t CoverKind[] = u"tibi";
inline constexpr char16_t CutawayKind[] = u"rize";
inline constexpr char16_t IllustrationKind[] = u"illu";
inline QString KindWord(const char16_t* kind) { return QString::fromUtf16(kind); }

// "{PictureRoot}/{kind}s/{SeriesName} ({ListKind})" as it lies on disk:
// names that exist in another case, as a copy from another system may give
// them, are taken as they are. The store, the viewer and the web import all
// read and write there.
QString PictureFolder(const Configuration& config, const QString& kind);
// "{Nr}{kind}{page}{ext}"; page is empty or three digits, ext starts with a dot.
QString PictureFileName(int nr, const QString& kind, const QString& page, const QString& extension);
// A page number as it stands in a file name: 7 -> "007".
QString IllustrationPage(int page);
// The extensions a picture is looked for with, in this order.
const QStringList& PictureExtensions();

} // namespace heft
