#pragma once
// The main window's commands on the pictures and the archive of the
// selected entry: "Titelbild anzeigen" (mnu_tibi) and "VN Archiv Link"
// (mnu_archiv), which opens the entry's archive page in the browser.

#include "core/drives.h"

#include <functional>

namespace heft {

class DocumentOpener;
class MainWindow;

// opener and volumes replace the browser and the mounted volumes in tests.
void InstallPictureCommands(MainWindow& window, DocumentOpener* opener = nullptr,
                            std::function<QList<Volume>()> volumes = MountedVolumes);

} // namespace heft
