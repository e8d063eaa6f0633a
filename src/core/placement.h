#pragma once
// The main window's placement lives in the log's "[Konfig]" entry, in twips.

#include <QString>

namespace heft {

struct WindowPlacement {
    int width = 0;
    int height = 0;
    int left = 0;
    int top = 0;
};

// The four lines "FB=..", "FH=..", "FX=..", "FY=.." joined by CR LF.
QString PlacementLogText(const WindowPlacement& placement);
// Corrects a computed default from the "[Konfig]" entry of a log file, with
// the guards that keep a window on the screen: a width not below the default
// and not beyond the screen, a height of at least 2500, a left and top above
// 0 that keep the window inside. A missing file leaves the default.
void ReadPlacementFromLog(const QString& logPath, int screenWidth, int screenHeight,
                          WindowPlacement& placement);

} // namespace heft
