#pragma once
// Puts the print window into the program: the main window's print command
// opens frm_print beside the list, or brings it to the front when it is
// open. Printing needs no printer: preview and PDF work without one.

namespace heft {

class MainWindow;
class PrintWindow;

void InstallPrintWindow(MainWindow& window);
// The open print window of the main window; nullptr when there is none.
PrintWindow* OpenPrintWindow(MainWindow& window);

} // namespace heft
