#include "cyclewindowinstall.h"

#include "cyclewindow.h"

#include "core/session.h"
#include "mainwin/ui/mainwindow.h"

#include <QAction>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

void CycleInfoClick(MainWindow& window)
{
    if (CycleWindow* open = OpenCycleWindow(window)) {
        open->raise();
        open->activateWindow();
        return;
    }
    Session& session = window.CurrentSession();
    session.EditAccepted = true;
    auto* cycles = new CycleWindow(window);
    cycles->Load();
    if (!session.EditAccepted) {
        delete cycles;
        return;
    }
    cycles->raise();
    cycles->activateWindow();
}

} // namespace

void InstallCycleWindow(MainWindow& window)
{
    window.SetCommandHandler(u"mnu_zyklus"_s, [&window] { CycleInfoClick(window); });
}

CycleWindow* OpenCycleWindow(MainWindow& window)
{
    // A window that was closed is gone at the next turn of the event loop;
    // until then it no longer counts as open.
    const auto open = window.findChildren<CycleWindow*>(Qt::FindDirectChildrenOnly);
    for (CycleWindow* cycles : open) {
        if (cycles->isVisible())
            return cycles;
    }
    return nullptr;
}

} // namespace heft
