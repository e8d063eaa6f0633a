#include "picturestore.h"

#include "archivelink.h"

#include "core/pathresolve.h"
#include "core/picturenames.h"
#include "core/session.h"
#include "core/textfuncs.h"

#include <QDir>
#include <QFileInfo>

#include <cmath>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The viewer's room on the screen, in pixels.
constexpr int MaxShownWidth = 720;
constexpr int MaxShownHeight = 540;

QString Padded(int number, int digits) { return u"%1"_s.arg(number, digits, 10, QChar(u'0')); }

// Where the archive keeps a cover, for the CD in the drive or a copy.
QStringList ArchiveCoverPaths(const Configuration& config, const QString& cdRoot, const QString& label, int nr)
{
    if (config.SeriesName != ArchiveSeries)
        return {};
    const QString& list = config.ListKind;
    const QString copy = config.ArchiveRoot;
    const QString hundreds = QString::number(100 * HundredsOf(nr));
    const QString byHundreds = u"SEITEN/PICS/H"_s + hundreds + u'/' + PictureFileName(nr, KindWord(CoverKind), {}, u".jpg"_s);
    const QString tibis = u"PICS/TIBIS/"_s + KindWord(CoverKind) + Padded(nr, 4) + u".JPG"_s;
    const QString tabus = u"PICS/TABUS/TABU"_s + Padded(nr, 3) + u".JPG"_s;
    const QString silber = u"PICS/SILBER/SILBER"_s + Padded(nr, 2) + u".JPG"_s;
    const auto inCopy = [&](const QString& path) { return ResolvePath(copy, u"Archiv/"_s + path); };
    const auto onCd = [&](const QString& path) { return ResolvePath(cdRoot, path); };
    if (label == FirstArchiveLabel)
        return list == HeftromaneList ? QStringList{inCopy(byHundreds), onCd(u"HTML/"_s + byHundreds)}
                                        : QStringList{};
    const QString byList = list == HeftromaneList       ? tibis
                           : list == TaschenbuecherList ? tabus
                           : list == SilberbaendeList   ? silber
                                                          : QString();
    if (byList.isEmpty())
        return {};
    if (label == SecondArchiveLabel)
        return {inCopy(byList), onCd(byList)};
    if (list == HeftromaneList)
        return {inCopy(tibis), inCopy(byHundreds)};
    return {inCopy(byList)};
}

// How the drop's question and the status bar name a kind.
struct KindTexts {
    QString description;
    QString missing;
};

KindTexts TextsOf(const QString& kind)
{
    if (kind == KindWord(CoverKind))
        return {u"ein Titelbild"_s, u"Fertig [kein Titelbild gefunden]."_s};
    if (kind == KindWord(CutawayKind))
        return {u"eine Rißzeichnung"_s, u"Fertig [keine Rißzeichnung gefunden]."_s};
    return {u"eine Innenillustration"_s, u"Fertig [keine Innenillustration gefunden]."_s};
}

} // namespace

QString PictureDescription(const QString& kind) { return TextsOf(kind).description; }

QString DroppedExtension(const QString& fileName) { return Right(fileName, 4).toLower(); }

QString PageFromAnswer(const QString& answer)
{
    const QString page = Right(u"000"_s + QString::number(static_cast<qint64>(Val(Trim(answer)))), 3);
    return page == u"000" ? QString() : page;
}

DropOutcome DropPicture(Session& session, int nr, const QString& kind, const QString& sourcePath,
                        const std::function<QString()>& askPage)
{
    const QString extension = DroppedExtension(sourcePath);
    if (extension != u".bmp" && extension != u".jpg")
        return {};
    QString page;
    if (kind == KindWord(IllustrationKind)) {
        page = askPage();
        if (page.isEmpty())
            return {};
    }
    const Configuration& config = session.Config;
    const QString folder = PictureFolder(config, kind);
    QDir().mkpath(folder);
    const QString name = PictureFileName(nr, kind, page, extension);
    const QString target = ResolvePath(folder, name);

    bool cancelled = false;
    if (const QFileInfo existing(target); existing.exists() && existing.size() > 0) {
        const Answer answer = session.prompter->Ask(
            {u"Sicherheits Rückfrage"_s,
             u"Es ist bereits %1 für\rdiesen Eintrag vorhanden.\r\rWirklich überschreiben?"_s.arg(
                 PictureDescription(kind)),
             MessageIcon::Question, MessageButtons::OkCancel});
        cancelled = answer != Answer::Ok;
        if (!cancelled)
            QFile::remove(target);
    }
    // The copy runs after Cancel too and then goes over the old file; Cancel
    // only spares the deletion and the closing message.
    std::error_code ignored;
    const bool copied = std::filesystem::copy_file(sourcePath.toStdU16String(), target.toStdU16String(),
                                                   std::filesystem::copy_options::overwrite_existing, ignored);
    if (!cancelled)
        session.prompter->Tell(u"Ziehen & Ablegen Info"_s,
                               u"Die Datei '%1' wurde als '%2' ins Verzeichnis\r'%3'\rkopiert."_s.arg(
                                   QDir::toNativeSeparators(sourcePath), name, QDir::toNativeSeparators(folder)),
                               MessageIcon::Information);
    return {copied, target};
}

QStringList IllustrationPages(const Configuration& config, int nr)
{
    const QDir folder(PictureFolder(config, KindWord(IllustrationKind)));
    const QString stem = PictureFileName(nr, KindWord(IllustrationKind), {}, {});
    for (const QString& extension : PictureExtensions()) {
        // Name filters are case-blind unless told otherwise.
        const QStringList names = folder.entryList({stem + u"???"_s + extension}, QDir::Files, QDir::Name);
        if (names.isEmpty())
            continue;
        QStringList pages;
        for (const QString& name : names)
            pages << name.mid(stem.size(), 3);
        return pages;
    }
    return {};
}

namespace {
// The list's height in twips is made of rows of 195 twips and a frame of 30.
constexpr int IlluRowTwips = 195;
constexpr int IlluFrameTwips = 30;
} // namespace

int IllustrationListHeight(int rows) { return MinOf(1200, IlluFrameTwips + IlluRowTwips * rows); }

double IllustrationListRows(int rows)
{
    return double(IllustrationListHeight(rows) - IlluFrameTwips) / IlluRowTwips;
}

PictureKind SplitPictureKind(const QString& pictureKind)
{
    if (pictureKind.size() > 4)
        return {pictureKind.left(4), Right(pictureKind, 3)};
    return {pictureKind, {}};
}

PictureCandidates FindPictureCandidates(const Configuration& config, const QList<Volume>& volumes, int nr,
                                        const PictureKind& kind)
{
    PictureCandidates candidates;
    const QString folder = PictureFolder(config, kind.kind);
    for (const QString& extension : PictureExtensions())
        candidates.store << ResolvePath(folder, PictureFileName(nr, kind.kind, kind.page, extension));
    if (kind.kind == KindWord(CoverKind)) {
        candidates.coverFallback = true;
        QString label;
        const QString root = FindArchiveDrive(volumes, label);
        candidates.archive = ArchiveCoverPaths(config, root, label, nr);
    }
    return candidates;
}

PictureFound ChoosePicture(const PictureCandidates& candidates, const std::function<bool(const QString&)>& canLoad)
{
    for (const QString& path : candidates.store)
        if (canLoad(path))
            return {PictureLookup::Found, path};
    if (!candidates.coverFallback)
        return {};
    if (candidates.archive.isEmpty())
        return {PictureLookup::Empty, {}};
    for (const QString& path : candidates.archive)
        if (canLoad(path))
            return {PictureLookup::Found, path};
    return {};
}

QString PictureMissingText(const QString& kind) { return TextsOf(kind).missing; }

QSize ShownPictureSize(const QSize& picture)
{
    double width = picture.width();
    double height = picture.height();
    if (width > MaxShownWidth) {
        height /= width / MaxShownWidth;
        width = MaxShownWidth;
    }
    if (height > MaxShownHeight) {
        width /= height / MaxShownHeight;
        height = MaxShownHeight;
    }
    return {static_cast<int>(std::lround(width)), static_cast<int>(std::lround(height))};
}

} // namespace heft
