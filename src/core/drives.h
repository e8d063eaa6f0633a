#pragma once
// The archive CDs are found by their volume labels among the mounted
// optical file systems.

#include <QList>
#include <QString>

namespace heft {

struct Volume {
    QString root;       // ends in "/"
    QString label;
    QString fileSystem; // "iso9660", "udf", ...
};

// The mounted volumes as the system reports them.
QList<Volume> MountedVolumes();
// The optical ones, in the order given.
QList<Volume> ListOpticalDrives(const QList<Volume>& volumes);
// The root of the first optical volume labelled "VN_ARCHIV_2" or
// "VALDORIN_1", or empty; lastLabel gets the label read last.
QString FindArchiveDrive(const QList<Volume>& volumes, QString& lastLabel);

// Waits the given time while the window stays alive.
void WaitMs(int milliseconds);

} // namespace heft
