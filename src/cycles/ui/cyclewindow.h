#pragma once
// frm_zyklus: the cycles of the series in a grid beside the main window,
// which stays usable. The only place where cycles are changed: the editor
// writes one cycle, the last cycle can be removed, and the list can be
// written to the cycle file.

#include <QMainWindow>

class QAction;
class QMenu;

namespace heft {

class CycleGrid;
class MainWindow;
class Session;

class CycleWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit CycleWindow(MainWindow& main);

    // Reads the list and shows the window on the current entry's cycle. When
    // the cycle file can't be opened or read, the user is told, the
    // session's EditAccepted is cleared and the window stays hidden.
    void Load();
    CycleGrid& Grid() { return *m_grid; }
    Session& CurrentSession();
    // zmnu_delete is on while there are at least two cycles.
    void PlaceBesideMainWindow();
    void UpdateDeleteCommand();

private:
    QAction* AddCommand(QMenu* menu, const QString& name, const QString& caption);
    void EditClick(bool existing);
    void DeleteClick();
    void ExportClick();
    void ShowPopup(const QPoint& position);
    void SetProgress(int value);

    MainWindow& m_main;
    CycleGrid* m_grid = nullptr;
    QMenu* m_editMenu = nullptr;
    QAction* m_delete = nullptr;
};

} // namespace heft
