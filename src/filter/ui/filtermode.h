#pragma once
// Filter mode of the main window: the filter command on the menu and the
// toolbar starts a filter through frm_filter and ends it again, and a click
// on status panel 6 shows the filter in force. The last filter's texts stay
// here for as long as the program runs, for the small filter window and for
// the heads of printed lists and exports.

#include <QObject>
#include <QString>

class QAction;

namespace heft {

class MainWindow;

// The last filter that was run, kept after the filter ends; both texts are
// renewed at the next run.
struct FilterState {
    QString FilterWhere; // the WHERE condition, ends with a blank
    QString FilterText;  // the filter as a sentence for the user
    // The archive keyword search in words: in full for the small filter
    // window, short for the heads of prints and exports.
    QString ArchiveFilterText;
    QString ArchiveFilterNote;
};

class FilterMode : public QObject {
    Q_OBJECT

public:
    explicit FilterMode(MainWindow& window);

    FilterState& State() { return m_state; }

private:
    // mnu_filter and the toolbar button "filter": starts a filter when none
    // is in force, ends it otherwise.
    void FilterClick();
    void StartFilter();
    void EndFilter();
    // The commands as they are while no filter is in force.
    void ResetFilterCommands();
    void SetFilterCommands(bool filterOn);
    void PanelClicked(int panel);

    MainWindow& m_window;
    QAction* m_button;
    QAction* m_menuItem;
    FilterState m_state;
    // What the toolbar button shows as the program set it; the button and
    // the menu item flip themselves on a click, before the command runs.
    bool m_buttonDown = false;
    // Import stays off in filter mode; afterwards it is as it was before.
    bool m_importWasOn = false;
};

// Gives the window its filter command and the click on status panel 6.
void InstallFilterMode(MainWindow& window);
// The filter texts of the window; nullptr before InstallFilterMode.
FilterState* FilterStateOf(MainWindow& window);

} // namespace heft
