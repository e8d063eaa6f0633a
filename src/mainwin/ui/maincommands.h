#pragma once
// The commands of the main window as the user reaches them: the menu with
// its access keys and shortcuts, the toolbar tbar_user, and the pop-up menu
// on a grid row. A command whose window is not part of the program yet is
// shown but stays off.

#include <QHash>
#include <QObject>
#include <QString>

#include <functional>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

namespace heft {

class MainCommands : public QObject {
    Q_OBJECT

public:
    explicit MainCommands(QMainWindow& window);

    // Runs when the command is chosen; a command without a handler is off,
    // and one that gets its handler later takes the state it was last given.
    void SetHandler(const QString& menuName, std::function<void()> handler);
    // Switches a command on or off in the menu and on the toolbar alike; a
    // command without a handler stays off.
    void SetEnabled(const QString& menuName, bool enabled);
    bool IsEnabled(const QString& menuName) const;
    // The menu item (mnu_edit) or the toolbar button (edit) of a command.
    QAction* Action(const QString& name) const;
    QToolBar* Toolbar() const { return m_toolbar; }
    QMenu* PopupMenu() const { return m_editMenu; }

private:
    struct Command {
        QAction* menuItem = nullptr;
        QAction* button = nullptr;
        std::function<void()> handler;
        bool wanted = false; // the state asked for, shown once there is a handler
    };
    void BuildMenus(QMainWindow& window);
    void BuildToolbar(QMainWindow& window);
    QAction* AddMenuItem(QMenu* menu, const QString& name, const QString& caption, const QKeySequence& shortcut);
    void Run(const QString& menuName);

    QHash<QString, Command> m_commands;
    QHash<QString, QAction*> m_actionsByName;
    QToolBar* m_toolbar = nullptr;
    QMenu* m_editMenu = nullptr;
};

} // namespace heft
