#include "detailopener.h"

#include "detailwindow.h"

#include "mainwin/ui/mainwindow.h"

namespace heft {

void InstallDetailWindow(MainWindow& window)
{
    window.SetDetailOpener([&window](bool editMode) {
        EntryList& list = window.List();
        if (!list.ActiveGrid->CurrentRowHoldsEntry())
            return;
        DetailWindow details(window.CurrentSession(), list, editMode, &window);
        details.exec();
    });
}

} // namespace heft
