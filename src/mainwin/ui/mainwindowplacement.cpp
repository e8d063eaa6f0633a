// The main window's place and size: a default just wide enough for the
// toolbar and the list, corrected from the last run's log, and written to the
// log at exit.

#include "maincommands.h"
#include "mainwindow.h"
#include "mainwin/twips.h"

#include "core/log.h"
#include "core/placement.h"
#include "core/session.h"
#include "core/sqlwriters.h"

#include <QCloseEvent>
#include <QScreen>
#include <QStyle>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace heft {

void MainWindow::RestoreWindowPlacement()
{
    const QRect screen = this->screen()->availableGeometry();
    // Frame and border on both sides, as the window manager draws them.
    const int frame = 2 * (style()->pixelMetric(QStyle::PM_DefaultFrameWidth) + 4);
    WindowPlacement placement;
    // Wide enough for the toolbar, and for the list's columns with a
    // readable remark, as far as the screen allows.
    const int listWidth = TwipsToPixels(m_list.PreferredGridWidth()) +
                          style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int wanted = qMax(m_commands->Toolbar()->sizeHint().width(), listWidth) + frame;
    placement.width = PixelsToTwips(qMin(wanted, screen.width()));
    placement.height = PixelsToTwips(screen.height()) - 2048;
    placement.left = PixelsToTwips(screen.left() + screen.width() / 2) - placement.width / 2;
    placement.top = PixelsToTwips(screen.top() + screen.height() / 2) - placement.height / 2;
    ReadPlacementFromLog(m_session->DataFolder + u"/Heftarium.old"_s, PixelsToTwips(screen.width()),
                         PixelsToTwips(screen.height()), placement);
    resize(TwipsToPixels(placement.width), TwipsToPixels(placement.height));
    move(TwipsToPixels(placement.left), TwipsToPixels(placement.top));
}

void MainWindow::SaveWindowPlacement()
{
    const WindowPlacement placement{PixelsToTwips(width()), PixelsToTwips(height()), PixelsToTwips(x()),
                                    PixelsToTwips(y())};
    m_session->WriteLog(LogConfig, PlacementLogText(placement));
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_session && m_session->CollectionDb) {
        SaveWindowPlacement();
        CloseDatabases(*m_session);
    }
    event->accept();
}

} // namespace heft
