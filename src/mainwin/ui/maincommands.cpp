#include "maincommands.h"

#include "toolbaricons.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

struct ToolbarButton {
    const char16_t* key;
    const char16_t* tooltip;
    const char16_t* caption;
    const char16_t* command; // the menu item that does the same
};

// In the order the toolbar shows them; nullptr keys are separators.
constexpr ToolbarButton ToolbarButtons[] = {
    {u"edit", u"Ausgewählten Eintrag bearbeiten", u"Ände&rn", u"mnu_edit"},
    {u"insert", u"Eintrag in Liste einfügen", u"&Einfügen", u"mnu_insert"},
    {u"delete", u"Ausgewählten Eintrag löschen", u"&Löschen", u"mnu_delete"},
    {nullptr, nullptr, nullptr, nullptr},
    {u"goto", u"Gehe zu Eintrag Numero ...", u"Finde &Nr", u"mnu_goto"},
    {u"filter", u"Einträge filtern ...", u"&Filter", u"mnu_filter"},
    {nullptr, nullptr, nullptr, nullptr},
    {u"stat", u"Statistische Auswertung", u"&Statistik", u"mnu_stat"},
    {u"print", u"Drucken der Eintragslisten", u"&Drucken", u"mnu_print"},
    {nullptr, nullptr, nullptr, nullptr},
    {u"import", u"Einlesen neuer Einträge", u"Import", u"mnu_import"},
    {u"export", u"Exportieren ausgewählter Einträge", u"Export", u"mnu_export"},
    {nullptr, nullptr, nullptr, nullptr},
    {u"zykinfo", u"Zyklus Daten anzeigen", u"&Zyklus", u"mnu_zyklus"},
    {nullptr, nullptr, nullptr, nullptr},
    {u"info", u"Informationen über das Programm", u"&Info", u"mnu_Info"},
    {u"help", u"Hilfe zum Programm", u"&Hilfe", u"mnu_help"},
    {u"quit", u"Programm verlassen", u"&Beenden", u"mnu_Beenden"},
};

QKeySequence Ctrl(Qt::Key key) { return QKeySequence(Qt::CTRL | key); }

} // namespace

MainCommands::MainCommands(QMainWindow& window) : QObject(&window)
{
    BuildMenus(window);
    BuildToolbar(window);
    for (auto it = m_commands.begin(); it != m_commands.end(); ++it)
        SetEnabled(it.key(), false);
}

QAction* MainCommands::AddMenuItem(QMenu* menu, const QString& name, const QString& caption,
                                   const QKeySequence& shortcut)
{
    QAction* action = menu->addAction(caption);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WindowShortcut);
    connect(action, &QAction::triggered, this, [this, name] { Run(name); });
    m_commands[name].menuItem = action;
    m_actionsByName[name] = action;
    return action;
}

void MainCommands::BuildMenus(QMainWindow& window)
{
    QMenuBar* bar = window.menuBar();
    auto addMenu = [&](const QString& name, const QString& caption) {
        QMenu* menu = bar->addMenu(caption);
        menu->setObjectName(name);
        return menu;
    };
    // Two separators stand next to each other before the detail commands.
    auto addSeparator = [](QMenu* menu, const QString& name) { menu->addSeparator()->setObjectName(name); };

    QMenu* datei = addMenu(u"mnu_Datei"_s, u"Datei"_s);
    AddMenuItem(datei, u"mnu_Info"_s, u"Programm&Info"_s, Ctrl(Qt::Key_I));
    AddMenuItem(datei, u"mnu_zyklus"_s, u"&ZyklusInfo"_s, Ctrl(Qt::Key_Z));
    datei->addSeparator();
    AddMenuItem(datei, u"mnu_help"_s, u"&Hilfe"_s, Ctrl(Qt::Key_H));
    datei->addSeparator();
    AddMenuItem(datei, u"mnu_Beenden"_s, u"&Beenden"_s, Ctrl(Qt::Key_B));

    m_editMenu = addMenu(u"mnu_bearbeiten"_s, u"Bearbeiten"_s);
    AddMenuItem(m_editMenu, u"mnu_edit"_s, u"Ände&rn"_s, Ctrl(Qt::Key_R));
    AddMenuItem(m_editMenu, u"mnu_insert"_s, u"&Einfügen"_s, Ctrl(Qt::Key_E));
    m_editMenu->addSeparator();
    AddMenuItem(m_editMenu, u"mnu_delete"_s, u"&Löschen"_s, Ctrl(Qt::Key_L));
    addSeparator(m_editMenu, u"mnu_Separator88"_s);
    addSeparator(m_editMenu, u"mnu_Separator8"_s);
    AddMenuItem(m_editMenu, u"mnu_detail_b"_s, u"De&tail Bearbeiten"_s, Ctrl(Qt::Key_T));
    AddMenuItem(m_editMenu, u"mnu_detail"_s, u"Detail &Anzeigen"_s, Ctrl(Qt::Key_A));

    QMenu* search = addMenu(u"mnu_search"_s, u"Suchen"_s);
    AddMenuItem(search, u"mnu_goto"_s, u"Finde &Nr ..."_s, Ctrl(Qt::Key_N));
    search->addSeparator();
    AddMenuItem(search, u"mnu_filter"_s, u"&Filter ..."_s, Ctrl(Qt::Key_F))->setCheckable(true);

    QMenu* output = addMenu(u"mnu_output"_s, u"Ausgabe"_s);
    AddMenuItem(output, u"mnu_stat"_s, u"&Statistik"_s, Ctrl(Qt::Key_S));
    output->addSeparator();
    AddMenuItem(output, u"mnu_print"_s, u"&Drucken ..."_s, Ctrl(Qt::Key_D));

    QMenu* data = addMenu(u"mnu_data"_s, u"Daten"_s);
    AddMenuItem(data, u"mnu_import"_s, u"Daten Import ..."_s, Ctrl(Qt::Key_F1));
    data->addSeparator();
    AddMenuItem(data, u"mnu_export"_s, u"Daten Export ..."_s, Ctrl(Qt::Key_F2));

    QMenu* special = addMenu(u"mnu_sonder"_s, u"Sonderfunktionen"_s);
    AddMenuItem(special, u"mnu_tibi"_s, u"Titelbild anzeigen"_s, Ctrl(Qt::Key_F5));
    special->addSeparator();
    AddMenuItem(special, u"mnu_archiv"_s, u"VN Archiv Link"_s, Ctrl(Qt::Key_F6));
}

void MainCommands::BuildToolbar(QMainWindow& window)
{
    m_toolbar = window.addToolBar(u"Werkzeuge"_s);
    m_toolbar->setObjectName(u"tbar_user"_s);
    m_toolbar->setMovable(false);
    m_toolbar->setFloatable(false);
    m_toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const ToolbarButton& entry : ToolbarButtons) {
        if (entry.key == nullptr) {
            m_toolbar->addSeparator();
            continue;
        }
        const QString key = QString::fromUtf16(entry.key);
        const QString command = QString::fromUtf16(entry.command);
        auto* button = new QAction(ToolbarIcon(key), QString::fromUtf16(entry.caption), m_toolbar);
        button->setObjectName(key);
        button->setToolTip(QString::fromUtf16(entry.tooltip));
        button->setStatusTip(button->toolTip());
        button->setCheckable(key == u"filter");
        connect(button, &QAction::triggered, this, [this, command] { Run(command); });
        m_toolbar->addAction(button);
        m_commands[command].button = button;
        m_actionsByName[key] = button;
    }
}

void MainCommands::SetHandler(const QString& menuName, std::function<void()> handler)
{
    Command& command = m_commands[menuName];
    command.handler = std::move(handler);
    SetEnabled(menuName, command.wanted);
}

void MainCommands::SetEnabled(const QString& menuName, bool enabled)
{
    Command& command = m_commands[menuName];
    command.wanted = enabled;
    enabled = enabled && command.handler;
    for (QAction* action : {command.menuItem, command.button})
        if (action)
            action->setEnabled(enabled);
}

bool MainCommands::IsEnabled(const QString& menuName) const
{
    const auto it = m_commands.constFind(menuName);
    return it != m_commands.cend() && it->menuItem && it->menuItem->isEnabled();
}

QAction* MainCommands::Action(const QString& name) const { return m_actionsByName.value(name); }

void MainCommands::Run(const QString& menuName)
{
    const Command& command = m_commands[menuName];
    if (command.handler && command.menuItem->isEnabled())
        command.handler();
}

} // namespace heft
