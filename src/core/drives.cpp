#include "drives.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

namespace heft {

QList<Volume> MountedVolumes()
{
    QList<Volume> volumes;
    for (const QStorageInfo& storage : QStorageInfo::mountedVolumes()) {
        QString root = storage.rootPath();
        if (!root.endsWith(u'/'))
            root += u'/';
        volumes.append({root, storage.name(), QString::fromLatin1(storage.fileSystemType())});
    }
    return volumes;
}

QList<Volume> ListOpticalDrives(const QList<Volume>& volumes)
{
    QList<Volume> optical;
    for (const Volume& volume : volumes)
        if (volume.fileSystem == u"iso9660" || volume.fileSystem == u"udf")
            optical.append(volume);
    return optical;
}

QString FindArchiveDrive(const QList<Volume>& volumes, QString& lastLabel)
{
    for (const Volume& volume : ListOpticalDrives(volumes)) {
        lastLabel = volume.label;
        if (lastLabel == u"VN_ARCHIV_2" || lastLabel == u"VALDORIN_1")
            return volume.root;
    }
    return {};
}

void WaitMs(int milliseconds)
{
    // Events keep running, so the window repaints and Esc is seen.
    const QDeadlineTimer deadline(milliseconds);
    while (!deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

} // namespace heft
