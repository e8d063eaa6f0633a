#pragma once
// frm_heftarium, the one long-lived window: the two entry grids in one place
// and the status bar with its progress bar. Commands reach the entries
// through the list routines of EntryList, which this window owns.

#include "mainwin/entrylist.h"

#include <QMainWindow>

#include <functional>

class QAction;
class QProgressBar;
class QTimer;

namespace heft {

class EntryGridView;
class MainCommands;
class Session;
class StatusBar;

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    EntryList& List() { return m_list; }
    Session& CurrentSession() { return *m_session; }
    bool IsFilterMode() const { return m_list.ActiveGrid == &m_list.Filter; }

    // The commands by the object names of their menu items (mnu_edit, ...)
    // and toolbar buttons (edit, ...).
    QAction* Command(const QString& name) const;
    // Gives a command its work; until then it stays off.
    void SetCommandHandler(const QString& name, std::function<void()> handler);
    bool IsCommandEnabled(const QString& name) const;
    // The commands on an entry go off when a filter list runs empty and
    // come back when there is an entry again.
    void EnableEntryCommands();
    void DisableEntryCommands();
    // The detail window lives in a library above this one; the program
    // hands in how to open it (edit mode or view mode), which switches on
    // mnu_detail and mnu_detail_b.
    void SetDetailOpener(std::function<void(bool editMode)> opener);
    // Opens the detail window on the current entry, modal; nothing if the
    // program has none.
    void OpenDetails(bool editMode);
    // In a filter list "insert" fills a column over the whole list; that
    // window lives in the filter library, which hands it in here.
    void SetColumnFillOpener(std::function<void()> opener) { m_columnFillOpener = std::move(opener); }
    // mnu_stat: statistics need at least two entries in the full list.
    void StatisticsClick(const std::function<void()>& openStatistics);

    // Fills the full list from the collection (session.SharedRecordset, or
    // all of HEFTLIST when none is open), with caption, status texts and
    // progress as at start-up. The session's RemoveEntryRows then reaches
    // this window's lists.
    void LoadList(Session& session);

    void SetStatusPanel(int panel, const QString& text);
    QString StatusPanelText(int panel) const;
    // The progress bar pbar_load over status panel 4, with an hourglass
    // pointer while it shows.
    void StartProgress(int maximum);
    void FinishProgress(int milliseconds);
    void PlaceProgressBar();
    int RemoveEntryRows(int nr) { return m_list.RemoveEntryRows(nr); }

Q_SIGNALS:
    // Double-click or Enter on an entry of the active list.
    void EditRequested();
    // Right mouse button on an entry; the entry is the current row.
    void PopupRequested(const QPoint& globalPos);

protected:
    // Saves the placement into the log and closes the files; every change
    // was written when it was made, so nothing is asked.
    void closeEvent(QCloseEvent* event) override;

private:
    EntryGridView* AddGridView(EntryGrid& grid, const QString& name);
    void SetupCommands();
    void EnableCommands();
    void CheckDetailsTable();
    void EditClick(bool changeSelected);
    void DeleteClick();
    void InfoClick();
    void StatusPanelClick(int panel);
    void RestoreWindowPlacement();
    void SaveWindowPlacement();

    EntryList m_list;
    MainCommands* m_commands = nullptr;
    EntryGridView* m_heftliste = nullptr;
    EntryGridView* m_filter = nullptr;
    StatusBar* m_status = nullptr;
    QProgressBar* m_progress = nullptr;
    QTimer* m_selectionTimer = nullptr;
    Session* m_session = nullptr;
    bool m_progressCursor = false;
    bool m_detailsTableReadable = true;
    std::function<void(bool)> m_detailOpener;
    std::function<void()> m_columnFillOpener;
};

} // namespace heft
