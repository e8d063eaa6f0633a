#include "statwindowinstall.h"

#include "statwindow.h"

#include "mainwin/ui/mainwindow.h"

using namespace Qt::StringLiterals;

namespace heft {

void InstallStatisticsWindow(MainWindow& window)
{
    window.SetCommandHandler(u"mnu_stat"_s, [&window] {
        window.StatisticsClick([&window] {
            StatWindow statistics(window);
            statistics.Load();
            statistics.exec();
        });
    });
}

} // namespace heft
