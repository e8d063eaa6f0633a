#include "cyclewindow.h"

#include "cycleeditor.h"
#include "cycles/cycleexport.h"
#include "cyclegrid.h"
#include "cycles/cyclelist.h"

#include "core/session.h"
#include "core/sqlwriters.h"
#include "mainwin/entrygrid.h"
#include "mainwin/entrygridmodel.h"
#include "mainwin/ui/mainwindow.h"

#include <QHeaderView>
#include <QMenuBar>
#include <QProgressBar>
#include <QScreen>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace heft {

namespace {
constexpr int StatusPanel = 5;
constexpr int ProgressLinger = 250;
constexpr int VisibleRows = 24;
} // namespace

CycleWindow::CycleWindow(MainWindow& main) : QMainWindow(&main, Qt::Window), m_main(main)
{
    setObjectName(u"frm_zyklus"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(u"%1 Zyklen"_s.arg(CurrentSession().Config.SeriesName));

    m_grid = new CycleGrid(this);
    setCentralWidget(m_grid);

    m_editMenu = menuBar()->addMenu(u"Bearbeiten"_s);
    m_editMenu->setObjectName(u"zmnu_bearbeiten"_s);
    QAction* edit = AddCommand(m_editMenu, u"zmnu_edit"_s, u"Aktuellen Ände&rn"_s);
    connect(edit, &QAction::triggered, this, [this] { EditClick(true); });
    connect(AddCommand(m_editMenu, u"zmnu_insert"_s, u"Neuen &Erstellen"_s), &QAction::triggered, this,
            [this] { EditClick(false); });
    m_delete = AddCommand(m_editMenu, u"zmnu_delete"_s, u"Letzten &Löschen"_s);
    connect(m_delete, &QAction::triggered, this, &CycleWindow::DeleteClick);
    // The same menu opens on a right click, where editing is what is meant.
    m_editMenu->setDefaultAction(edit);

    QMenu* data = menuBar()->addMenu(u"Daten"_s);
    data->setObjectName(u"zmnu_daten"_s);
    // The cycle file is read back through the main window's import.
    AddCommand(data, u"zmnu_import"_s, u"Import"_s);
    connect(AddCommand(data, u"zmnu_export"_s, u"Export"_s), &QAction::triggered, this, &CycleWindow::ExportClick);

    auto* escape = new QAction(this);
    escape->setShortcut(Qt::Key_Escape);
    connect(escape, &QAction::triggered, this, &QWidget::close);
    addAction(escape);

    connect(m_grid, &QTableWidget::cellDoubleClicked, this, [this] { EditClick(true); });
    connect(m_grid, &QWidget::customContextMenuRequested, this, &CycleWindow::ShowPopup);
}

Session& CycleWindow::CurrentSession()
{
    return m_main.CurrentSession();
}

QAction* CycleWindow::AddCommand(QMenu* menu, const QString& name, const QString& caption)
{
    QAction* action = menu->addAction(caption);
    action->setObjectName(name);
    return action;
}

void CycleWindow::Load()
{
    Session& session = CurrentSession();
    if (!session.CycleDb) {
        session.EditAccepted = false;
        session.prompter->Tell(u"Probleme beim Öffnen der Zyklus-DB"_s,
                               u"Die Zyklus Datenbank\rkonnte nicht geöffnet werden!"_s, MessageIcon::Critical);
        return;
    }
    QList<CycleRow> rows;
    DbError error;
    if (!ReadCycles(*session.CycleDb, rows, &error)) {
        session.EditAccepted = false;
        session.prompter->Tell(u"Probleme beim Lesen der Zyklus-DB"_s,
                               u"Die Zyklus Datenbank\rkonnte nicht gelesen werden!"_s, MessageIcon::Critical);
        return;
    }
    m_main.SetStatusPanel(StatusPanel, u"Lese Zyklus Informationen ..."_s);
    m_main.StartProgress(static_cast<int>(rows.size()));
    m_grid->Format(static_cast<int>(rows.size()));
    for (int index = 0; index < rows.size(); ++index) {
        m_grid->SetCycle(index, index + 1, rows[index]);
        SetProgress(index + 1);
    }
    const EntryGrid& entries = *m_main.List().ActiveGrid;
    const int shown = CycleRowIndexOf(rows, entries.TextMatrix(entries.Row(), ColZyklus));
    UpdateDeleteCommand();

    // Wide enough for every column beside the vertical scroll bar.
    resize(m_grid->ContentWidth(), menuBar()->sizeHint().height() + m_grid->horizontalHeader()->height() +
                                       VisibleRows * m_grid->verticalHeader()->defaultSectionSize() +
                                       2 * m_grid->frameWidth());
    PlaceBesideMainWindow();
    show();
    m_grid->SelectCycle(shown);
    m_main.FinishProgress(ProgressLinger);
    m_main.SetStatusPanel(StatusPanel, u"Fertig und Bereit."_s);
}

void CycleWindow::PlaceBesideMainWindow()
{
    // Right of the main window where the screen has room, else left of it,
    // else as far right as the screen allows: the list stays in view.
    const QRect main = m_main.frameGeometry();
    const QRect screen = m_main.screen()->availableGeometry();
    int x = main.right() + 1;
    if (x + width() > screen.right() + 1)
        x = main.left() - width() >= screen.left() ? main.left() - width() : screen.right() + 1 - width();
    move(std::max(x, screen.left()), std::max(main.top(), screen.top()));
}

void CycleWindow::UpdateDeleteCommand()
{
    m_delete->setEnabled(CanDeleteLastCycle(m_grid->CycleCount()));
}

void CycleWindow::SetProgress(int value)
{
    if (auto* bar = m_main.findChild<QProgressBar*>(u"pbar_load"_s))
        bar->setValue(value);
}

void CycleWindow::EditClick(bool existing)
{
    // There is nothing to change in an empty list.
    if (existing && m_grid->currentRow() < 0)
        return;
    {
        CycleEditor editor(*this, existing);
        editor.exec();
    }
    if (!existing)
        UpdateDeleteCommand();
    raise();
    activateWindow();
}

void CycleWindow::DeleteClick()
{
    const int last = m_grid->CycleCount() - 1;
    if (last < 0)
        return;
    Session& session = CurrentSession();
    const CycleRow row = m_grid->Cycle(last);
    const Answer answer = session.prompter->Ask({u"Rückfrage Löschen"_s, DeleteCycleQuestion(m_grid->NrOf(last), row),
                                                 MessageIcon::Question, MessageButtons::YesNo, Answer::No});
    if (answer != Answer::Yes)
        return;
    session.CurrentSql = DeleteCycleSql(row.Zyklus);
    if (ExecuteCycleSql(session) != 0)
        return;
    m_grid->removeRow(last);
    UpdateDeleteCommand();
}

void CycleWindow::ExportClick()
{
    Session& session = CurrentSession();
    const QList<CycleRow> rows = m_grid->Cycles();
    m_main.SetStatusPanel(StatusPanel, u"Exportiere Einträge ..."_s);
    m_main.StartProgress(static_cast<int>(rows.size()));
    const CycleExportResult result = ExportCycles(session.DataFolder, session.Config.SeriesName, rows,
                                                  [this](int written) { SetProgress(written); });
    m_main.SetStatusPanel(StatusPanel, u"Fertig und Bereit."_s);
    m_main.FinishProgress(ProgressLinger);
    session.prompter->Tell(CycleExportTitle, CycleExportMessage(result), MessageIcon::Information);
}

void CycleWindow::ShowPopup(const QPoint& position)
{
    const int row = m_grid->rowAt(position.y());
    if (row < 0)
        return;
    m_grid->SelectCycle(row);
    m_editMenu->popup(m_grid->viewport()->mapToGlobal(position));
}

} // namespace heft
