#include "printwindowinstall.h"

#include "printwindow.h"

#include "mainwin/ui/mainwindow.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

void PrintClick(MainWindow& window)
{
    PrintWindow* print = OpenPrintWindow(window);
    if (print == nullptr) {
        print = new PrintWindow(window);
        print->show();
    }
    print->raise();
    print->activateWindow();
}

} // namespace

void InstallPrintWindow(MainWindow& window)
{
    window.SetCommandHandler(u"mnu_print"_s, [&window] { PrintClick(window); });
}

PrintWindow* OpenPrintWindow(MainWindow& window)
{
    // A closed window is gone at the next turn of the event loop; until then
    // it no longer counts as open.
    const auto open = window.findChildren<PrintWindow*>(Qt::FindDirectChildrenOnly);
    for (PrintWindow* print : open) {
        if (print->isVisible())
            return print;
    }
    return nullptr;
}

} // namespace heft
