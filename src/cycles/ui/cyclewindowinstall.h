#pragma once
// Puts the cycle window into the program: the main window's "ZyklusInfo"
// opens it beside the list, or brings it to the front when it is open.

namespace heft {

class CycleWindow;
class MainWindow;

// The command stays off while the session has no cycle file.
void InstallCycleWindow(MainWindow& window);
// The open cycle window of the main window; nullptr when there is none.
CycleWindow* OpenCycleWindow(MainWindow& window);

} // namespace heft
