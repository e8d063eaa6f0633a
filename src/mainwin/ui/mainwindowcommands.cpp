// The main window's own commands: what runs when a menu item, a toolbar
// button, a status panel or the pop-up menu is chosen, and which commands
// are on.

#include "entryeditor.h"
#include "gotodialog.h"
#include "helpwindow.h"
#include "maincommands.h"
#include "mainwindow.h"
#include "splashwindow.h"
#include "statusbar.h"

#include "core/changeunit.h"
#include "core/session.h"
#include "core/sqlwriters.h"
#include "core/textfuncs.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The commands on the selected entry; they go off together when a filter
// list runs empty.
const QStringList EntryCommands = {u"mnu_insert"_s, u"mnu_edit"_s,   u"mnu_delete"_s,
                                   u"mnu_goto"_s,   u"mnu_print"_s,  u"mnu_export"_s,
                                   u"mnu_detail"_s, u"mnu_tibi"_s,   u"mnu_archiv"_s};

} // namespace

void MainWindow::SetupCommands()
{
    m_commands = new MainCommands(*this);
    m_commands->SetHandler(u"mnu_edit"_s, [this] { EditClick(true); });
    m_commands->SetHandler(u"mnu_insert"_s, [this] { EditClick(false); });
    m_commands->SetHandler(u"mnu_goto"_s, [this] { ShowGotoDialog(*this); });
    m_commands->SetHandler(u"mnu_delete"_s, [this] { DeleteClick(); });
    m_commands->SetHandler(u"mnu_Beenden"_s, [this] { close(); });
    m_commands->SetHandler(u"mnu_help"_s, [this] { ShowHelp(this); });
    m_commands->SetHandler(u"mnu_Info"_s, [this] { InfoClick(); });
    connect(this, &MainWindow::EditRequested, this, [this] { Command(u"mnu_edit"_s)->trigger(); });
    connect(this, &MainWindow::PopupRequested, this,
            [this](const QPoint& globalPos) { m_commands->PopupMenu()->popup(globalPos); });
    connect(m_status, &StatusBar::PanelClicked, this, &MainWindow::StatusPanelClick);
}

void MainWindow::SetCommandHandler(const QString& name, std::function<void()> handler)
{
    m_commands->SetHandler(name, std::move(handler));
}

QAction* MainWindow::Command(const QString& name) const { return m_commands->Action(name); }

bool MainWindow::IsCommandEnabled(const QString& name) const { return m_commands->IsEnabled(name); }

void MainWindow::EnableCommands()
{
    for (const QString& name : {u"mnu_Info"_s, u"mnu_help"_s, u"mnu_Beenden"_s, u"mnu_filter"_s, u"mnu_stat"_s,
                                u"mnu_import"_s})
        m_commands->SetEnabled(name, true);
    m_commands->SetEnabled(u"mnu_zyklus"_s, m_session->CycleDb != nullptr);
    m_commands->SetEnabled(u"mnu_detail_b"_s, true);
    EnableEntryCommands();
}

void MainWindow::EnableEntryCommands()
{
    for (const QString& name : EntryCommands)
        m_commands->SetEnabled(name, true);
    m_commands->SetEnabled(u"mnu_archiv"_s, m_session->Config.SeriesName == u"Valdorin");
    m_commands->SetEnabled(u"mnu_detail"_s, m_detailsTableReadable);
}

void MainWindow::DisableEntryCommands()
{
    for (const QString& name : EntryCommands)
        m_commands->SetEnabled(name, false);
}

void MainWindow::CheckDetailsTable()
{
    DbError error;
    Query probe = m_session->CollectionDb->Select(u"SELECT * FROM Details WHERE Nr=0;"_s, &error);
    m_detailsTableReadable = !error;
    if (error) {
        m_session->WriteLog(error.number, u"Fehler beim Öffnen der Detail DB: "_s + error.description);
        m_commands->SetEnabled(u"mnu_detail"_s, false);
    }
}

void MainWindow::EditClick(bool changeSelected)
{
    if (!changeSelected && IsFilterMode() && m_columnFillOpener) {
        m_columnFillOpener();
        return;
    }
    m_session->EditMode = changeSelected;
    m_session->EditRetry = false;
    EditEntry(*this);
}

void MainWindow::DeleteClick()
{
    Session& session = *m_session;
    // The test looks at the full list, in filter mode too.
    if (m_list.Heftliste.Rows() < 3) {
        session.prompter->Tell(u"Dezenter Hinweis"_s,
                               u"Der allerletzte Listeneintrag\rkann nicht gelöscht werden."_s,
                               MessageIcon::Information);
        return;
    }
    const EntryGrid& grid = *m_list.ActiveGrid;
    const int nr = static_cast<int>(Val(grid.TextMatrix(grid.Row(), ColNr)));
    const QString titel = grid.TextMatrix(grid.Row(), ColTitel);
    const Answer answer = session.prompter->Ask(
        {u"Sicherheits Rückfrage"_s, u"Willst Du Ausgabe Nr. %1:\n\n\"%2\"\n\nwirklich löschen?\r"_s.arg(nr).arg(titel),
         MessageIcon::Question, MessageButtons::OkCancel});
    if (answer != Answer::Ok)
        return;
    ChangeUnit unit(session);
    const int result = DeleteEntryCascade(session, nr);
    if (!unit.Commit() && result == 0) {
        m_list.RemoveEntryRows(nr);
        GetNrRange(session, u";"_s, m_list.LowestNr, m_list.HighestNr);
    }
}

void MainWindow::SetDetailOpener(std::function<void(bool editMode)> opener)
{
    m_detailOpener = std::move(opener);
    m_commands->SetHandler(u"mnu_detail"_s, [this] { OpenDetails(false); });
    m_commands->SetHandler(u"mnu_detail_b"_s, [this] { OpenDetails(true); });
    if (m_session) {
        m_commands->SetEnabled(u"mnu_detail_b"_s, true);
        EnableEntryCommands();
    }
}

void MainWindow::OpenDetails(bool editMode)
{
    if (m_detailOpener)
        m_detailOpener(editMode);
}

void MainWindow::InfoClick()
{
    SplashWindow about(*m_session, this);
    if (about.LoadImages()) {
        about.exec();
        return;
    }
    // A collection whose logo is gone can't be used any further.
    CloseDatabases(*m_session);
    QCoreApplication::exit(1);
}

void MainWindow::StatisticsClick(const std::function<void()>& openStatistics)
{
    if (m_list.Heftliste.Rows() > 2) {
        openStatistics();
        return;
    }
    m_session->prompter->Tell(u"Dezenter Hinweis"_s,
                              u"Für eine aussagekräftige Statistik\rsollten zumindest 2 Einträge in der\rListe "
                              "vorhanden sein."_s,
                              MessageIcon::Information);
}

void MainWindow::StatusPanelClick(int panel)
{
    switch (panel) {
    case 1:
    case 2:
        // The lock keys can't be switched from here; the panels show the
        // state afresh.
        m_status->RefreshLockPanels();
        break;
    case 3:
        if (Command(u"mnu_goto"_s)->isEnabled())
            Command(u"mnu_goto"_s)->trigger();
        break;
    case 5:
        Command(u"mnu_help"_s)->trigger();
        break;
    default:
        break;
    }
}

} // namespace heft
