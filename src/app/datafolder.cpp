#include "datafolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

bool HasMarker(const QString& folder)
{
    // A length that can't be read counts as no marker at all.
    const QFileInfo marker(folder + u'/' + MarkerFile());
    return marker.isFile() && marker.size() > 0;
}

const QStringList& FirstStartFolders()
{
    static const QStringList folders = {
        u"export"_s, u"import"_s, u"DBs"_s, u"bm"_s, u"Archiv"_s, u"tibis"_s, u"illus"_s, u"rizes"_s,
        u"tibis/Valdorin (Heftromane)"_s, u"illus/Valdorin (Heftromane)"_s, u"rizes/Valdorin (Heftromane)"_s,
        u"tibis/Valdorin (Taschenbücher)"_s, u"illus/Valdorin (Taschenbücher)"_s,
        u"rizes/Valdorin (Taschenbücher)"_s};
    return folders;
}

// The sample archive and pictures: copied on the first start beside the
// shipped files, so that a new user can try them at once.
const QStringList& SampleTrees()
{
    static const QStringList trees = {u"Archiv"_s, u"tibis"_s, u"illus"_s, u"rizes"_s};
    return trees;
}

// Copies what the target lacks; a file the user has is never replaced.
void CopyMissing(const QString& from, const QString& to)
{
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString target = to + source.mid(from.size());
        QDir().mkpath(QFileInfo(target).absolutePath());
        if (!QFileInfo::exists(target))
            QFile::copy(source, target);
    }
}

} // namespace

QString MarkerFile() { return u"DBs/Heftarium.marker"_s; }

const QStringList& ShippedFiles()
{
    static const QStringList files = {u"bm/Logo.svg"_s,      u"bm/Splash.svg"_s, u"DBs/Heftarium.mdb"_s,
                                      u"DBs/VN-HR.mdb"_s,    u"DBs/VN-TB.mdb"_s, MarkerFile(),
                                      u"DBs/Valdorin Zyklus.mdb"_s};
    return files;
}

QString UserDataBase() { return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation); }

QString AllUsersSource()
{
    const QStringList locations = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    for (const QString& location : locations) {
        const QString folder = location + u"/Quintara/Heftarium"_s;
        if (location != UserDataBase() && HasMarker(folder))
            return folder + u'/';
    }
    return {};
}

QString PrepareDataFolder(const QString& base, const QString& allUsersSource, const QString& appPath)
{
    QString dataFolder = base + u"/Quintara/Heftarium"_s;
    if (!HasMarker(dataFolder)) {
        QDir dir;
        // A fresh account may not have ~/.local/share yet.
        dir.mkpath(base);
        dir.mkdir(base + u"/Quintara"_s);
        dir.mkdir(dataFolder);
        for (const QString& folder : FirstStartFolders())
            dir.mkdir(dataFolder + u'/' + folder);
        // Without an installed copy there is nothing to copy; a relative name
        // would otherwise be looked up in the working folder.
        const QStringList files = allUsersSource.isEmpty() ? QStringList() : ShippedFiles();
        for (const QString& file : files) {
            const QString target = dataFolder + u'/' + file;
            // A copy replaces what is there: deleting the marker asks for a
            // fresh start with the shipped files.
            QFile::remove(target);
            QFile::copy(allUsersSource + file, target);
            QFile::setPermissions(target, QFile::permissions(target) | QFileDevice::WriteOwner);
        }
        if (!allUsersSource.isEmpty())
            for (const QString& tree : SampleTrees())
                CopyMissing(allUsersSource + tree, dataFolder + u'/' + tree);
    }
    if (!HasMarker(dataFolder))
        dataFolder = appPath;
    return dataFolder;
}

void RotateLog(const QString& dataFolder)
{
    QFile::remove(dataFolder + u"/Heftarium.old"_s);
    QFile::rename(dataFolder + u"/Heftarium.log"_s, dataFolder + u"/Heftarium.old"_s);
}

} // namespace heft
