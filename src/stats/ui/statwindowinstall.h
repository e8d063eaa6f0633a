#pragma once
// Puts the statistics window into the program: mnu_stat and its toolbar
// button open it, modal, once the list has at least two entries.

namespace heft {

class MainWindow;

void InstallStatisticsWindow(MainWindow& window);

} // namespace heft
