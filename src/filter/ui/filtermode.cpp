#include "filtermode.h"

#include "columnfilldialog.h"
#include "filterdialog.h"
#include "smallfilterwindow.h"

#include "core/textfuncs.h"
#include "mainwin/ui/mainwindow.h"
#include "mainwin/ui/statusbar.h"

#include <QAction>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The status panel that shows "F" while a filter is in force.
constexpr int FilterPanel = 6;

} // namespace

FilterMode::FilterMode(MainWindow& window)
    : QObject(&window), m_window(window), m_button(window.Command(u"filter"_s)),
      m_menuItem(window.Command(u"mnu_filter"_s))
{
    window.SetCommandHandler(u"mnu_filter"_s, [this] { FilterClick(); });
    // The window switched its commands on before this one had its work.
    m_menuItem->setEnabled(true);
    m_button->setEnabled(true);
    if (auto* status = qobject_cast<StatusBar*>(window.statusBar()))
        connect(status, &StatusBar::PanelClicked, this, &FilterMode::PanelClicked);
}

void FilterMode::FilterClick()
{
    // The print window prints from the list that is in use; it goes when
    // the list changes.
    if (auto* print = m_window.findChild<QWidget*>(u"frm_print"_s, Qt::FindDirectChildrenOnly))
        print->close();
    // Button and menu item have flipped themselves already; they go back to
    // the state from before the click, and that state decides.
    const bool filterOn = m_buttonDown;
    SetFilterCommands(filterOn);
    if (filterOn)
        EndFilter();
    else
        StartFilter();
}

void FilterMode::SetFilterCommands(bool filterOn)
{
    m_buttonDown = filterOn;
    m_button->setChecked(filterOn);
    m_menuItem->setChecked(filterOn);
    // The F stays the access key of the command in either state.
    m_menuItem->setText(filterOn ? u"&Filter"_s : u"&Filter ..."_s);
}

void FilterMode::StartFilter()
{
    // New entries can't be read into a filtered list.
    m_importWasOn = m_window.IsCommandEnabled(u"mnu_import"_s);
    for (const QString& name : {u"mnu_import"_s, u"import"_s})
        m_window.Command(name)->setEnabled(false);
    SetFilterCommands(true);
    FilterDialog dialog(m_window, m_state);
    dialog.exec();
    if (!m_window.IsFilterMode())
        ResetFilterCommands();
}

void FilterMode::ResetFilterCommands()
{
    SetFilterCommands(false);
    for (const QString& name : {u"mnu_import"_s, u"import"_s})
        m_window.Command(name)->setEnabled(m_importWasOn);
}

void FilterMode::EndFilter()
{
    EntryList& list = m_window.List();
    list.ShowFilterGrid(false);
    ResetFilterCommands();
    list.ActiveGrid = &list.Heftliste;
    if (auto* view = m_window.findChild<QWidget*>(u"fg_heftliste"_s))
        view->setFocus();
    list.SortColumn = list.SavedSortColumn;
    list.SortDescending = list.SavedSortDescending;
    if (list.ResortOnReturn)
        list.ResortGrid();
    // The user stays on the entry that was selected in the filter list.
    const QString nr = list.Filter.TextMatrix(list.Filter.Row(), ColNr);
    if (IsNumeric(nr))
        list.FindAndShowRow(static_cast<int>(Val(nr)));
    list.UpdateSelectionPanel();
    m_window.EnableEntryCommands();
    for (int col = ColAutor; col <= ColBemerkung; ++col)
        list.Heftliste.SetColWidth(col, list.Filter.ColWidth(col));
    list.Filter.Model().Reset(std::vector<EntryCells>(1));
    m_window.SetStatusPanel(5, u"Fertig und Bereit."_s);
    m_window.SetStatusPanel(FilterPanel, u"-"_s);
}

void FilterMode::PanelClicked(int panel)
{
    if (panel != FilterPanel || m_window.StatusPanelText(FilterPanel) != u"F")
        return;
    SmallFilterWindow window(m_state.FilterText + m_state.ArchiveFilterText, &m_window);
    window.exec();
}

void InstallFilterMode(MainWindow& window)
{
    new FilterMode(window);
    // In a filter list "insert" fills a column over the whole list.
    window.SetColumnFillOpener([&window] { ShowColumnFill(window); });
}

FilterState* FilterStateOf(MainWindow& window)
{
    auto* mode = window.findChild<FilterMode*>(QString(), Qt::FindDirectChildrenOnly);
    return mode != nullptr ? &mode->State() : nullptr;
}

} // namespace heft
