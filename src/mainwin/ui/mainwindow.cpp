#include "mainwindow.h"

#include "entrygridview.h"
#include "statusbar.h"
#include "mainwin/twips.h"

#include "core/drives.h"
#include "core/session.h"
#include "core/textfuncs.h"

#include <QGuiApplication>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace heft {

namespace {
// Smallest window in twips; the user can't drag it below this.
constexpr int MinWindowWidth = 6000;
constexpr int MinWindowHeight = 2500;
// How often the selection panel follows the focused grid, in ms.
constexpr int SelectionPanelInterval = 1000;
} // namespace

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent)
{
    setObjectName(u"frm_heftarium"_s);
    setMinimumSize(TwipsToPixels(MinWindowWidth), TwipsToPixels(MinWindowHeight));

    m_selectionTimer = new QTimer(this);
    m_selectionTimer->setObjectName(u"tim_sgrid"_s);
    m_selectionTimer->setInterval(SelectionPanelInterval);
    connect(m_selectionTimer, &QTimer::timeout, &m_list, &EntryList::UpdateSelectionPanel);

    // The toolbar and the menu bar take QMainWindow's own places above this
    // area; the grids share the central widget and only one is visible.
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    setCentralWidget(central);
    m_heftliste = AddGridView(m_list.Heftliste, u"fg_heftliste"_s);
    m_filter = AddGridView(m_list.Filter, u"fg_filter"_s);

    m_status = new StatusBar(this);
    setStatusBar(m_status);
    m_progress = new QProgressBar(m_status);
    m_progress->setObjectName(u"pbar_load"_s);
    m_progress->setTextVisible(false);
    m_progress->hide();

    connect(&m_list, &EntryList::StatusPanelChanged, this, &MainWindow::SetStatusPanel);
    connect(&m_list, &EntryList::EntryCommandsDisabled, this, &MainWindow::DisableEntryCommands);
    m_list.ShowFilterGrid(false);
    SetupCommands();
}

MainWindow::~MainWindow()
{
    if (m_session)
        m_session->RemoveEntryRows = nullptr;
}

EntryGridView* MainWindow::AddGridView(EntryGrid& grid, const QString& name)
{
    auto* view = new EntryGridView(m_list, grid, centralWidget());
    view->setObjectName(name);
    centralWidget()->layout()->addWidget(view);
    connect(view, &EntryGridView::EditRequested, this, &MainWindow::EditRequested);
    connect(view, &EntryGridView::PopupRequested, this, &MainWindow::PopupRequested);
    // Tied to the timer, not to the window: a view that loses its focus while
    // the window is being torn down must not reach into the half-gone window.
    connect(view, &EntryGridView::FocusChanged, m_selectionTimer, [timer = m_selectionTimer](bool focused) {
        if (focused)
            timer->start();
        else
            timer->stop();
    });
    return view;
}

void MainWindow::LoadList(Session& session)
{
    m_session = &session;
    session.RemoveEntryRows = [this](int nr) { RemoveEntryRows(nr); };
    setWindowTitle(u"HEFTARIUM: %1 (%2)"_s.arg(session.Config.SeriesName, session.Config.ListKind));
    m_list.ActiveGrid = &m_list.Heftliste;
    RestoreWindowPlacement();

    const int count = session.CollectionDb->SelectValue(u"SELECT COUNT(*) FROM HEFTLIST;"_s).toInt();
    if (!session.SharedRecordset.IsOpen())
        session.SharedRecordset = session.CollectionDb->Select(u"SELECT * FROM HEFTLIST ORDER BY Nr;"_s);
    StartProgress(count);
    show();
    // The grids take their final width now, so that the last column can
    // be given the rest of it.
    layout()->activate();
    SetStatusPanel(5, u"Lese Einträge aus der Datenbank ..."_s);
    SetStatusPanel(3, u"1/%1"_s.arg(count));
    m_list.SetupGridColumns();
    m_list.FillGrid(session, count);
    m_progress->setValue(m_progress->maximum());
    m_list.ShowFilterGrid(false);
    const EntryGrid& grid = m_list.Heftliste;
    m_list.HighestNr = static_cast<int>(Val(grid.TextMatrix(grid.Rows() - 1, ColNr)));
    m_list.LowestNr = static_cast<int>(Val(grid.TextMatrix(1, ColNr)));
    CheckDetailsTable();
    EnableCommands();
    SetStatusPanel(5, u"Fertig und Bereit."_s);
    FinishProgress(250);
}

void MainWindow::SetStatusPanel(int panel, const QString& text)
{
    m_status->SetStatusPanel(panel, text);
}

QString MainWindow::StatusPanelText(int panel) const
{
    return m_status->PanelText(panel);
}

void MainWindow::StartProgress(int maximum)
{
    if (maximum <= 0)
        return;
    if (!m_progressCursor)
        QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    m_progressCursor = true;
    PlaceProgressBar();
    m_progress->setMaximum(maximum);
    m_progress->show();
    m_progress->raise();
}

void MainWindow::FinishProgress(int milliseconds)
{
    if (m_progressCursor)
        QGuiApplication::restoreOverrideCursor();
    m_progressCursor = false;
    WaitMs(milliseconds);
    m_progress->hide();
    m_progress->setValue(0);
}

void MainWindow::PlaceProgressBar()
{
    const QRect panel = m_status->PanelGeometry(4);
    m_progress->setGeometry(panel.left() + 2, panel.top() + 3, panel.width() - 3, panel.height() - 6);
}

} // namespace heft
