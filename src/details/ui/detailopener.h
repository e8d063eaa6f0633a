#pragma once
// Puts the detail window into the program: the main window's "Detail
// Anzeigen" (view), "Detail Bearbeiten" and the entry editor's "Detailinfo"
// (edit) open it, modal, on the current entry of the active list.

namespace heft {

class MainWindow;

void InstallDetailWindow(MainWindow& window);

} // namespace heft
