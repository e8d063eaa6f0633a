#pragma once
// frm_heftarium, the one long-lived window: the two entry grids in one place
// and the status bar with its progress bar. Commands reach the entries
// through the list routines of EntryList, which this window owns.

#include "entrylist.h"

#include <QMainWindow>

class QProgressBar;
class QTimer;

namespace heft {

class EntryGridView;
class Session;
class StatusBar;

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    EntryList& List() { return m_list; }

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

private:
    EntryGridView* AddGridView(EntryGrid& grid, const QString& name);

    EntryList m_list;
    EntryGridView* m_heftliste = nullptr;
    EntryGridView* m_filter = nullptr;
    StatusBar* m_status = nullptr;
    QProgressBar* m_progress = nullptr;
    QTimer* m_selectionTimer = nullptr;
    Session* m_session = nullptr;
    bool m_progressCursor = false;
};

} // namespace heft
