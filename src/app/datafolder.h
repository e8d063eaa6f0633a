#pragma once
// The per-user data folder: found, filled from the all-users copy at a
// user's first start, and the program's own folder as the last resort.

#include <QString>
#include <QStringList>

namespace heft {

// Relative names of the shipped files, in the order they are copied; the
// marker comes last but one and stands for a complete folder.
const QStringList& ShippedFiles();
QString MarkerFile(); // relative to the data folder

// The raw per-user base (~/.local/share) and the all-users source folder
// ({prefix}/share/Quintara/Heftarium/ found through XDG_DATA_DIRS; empty if
// none holds the marker).
QString UserDataBase();
QString AllUsersSource();

// Given the raw base, returns the data folder: {base}/Quintara/Heftarium,
// filled from allUsersSource if its marker is missing or empty, or appPath
// if even then no marker is there. Failures to create or copy are ignored.
QString PrepareDataFolder(const QString& base, const QString& allUsersSource, const QString& appPath);

// Heftarium.log becomes Heftarium.old; the older one goes.
void RotateLog(const QString& dataFolder);

} // namespace heft
